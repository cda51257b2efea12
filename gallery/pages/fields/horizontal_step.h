/// @file horizontal_step.h
/// Fields beside a horizontal micro scroll bar.
///
/// A field steps on WM_VSCROLL alone. A horizontal bar sends WM_HSCROLL: its right arrow with the code that steps up and
/// its left arrow with the one that steps down, so that the message only has to be passed on under the other name.
#pragma once

#include <windows.h>

namespace gallery {

/// Makes a field step on WM_HSCROLL too.
void StepSideways(HWND field);

/// Takes that back. Needed before the field goes: the bar, which hooked it first, takes its own hook away only when it
/// finds it in place.
void StopSteppingSideways(HWND field);

}  // namespace gallery
