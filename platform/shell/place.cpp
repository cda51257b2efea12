#include "shell/place.h"

#include <algorithm>
#include <cctype>

#include "kernel/text/encoding.h"
#include "kernel/files/hostfile.h"
#include "shell/directory.h"

namespace platform::shell {
namespace {

constexpr char kComputerClass[] = "::{20D04FE0-3AEA-1069-A2D8-08002B30309D}";

std::string Joined(const std::string& path, const std::string& name) {
    return path.ends_with('\\') ? path + name : path + '\\' + name;
}

/// Takes the first part off a path. Separators may be doubled.
std::string_view TakePart(std::string_view& path) {
    path.remove_prefix(std::min(path.find_first_not_of("\\/"), path.size()));
    const std::size_t end = std::min(path.find_first_of("\\/"), path.size());
    const std::string_view part = path.substr(0, end);
    path.remove_prefix(end);
    return part;
}

/// Adds the items of a path below a folder. @returns null when one of them is not there.
OwnedList ParsePath(Place folder, OwnedList list, std::string_view path) {
    for (std::string_view part = TakePart(path); !part.empty(); part = TakePart(path)) {
        const std::string directory = HostDirectory(folder);
        const std::string name = folder.IsFolder() ? FindEntry(directory, std::string(part)) : std::string();
        bool isFolder = false;
        if (name.empty() || !Exists(directory + '/' + name, isFolder)) {
            return nullptr;
        }
        const Item item{isFolder ? ItemKind::Folder : ItemKind::File, name};
        list = JoinLists(list.get(), MakeItem(item).get());
        folder = *PlaceBelow(folder, item);
    }
    return list;
}

bool IsDrivePath(std::string_view name) {
    return name.size() >= 2 && name[1] == ':' && std::isalpha(static_cast<unsigned char>(name[0])) &&
           (name.size() == 2 || name[2] == '\\' || name[2] == '/');
}

/// A drive and what lies below it, from the computer.
OwnedList ParseDrive(const Place& computer, OwnedList list, std::string_view name) {
    const auto letter = static_cast<char>(std::toupper(static_cast<unsigned char>(name[0])));
    const std::vector<char> drives = Drives();
    if (std::find(drives.begin(), drives.end(), letter) == drives.end()) {
        return nullptr;
    }
    const Item item{ItemKind::Drive, std::string_view(&letter, 1)};
    return ParsePath(*PlaceBelow(computer, item), JoinLists(list.get(), MakeItem(item).get()), name.substr(2));
}

Place ComputerPlace() {
    return {PlaceKind::Computer, {}, {}};
}

/// Where a drive lies, also one without a medium.
std::string DriveHost(char letter) {
    std::string folder;
    kernel::DriveFolder(letter, &folder);
    return folder;
}

}  // namespace

std::string HostDirectory(const Place& place) {
    return place.host.empty() ? "/" : place.host;
}

Place DesktopPlace() {
    return {PlaceKind::Desktop, DriveHost('C') + "/WINDOWS/Desktop", "C:\\WINDOWS\\Desktop"};
}

std::optional<Place> PlaceBelow(const Place& folder, const Item& item) {
    switch (item.kind) {
        case ItemKind::Computer:
            return folder.kind == PlaceKind::Desktop ? std::optional(ComputerPlace()) : std::nullopt;
        case ItemKind::Drive:
            if (folder.kind != PlaceKind::Computer) {
                return std::nullopt;
            }
            return Place{PlaceKind::Drive, DriveHost(item.name[0]), std::string(item.name) + ":\\"};
        case ItemKind::Folder:
        case ItemKind::File:
            if (folder.kind == PlaceKind::Computer || folder.kind == PlaceKind::File) {
                return std::nullopt;
            }
            return Place{item.kind == ItemKind::Folder ? PlaceKind::Folder : PlaceKind::File,
                         folder.host + '/' + std::string(item.name),
                         Joined(folder.path, kernel::AnsiFromUtf8(item.name))};
        case ItemKind::None:
            break;
    }
    return std::nullopt;
}

std::optional<Place> Follow(const Place& folder, LPCITEMIDLIST list) {
    std::optional<Place> place = folder;
    for (; list && place && !IsEnd(list); list = NextItem(list)) {
        place = PlaceBelow(*place, ReadItem(list));
    }
    return place;
}

OwnedList ParseName(const Place& folder, std::string_view name) {
    OwnedList none = JoinLists(nullptr, nullptr);
    if (folder.kind == PlaceKind::Computer) {
        return IsDrivePath(name) ? ParseDrive(folder, std::move(none), name) : nullptr;
    }
    if (folder.kind == PlaceKind::Desktop) {
        const Item computer{ItemKind::Computer, {}};
        if (name == kComputerClass) {
            return MakeItem(computer);
        }
        if (IsDrivePath(name)) {
            return ParseDrive(ComputerPlace(), MakeItem(computer), name);
        }
    }
    return name.empty() ? nullptr : ParsePath(folder, std::move(none), name);
}

std::string DisplayName(const Place& place) {
    switch (place.kind) {
        case PlaceKind::Desktop:
            return "Desktop";
        case PlaceKind::Computer:
            return "My Computer";
        case PlaceKind::Drive:
            return (place.path[0] == 'Z'         ? "Host ("
                    : IsRemovable(place.path[0]) ? "Disk ("
                                                 : "Hard Disk (") +
                   place.path.substr(0, 2) + ')';
        case PlaceKind::Folder:
        case PlaceKind::File:
            break;
    }
    return place.path.substr(place.path.rfind('\\') + 1);
}

std::string ParsingName(const Place& place) {
    return place.kind == PlaceKind::Computer ? kComputerClass : place.path;
}

SFGAOF Attributes(const Place& place, SFGAOF asked) {
    const bool onDisk = place.kind != PlaceKind::Desktop && place.kind != PlaceKind::Computer;
    // Whether there is something in a removable drive is found out when it is opened.
    const bool removable = place.kind == PlaceKind::Drive && IsRemovable(place.path[0]);
    SFGAOF has = (place.IsFolder() ? SFGAO_FOLDER : 0U) | (onDisk ? SFGAO_FILESYSTEM : 0U);
    if ((asked & SFGAO_HASSUBFOLDER) && place.IsFolder() &&
        (!onDisk || removable || HasSubfolder(HostDirectory(place)))) {
        has |= SFGAO_HASSUBFOLDER;
    }
    return has & asked;
}

}  // namespace platform::shell
