/// @file display.h
/// What shows the screen and brings real input. The user module fills in a Sink and a Source and asks Create for a
/// display; it knows nothing else of this folder. This folder knows of windows only what a Scene tells: that parts of the
/// screen, the panes, stand for themselves on the host's desktop.
#pragma once

#include <algorithm>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace platform::display {

struct Box {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    int Width() const {
        return right - left;
    }
    int Height() const {
        return bottom - top;
    }
    bool Empty() const {
        return left >= right || top >= bottom;
    }
    bool operator==(const Box&) const = default;
};

/// The host's desktop, in pixels of the screen: how large it is, and what panels and docks leave of the main monitor.
struct Room {
    int width = 0;
    int height = 0;
    Box work;
    bool operator==(const Room&) const = default;
};

/// Names a pane; 0 is none.
using PaneId = std::uintptr_t;

/// A part of the screen that the host shows in a window of its own.
struct Pane {
    PaneId id = 0;
    Box place;
    PaneId owner = 0;        ///< the pane that it always lies above
    bool popup = false;      ///< takes no focus, and no place in the task list
    bool minimised = false;  ///< `place` is that of what stands for it on a host without a task list
    unsigned heard = 0;      ///< number of the host's last report that `minimised` takes account of
    bool minimises = false;  ///< the host may offer to
    bool sizes = false;
    bool topmost = false;  ///< lies above all that is not, also of other programs
    bool painted = false;  ///< what it shows is complete
    std::string title;     ///< UTF-8
    std::uintptr_t icon = 0;

    bool operator==(const Pane&) const = default;
};

/// What there is to show beside the picture.
struct Scene {
    /// @returns null for none.
    const Pane* Find(PaneId id) const {
        const auto found = std::find_if(panes.begin(), panes.end(), [id](const Pane& pane) { return pane.id == id; });
        return found != panes.end() ? &*found : nullptr;
    }

    std::vector<Pane> panes;  ///< the uppermost first
    PaneId active = 0;        ///< gets the keys
    unsigned rechecks = 0;    ///< grows when the active pane may not be the host's, though it is the same as before
    bool captured = false;    ///< the mouse belongs to the program, wherever it goes
};

struct IconImage {
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> pixels;  ///< 0xAARRGGBB, the top row first
};

/// Where input goes, and what the host does to panes. Every function is called on the display's own thread, never while
/// the picture is locked; none of them waits. Coordinates are screen pixels and may lie outside the screen while a button
/// is held.
struct Sink {
    void (*mouseMove)(int x, int y);
    void (*mouseButton)(int button, bool down);  ///< 0 left, 1 right, 2 middle
    void (*mouseWheel)(int delta);               ///< 120 a notch, positive away from the user

    /// A key went down, repeats included, or up. Modifiers come as their left and right keys (VK_LSHIFT, VK_RCONTROL).
    /// scanCode is the keyboard's set 1 code without its 0xE0 prefix, which `extended` stands for. unicode is the
    /// character that this press makes under the host's keyboard layout, 0 for none and for releases.
    void (*key)(unsigned virtualKey, unsigned scanCode, bool extended, bool down, unsigned unicode);

    void (*closeRequested)(PaneId pane);  ///< the person closed a host window; 0: the one that shows the whole screen
    void (*activated)(PaneId pane);       ///< the person chose it; 0: the focus went to another program
    void (*minimised)(PaneId pane, bool is, unsigned report);  ///< reports are numbered upwards
    void (*placed)(PaneId pane, const Box& place);
    void (*roomChanged)(const Room& room);
};

/// The screen's pixels, 0x00RRGGBB, top row first; `stride` is in pixels.
struct Picture {
    const std::uint32_t* pixels;
    int width;
    int height;
    int stride;
};

/// Where the picture comes from. Between lock and unlock nothing of it changes, and only there the others may be called.
struct Source {
    void (*lock)();
    void (*unlock)();
    Picture (*picture)();  ///< valid until unlock

    /// What changed since it was last taken, as boxes that may overlap.
    void (*takeDirty)(std::vector<Box>* boxes);

    void (*scene)(Scene* scene);
    bool (*icon)(std::uintptr_t icon, IconImage* image);  ///< @returns false when there is no such icon any more
};

/// By itself the display of a host without a desktop, which shows nothing and brings no input. What changed piles up in the
/// source then: nobody takes it, and the picture itself is read through GetDC(NULL).
class Display {
  public:
    virtual ~Display() = default;

    /// Something changed, or a painting pass ended: present soon. Any thread; cheap when a wake is already on its way.
    virtual void Wake() {}

    /// Shows one of the system's cursors: an IDC_ value as a number; 0 hides the pointer. Any thread.
    virtual void SetCursorShape(unsigned) {}

    /// The text of the host's clipboard, as UTF-8. Any thread, with the picture not locked; waits for the host.
    /// @returns false when the host has no clipboard, no text in it, or does not answer.
    virtual bool ReadClipboard(std::string*) {
        return false;
    }

    /// Gives the host's clipboard a text, UTF-8. Any thread.
    virtual void WriteClipboard(const std::string&) {}

    /// The same for the text that was selected last, where the host keeps one apart from the clipboard. Writing does not wait.
    virtual bool ReadSelection(std::string*) {
        return false;
    }
    virtual void WriteSelection(const std::string&) {}

    /// @returns whether a person may be there to see the screen and to send input.
    virtual bool Interactive() const {
        return false;
    }

    /// @returns whether the host's desktop is the screen, and then what it was like at the start.
    virtual bool FirstRoom(Room*) const {
        return false;
    }
};

/// @returns whether panes are to stand on the host's desktop, so that a display has to be made before the screen is. So it
/// is on an X desktop unless CVUTIL32_DISPLAY says "none" or "screen".
bool DesktopIsScreen();

/// @returns a display on the host's desktop when there is one (DISPLAY or WAYLAND_DISPLAY is set and CVUTIL32_DISPLAY is
/// not "none") and it opens, else one that shows nothing. Never null except when memory has run out. The sink and the source
/// must outlive the result. width and height: of the screen, unless the display has a FirstRoom.
std::unique_ptr<Display> Create(const Sink& sink, const Source& source, int width, int height);

/// @returns whether the display that Create made last is interactive; false before.
bool IsInteractive();

}  // namespace platform::display
