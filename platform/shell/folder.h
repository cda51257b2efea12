/// @file folder.h
/// The folders of the namespace as objects.
#pragma once

#include "shell/place.h"

namespace platform::shell {

/// @returns a folder object with one reference. Throws bad_alloc.
IShellFolder* MakeFolder(Place place);

/// @returns an enumerator of a folder's items with one reference; null, with the result set, when it cannot be read.
IEnumIDList* MakeEnumerator(const Place& place, SHCONTFLAGS flags, HRESULT& result);

}  // namespace platform::shell
