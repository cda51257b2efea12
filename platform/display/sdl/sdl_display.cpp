#include "display/sdl/sdl_display.h"

#include <windows.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <future>
#include <memory>
#include <utility>

#include "display/sdl/desktop.h"
#include "display/sdl/help_cursor.h"
#include "display/sdl/one_window.h"
#include "display/sdl/x11.h"

namespace platform::display {
namespace {

constexpr unsigned kArrow = 32512;  // IDC_ARROW as a number
constexpr unsigned kHelp = 32651;   // IDC_HELP
constexpr int kFrameMilliseconds = 8;
constexpr int kRetryMilliseconds = 1000;
constexpr std::chrono::milliseconds kClipboardWait{2000};

SDL_SystemCursor SystemCursor(unsigned idc) {
    switch (idc) {
        case 32513:
            return SDL_SYSTEM_CURSOR_IBEAM;
        case 32514:
            return SDL_SYSTEM_CURSOR_WAIT;
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
        default:
            return SDL_SYSTEM_CURSOR_ARROW;
    }
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

SdlDisplay::SdlDisplay(const Sink& sink, const Source& source, int width, int height, bool panes)
    : sink(sink),
      source(source),
      width(width),
      height(height),
      panes(panes),
      wantedCursor(kArrow),
      shownCursor(kArrow),
      keyboard(this->sink) {}

SdlDisplay::~SdlDisplay() {
    running = false;
    if (thread.get_id() == std::this_thread::get_id()) {
        // The desktop is gone, and the host's library ends the program from within the loop.
        thread.detach();
        static_cast<void>(stage.release());  // its windows have gone with the desktop, which cannot be asked any more
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
    X11::PassOverErrors();
    if (SDL_Init(SDL_INIT_VIDEO) == 0) {
        wakeEvent = SDL_RegisterEvents(1);
        const bool x11 = SDL_strcmp(SDL_GetCurrentVideoDriver(), "x11") == 0;
        if (x11) {
            // X takes parts of a picture straight from memory. SDL would put a graphics processor in between, which copies
            // the whole window for each blink of a caret and makes the start slow.
            SDL_SetHint(SDL_HINT_FRAMEBUFFER_ACCELERATION, "0");
        }
        if (x11 && panes) {
            stage = std::make_unique<Desktop>(sink, source, keyboard);
        } else {
            stage = std::make_unique<OneWindow>(sink, source, keyboard, width, height);
        }
    }
    if (stage == nullptr || !stage->Open()) {
        error = SDL_GetError();
        if (error.empty()) {
            error = "SDL gives no reason";
        }
        return false;
    }
    hasRoom = stage->FirstRoom(&firstRoom);
    SDL_StartTextInput();
    return true;
}

void SdlDisplay::Close() {
    keyboard.ReleaseAll();
    for (const auto& [idc, cursor] : cursors) {
        SDL_FreeCursor(cursor);
    }
    cursors.clear();
    stage.reset();
    SDL_Quit();
}

void SdlDisplay::Loop() {
    std::uint32_t nextFrame = SDL_GetTicks();
    while (running) {
        const int rest = std::max(static_cast<int>(nextFrame - SDL_GetTicks()), 0);
        int wait = Due() ? rest : Stage::kNever;
        if (const int patience = stage->Patience(); patience != Stage::kNever) {
            wait = wait == Stage::kNever ? patience : std::min(wait, patience);
        }
        SDL_Event event;
        if (SDL_WaitEventTimeout(&event, wait) != 0) {
            do {
                Handle(event);
            } while (running && SDL_PollEvent(&event) != 0);
        }
        stage->Settle();
        ApplyCursor();
        RunTasks();
        if (Due() && static_cast<int>(nextFrame - SDL_GetTicks()) <= 0) {
            awake = true;
            changed = false;
            nextFrame = SDL_GetTicks() + (stage->Present() ? kFrameMilliseconds : kRetryMilliseconds);
        }
    }
}

void SdlDisplay::Handle(const SDL_Event& event) {
    switch (event.type) {
        case SDL_KEYDOWN:
            HandleKeyDown(event.key);
            break;
        case SDL_KEYUP:
            keyboard.Up(event.key.keysym);
            break;
        case SDL_TEXTINPUT:
            keyboard.Text(event.text.text);
            break;
        default:
            if (event.type == wakeEvent) {
                posted = false;
            } else {
                stage->Handle(event);
            }
            break;
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

void SdlDisplay::Queue(std::function<void()> task) {
    {
        const std::lock_guard lock(taskMutex);
        tasks.push_back(std::move(task));
    }
    Post();
}

// The host's clipboard belongs to another program, which may be slow to answer or not answer at all.
bool SdlDisplay::RunOnLoop(std::function<void()> task) {
    auto done = std::make_shared<std::promise<void>>();
    std::future<void> finished = done->get_future();
    Queue([done, task = std::move(task)] {
        task();
        done->set_value();
    });
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
    Queue([text] { SDL_SetPrimarySelectionText(text.c_str()); });
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
