#include "display/sdl/sdl_display.h"

#include <windows.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <future>
#include <memory>
#include <utility>

#include "display/sdl/help_cursor.h"

namespace platform::display {
namespace {

constexpr unsigned kArrow = 32512;  // IDC_ARROW as a number
constexpr unsigned kHelp = 32651;   // IDC_HELP
constexpr int kFrameMilliseconds = 8;
constexpr int kRetryMilliseconds = 1000;
constexpr int kForEver = -1;
constexpr std::chrono::milliseconds kClipboardWait{2000};

SDL_SystemCursor SystemCursor(unsigned idc) {
    switch (idc) {
        case 32513:
            return SDL_SYSTEM_CURSOR_IBEAM;
        case 32514:
            return SDL_SYSTEM_CURSOR_WAIT;
        case 32515:
            return SDL_SYSTEM_CURSOR_CROSSHAIR;
        case 32642:
            return SDL_SYSTEM_CURSOR_SIZENWSE;
        case 32643:
            return SDL_SYSTEM_CURSOR_SIZENESW;
        case 32644:
            return SDL_SYSTEM_CURSOR_SIZEWE;
        case 32645:
            return SDL_SYSTEM_CURSOR_SIZENS;
        case 32646:
            return SDL_SYSTEM_CURSOR_SIZEALL;
        case 32648:
            return SDL_SYSTEM_CURSOR_NO;
        case 32649:
            return SDL_SYSTEM_CURSOR_HAND;
        case 32650:
            return SDL_SYSTEM_CURSOR_WAITARROW;
        default:
            return SDL_SYSTEM_CURSOR_ARROW;
    }
}

// The largest size of the screen's shape that the desktop has room for, never more than the screen itself.
SDL_Point FittingSize(int width, int height) {
    SDL_Rect room{};
    if (SDL_GetDisplayUsableBounds(0, &room) != 0 || room.w <= 0 || room.h <= 0) {
        return {width, height};
    }
    const double scale = std::min({1.0, double(room.w) / width, double(room.h) / height});
    return {std::max(1, int(width * scale)), std::max(1, int(height * scale))};
}

bool IsSet(const char* variable) {
    const char* value = std::getenv(variable);
    return value != nullptr && *value != '\0';
}

// Only the desktops that are there: SDL would go on to drivers that draw where nobody looks, and say so on standard
// error.
void ChooseDriver() {
    const bool x11 = IsSet("DISPLAY");
    const bool wayland = IsSet("WAYLAND_DISPLAY");
    SDL_SetHint(SDL_HINT_VIDEODRIVER, x11 && wayland ? "x11,wayland" : x11 ? "x11" : "wayland");
}

}  // namespace

SdlDisplay::SdlDisplay(const Sink& sink, const Source& source, int width, int height)
    : sink(sink),
      source(source),
      width(width),
      height(height),
      wantedCursor(kArrow),
      view(this->source, width, height),
      shownCursor(kArrow),
      keyboard(this->sink) {}

SdlDisplay::~SdlDisplay() {
    running = false;
    if (thread.get_id() == std::this_thread::get_id()) {
        // The desktop is gone, and the host's library ends the program from within the loop.
        thread.detach();
        return;
    }
    if (thread.joinable()) {
        Post();
        thread.join();
    }
}

std::string SdlDisplay::Start() {
    running = true;
    thread = std::thread(&SdlDisplay::Run, this);
    std::unique_lock lock(mutex);
    started.wait(lock, [this] { return isStarted; });
    return startError;
}

void SdlDisplay::Run() {
    std::string error;
    const bool opened = Open(error);
    if (!opened) {
        running = false;
    }
    {
        const std::lock_guard lock(mutex);
        startError = error;
        isStarted = true;
    }
    started.notify_one();
    if (opened) {
        Loop();
    }
    Close();
}

bool SdlDisplay::Open(std::string& error) {
    // The process and its signals belong to the application.
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    SDL_SetHint(SDL_HINT_QUIT_ON_LAST_WINDOW_CLOSE, "0");
    SDL_SetHint(SDL_HINT_VIDEO_ALLOW_SCREENSAVER, "1");
    SDL_SetHint(SDL_HINT_VIDEO_X11_NET_WM_BYPASS_COMPOSITOR, "0");
    SDL_SetHint(SDL_HINT_MOUSE_FOCUS_CLICKTHROUGH, "1");
    ChooseDriver();
    if (SDL_Init(SDL_INIT_VIDEO) == 0) {
        wakeEvent = SDL_RegisterEvents(1);
        const SDL_Point size = FittingSize(width, height);
        window = SDL_CreateWindow("CVUTIL32", SDL_WINDOWPOS_CENTERED, SDL_WINDOWPOS_CENTERED, size.x, size.y,
                                  SDL_WINDOW_RESIZABLE);
    }
    if (window == nullptr || !view.Attach(window)) {
        error = SDL_GetError();
        if (error.empty()) {
            error = "SDL gives no reason";
        }
        return false;
    }
    SDL_StartTextInput();
    changed = true;
    return true;
}

void SdlDisplay::Close() {
    keyboard.ReleaseAll();
    for (const auto& [idc, cursor] : cursors) {
        SDL_FreeCursor(cursor);
    }
    cursors.clear();
    view.Detach();
    if (window != nullptr) {
        SDL_DestroyWindow(window);
    }
    SDL_Quit();
}

void SdlDisplay::Loop() {
    std::uint32_t nextFrame = SDL_GetTicks();
    while (running) {
        const bool due = changed || stale;
        const int rest = static_cast<int>(nextFrame - SDL_GetTicks());
        const int wait = !due ? kForEver : std::max(rest, 0);
        SDL_Event event;
        if (SDL_WaitEventTimeout(&event, wait) != 0) {
            do {
                Handle(event);
            } while (running && SDL_PollEvent(&event) != 0);
        }
        ApplyCursor();
        RunTasks();
        if ((changed || stale) && static_cast<int>(nextFrame - SDL_GetTicks()) <= 0) {
            const bool whole = stale;
            changed = false;
            // Where the window cannot be drawn in, it may be later.
            stale = !view.Present(whole);
            nextFrame = SDL_GetTicks() + (stale ? kRetryMilliseconds : kFrameMilliseconds);
        }
    }
}

void SdlDisplay::Handle(const SDL_Event& event) {
    switch (event.type) {
        case SDL_WINDOWEVENT:
            HandleWindow(event.window);
            break;
        case SDL_MOUSEMOTION:
            MoveMouse(event.motion.x, event.motion.y);
            break;
        case SDL_MOUSEBUTTONDOWN:
        case SDL_MOUSEBUTTONUP:
            HandleButton(event.button);
            break;
        case SDL_MOUSEWHEEL:
            HandleWheel(event.wheel);
            break;
        case SDL_KEYDOWN:
            HandleKeyDown(event.key);
            break;
        case SDL_KEYUP:
            keyboard.Up(event.key.keysym);
            break;
        case SDL_TEXTINPUT:
            keyboard.Text(event.text.text);
            break;
        case SDL_QUIT:
            sink.closeRequested();
            break;
        default:
            if (event.type == wakeEvent) {
                posted = false;
            }
            break;
    }
}

void SdlDisplay::HandleWindow(const SDL_WindowEvent& event) {
    switch (event.event) {
        case SDL_WINDOWEVENT_EXPOSED:
        case SDL_WINDOWEVENT_SIZE_CHANGED:
        case SDL_WINDOWEVENT_RESTORED:
            stale = true;
            break;
        case SDL_WINDOWEVENT_FOCUS_LOST:
            keyboard.ReleaseAll();
            ReleaseButtons();
            break;
        case SDL_WINDOWEVENT_CLOSE:
            sink.closeRequested();
            break;
        default:
            break;
    }
}

void SdlDisplay::HandleButton(const SDL_MouseButtonEvent& event) {
    static constexpr Uint8 kButtons[] = {SDL_BUTTON_LEFT, SDL_BUTTON_RIGHT, SDL_BUTTON_MIDDLE};
    const auto found = std::find(std::begin(kButtons), std::end(kButtons), event.button);
    if (found == std::end(kButtons)) {
        return;
    }
    const int button = static_cast<int>(found - std::begin(kButtons));
    const bool down = event.type == SDL_MOUSEBUTTONDOWN;
    const unsigned bit = 1U << button;
    if (down == ((heldButtons & bit) != 0)) {
        return;  // released for it when the focus went away, or pressed while another window had it
    }
    heldButtons ^= bit;
    SDL_CaptureMouse(heldButtons != 0 ? SDL_TRUE : SDL_FALSE);
    MoveMouse(event.x, event.y);
    sink.mouseButton(button, down);
}

void SdlDisplay::ReleaseButtons() {
    for (int button = 0; heldButtons != 0; ++button) {
        const unsigned bit = 1U << button;
        if ((heldButtons & bit) != 0) {
            heldButtons &= ~bit;
            sink.mouseButton(button, false);
        }
    }
    SDL_CaptureMouse(SDL_FALSE);
}

void SdlDisplay::HandleWheel(const SDL_MouseWheelEvent& event) {
    const int notches = event.direction == SDL_MOUSEWHEEL_FLIPPED ? -event.y : event.y;
    if (notches != 0) {
        sink.mouseWheel(notches * WHEEL_DELTA);
    }
}

void SdlDisplay::HandleKeyDown(const SDL_KeyboardEvent& event) {
    // SDL queues the text of a press right behind it, so that the next key or text event tells what the press makes.
    SDL_Event next;
    const bool hasText = SDL_PeepEvents(&next, 1, SDL_PEEKEVENT, SDL_KEYDOWN, SDL_TEXTINPUT) == 1 &&
                         next.type == SDL_TEXTINPUT &&
                         SDL_PeepEvents(&next, 1, SDL_GETEVENT, SDL_TEXTINPUT, SDL_TEXTINPUT) == 1;
    keyboard.Down(event.keysym, hasText ? next.text.text : nullptr);
}

void SdlDisplay::MoveMouse(int x, int y) {
    const SDL_Point point = view.ToPicture(x, y);
    sink.mouseMove(point.x, point.y);
}

void SdlDisplay::ApplyCursor() {
    const unsigned wanted = wantedCursor;
    if (wanted == shownCursor) {
        return;
    }
    shownCursor = wanted;
    if (wanted == 0) {
        SDL_ShowCursor(SDL_DISABLE);
        return;
    }
    SDL_Cursor*& cursor = cursors[wanted];
    if (cursor == nullptr) {
        cursor = wanted == kHelp ? MakeHelpCursor() : SDL_CreateSystemCursor(SystemCursor(wanted));
    }
    if (cursor != nullptr) {
        SDL_SetCursor(cursor);
    }
    SDL_ShowCursor(SDL_ENABLE);
}

void SdlDisplay::Wake() {
    changed = true;
    Post();
}

void SdlDisplay::SetCursorShape(unsigned idc) {
    if (wantedCursor.exchange(idc) != idc) {
        Post();
    }
}

// The host's clipboard belongs to another program, which may be slow to answer or not answer at all.
bool SdlDisplay::RunOnLoop(std::function<void()> task) {
    auto done = std::make_shared<std::promise<void>>();
    std::future<void> finished = done->get_future();
    {
        const std::lock_guard lock(taskMutex);
        tasks.emplace_back([done, task = std::move(task)] {
            task();
            done->set_value();
        });
    }
    Post();
    return finished.wait_for(kClipboardWait) == std::future_status::ready;
}

void SdlDisplay::RunTasks() {
    std::vector<std::function<void()>> due;
    {
        const std::lock_guard lock(taskMutex);
        due.swap(tasks);
    }
    for (const auto& task : due) {
        task();
    }
}

bool SdlDisplay::ReadText(char* (*get)(), std::string* text) {
    if (!running) {
        return false;
    }
    const auto read = std::make_shared<std::string>();
    const bool answered = RunOnLoop([read, get] {
        if (char* found = get()) {
            *read = found;
            SDL_free(found);
        }
    });
    if (!answered || read->empty()) {
        return false;
    }
    *text = *read;
    return true;
}

bool SdlDisplay::ReadClipboard(std::string* text) {
    return ReadText(SDL_GetClipboardText, text);
}

void SdlDisplay::WriteClipboard(const std::string& text) {
    if (running) {
        RunOnLoop([text] { SDL_SetClipboardText(text.c_str()); });
    }
}

bool SdlDisplay::ReadSelection(std::string* text) {
    return ReadText(SDL_GetPrimarySelectionText, text);
}

void SdlDisplay::WriteSelection(const std::string& text) {
    {
        const std::lock_guard lock(taskMutex);
        tasks.emplace_back([text] { SDL_SetPrimarySelectionText(text.c_str()); });
    }
    Post();
}

void SdlDisplay::Post() {
    if (posted.exchange(true)) {
        return;
    }
    SDL_Event event{};
    event.type = wakeEvent;
    if (SDL_PushEvent(&event) != 1) {
        posted = false;
    }
}

}  // namespace platform::display
