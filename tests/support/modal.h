// Modal dialogs in tests: what a test does while one is up.
#pragma once

#include <windows.h>

#include <functional>
#include <string>

namespace testing_support {

/// Calls @p visit once, from a modal loop of this thread, when a dialog other than those visited before is active and
/// shown. A dialog that the visit leaves open is closed later, with an error.
void OnNextDialog(std::function<void(HWND dialog)> visit);

/// Puts a press and release of a key, with the Alt key if wanted, into the system's input, and lets the dialog take
/// them. Whatever ends the dialog on the way takes effect when the visit is over.
void PressKey(HWND dialog, WORD key, bool alt = false);

/// Shows and closes boxes of the system, one from the other, so that what the system makes once and keeps does not count as a leak.
void OpenFirstDialog();

std::string TextOf(HWND window);

/// A control's place in its dialog's client area.
RECT PlaceIn(HWND dialog, int id);

/// Dialog units of a dialog as pixels.
RECT ToPixels(HWND dialog, RECT units);

}  // namespace testing_support
