#include "display/sdl/desktop.h"

#include "display/sdl/scaling.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace platform::display {
namespace {

constexpr std::uint32_t kPaintPatience = 100;  // for a pane that is not complete, until it is shown all the same
constexpr std::uint32_t kFocusPatience = 50;   // between one pane and another no program has the focus

int ChooseScale(int density, const Box& desktop) {
    const char* text = std::getenv("CVUTIL32_SCALE");
    const int given = text != nullptr ? std::atoi(text) : 0;
    return given >= 1 && given <= kMostScale ? given : ScaleOf(density, desktop);
}

int Left(std::uint32_t time) {
    return std::max(static_cast<int>(time - SDL_GetTicks()), 0);
}

}  // namespace

Desktop::~Desktop() {
    mouse.Release();
    windows.clear();
    if (helper != nullptr) {
        SDL_DestroyWindow(helper);
    }
}

bool Desktop::Open() {
    SDL_SetHint(SDL_HINT_MOUSE_AUTO_CAPTURE, "0");
    helper = SDL_CreateWindow("", 0, 0, 1, 1, SDL_WINDOW_HIDDEN | SDL_WINDOW_BORDERLESS);
    if (helper == nullptr || !host.Connect(helper)) {
        return false;
    }
    scale = ChooseScale(host.Density(), host.Desktop());
    room = AskRoom();
    return true;
}

Room Desktop::AskRoom() const {
    const Box all = host.Desktop();
    const Box work = host.WorkArea();
    return {all.Width() / scale,
            all.Height() / scale,
            {work.left / scale, work.top / scale, work.right / scale, work.bottom / scale}};
}

bool Desktop::FirstRoom(Room* first) const {
    *first = room;
    return true;
}

SDL_Point Desktop::ToScreen(SDL_Point place) const {
    return {RoundDown(place.x, scale), RoundDown(place.y, scale)};
}

HostWindow* Desktop::Find(PaneId id) const {
    const auto found = windows.find(id);
    return found != windows.end() ? found->second.get() : nullptr;
}

SDL_Window* Desktop::WindowOf(PaneId id) const {
    const HostWindow* found = Find(id);
    return found != nullptr ? found->Window() : nullptr;
}

PaneId Desktop::PaneOfEvent(std::uint32_t number) const {
    SDL_Window* window = SDL_GetWindowFromID(number);
    for (const auto& [id, each] : windows) {
        if (each->Window() == window && window != nullptr) {
            return id;
        }
    }
    return 0;
}

// --- what the host tells

void Desktop::Handle(const SDL_Event& event) {
    switch (event.type) {
        case SDL_SYSWMEVENT:
            HandleHost(host.Read(event.syswm));
            break;
        case SDL_WINDOWEVENT:
            HandleWindow(event.window);
            break;
        case SDL_MOUSEMOTION:
        case SDL_MOUSEBUTTONDOWN:
        case SDL_MOUSEBUTTONUP:
            // The host tells of the mouse in coordinates of the desktop, of fingers only like this.
            if (event.motion.which == SDL_TOUCH_MOUSEID) {
                const HostWindow* window = Find(PaneOfEvent(event.motion.windowID));
                const bool motion = event.type == SDL_MOUSEMOTION;
                const int x = motion ? event.motion.x : event.button.x;
                const int y = motion ? event.motion.y : event.button.y;
                if (window != nullptr) {
                    const Box place = window->Place();
                    const SDL_Point point{place.left + x / scale, place.top + y / scale};
                    if (motion) {
                        mouse.Move(point);
                    } else {
                        mouse.Button(event.button.button, event.type == SDL_MOUSEBUTTONDOWN, point);
                    }
                }
            }
            break;
        default:
            break;
    }
}

void Desktop::HandleHost(const HostEvent& event) {
    switch (event.kind) {
        case HostEvent::Kind::Move:
            mouse.Move(ToScreen(event.place));
            break;
        case HostEvent::Kind::Press:
        case HostEvent::Kind::Release:
            mouse.Button(event.button, event.kind == HostEvent::Kind::Press, ToScreen(event.place));
            break;
        case HostEvent::Kind::Wheel:
            mouse.Wheel(event.notches);
            break;
        case HostEvent::Kind::Focused:
            loosened = true;
            [[fallthrough]];
        case HostEvent::Kind::State:
            for (const auto& [id, window] : windows) {
                if (X11::IdOf(window->Window()) == event.window &&
                    window->StateChanged(event.kind == HostEvent::Kind::Focused)) {
                    TellState(id, *window);
                }
            }
            break;
        case HostEvent::Kind::Loosened:
            loosened = true;
            break;
        case HostEvent::Kind::Room:
            FollowRoom();
            break;
        default:
            break;
    }
}

