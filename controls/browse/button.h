// A browse button's record.
#pragma once

#include "cvutil32/cstring.h"

namespace browse {

struct Data {
    HWND buddy;
    alignas(CSTRING) unsigned char specs[sizeof(CSTRING)];  ///< constructed when the record is made, ended with it
    DWORD options;

    CSTRING& Specs() {
        return *reinterpret_cast<CSTRING*>(specs);
    }
};

/// @return null before WM_NCCREATE and after WM_NCDESTROY.
Data* DataOf(HWND button);

/// Whether the window is a browse button that carries its validity property.
bool IsBrowseButton(HWND window);

/// What a click on a button does.
/// @param id  the identifier that came with the click.
void Browse(HWND parent, HWND button, WORD id);

}  // namespace browse
