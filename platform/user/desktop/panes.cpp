#include "user/desktop/panes.h"

#include <new>

#include "base/handle.h"
#include "kernel/text/encoding.h"
#include "user/input/input.h"
#include "user/message/queue.h"
#include "user/painting/painting.h"
#include "user/resource/icons.h"

namespace platform::user {
namespace {

/// What the scene hangs on but for what is drawn. Guarded by UserLock.
struct Told {
    std::uint64_t generation = 0;
    HWND active = nullptr;
    bool captured = false;
    unsigned rechecks = 0;

    bool operator==(const Told&) const = default;
};

Told told;
unsigned rechecks = 0;

Told Now() {
    const ThreadState* foreground = Input().foreground;
    return {.generation = WindowsGeneration(),
            .active = foreground != nullptr ? foreground->active : nullptr,
            .captured = foreground != nullptr && foreground->capture != nullptr,
            .rechecks = rechecks};
}

HWND WindowOf(display::PaneId pane) {
    return reinterpret_cast<HWND>(pane);
}

display::PaneId PaneOf(const Window* window) {
    return reinterpret_cast<display::PaneId>(window->handle);
}

bool Stands(const Window* window) {
    return (window->style & WS_VISIBLE) != 0 && gdi::Holds(window->windowRect);
}

/// A list that drops, a menu, a text that explains: no window of its own to whoever looks at the desktop.
bool IsPopup(const Window* window) {
    return (window->style & WS_POPUP) != 0 && (window->style & (WS_DLGFRAME | WS_THICKFRAME)) == 0 &&
           window->dialog == nullptr &&
           (window->owner != nullptr || (window->exStyle & (WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE)) != 0);
}

display::Pane Describe(const Window* window) {
    const RECT& rect = window->windowRect;
    display::Pane pane;
    pane.id = PaneOf(window);
    pane.place = {rect.left, rect.top, rect.right, rect.bottom};
    for (const Window* owner = window->owner; owner != nullptr && pane.owner == 0; owner = owner->owner) {
        pane.owner = Stands(owner) ? PaneOf(owner) : 0;
    }
    pane.popup = IsPopup(window);
    pane.minimised = (window->style & WS_MINIMIZE) != 0;
    pane.heard = window->hostReport;
    pane.minimises = (window->style & WS_MINIMIZEBOX) != 0;
    pane.sizes = (window->style & WS_THICKFRAME) != 0;
    pane.topmost = (window->exStyle & WS_EX_TOPMOST) != 0;
    pane.painted = window->thread == nullptr || window->thread->paintWindows == 0 || !SubtreeNeedsPaint(window);
    if (!pane.popup) {
        pane.title = kernel::Utf8FromAnsi(window->text);
        pane.icon = reinterpret_cast<std::uintptr_t>(window->windowClass->icon);
    }
    return pane;
}

void Recheck() {
    UserGuard guard(UserLock());
    ++rechecks;
}

void Activate(HWND handle) {
    ActivateWindow(WindowToActivate(handle), false);
    if (GetForegroundWindow() != handle) {
        Recheck();
    }
}

void ActivateSent(const SentMessage& sent) {
    Activate(sent.window);
}

void Deactivate(const SentMessage&) {
    ThreadState* self = CurrentThread();
    if (Shared(Input().foreground) == self) {
        DeactivateOwn(self);
    }
    // The window may be active again before the host looks, and needs the keyboard then.
    Recheck();
}

void Close(const SentMessage& sent) {
    const HWND handle = sent.window;
    if (IsWindowEnabled(handle)) {
        PostMessageA(handle, WM_SYSCOMMAND, SC_CLOSE, 0);
    } else {
        Activate(handle);
    }
}

void Minimise(const SentMessage& sent) {
    const HWND handle = sent.window;
    const bool minimised = sent.wParam != 0;
    if (PeekWindow(handle) != nullptr && (IsIconic(handle) != FALSE) != minimised) {
        SendMessageA(handle, WM_SYSCOMMAND, minimised ? SC_MINIMIZE : SC_RESTORE, 0);
        if (!minimised && PeekWindow(handle) != nullptr) {
            Activate(handle);
        }
    }
    const UserGuard guard(UserLock());
    if (Window* window = PeekWindow(handle)) {
        window->hostReport = static_cast<unsigned>(sent.lParam);
        WindowsChanged();
    }
}

void Place(const SentMessage& sent) {
    const HWND handle = sent.window;
    UINT flags = SWP_NOZORDER | SWP_NOACTIVATE;
    const POINT corner = MousePoint(sent.lParam);
    {
        UserGuard guard(UserLock());
        const Window* window = PeekWindow(handle);
        if (window == nullptr || (window->style & WS_MINIMIZE) != 0) {
            return;
        }
        flags |= (window->style & WS_THICKFRAME) == 0 ? SWP_NOSIZE : 0U;
    }
    SetWindowPos(handle, nullptr, corner.x, corner.y, LOWORD(sent.wParam), HIWORD(sent.wParam), flags);
}

}  // namespace

void DescribeScene(display::Scene* scene) {
    scene->panes.clear();
    told = Now();
    try {
        for (const Window* window = Desktop()->firstChild; window != nullptr; window = window->next) {
            if (Stands(window)) {
                scene->panes.push_back(Describe(window));
            }
        }
    } catch (const std::bad_alloc&) {
        // Those that are missing come with the next change.
        told.generation = 0;
    }
    scene->active = reinterpret_cast<display::PaneId>(told.active);
    scene->captured = told.captured;
    scene->rechecks = told.rechecks;
}

bool SceneChanged() {
    UserGuard guard(UserLock());
    return Now() != told;
}

bool DescribeIcon(std::uintptr_t number, display::IconImage* image) {
    const auto* icon = base::Find<Icon>(reinterpret_cast<HICON>(number), base::HandleKind::Icon);
    if (icon == nullptr) {
        return false;
    }
    image->width = icon->picture.width;
    image->height = icon->picture.height;
    image->pixels = icon->picture.pixels;
    for (std::uint32_t& pixel : image->pixels) {
        pixel ^= kTransparent;  // there it says what shows through, here what does not
    }
    return true;
}

void CloseFromHost(display::PaneId pane) {
    SendErrand(WindowOf(pane), Close);
}

void ActivateFromHost(display::PaneId pane) {
    if (pane != 0) {
        SendErrand(WindowOf(pane), ActivateSent);
        return;
    }
    UserGuard guard(UserLock());
    if (const ThreadState* foreground = Input().foreground) {
        SendErrand(foreground->active, Deactivate);
    }
}

void MinimiseFromHost(display::PaneId pane, bool minimised, unsigned report) {
    SendErrand(WindowOf(pane), Minimise, minimised, report);
}

void PlaceFromHost(display::PaneId pane, const display::Box& place) {
    SendErrand(WindowOf(pane), Place, static_cast<WPARAM>(MAKELONG(place.Width(), place.Height())),
               MAKELPARAM(place.left, place.top));
}

}  // namespace platform::user
