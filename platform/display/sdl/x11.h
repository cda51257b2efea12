/// @file x11.h
/// What the windows that stand on an X desktop want beyond SDL, which waits for the window manager at each move, raises
/// what it sizes and knows of no owners. Its headers stay in one source.
#pragma once

#include "display/display.h"

#include <SDL.h>

#include <cstdint>
#include <vector>

namespace platform::display {

/// What SDL's own events do not tell. Loosened: SDL has given the mouse free, whoever had it, as it does at each change of
/// the focus. Focused: and a window has got the focus, of which SDL says nothing where it had it shortly before.
struct HostEvent {
    enum class Kind { Other, Move, Press, Release, Wheel, State, Room, Loosened, Focused };
    Kind kind = Kind::Other;
    SDL_Point place{};          ///< of the pointer, on the host's desktop when it happened
    int button = 0;             ///< SDL's number
    int notches = 0;            ///< positive away from the user
    std::uintptr_t window = 0;  ///< that has got the focus, or whose state has changed
};

struct Pointer {
    SDL_Point place{};     ///< on the host's desktop
    unsigned buttons = 0;  ///< as SDL_BUTTON_LMASK ...
};

struct HostHints {
    SDL_Window* owner = nullptr;
    bool minimises = false;
    bool sizes = false;
    bool takesFocus = true;  ///< when it appears
};

/// The connection of SDL to the X server. Used on the display's thread alone.
class X11 {
  public:
    /// A window that the manager or the server has other ideas about, or that goes while SDL sends it something, is no error:
    /// what X complains of is passed over. Before SDL is started, which goes back at its end to what it has found.
    static void PassOverErrors();

    /// @param window any of SDL's.
    bool Connect(SDL_Window* window);

    Box Desktop() const;   ///< all monitors together
    Box WorkArea() const;  ///< what panels leave of the main monitor
    int Density() const;   ///< dots per inch as the person has set them, 0 for not set
    bool HasManager() const;

    /// What must be known before a window appears, or has changed since.
    void Describe(SDL_Window* window, const HostHints& hints);
    void Limit(SDL_Window* window, const Box& place, bool sizes);  ///< what the person may make of its size
    void Place(SDL_Window* window, const Box& place);
    void Map(SDL_Window* window);
    void Minimise(SDL_Window* window);
    bool IsMinimised(SDL_Window* window) const;
    void Raise(SDL_Window* window);
    void PutBelow(SDL_Window* window, SDL_Window* above);
    void Focus(SDL_Window* window);

    /// All of the mouse comes to this program. @returns whether the server agrees.
    bool Grab(SDL_Window* window);
    void Ungrab();
    Pointer AskPointer() const;

    HostEvent Read(const SDL_SysWMEvent& event);
    static std::uintptr_t IdOf(SDL_Window* window);

  private:
    unsigned long Named(const char* atom) const;
    std::vector<long> Property(unsigned long window, const char* name) const;
    Box MainMonitor() const;

    void* connection = nullptr;
    unsigned long root = 0;
    unsigned long userTime = 0;  // of the last key or button
};

}  // namespace platform::display
