/// @file desktop.h
/// Panes stand on an X desktop, each in a window of its own. The layer says what there is and in which order; the host says
/// what the person has done to it beside the program: chosen, moved, sized, minimised, closed.
#pragma once

#include "display/sdl/host_window.h"
#include "display/sdl/input/keyboard.h"
#include "display/sdl/input/mouse.h"
#include "display/sdl/stage.h"

#include <map>
#include <memory>
#include <vector>

namespace platform::display {

class Desktop final : public Stage {
  public:
    Desktop(const Sink& sink, const Source& source, Keyboard& keyboard)
        : sink(sink), source(source), keyboard(keyboard), mouse(sink) {}
    ~Desktop() override;

    bool Open() override;
    void Handle(const SDL_Event& event) override;
    void Settle() override;
    bool Present() override;
    bool Stale() const override {
        return stale;
    }
    int Patience() const override;
    bool FirstRoom(Room* room) const override;

  private:
    void HandleHost(const HostEvent& event);
    void HandleWindow(const SDL_WindowEvent& event);
    void TellState(PaneId id, HostWindow& window);
    void FollowRoom();
    void Gained(PaneId id);
    void Lost(PaneId id);

    Room AskRoom() const;
    SDL_Point ToScreen(SDL_Point host) const;
    HostWindow* Find(PaneId id) const;
    SDL_Window* WindowOf(PaneId id) const;
    PaneId PaneOfEvent(std::uint32_t sdlWindow) const;

    void TakePicture();
    void Arrange();
    bool Ready(const Pane& pane);
    void Open(const Pane& pane);
    void CompleteFresh();
    void ShowIcon(HostWindow& window);
    void Stack();
    void FollowActive();
    void FollowCapture();
    void DropGone();

    const Sink& sink;
    const Source& source;
    Keyboard& keyboard;
    Mouse mouse;
    X11 host;
    SDL_Window* helper = nullptr;  // SDL waits for the host through a window
    int scale = 1;
    Room room;

    Scene scene;
    std::vector<Box> dirty;
    std::map<PaneId, std::unique_ptr<HostWindow>> windows;
    std::map<PaneId, std::uint32_t> awaited;  // panes that are not complete, and since when
    std::vector<PaneId> stacked;              // as the host was last told
    bool presenting = false;
    bool stale = false;
    bool managed = false;
    unsigned reports = 0;  // to panes, of their being minimised

    PaneId focused = 0;   // as the host has it
    PaneId followed = 0;  // the active pane that the host was last told of
    unsigned rechecks = 0;
    struct Request {
        PaneId pane;
        std::uint32_t time;
    };
    std::vector<Request> requests;  // for the focus; what the host says of them is no news
    std::uint32_t verdict = 0;      // when it counts that no pane has the focus; 0: one has, or it is known
    bool grabbed = false;           // the mouse, whether or not a button is held
    bool loosened = false;          // and SDL has given it free
};

}  // namespace platform::display