// A pane that cannot be minimised need not know that its window is, as all are where a desktop is laid bare.
void Desktop::TellState(PaneId id, HostWindow& window) {
    window.Reported(++reports);
    if (window.Shown().minimises || !window.IsMinimised()) {
        sink.minimised(id, window.IsMinimised(), reports);
    }
}

void Desktop::FollowRoom() {
    if (!presenting) {
        return;  // there may be no screen yet
    }
    if (const Room now = AskRoom(); now != room) {
        room = now;
        sink.roomChanged(room);
    }
}

void Desktop::HandleWindow(const SDL_WindowEvent& event) {
    const PaneId id = PaneOfEvent(event.windowID);
    HostWindow* window = Find(id);
    if (window == nullptr) {
        return;
    }
    switch (event.event) {
        case SDL_WINDOWEVENT_EXPOSED:
            window->Exposed();
            stale = true;
            break;
        case SDL_WINDOWEVENT_MOVED:
            if (window->Moved({event.data1, event.data2})) {
                sink.placed(id, window->Place());
            }
            break;
        case SDL_WINDOWEVENT_RESIZED:
            if (window->Sized(event.data1, event.data2)) {
                sink.placed(id, window->Place());
            }
            stale = true;
            break;
        case SDL_WINDOWEVENT_FOCUS_GAINED:
            Gained(id);
            break;
        case SDL_WINDOWEVENT_FOCUS_LOST:
            Lost(id);
            break;
        case SDL_WINDOWEVENT_CLOSE:
            sink.closeRequested(id);
            break;
        default:
            break;
    }
}

void Desktop::Gained(PaneId id) {
    focused = id;
    verdict = 0;
    std::erase_if(requests, [](const Request& each) { return Passed(each.time + kAnswerPatience); });
    const auto asked = std::ranges::find(requests, id, &Request::pane);
    if (asked != requests.end()) {
        requests.erase(requests.begin(), asked + 1);
    } else {
        sink.activated(id);
    }
}

void Desktop::Lost(PaneId id) {
    if (focused == id) {
        focused = 0;
        verdict = SDL_GetTicks() + kFocusPatience;
    }
}

void Desktop::Settle() {
    if (verdict != 0 && Passed(verdict)) {
        verdict = 0;
        if (focused == 0) {
            keyboard.ReleaseAll();
            mouse.Release();
            sink.activated(0);
        }
    }
    for (const auto& [id, window] : windows) {
        if (window->IsOverdue() && window->StateChanged(false)) {
            TellState(id, *window);
        }
    }
    FollowCapture();
}

int Desktop::Patience() const {
    int patience = verdict == 0 ? kNever : Left(verdict);
    for (const auto& [id, window] : windows) {
        if (const auto deadline = window->Deadline()) {
            patience = patience == kNever ? Left(*deadline) : std::min(patience, Left(*deadline));
        }
    }
    return patience;
}

// --- what the layer tells

bool Desktop::Present() {
    stale = false;
    if (!std::exchange(presenting, true)) {
        FollowRoom();
    }
    TakePicture();
    Arrange();
    bool shown = true;
    for (const auto& [id, window] : windows) {
        if (!window->IsMinimised() && !window->Show()) {
            shown = window->IsFresh() && shown;
            stale = true;
        }
    }
    return shown;
}

// Each window keeps what it showed of its pane while others lie above, and shows it at once when they are moved away.
void Desktop::TakePicture() {
    source.lock();
    source.scene(&scene);
    source.takeDirty(&dirty);
    const Picture picture = source.picture();
    std::vector<Box> parts = dirty;
    for (const Pane& pane : scene.panes) {
        if (HostWindow* window = Find(pane.id); window != nullptr && !(managed && pane.minimised)) {
            window->Copy(picture, pane.place, parts);
        }
        if (!parts.empty()) {
            CutOut(parts, pane.place);
        }
    }
    source.unlock();
}

// A window that appears shows what it is going to show, if that does not take long.
bool Desktop::Ready(const Pane& pane) {
    if (!pane.painted && !Passed(awaited.try_emplace(pane.id, SDL_GetTicks()).first->second + kPaintPatience)) {
        return false;
    }
    awaited.erase(pane.id);
    return true;
}

void Desktop::Open(const Pane& pane) {
    auto window = std::make_unique<HostWindow>(host, scale);
    if (!window->Open(pane, WindowOf(pane.owner), pane.id == scene.active)) {
        stale = true;
        return;
    }
    ShowIcon(*window);
    windows.emplace(pane.id, std::move(window));
}

