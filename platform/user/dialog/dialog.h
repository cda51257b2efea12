/// @file dialog.h
/// What the dialog files share: parsed templates, the state of a dialog, and the rules of focus and default buttons.
#pragma once

#include <windows.h>

#include <memory>
#include <string>
#include <vector>

#include "user/model/window.h"

namespace platform::user {

// --- templates (dialog_template.cpp)

struct DialogItem {
    DWORD style = 0;
    DWORD exStyle = 0;
    short x = 0, y = 0, width = 0, height = 0;
    int id = 0;
    std::string className;
    std::string text;
};

struct DialogTemplate {
    DWORD style = 0;
    DWORD exStyle = 0;
    short x = 0, y = 0, width = 0, height = 0;
    std::string title;
    bool hasFont = false;
    int pointSize = 0;
    int weight = FW_DONTCARE;
    bool italic = false;
    BYTE charSet = DEFAULT_CHARSET;
    std::string face;
    std::vector<DialogItem> items;
};

/// What a template in memory is trusted to be long at most; a resource's length is known.
constexpr size_t kLargestTemplate = 1 << 20;

/// Reads a DLGTEMPLATE or DLGTEMPLATEEX of at most `size` bytes. @returns false when it is cut off or says nonsense.
bool ParseDialogTemplate(const void* data, size_t size, DialogTemplate& result);

/// Finds a dialog among a module's resources and reads it. @returns false with the last error set.
bool LoadDialogTemplate(HINSTANCE instance, LPCSTR name, DialogTemplate& result);

// --- state (dialog.cpp)

struct DialogState {
    HFONT font = nullptr;     ///< WM_GETFONT
    HFONT ownFont = nullptr;  ///< made from the template, deleted with the dialog
    HWND savedFocus = nullptr;
    int defaultId = 0;
    bool hasDefault = false;
    SIZE base{};  ///< the base unit in pixels: 4 horizontal dialog units, and 8 vertical ones
    bool modal = false;
    bool ended = false;
    INT_PTR result = 0;
    HWND disabledOwner = nullptr;  ///< to be enabled again when the dialog ends

    DialogState() = default;
    DialogState(const DialogState&) = delete;
    DialogState& operator=(const DialogState&) = delete;
    ~DialogState();
};

/// @returns the dialog's state, null when the window is not a dialog (yet). Sets no error code for live windows.
std::shared_ptr<DialogState> FindDialogState(HWND dialog);
/// The same, made when missing; null when the window is dead or memory has run out.
std::shared_ptr<DialogState> NeedDialogState(HWND dialog);

/// Shows a dialog that is done with WM_INITDIALOG. It may be gone afterwards.
void ShowDialog(HWND dialog);

/// Makes a dialog and its controls, sends WM_INITDIALOG, and shows it where the template says so; its loop shows a modal one.
HWND CreateDialogFromTemplate(HINSTANCE instance, const DialogTemplate& dialogTemplate, HWND owner, DLGPROC procedure,
                              LPARAM initParam, bool modal, HWND disabledOwner);
/// The modal counterpart: runs until EndDialog, WM_QUIT or the window's death.
INT_PTR RunDialog(HINSTANCE instance, const DialogTemplate& dialogTemplate, HWND owner, DLGPROC procedure,
                  LPARAM initParam);

// --- units (dialog_units.cpp)

/// Base units of a font as documented: average width of the letters, height of the face.
SIZE FontBaseUnits(HFONT font);

// --- focus and default buttons (dialog_focus.cpp)

UINT DialogCode(HWND control);

/// Gives a control the focus as the keyboard does: selects all text, moves the default button's outline.
void FocusControl(HWND dialog, HWND control);

/// The same with the next tab stop after the focus, or the one before.
void FocusNext(HWND dialog, bool previous);

/// The focus goes from one control to another: the push button with the focus, else the dialog's own default button,
/// wears the default outline.
void MoveDefaultButton(HWND dialog, HWND newFocus);

/// DM_SETDEFID: files the new default button and moves the outline to it.
void SetDefaultId(HWND dialog, int id);

/// Where a default focus would go: the first tab stop, else the first control of the first group.
HWND FirstFocus(HWND dialog);

// --- controls (dialog_order.cpp)

/// @returns whether a control is visible and enabled by its own style: the dialog itself may still be hidden.
bool IsReachable(HWND control);
/// The controls in the order of groups. It goes on through nested pages, whose own WS_GROUP says nothing as long as what is on
/// them can be reached.
void CollectMembers(HWND parent, std::vector<HWND>& members);
/// @returns what a window answers for its text. Throws bad_alloc.
std::string TextOf(HWND window);

LRESULT CALLBACK DialogProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

}  // namespace platform::user
