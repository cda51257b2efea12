// SHGetFileInfoA.
#include <shellapi.h>

#include "shell/icons.h"
#include "shell/live.h"

namespace platform::shell {
namespace {

std::optional<Place> PlaceOfPath(const char* path) {
    const OwnedList list = ParseName(DesktopPlace(), path);
    return list ? Follow(DesktopPlace(), list.get()) : std::nullopt;
}

DWORD_PTR Answer(const Place& place, SHFILEINFOA& information, UINT flags) {
    if (!(flags & SHGFI_SYSICONINDEX)) {
        return TRUE;
    }
    information.iIcon = static_cast<int>(PictureOf(place, (flags & SHGFI_OPENICON) != 0));
    return reinterpret_cast<DWORD_PTR>(SmallIcons());
}

}  // namespace
}  // namespace platform::shell

using namespace platform::shell;

DWORD_PTR WINAPI SHGetFileInfoA(LPCSTR path, DWORD, SHFILEINFOA* information, UINT size, UINT flags) {
    constexpr UINT kLargeIcon = SHGFI_SYSICONINDEX | SHGFI_SMALLICON;
    const bool wantsLarge = (flags & kLargeIcon) == SHGFI_SYSICONINDEX;
    if (!path || !information || size < sizeof *information || (flags & SHGFI_ICON) || wantsLarge) {
        return 0;
    }
    DWORD_PTR answer = 0;
    Method([&]() -> HRESULT {
        const auto place =
            flags & SHGFI_PIDL ? Follow(DesktopPlace(), reinterpret_cast<LPCITEMIDLIST>(path)) : PlaceOfPath(path);
        answer = place ? Answer(*place, *information, flags) : 0;
        return S_OK;
    });
    return answer;
}
