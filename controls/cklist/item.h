// How an item of a check list looks and how high it is.
#pragma once

#include <windows.h>

namespace cklist {

/// The two boxes, side by side; null while the class is not registered.
extern HBITMAP g_boxes;

void Draw(DRAWITEMSTRUCT const& item);

/// Answers for every owner-drawn list box of a parent.
void Measure(HWND parent, MEASUREITEMSTRUCT& item);

}  // namespace cklist
