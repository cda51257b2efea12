// SHGetFileInfoA.
#include <shellapi.h>

#include <algorithm>
#include <cstring>

#include "shell/icons.h"
#include "shell/live.h"

namespace platform::shell {
namespace {

constexpr DWORD kDirectoryAttribute = 0x10;

void CopyText(char* to, std::size_t size, const std::string& text) {
    const std::size_t length = std::min(text.size(), size - 1);
    std::memcpy(to, text.data(), length);
    to[length] = '\0';
}

std::string TypeName(const Place& place) {
    switch (place.kind) {
        case PlaceKind::Desktop:
        case PlaceKind::Computer:
            return "System Folder";
        case PlaceKind::Drive:
            return IsRemovable(place.path[0]) ? "Removable Disk" : "Local Disk";
        case PlaceKind::Folder:
            return "File Folder";
        case PlaceKind::File:
            break;
    }
    const std::string name = DisplayName(place);
    const std::size_t dot = name.rfind('.');
    if (dot == name.npos || dot + 1 == name.size()) {
        return "File";
    }
    std::string type = name.substr(dot + 1);
    CharUpperBuffA(type.data(), static_cast<DWORD>(type.size()));
    return type + " File";
}

/// The place that a path names: one on the disk, or with SHGFI_USEFILEATTRIBUTES one that need not be there.
std::optional<Place> PlaceOfPath(const char* path, DWORD attributes, UINT flags) {
    if (flags & SHGFI_USEFILEATTRIBUTES) {
        return Place{attributes & kDirectoryAttribute ? PlaceKind::Folder : PlaceKind::File, {}, path, false};
    }
    const OwnedList list = ParseName(DesktopPlace(), path);
    return list ? Follow(DesktopPlace(), list.get()) : std::nullopt;
}

DWORD_PTR Answer(const Place& place, SHFILEINFOA& information, UINT flags) {
    if (flags & SHGFI_DISPLAYNAME) {
        CopyText(information.szDisplayName, sizeof information.szDisplayName, DisplayName(place));
    }
    if (flags & SHGFI_TYPENAME) {
        CopyText(information.szTypeName, sizeof information.szTypeName, TypeName(place));
    }
    if (flags & SHGFI_ATTRIBUTES) {
        information.dwAttributes = flags & SHGFI_USEFILEATTRIBUTES ? 0 : Attributes(place, ~SFGAOF{0});
    }
    if (!(flags & SHGFI_SYSICONINDEX)) {
        return TRUE;
    }
    information.iIcon = static_cast<int>(PictureOf(place, (flags & SHGFI_OPENICON) != 0));
    return reinterpret_cast<DWORD_PTR>(SmallIcons());
}

}  // namespace
}  // namespace platform::shell

using namespace platform::shell;

DWORD_PTR WINAPI SHGetFileInfoA(LPCSTR path, DWORD attributes, SHFILEINFOA* information, UINT size, UINT flags) {
    constexpr UINT kLargeIcon = SHGFI_SYSICONINDEX | SHGFI_SMALLICON;
    const bool wantsLarge = (flags & kLargeIcon) == SHGFI_SYSICONINDEX;
    if (!path || !information || size < sizeof *information || (flags & SHGFI_ICON) || wantsLarge) {
        return 0;
    }
    DWORD_PTR answer = 0;
    Method([&]() -> HRESULT {
        const auto place = flags & SHGFI_PIDL ? Follow(DesktopPlace(), reinterpret_cast<LPCITEMIDLIST>(path))
                                              : PlaceOfPath(path, attributes, flags);
        answer = place ? Answer(*place, *information, flags) : 0;
        return S_OK;
    });
    return answer;
}
