#include "display/sdl/one_window.h"

#include <algorithm>

namespace platform::display {
namespace {

// While nothing stands on the screen that has a title.
constexpr char kNoTitle[] = "CVUTIL32";

// The largest size of the screen's shape that the desktop has room for, never more than the screen itself.
SDL_Point FittingSize(int width, int height) {
    SDL_Rect room{};
    if (SDL_GetDisplayUsableBounds(0, &room) != 0 || room.w <= 0 || room.h <= 0) {
        return {width, height};
    }
    const double scale = std::min({1.0, double(room.w) / width, double(room.h) / height});
    return {std::max(1, int(width * scale)), std::max(1, int(height * scale))};
}

}  // namespace

OneWindow::~OneWindow() {
    mouse.Release();
    if (window != nullptr) {
        SDL_DestroyWindow(window);
    }
}

bool OneWindow::Open() {
    const SDL_Point size = FittingSize(width, height);
    window = SDL_CreateWindow(kNoTitle, SDL_WINDOWPOS_CENTERED, SDL_WINDOWPOS_CENTERED, size.x, size.y,
                              SDL_WINDOW_RESIZABLE);
    title = kNoTitle;
    return window != nullptr && view.Attach(window);
}

void OneWindow::Handle(const SDL_Event& event) {
    switch (event.type) {
        case SDL_WINDOWEVENT:
            HandleWindow(event.window);
            break;
        case SDL_MOUSEMOTION:
            mouse.Move(view.ToPicture(event.motion.x, event.motion.y));
            break;
        case SDL_MOUSEBUTTONDOWN:
        case SDL_MOUSEBUTTONUP:
            mouse.Button(event.button.button, event.type == SDL_MOUSEBUTTONDOWN,
                         view.ToPicture(event.button.x, event.button.y));
            SDL_CaptureMouse(mouse.AnyHeld() ? SDL_TRUE : SDL_FALSE);
            break;
        case SDL_MOUSEWHEEL:
            mouse.Wheel(event.wheel.direction == SDL_MOUSEWHEEL_FLIPPED ? -event.wheel.y : event.wheel.y);
            break;
        case SDL_QUIT:
            sink.closeRequested(0);
            break;
        default:
            break;
    }
}

void OneWindow::HandleWindow(const SDL_WindowEvent& event) {
    switch (event.event) {
        case SDL_WINDOWEVENT_EXPOSED:
        case SDL_WINDOWEVENT_SIZE_CHANGED:
        case SDL_WINDOWEVENT_RESTORED:
            stale = true;
            break;
        case SDL_WINDOWEVENT_FOCUS_LOST:
            keyboard.ReleaseAll();
            mouse.Release();
            SDL_CaptureMouse(SDL_FALSE);
            break;
        case SDL_WINDOWEVENT_CLOSE:
            sink.closeRequested(0);
            break;
        default:
            break;
    }
}

void OneWindow::ShowTitle() {
    source.lock();
    source.scene(&scene);
    source.unlock();
    const Pane* active = scene.Find(scene.active);
    if (active != nullptr && !active->popup && !active->title.empty() && active->title != title) {
        title = active->title;
        SDL_SetWindowTitle(window, title.c_str());
    }
}

bool OneWindow::Present() {
    // Where the window cannot be drawn in, it may be later.
    stale = !view.Present(stale);
    ShowTitle();
    return !stale;
}

}  // namespace platform::display
