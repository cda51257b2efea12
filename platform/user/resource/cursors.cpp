// Cursors and icons as objects: the system's own, known by number, and icons of modules, known by name.
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

/// What was loaded before, as a second call gives the same handle.
struct Loaded {
    HandleKind kind;
    HINSTANCE instance;
    const void* group;  ///< null for the system's own
    unsigned number;
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

HANDLE Load(HandleKind kind, HINSTANCE instance, LPCSTR name) try {
    const void* group = instance ? kernel::FindResourceBytes(instance, name, RT_GROUP_ICON).data() : nullptr;
    if (instance && !group) {
        return nullptr;
    }
    const unsigned number = instance ? 0 : LOWORD(name);
    LoadedIcons& shared = Shared();
    const std::lock_guard guard(shared.lock);
    for (const Loaded& each : shared.all) {
        if (each.kind == kind && each.instance == instance && each.group == group && each.number == number) {
            return base::ToHandle<HANDLE>(each.handle);
        }
    }
    auto icon = std::make_unique<Icon>();
    icon->number = number;
    if (kind == HandleKind::Icon) {
        auto picture = instance ? ReadIconResource(instance, name) : DrawSystemIcon(number);
        if (!picture) {
            return nullptr;
        }
        icon->picture = std::move(*picture);
    }
    shared.all.reserve(shared.all.size() + 1);
    const std::uint32_t handle = base::InsertHandle(kind, icon.get());
    if (!handle) {
        throw std::bad_alloc();
    }
    icon.release();
    shared.all.push_back({kind, instance, group, number, handle});
    return base::ToHandle<HANDLE>(handle);
} catch (const std::bad_alloc&) {
    return Fail(ERROR_NOT_ENOUGH_MEMORY, nullptr);
}

}  // namespace

unsigned CursorShape(HCURSOR cursor) {
    const Icon* icon = base::Find<Icon>(cursor, HandleKind::Cursor);
    return icon ? icon->number : 0;
}

SIZE IconSize(HICON handle) {
    const Icon* icon = base::Find<Icon>(handle, HandleKind::Icon);
    return icon ? SIZE{icon->picture.width, icon->picture.height} : SIZE{0, 0};
}

}  // namespace platform::user

using namespace platform::user;
using platform::base::HandleKind;

HCURSOR WINAPI LoadCursorA(HINSTANCE instance, LPCSTR name) {
    const bool known = !instance && IS_INTRESOURCE(name) &&
                       std::find(std::begin(kCursors), std::end(kCursors), LOWORD(name)) != std::end(kCursors);
    if (!known) {
        return Fail(ERROR_RESOURCE_NAME_NOT_FOUND, nullptr);
    }
    return static_cast<HCURSOR>(Load(HandleKind::Cursor, nullptr, name));
}

HICON WINAPI LoadIconA(HINSTANCE instance, LPCSTR name) {
    if (!instance && !(IS_INTRESOURCE(name) && LOWORD(name) >= kFirstIcon && LOWORD(name) <= kLastIcon)) {
        return Fail(ERROR_RESOURCE_NAME_NOT_FOUND, nullptr);
    }
    return static_cast<HICON>(Load(HandleKind::Icon, instance, name));
}

BOOL WINAPI DestroyIcon(HICON icon) {
    if (!platform::base::Find<Icon>(icon, HandleKind::Icon)) {
        return Fail(ERROR_INVALID_ICON_HANDLE, FALSE);
    }
    // All icons are loaded, and so shared: one is destroyed by nobody, and asking for it does no harm.
    return TRUE;
}
