/// @file listing.h
/// What a folder of the namespace holds.
#pragma once

#include <string>
#include <vector>

#include "shell/place.h"

namespace platform::shell {

struct Listed {
    ItemKind kind;
    std::string name;

    Item AsItem() const {
        return {kind, name};
    }
};
using Listing = std::vector<Listed>;

/// Adds the items of a folder: folders first, each kind by name. flags: SHCONTF_ bits.
HRESULT ListItems(const Place& place, SHCONTFLAGS flags, Listing& listing);

}  // namespace platform::shell
