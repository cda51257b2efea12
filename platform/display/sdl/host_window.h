/// @file host_window.h
/// The window of the host's desktop in which a pane stands, with a picture of its own of what the pane shows.
#pragma once

#include "display/display.h"
#include "display/sdl/x11.h"

#include <SDL.h>

#include <cstdint>
#include <deque>
#include <optional>
#include <vector>

namespace platform::display {

constexpr std::uint32_t kAnswerPatience = 1000;  ///< milliseconds, for the host to do what it was asked for

/// @returns whether a time of SDL_GetTicks has come.
inline bool Passed(std::uint32_t time) {
    return static_cast<std::int32_t>(SDL_GetTicks() - time) >= 0;
}

/// Used on the display's thread alone.
class HostWindow {
  public:
    /// Makes the window, not to be seen yet. scale: how many pixels of the host, along each side, make one of the screen.
    HostWindow(X11& host, int scale) : host(host), scale(scale) {}
    ~HostWindow();
    HostWindow(const HostWindow&) = delete;
    HostWindow& operator=(const HostWindow&) = delete;

    /// @returns false when the host has no more windows.
    bool Open(const Pane& pane, SDL_Window* owner, bool active);
    void Appear();

    /// Follows what the pane has become. managed: someone on the host keeps minimised windows.
    void Follow(const Pane& pane, SDL_Window* owner, bool managed);
    void SetIcon(const IconImage& image);

    /// Takes over parts of the screen's picture, in its coordinates, where they show the pane, which lies at `place` there; all
    /// of it where the window has none yet.
    void Copy(const Picture& picture, const Box& place, const std::vector<Box>& parts);
    /// Shows what was taken over, or all. @returns false when that cannot be done now.
    bool Show();

    /// The host has moved or sized the window, or may have minimised or restored it. @returns whether that was not asked for.
    /// focused: it has just given it the focus, and then it is back, whatever was asked.
    bool Moved(SDL_Point corner);
    bool Sized(int width, int height);
    bool StateChanged(bool focused);
    /// @returns until when the host may answer a wish to be minimised or restored, if there is one.
    std::optional<std::uint32_t> Deadline() const {
        return deadline;
    }
    bool IsOverdue() const {
        return deadline && Passed(*deadline);
    }
    /// The pane is told of the change by this report, and not followed until it has heard of it.
    void Reported(unsigned report) {
        reported = report;
    }
    void Exposed() {
        exposed = true;
    }

    /// @returns the pane's place on the screen as the host has it.
    Box Place() const;
    bool IsMinimised() const {
        return minimised;
    }
    bool IsFresh() const {
        return fresh;
    }
    const Pane& Shown() const {
        return pane;
    }
    SDL_Window* Window() const {
        return window;
    }

  private:
    void AskPlace(const Box& place);
    void AskState(bool wanted);
    void Blit(SDL_Surface* picture, SDL_Surface* surface, const Box& part, const Box& place);
    Box OnHost(const Box& place) const {
        return {place.left * scale, place.top * scale, place.right * scale, place.bottom * scale};
    }

    X11& host;
    const int scale;
    SDL_Window* window = nullptr;
    SDL_Window* owner = nullptr;
    Pane pane;
    Box actual;                   // on the host, as it has said last
    std::deque<SDL_Point> asked;  // for these corners; what the host says of them is no news
    SDL_Point askedSize{};
    std::vector<SDL_Rect> touched;  // of the window, not shown yet
    bool fresh = true;              // holds nothing of the picture
    bool exposed = false;
    bool minimised = false;
    std::optional<std::uint32_t> deadline;  // for the answer to a wish to be minimised or restored
    unsigned reported = 0;                  // number of the last report to the pane
};

}  // namespace platform::display
