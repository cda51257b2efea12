// Cursors and icons as objects: the system's own, known by number, and those of modules, known by name.
#include <algorithm>
#include <iterator>
#include <memory>
#include <mutex>
#include <new>

#include "base/immortal.h"
#include "base/handle.h"
#include "kernel/modules/resource.h"
#include "user/model/window.h"
#include "user/resource/icons.h"

namespace platform::user {
namespace {

using base::HandleKind;

constexpr unsigned kCursors[] = {32512, 32513, 32514, 32515, 32516, 32640, 32641, 32642,
                                 32643, 32644, 32645, 32646, 32648, 32649, 32650, 32651};
constexpr unsigned kFirstIcon = 32512;
constexpr unsigned kLastIcon = 32517;
constexpr unsigned kArrow = 32512;

HandleKind KindOf(bool cursor) {
    return cursor ? HandleKind::Cursor : HandleKind::Icon;
}

/// Files an icon. Throws bad_alloc.
std::uint32_t File(std::unique_ptr<Icon> icon) {
    const std::uint32_t handle = base::InsertHandle(KindOf(icon->cursor), icon.get());
    if (!handle) {
        throw std::bad_alloc();
    }
    icon.release();
    return handle;
}

/// What was loaded before, as a second call gives the same handle.
struct Loaded {
    HINSTANCE instance;
    const void* group;  ///< null for the system's own
    unsigned number;
    bool cursor;
    std::uint32_t handle;
};

struct LoadedIcons {
    std::mutex lock;
    std::vector<Loaded> all;
};

LoadedIcons& Shared() {
    static base::Immortal<LoadedIcons> shared;
    return *shared;
}

std::unique_ptr<Icon> MakeSystem(unsigned number, bool cursor) {
    const bool known = cursor ? std::find(std::begin(kCursors), std::end(kCursors), number) != std::end(kCursors)
                              : number >= kFirstIcon && number <= kLastIcon;
    if (!known) {
        SetLastError(ERROR_RESOURCE_NAME_NOT_FOUND);
        return nullptr;
    }
    auto icon = std::make_unique<Icon>();
    icon->number = number;
    if (!cursor) {
        icon->picture = DrawSystemIcon(number);
    }
    return icon;
}

std::unique_ptr<Icon> MakeFromResource(HINSTANCE instance, LPCSTR name, bool cursor) {
    auto picture = ReadIconResource(instance, name, cursor);
    if (!picture) {
        return nullptr;
    }
    auto icon = std::make_unique<Icon>();
    icon->number = cursor ? kArrow : 0;  // displays show the system's shapes only
    icon->picture = std::move(*picture);
    return icon;
}

HANDLE Load(HINSTANCE instance, LPCSTR name, bool cursor) try {
    if (!instance && !IS_INTRESOURCE(name)) {
        SetLastError(ERROR_RESOURCE_NAME_NOT_FOUND);
        return nullptr;
    }
    const void* group =
        instance ? kernel::FindResourceBytes(instance, name, cursor ? RT_GROUP_CURSOR : RT_GROUP_ICON).data() : nullptr;
    if (instance && !group) {
        return nullptr;
    }
    const unsigned number = instance ? 0 : LOWORD(name);
    LoadedIcons& shared = Shared();
    const std::lock_guard guard(shared.lock);
    for (const Loaded& each : shared.all) {
        if (each.instance == instance && each.group == group && each.number == number && each.cursor == cursor) {
            return base::ToHandle<HANDLE>(each.handle);
        }
    }
    auto icon = instance ? MakeFromResource(instance, name, cursor) : MakeSystem(number, cursor);
    if (!icon) {
        return nullptr;
    }
    icon->cursor = cursor;
    shared.all.reserve(shared.all.size() + 1);
    const std::uint32_t handle = File(std::move(icon));
    shared.all.push_back({instance, group, number, cursor, handle});
    return base::ToHandle<HANDLE>(handle);
} catch (const std::bad_alloc&) {
    SetLastError(ERROR_NOT_ENOUGH_MEMORY);
    return nullptr;
}

}  // namespace

unsigned CursorShape(HCURSOR cursor) {
    const Icon* icon = base::Find<Icon>(cursor, HandleKind::Cursor);
    return icon ? icon->number : 0;
}

SIZE IconSize(HICON handle) {
    const Icon* icon = base::Find<Icon>(handle, HandleKind::Icon);
    if (!icon) {
        icon = base::Find<Icon>(handle, HandleKind::Cursor);
    }
    if (!icon) {
        return {0, 0};
    }
    const IconPicture& picture = icon->picture;
    return {picture.width ? picture.width : GetSystemMetrics(SM_CXICON),
            picture.height ? picture.height : GetSystemMetrics(SM_CYICON)};
}

}  // namespace platform::user

using namespace platform::user;
using platform::base::HandleKind;

HCURSOR WINAPI LoadCursorA(HINSTANCE instance, LPCSTR name) {
    return static_cast<HCURSOR>(Load(instance, name, true));
}

HICON WINAPI LoadIconA(HINSTANCE instance, LPCSTR name) {
    return static_cast<HICON>(Load(instance, name, false));
}

BOOL WINAPI DestroyIcon(HICON icon) {
    if (!platform::base::Find<Icon>(icon, HandleKind::Icon)) {
        SetLastError(ERROR_INVALID_ICON_HANDLE);
        return FALSE;
    }
    // All icons are loaded, and so shared: one is destroyed by nobody, and asking for it does no harm.
    return TRUE;
}
