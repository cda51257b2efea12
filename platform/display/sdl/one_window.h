/// @file one_window.h
/// The whole screen in one window, as large as fits; its title is that of the pane that gets the keys.
#pragma once

#include "display/sdl/keyboard.h"
#include "display/sdl/mouse.h"
#include "display/sdl/stage.h"
#include "display/sdl/view.h"

namespace platform::display {

class OneWindow final : public Stage {
  public:
    OneWindow(const Sink& sink, const Source& source, Keyboard& keyboard, int width, int height)
        : sink(sink),
          source(source),
          keyboard(keyboard),
          mouse(sink),
          view(source, width, height),
          width(width),
          height(height) {}
    ~OneWindow() override;

    bool Open() override;
    void Handle(const SDL_Event& event) override;
    bool Present() override;
    bool Stale() const override {
        return stale;
    }

  private:
    void HandleWindow(const SDL_WindowEvent& event);
    void ShowTitle();

    const Sink& sink;
    const Source& source;
    Keyboard& keyboard;
    Mouse mouse;
    View view;
    const int width;
    const int height;
    SDL_Window* window = nullptr;
    bool stale = true;  // it has to be drawn anew, whatever has changed
    Scene scene;
    std::string title;
};

}  // namespace platform::display
