/// @file display.h
/// What shows the screen and brings real input. The user module fills in a Sink and a Source and asks Create for a
/// display; it knows nothing else of this folder, and this folder knows nothing of windows or messages.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

namespace platform::display {

/// Where input goes. Every function is called on the display's own thread, never while the picture is locked.
/// Coordinates are screen pixels and may lie outside the screen while a button is held.
struct Sink {
    void (*mouseMove)(int x, int y);
    void (*mouseButton)(int button, bool down);  ///< 0 left, 1 right, 2 middle
    void (*mouseWheel)(int delta);               ///< 120 a notch, positive away from the user

    /// A key went down, repeats included, or up. Modifiers come as their left and right keys (VK_LSHIFT, VK_RCONTROL).
    /// scanCode is the keyboard's set 1 code without its 0xE0 prefix, which `extended` stands for. unicode is the
    /// character that this press makes under the host's keyboard layout, 0 for none and for releases.
    void (*key)(unsigned virtualKey, unsigned scanCode, bool extended, bool down, unsigned unicode);

    void (*closeRequested)();  ///< the person closed the host window
};

/// The screen's pixels, 0x00RRGGBB, top row first; `stride` is in pixels.
struct Picture {
    const std::uint32_t* pixels;
    int width;
    int height;
    int stride;
};

/// Where the picture comes from.
struct Source {
    void (*lock)();
    void (*unlock)();
    Picture (*picture)();  ///< called between lock and unlock; valid until unlock

    /// The bounding box of what changed since it was last taken, right and bottom excluded; false when nothing did.
    /// Called between lock and unlock.
    bool (*takeDirty)(int* left, int* top, int* right, int* bottom);
};

class Display {
  public:
    virtual ~Display() = default;

    /// Something changed, or a painting pass ended: present soon. Any thread; cheap when a wake is already on its way.
    virtual void Wake() = 0;

    /// Shows one of the system's cursors: an IDC_ value as a number; 0 hides the pointer. Any thread.
    virtual void SetCursorShape(unsigned idc) = 0;

    /// The text of the host's clipboard, as UTF-8. Any thread, with the picture not locked; waits for the host.
    /// @returns false when the host has no clipboard, no text in it, or does not answer.
    virtual bool ReadClipboard(std::string* text) = 0;

    /// Gives the host's clipboard a text, UTF-8. Any thread.
    virtual void WriteClipboard(const std::string& text) = 0;

    /// The same for the text that was selected last, where the host keeps one apart from the clipboard. Writing does not wait.
    virtual bool ReadSelection(std::string* text) = 0;
    virtual void WriteSelection(const std::string& text) = 0;

    /// @returns whether a person may be there to see the screen and to send input.
    virtual bool Interactive() const = 0;
};

/// @returns a window on the host's desktop when there is one (DISPLAY or WAYLAND_DISPLAY is set and CVUTIL32_DISPLAY is
/// not "none") and it opens, else a display that shows nothing. Never null except when memory has run out. The sink and
/// the source must outlive the result.
std::unique_ptr<Display> Create(const Sink& sink, const Source& source, int width, int height);

/// @returns whether the display that Create made last is interactive; false before.
bool IsInteractive();

}  // namespace platform::display
