/// @file place.h
/// Where an item stands: what it is, its path on the host and its path for programs.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "shell/items.h"

namespace platform::shell {

enum class PlaceKind { Desktop, Computer, Drive, Folder, File };

struct Place {
    PlaceKind kind = PlaceKind::Desktop;
    std::string
        host;  ///< no slash at its end, so that the host's root is empty; of the desktop the folder of its files
    std::string
        path;  ///< for programs, in the code page in use; drives end in a backslash. Empty: not of the file system

    bool IsFolder() const {
        return kind != PlaceKind::File;
    }
};

Place DesktopPlace();

/// @returns where an item of a folder stands; nothing when the folder cannot hold such an item.
std::optional<Place> PlaceBelow(const Place& folder, const Item& item);

/// Follows a list from a folder. @returns nothing when it holds what no folder wrote.
std::optional<Place> Follow(const Place& folder, LPCITEMIDLIST list);

/// Makes the list, from the desktop or from a folder, that a parsing name means. @returns null when there is no such item.
OwnedList ParseName(const Place& folder, std::string_view name);

/// What people call a place.
std::string DisplayName(const Place& place);

/// What leads back to a place from the desktop: a path, or the computer's class in braces.
std::string ParsingName(const Place& place);

/// The SFGAO_ bits of a place, of which `asked` are wanted: some cost a look at the disk.
SFGAOF Attributes(const Place& place, SFGAOF asked);

/// The letters of the drives there are.
std::vector<char> Drives();
bool IsRemovable(char letter);

/// The path of a place's directory, as the host's calls take it.
std::string HostDirectory(const Place& place);

}  // namespace platform::shell
