/// @file resource.h
/// Reader of compiled resource scripts (.res). Every length in the file is checked; what does not fit ends the reading.
#pragma once

#include <windows.h>

#include <cstddef>
#include <span>
#include <string>
#include <vector>

namespace platform::kernel {

using Bytes = std::span<const unsigned char>;

/// The name or type of a resource: a number, or a text in capitals.
struct ResourceName {
    WORD number = 0;
    std::string text;

    bool operator==(const ResourceName&) const = default;
    /// From what an API call names it by: a number in a pointer, "#123" or a text.
    static ResourceName FromArgument(LPCSTR argument);
};

struct ResourceEntry {
    ResourceName type;
    ResourceName name;
    WORD language = 0;
    Bytes data;
};

/// Reads all entries. @param damaged  set when the file ends in the middle of an entry or lies about a length; the
/// entries before that are returned.
std::vector<ResourceEntry> ReadResources(Bytes file, bool* damaged);

/// @returns the data of a resource of a module (null: the application), empty with the documented error code set when
/// there is none. They stay where they are for as long as the module is loaded.
Bytes FindResourceBytes(HMODULE module, LPCSTR name, LPCSTR type);

}  // namespace platform::kernel
