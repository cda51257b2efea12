// Registration of the controls' window classes.
//
// A class is registered once for an instance: asking again finds it and changes nothing. Every class carries
// CS_GLOBALCLASS, so that the dialogs of any module in the process can create the control by name.
#pragma once

#include <windows.h>

namespace frame {

/// What a class of the library's own states about itself; unhandled messages go to DefWindowProcA.
struct OwnClass {
    LPCSTR name;
    UINT style;  ///< CS_GLOBALCLASS is added.
    WNDPROC procedure;
    int extraBytes;     ///< a multiple of sizeof(LONG_PTR)
    LPCSTR cursor;      ///< IDC_ constant
    HBRUSH background;  ///< null if the control fills its background itself
};

/// @return the new class's atom, what GetClassInfoA said if the class is there already, or 0.
BOOL RegisterOwnClass(HINSTANCE instance, OwnClass const& own);

/// What a superclass keeps of the class that it is built on: class-wide, filled in by the registration.
struct BaseClass {
    WNDPROC procedure;  ///< receives every message, handled or not
    int extraBytes;     ///< the superclass's data pointer lies behind them

    LRESULT Call(HWND window, UINT message, WPARAM wParam, LPARAM lParam) const {
        return CallWindowProcA(procedure, window, message, wParam, lParam);
    }
};

/// How a superclass differs from its base class, besides name and procedure.
struct Difference {
    int extraBytes = sizeof(LONG_PTR);  ///< added: room for one data pointer
    UINT withoutStyle = 0;              ///< class styles taken away
};

/// Registers @p name as the class @p baseName with another window procedure.
/// @return nonzero on success (1 if it was registered now, what GetClassInfoA said if the class is there already).
/// @p base is known then, whoever registered the class; one that was known before stays.
BOOL RegisterSuperclass(HINSTANCE instance, LPCSTR name, LPCSTR baseName, WNDPROC procedure, BaseClass& base,
                        Difference const& difference = {});

}  // namespace frame
