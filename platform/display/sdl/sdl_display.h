/// @file sdl_display.h
/// The screen as one window on the host's desktop. All calls to SDL but SDL_PushEvent are made on its own thread.
#pragma once

#include "display/display.h"
#include "display/sdl/keyboard.h"
#include "display/sdl/view.h"

#include <SDL.h>

#include <atomic>
#include <condition_variable>
#include <functional>
#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace platform::display {

class SdlDisplay final : public Display {
  public:
    SdlDisplay(const Sink& sink, const Source& source, int width, int height);
    ~SdlDisplay() override;

    /// Opens the window. @returns why that could not be done, empty on success.
    std::string Start();

    void Wake() override;
    void SetCursorShape(unsigned idc) override;
    bool ReadClipboard(std::string* text) override;
    void WriteClipboard(const std::string& text) override;
    bool ReadSelection(std::string* text) override;
    void WriteSelection(const std::string& text) override;
    bool Interactive() const override {
        return true;
    }

  private:
    void Run();
    bool Open(std::string& error);
    void Close();
    void Loop();
    void Handle(const SDL_Event& event);
    void HandleWindow(const SDL_WindowEvent& event);
    void HandleButton(const SDL_MouseButtonEvent& event);
    void HandleWheel(const SDL_MouseWheelEvent& event);
    void HandleKeyDown(const SDL_KeyboardEvent& event);
    void ReleaseButtons();
    void MoveMouse(int x, int y);
    void ApplyCursor();
    void Post();
    bool RunOnLoop(std::function<void()> task);
    bool ReadText(char* (*get)(), std::string* text);
    void RunTasks();

    const Sink sink;
    const Source source;
    const int width;
    const int height;

    std::mutex mutex;
    std::condition_variable started;
    bool isStarted = false;
    std::string startError;
    std::thread thread;

    std::uint32_t wakeEvent = 0;
    std::atomic<bool> running{false};
    std::atomic<bool> posted{false};   // an event is on its way that the loop has not seen yet
    std::atomic<bool> changed{false};  // the source may have something to show
    std::atomic<unsigned> wantedCursor;

    std::mutex taskMutex;
    std::vector<std::function<void()>> tasks;  // for the loop, from other threads

    // The display's thread alone:
    SDL_Window* window = nullptr;
    View view;
    std::map<unsigned, SDL_Cursor*> cursors;
    unsigned shownCursor;
    Keyboard keyboard;
    unsigned heldButtons = 0;
    bool stale = true;  // the window has to be drawn anew, whatever has changed
};

}  // namespace platform::display
