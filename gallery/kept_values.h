/// @file kept_values.h
/// What the controls of a page hold, from one start of the gallery to the next.
#pragma once

#include <windows.h>

#include <span>

namespace gallery {

/// A control whose value is kept, and the name that it is kept by.
struct KeptValue {
    int id;
    const char* name;
};

/// Keeps the text of a field, the state of a button, the selection of a list.
void KeepValues(HWND page, std::span<const KeptValue> values);

/// Puts back what was kept, in the order of `values`, and tells the page of it as if the user had done it. What was
/// never kept stays as the page has made it.
void RestoreValues(HWND page, std::span<const KeptValue> values);

}  // namespace gallery
