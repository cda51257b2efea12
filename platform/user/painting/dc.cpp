// Device contexts of windows, from a cache of contexts that are back at their defaults.
#include <algorithm>
#include <memory>
#include <new>
#include <vector>

#include "base/immortal.h"
#include "base/handle.h"
#include "gdi/context/device_context.h"
#include "user/painting/painting.h"

namespace platform::user {
namespace {

constexpr std::size_t kSpareContexts = 12;

struct Slot {
    HDC context = nullptr;
    HWND window = nullptr;
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
    static base::Immortal<Slots> slots;
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

Slot* NewSlot() {
    try {
        auto slot = std::make_unique<Slot>();
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

Slot* FindFreeSlot(HWND window, unsigned visible) {
    Slot* any = nullptr;
    for (const auto& slot : AllSlots()) {
        if (slot->inUse) {
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
        if (Slot* fresh = NewSlot(); fresh != nullptr) {
            return fresh;
        }
    }
    return any;
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

unsigned VisibleFlagsOf(const Window* window, bool whole) {
    if (window == Desktop()) {
        return kVisibleWhole;
    }
    return whole ? kVisibleWhole | (StyleFlags(window) & kVisibleClipSiblings) : StyleFlags(window);
}

}  // namespace

HDC AcquireContext(Window* window, bool whole, const gdi::Region* limit, bool painting) {
    const unsigned visible = VisibleFlagsOf(window, whole);
    Slot* slot = FindFreeSlot(window->handle, visible);
    if (slot == nullptr) {
        return nullptr;
    }
    const bool current = slot->window == window->handle && slot->visible == visible && !slot->limited &&
                         limit == nullptr && slot->generation == WindowsGeneration();
    slot->window = window->handle;
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
    if (slot == nullptr || !slot->inUse) {
        return false;
    }
    if (painting != nullptr) {
        *painting = slot->painting;
    }
    slot->painting = false;
    slot->inUse = false;
    gdi::ResetContext(context);
    Slots& slots = AllSlots();
    const auto spare = std::count_if(slots.begin(), slots.end(), [](const auto& each) { return !each->inUse; });
    if (static_cast<std::size_t>(spare) > kSpareContexts) {
        gdi::DeleteScreenContext(context);
        std::erase_if(slots, [slot](const auto& each) { return each.get() == slot; });
    }
    return true;
}

void RefreshContexts() {
    for (const auto& slot : AllSlots()) {
        if (!slot->inUse || slot->generation == WindowsGeneration()) {
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
    return static_cast<int>(std::count_if(slots.begin(), slots.end(), [](const auto& slot) { return slot->inUse; }));
}

void ForgetPainting(Window* window) {
    UserGuard guard(UserLock());
    Slots& slots = AllSlots();
    for (std::size_t i = 0; i < slots.size();) {
        Slot& slot = *slots[i];
        if (slot.window == window->handle) {
            if (slot.inUse && !Renew(slot)) {
                slots.erase(slots.begin() + static_cast<std::ptrdiff_t>(i));
                continue;
            }
            gdi::ReplaceVisible(slot.context, POINT{0, 0}, gdi::Region());
            slot.window = nullptr;
            slot.limited = false;
        }
        ++i;
    }
    window->update.Clear();
    window->eraseNeeded = window->frameNeeded = false;
    delete window->paintState;
    window->paintState = nullptr;
}

}  // namespace platform::user

using namespace platform::user;

namespace {

HDC ContextOf(HWND handle, bool whole) {
    const UserGuard guard(UserLock());
    Window* window = handle == nullptr ? Desktop() : FindWindowObject(handle);
    return window == nullptr ? nullptr : AcquireContext(window, whole, nullptr, false);
}

}  // namespace

HDC WINAPI GetDC(HWND handle) {
    return ContextOf(handle, false);
}

HDC WINAPI GetWindowDC(HWND handle) {
    return ContextOf(handle, true);
}

int WINAPI ReleaseDC(HWND, HDC context) {
    return ReleaseContext(context) ? 1 : 0;
}
