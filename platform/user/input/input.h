/// @file input.h
/// What becomes of what the keyboard and the mouse do, and who has focus, activation, capture and caret.
#pragma once

#include <windows.h>

#include "user/model/input_state.h"
#include "user/model/thread.h"
#include "user/model/window.h"

namespace platform::user {

/// Input from the display or from SendInput, in screen coordinates; safe from any thread.
void InjectMouseMove(int x, int y);
void InjectMouseButton(int button, bool down);
void InjectMouseWheel(int delta);
void InjectKey(unsigned virtualKey, unsigned scanCode, bool extended, bool down, unsigned unicode);

/// Files an event with the thread it belongs to and updates the state of keys and cursor. Takes the lock.
void Inject(InputEvent event);

/// Writes the state of a key and of the key that stands for both sides of it.
void ApplyKey(BYTE (&keys)[256], BYTE key, bool down);

/// @returns the MK_ flags of a key state.
WPARAM MouseFlags(const BYTE (&keys)[256]);

/// @returns the deepest visible window at a point, whoever owns it; null over the desktop. Lock held.
Window* WindowAt(POINT point);

// --- keyboard layout (layout_text.cpp)

/// @returns the character that a key makes with these modifiers, -1 for none.
int CharacterOf(UINT key, bool shift, bool control, bool alt, bool capital);

// --- activation, focus and capture

/// Moves the focus without any check. @returns whether the window has it afterwards.
bool MoveFocus(ThreadState* self, HWND window);

/// Activates a window of this thread, even a hidden one.
bool ActivateOwn(ThreadState* self, HWND window, bool byMouse, bool foreground);

/// Takes activation off this thread's active window, after which none is active.
void DeactivateOwn(ThreadState* self);

/// Gives activation to another window when this one goes away.
void ActivateNext(ThreadState* self, Window* leaving);

/// Takes capture off a window and tells it so. Lock not held.
void MoveCapture(ThreadState* self, HWND window);
/// Ends the capture of a window that may have lost it already.
void LetGoOfMouse(HWND window);

/// Takes a dying window out of focus, activation, capture, timers, caret, posted messages and mouse tracking, and
/// activates another window where it was the active one.
void ForgetInput(Window* window);

/// A window was hidden or, else, disabled: gives up capture, moves focus and, when hidden, activation away as documented.
void LeaveDisabledOrHidden(Window* window, bool hidden);

/// Activates a top-level window (WM_NCACTIVATE, WM_ACTIVATE, focus, z-order). @returns false when the
/// window refused or cannot be activated (disabled, hidden, a child).
bool ActivateWindow(HWND window, bool byMouse);

/// @returns the top-level window that can be activated for this one: its own, or while that is disabled the highest that its
/// owners have and that takes input, which is the box that stands before it; its own again when there is none. Lock not held.
HWND WindowToActivate(HWND window);

void ForgetCaret(Window* window);

}  // namespace platform::user
