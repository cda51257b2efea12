/// @file sdl_display.h
/// The display on the host's desktop, a thread of its own: all calls to SDL but SDL_PushEvent are made on it.
#pragma once

#include "display/display.h"
#include "display/sdl/input/keyboard.h"
#include "display/sdl/stage.h"

#include <SDL.h>

#include <atomic>
#include <condition_variable>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace platform::display {

class SdlDisplay final : public Display {
  public:
    SdlDisplay(const Sink& sink, const Source& source, int width, int height, bool panes);
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
    bool FirstRoom(Room* room) const override {
        *room = firstRoom;
        return hasRoom;
    }

  private:
    void Run();
    bool Open(std::string& error);
    void Close();
    void Loop();
    bool Due() const {
        return changed || (awake && stage->Stale());
    }
    void Handle(const SDL_Event& event);
    void HandleKeyDown(const SDL_KeyboardEvent& event);
    void ApplyCursor();
    void Post();
    void Queue(std::function<void()> task);
    bool RunOnLoop(std::function<void()> task);
    bool ReadText(char* (*get)(), std::string* text);
    void RunTasks();

    const Sink sink;
    const Source source;
    const int width;
    const int height;
    const bool panes;

    std::mutex mutex;
    std::condition_variable started;
    bool isStarted = false;
    std::string startError;
    Room firstRoom;
    bool hasRoom = false;
    std::thread thread;

    std::uint32_t wakeEvent = 0;
    std::atomic<bool> running{false};
    std::atomic<bool> posted{false};   // an event is on its way that the loop has not seen yet
    std::atomic<bool> changed{false};  // the source may have something to show
    std::atomic<unsigned> wantedCursor;

    std::mutex taskMutex;
    std::vector<std::function<void()>> tasks;  // for the loop, from other threads

    // The display's thread alone:
    std::unique_ptr<Stage> stage;
    bool awake = false;  // has been woken once: before, there may be no picture
    std::map<unsigned, SDL_Cursor*> cursors;
    unsigned shownCursor;
    Keyboard keyboard;
};

}  // namespace platform::display