void Desktop::Arrange() {
    std::vector<HostWindow*> opened;
    if (scene.panes.size() > windows.size()) {
        managed = host.HasManager();
    }
    std::erase_if(awaited, [this](const auto& each) { return scene.Find(each.first) == nullptr; });
    // Owners come before what they own.
    for (auto pane = scene.panes.rbegin(); pane != scene.panes.rend(); ++pane) {
        HostWindow* window = Find(pane->id);
        if (window == nullptr) {
            if (!Ready(*pane)) {
                stale = true;
                continue;
            }
            Open(*pane);
            if ((window = Find(pane->id)) != nullptr) {
                opened.push_back(window);
            }
            continue;
        }
        const bool sameIcon = window->Shown().icon == pane->icon;
        window->Follow(*pane, WindowOf(pane->owner), managed);
        if (!sameIcon) {
            ShowIcon(*window);
        }
    }
    if (!opened.empty()) {
        CompleteFresh();
        for (HostWindow* window : opened) {
            window->Appear();
        }
    }
    Stack();
    FollowActive();
    FollowCapture();
    DropGone();
}

void Desktop::CompleteFresh() {
    source.lock();
    const Picture picture = source.picture();
    for (const auto& [id, window] : windows) {
        if (window->IsFresh()) {
            window->Copy(picture, window->Shown().place, {});
        }
    }
    source.unlock();
}

void Desktop::ShowIcon(HostWindow& window) {
    if (window.Shown().icon == 0) {
        return;
    }
    IconImage image;
    source.lock();
    const bool found = source.icon(window.Shown().icon, &image);
    source.unlock();
    if (found) {
        window.SetIcon(image);
    }
}

void Desktop::Stack() {
    std::vector<PaneId> order;
    for (const Pane& pane : scene.panes) {
        if (Find(pane.id) != nullptr) {
            order.push_back(pane.id);
        }
    }
    if (order == stacked) {
        return;
    }
    // What is new has come on top, what is gone matters no more: is the rest as it was?
    std::vector<PaneId> before;
    std::copy_if(stacked.begin(), stacked.end(), std::back_inserter(before),
                 [&](PaneId id) { return std::find(order.begin(), order.end(), id) != order.end(); });
    const auto known = order.end() - static_cast<std::ptrdiff_t>(before.size());
    const bool same = std::equal(before.begin(), before.end(), known, order.end());
    stacked = order;
    if (same) {
        return;
    }
    const HostWindow* above = nullptr;
    for (const PaneId id : order) {
        const HostWindow* window = Find(id);
        if (above == nullptr || window->Shown().popup) {
            host.Raise(window->Window());
        } else {
            host.PutBelow(window->Window(), above->Window());
        }
        above = window->Shown().popup ? above : window;
    }
}

// Popups get the keys by way of their owners.
void Desktop::FollowActive() {
    if (scene.active == followed && scene.rechecks == rechecks) {
        return;
    }
    PaneId target = scene.active;
    for (const Pane* pane = scene.Find(target); pane != nullptr && pane->popup && pane->owner != 0;) {
        target = pane->owner;
        pane = scene.Find(target);
    }
    const HostWindow* window = Find(target);
    if (window == nullptr && scene.active != 0) {
        return;  // it is about to come
    }
    followed = scene.active;
    rechecks = scene.rechecks;
    if (window == nullptr || target == focused || window->IsMinimised()) {
        return;
    }
    requests.push_back({target, SDL_GetTicks()});
    host.Focus(window->Window());
    if (focused == 0) {
        verdict = SDL_GetTicks() + kAnswerPatience;
    }
}

// Where a button is held the host gives all of the mouse to the window that was pressed in, until SDL meddles.
void Desktop::FollowCapture() {
    const bool held = mouse.AnyHeld();
    const bool renewed = std::exchange(loosened, false) && (held || grabbed);
    if (renewed || (scene.captured && !held && !grabbed)) {
        const HostWindow* window = Find(focused);
        if (window == nullptr && !windows.empty()) {
            window = windows.begin()->second.get();
        }
        grabbed = window != nullptr && host.Grab(window->Window());
    }
    if (renewed && held) {
        const Pointer pointer = host.AskPointer();
        mouse.Move(ToScreen(pointer.place));
        mouse.Release(pointer.buttons);
    }
    if (grabbed && !mouse.AnyHeld() && !scene.captured) {
        host.Ungrab();
        grabbed = false;
    }
}

void Desktop::DropGone() {
    std::erase_if(windows, [this](const auto& each) {
        const bool gone = scene.Find(each.first) == nullptr;
        if (gone) {
            Lost(each.first);
        }
        return gone;
    });
}

}  // namespace platform::display
