// Device contexts of windows. Most come from a cache of contexts that are back at their defaults; a window of a class
// with CS_OWNDC has one for life, the windows of a class with CS_CLASSDC share one.
#include <algorithm>
#include <memory>
#include <new>
#include <vector>

#include "base/handle.h"
#include "gdi/context/device_context.h"
#include "user/painting/painting.h"

namespace platform::user {
namespace {

constexpr std::size_t kSpareContexts = 12;

struct Slot {
    enum class Kind { Cache, Own, Class };
    HDC context = nullptr;
    HWND window = nullptr;
    const WindowClass* windowClass = nullptr;  ///< of a class context
    Kind kind = Kind::Cache;
    unsigned visible = 0;
    bool inUse = false;
    bool painting = false;
    bool limited = false;
    gdi::Region limit;  ///< relative to the window's rectangle
    std::uint64_t generation = 0;
};

using Slots = std::vector<std::unique_ptr<Slot>>;

// Never freed: applications may release contexts while static objects go away.
Slots& AllSlots() {
    static auto* slots = new Slots;
    return *slots;
}

void Place(Slot& slot, Window* window) {
    const RECT& place = (slot.visible & kVisibleWhole) != 0 ? window->windowRect : window->clientRect;
    const gdi::Region& visible = Visible(window, slot.visible);
    slot.generation = WindowsGeneration();
    if (!slot.limited) {
        gdi::ReplaceVisible(slot.context, POINT{place.left, place.top}, visible);
        return;
    }
    gdi::Region region = slot.limit;
    region.Offset(window->windowRect.left, window->windowRect.top);
    region.Intersect(visible);
    gdi::ReplaceVisible(slot.context, POINT{place.left, place.top}, region);
}

Slot* NewSlot(Slot::Kind kind) {
    try {
        auto slot = std::make_unique<Slot>();
        slot->kind = kind;
        slot->context = gdi::CreateScreenContext(POINT{0, 0}, gdi::Region());
        if (slot->context == nullptr) {
            return nullptr;
        }
        AllSlots().push_back(std::move(slot));
        return AllSlots().back().get();
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

Slot* FindCacheSlot(HWND window, unsigned visible) {
    Slot* any = nullptr;
    for (const auto& slot : AllSlots()) {
        if (slot->kind != Slot::Kind::Cache || slot->inUse) {
            continue;
        }
        if (slot->window == window && slot->visible == visible) {
            return slot.get();
        }
        if (any == nullptr || slot->window == nullptr) {
            any = slot.get();
        }
    }
    const bool keepAny = any != nullptr && any->window != nullptr && AllSlots().size() < kSpareContexts;
    if (any == nullptr || keepAny) {
        if (Slot* fresh = NewSlot(Slot::Kind::Cache); fresh != nullptr) {
            return fresh;
        }
    }
    return any;
}

Slot* FindPrivateSlot(Window* window) {
    const bool own = (window->windowClass->style & CS_OWNDC) != 0;
    for (const auto& slot : AllSlots()) {
        if (own ? slot->kind == Slot::Kind::Own && slot->window == window->handle
                : slot->kind == Slot::Kind::Class && slot->windowClass == window->windowClass) {
            return slot.get();
        }
    }
    Slot* slot = NewSlot(own ? Slot::Kind::Own : Slot::Kind::Class);
    if (slot != nullptr) {
        slot->windowClass = window->windowClass;
        window->classOrOwnContext = slot->context;
    }
    return slot;
}

Slot* FindSlot(HDC context) {
    for (const auto& slot : AllSlots()) {
        if (slot->context == context) {
            return slot.get();
        }
    }
    return nullptr;
}

/// Ends a context in use and puts another one in its place: whoever still paints with it must not change what the next
/// window gets. @returns false when there is none.
bool Renew(Slot& slot) {
    gdi::DeleteScreenContext(slot.context);
    slot.context = gdi::CreateScreenContext(POINT{0, 0}, gdi::Region());
    slot.inUse = false;
    slot.painting = false;
    return slot.context != nullptr;
}

unsigned ResolveFlags(const Window* window, DWORD flags) {
    const Window* parent = window->parent;
    if (window == Desktop()) {
        return kVisibleWhole;
    }
    if ((flags & kContextUseStyle) != 0) {
        flags &= ~static_cast<DWORD>(DCX_CLIPCHILDREN | DCX_CLIPSIBLINGS | DCX_PARENTCLIP);
        if ((window->style & WS_CLIPSIBLINGS) != 0) {
            flags |= DCX_CLIPSIBLINGS;
        }
        if ((flags & DCX_WINDOW) == 0) {
            if ((window->style & WS_CLIPCHILDREN) != 0) {
                flags |= DCX_CLIPCHILDREN;
            }
            if ((window->windowClass->style & CS_PARENTDC) != 0 &&
                (window->style & (WS_CLIPCHILDREN | WS_CLIPSIBLINGS)) == 0 && parent != nullptr &&
                (parent->style & WS_CLIPCHILDREN) == 0) {
                flags |= DCX_PARENTCLIP;
            }
        }
    }
    const bool child = (window->style & WS_CHILD) != 0 && parent != nullptr && parent != Desktop();
    return ((flags & DCX_WINDOW) != 0 ? kVisibleWhole : 0U) |
           ((flags & DCX_CLIPCHILDREN) != 0 ? kVisibleClipChildren : 0U) |
           ((flags & DCX_CLIPSIBLINGS) != 0 ? kVisibleClipSiblings : 0U) |
           ((flags & DCX_PARENTCLIP) != 0 && child ? kVisibleParentClip : 0U);
}

/// The limit that the flags of GetDCEx ask for. @returns false when there is none.
bool LimitOf(Window* window, HRGN clip, DWORD flags, gdi::Region* limit) {
    bool limited = false;
    limit->Set(window->windowRect);
    // 1 stands for the whole window, as WM_NCPAINT hands it on.
    if (clip != nullptr && reinterpret_cast<ULONG_PTR>(clip) != 1) {
        if ((flags & DCX_INTERSECTRGN) != 0) {
            limit->Intersect(gdi::RegionOf(clip));
            limited = true;
        } else if ((flags & DCX_EXCLUDERGN) != 0) {
            limit->Subtract(gdi::RegionOf(clip));
            limited = true;
        }
    }
    if ((flags & DCX_INTERSECTUPDATE) != 0) {
        limit->Intersect(ScreenUpdate(window));
        limited = true;
    } else if ((flags & DCX_EXCLUDEUPDATE) != 0) {
        limit->Subtract(ScreenUpdate(window));
        limited = true;
    }
    return limited;
}

}  // namespace

HDC AcquireContext(Window* window, DWORD flags, const gdi::Region* limit, bool painting) {
    const bool isPrivate =
        (window->windowClass->style & (CS_OWNDC | CS_CLASSDC)) != 0 && (flags & (DCX_CACHE | DCX_WINDOW)) == 0;
    unsigned visible = ResolveFlags(window, isPrivate ? flags | kContextUseStyle : flags);
    if (painting) {
        visible &= ~kVisibleParentClip;
    }
    Slot* slot = isPrivate ? FindPrivateSlot(window) : FindCacheSlot(window->handle, visible);
    if (slot == nullptr) {
        return nullptr;
    }
    const bool current = slot->window == window->handle && slot->visible == visible && !slot->limited &&
                         limit == nullptr && slot->generation == WindowsGeneration();
    if (slot->window != window->handle) {
        slot->window = window->handle;
        gdi::SetContextWindow(slot->context, window->handle);
    }
    slot->visible = visible;
    slot->inUse = true;
    slot->painting = painting;
    slot->limited = limit != nullptr;
    if (limit != nullptr) {
        slot->limit = *limit;
        slot->limit.Offset(-window->windowRect.left, -window->windowRect.top);
    }
    if (!current) {
        Place(*slot, window);
    }
    return slot->context;
}

bool ReleaseContext(HDC context, bool* painting) {
    if (context == nullptr) {
        return false;
    }
    UserGuard guard(UserLock());
    Slot* slot = FindSlot(context);
    if (slot == nullptr || (slot->kind == Slot::Kind::Cache && !slot->inUse)) {
        return false;
    }
    if (painting != nullptr) {
        *painting = slot->painting;
    }
    slot->painting = false;
    if (slot->kind != Slot::Kind::Cache) {
        if (slot->limited) {
            slot->limited = false;
            if (Window* window = base::Find<Window>(slot->window, base::HandleKind::Window); window != nullptr) {
                Place(*slot, window);
            }
        }
        return true;
    }
    slot->inUse = false;
    gdi::ResetContext(context);
    Slots& slots = AllSlots();
    const auto spare = std::count_if(slots.begin(), slots.end(),
                                     [](const auto& each) { return each->kind == Slot::Kind::Cache && !each->inUse; });
    if (static_cast<std::size_t>(spare) > kSpareContexts) {
        gdi::DeleteScreenContext(context);
        slots.erase(std::find_if(slots.begin(), slots.end(), [slot](const auto& each) { return each.get() == slot; }));
    }
    return true;
}

void RefreshContexts() {
    for (const auto& slot : AllSlots()) {
        if ((!slot->inUse && slot->kind == Slot::Kind::Cache) || slot->generation == WindowsGeneration()) {
            continue;
        }
        if (Window* window = base::Find<Window>(slot->window, base::HandleKind::Window); window != nullptr) {
            Place(*slot, window);
        }
    }
}

int ContextsInUse() {
    UserGuard guard(UserLock());
    const Slots& slots = AllSlots();
    return static_cast<int>(std::count_if(
        slots.begin(), slots.end(), [](const auto& slot) { return slot->kind == Slot::Kind::Cache && slot->inUse; }));
}

void ForgetPainting(Window* window) {
    UserGuard guard(UserLock());
    Slots& slots = AllSlots();
    for (std::size_t i = 0; i < slots.size();) {
        Slot& slot = *slots[i];
        const bool classContext = slot.kind == Slot::Kind::Class && slot.windowClass == window->windowClass;
        const bool mine = slot.window == window->handle;
        if (mine && slot.kind == Slot::Kind::Cache && (!slot.inUse || Renew(slot))) {
            gdi::SetContextWindow(slot.context, nullptr);
            gdi::ReplaceVisible(slot.context, POINT{0, 0}, gdi::Region());
            slot.window = nullptr;
            slot.limited = false;
        } else if ((mine && slot.kind != Slot::Kind::Class) || (classContext && window->windowClass->windows <= 1)) {
            gdi::DeleteScreenContext(slot.context);
            slots.erase(slots.begin() + static_cast<std::ptrdiff_t>(i));
            continue;
        }
        ++i;
    }
    window->classOrOwnContext = nullptr;
    window->update.Clear();
    window->eraseNeeded = window->frameNeeded = window->internalPaint = false;
    delete window->paintState;
    window->paintState = nullptr;
}

}  // namespace platform::user

using namespace platform::user;
namespace base = platform::base;
namespace gdi = platform::gdi;

HDC WINAPI GetDCEx(HWND handle, HRGN clip, DWORD flags) {
    HDC context = nullptr;
    {
        UserGuard guard(UserLock());
        Window* window = handle == nullptr ? Desktop() : FindWindowObject(handle);
        if (window == nullptr) {
            return nullptr;
        }
        gdi::Region limit;
        const bool limited = LimitOf(window, clip, flags, &limit);
        context = AcquireContext(window, flags, limited ? &limit : nullptr, false);
        if (context != nullptr && (flags & DCX_VALIDATE) != 0 && (flags & DCX_INTERSECTUPDATE) != 0) {
            window->update.Clear();
            window->eraseNeeded = window->frameNeeded = false;
        }
    }
    // With these flags the region passes into the system's hands.
    if (context != nullptr && (flags & (DCX_INTERSECTRGN | DCX_EXCLUDERGN)) != 0 &&
        base::KindOfHandle(base::ToNumber(clip)) == base::HandleKind::Region) {
        DeleteObject(clip);
    }
    return context;
}

HDC WINAPI GetDC(HWND handle) {
    return GetDCEx(handle, nullptr, kContextUseStyle);
}

HDC WINAPI GetWindowDC(HWND handle) {
    return GetDCEx(handle, nullptr, kContextUseStyle | DCX_WINDOW);
}

int WINAPI ReleaseDC(HWND, HDC context) {
    return ReleaseContext(context) ? 1 : 0;
}

HWND WINAPI WindowFromDC(HDC context) {
    return gdi::GetContextWindow(context);
}
