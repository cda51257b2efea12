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

}  // namespace
}  // namespace platform::shell

using namespace platform::shell;

DWORD_PTR WINAPI SHGetFileInfoA(LPCSTR path, DWORD, SHFILEINFOA* information, UINT size, UINT flags) {
    constexpr UINT kSmallIcon = SHGFI_SYSICONINDEX | SHGFI_SMALLICON;
    if (!path || !information || size < sizeof *information ||
        (flags & ~UINT{SHGFI_OPENICON | SHGFI_PIDL}) != kSmallIcon) {
        return 0;
    }
    DWORD_PTR answer = 0;
    Method([&]() -> HRESULT {
        const auto place =
            flags & SHGFI_PIDL ? Follow(DesktopPlace(), reinterpret_cast<LPCITEMIDLIST>(path)) : PlaceOfPath(path);
        if (place) {
            information->iIcon = static_cast<int>(PictureOf(*place, (flags & SHGFI_OPENICON) != 0));
            answer = reinterpret_cast<DWORD_PTR>(SmallIcons());
        }
        return S_OK;
    });
    return answer;
}
