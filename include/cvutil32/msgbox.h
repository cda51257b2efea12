/// @file msgbox.h
/// `KVMB_`: the extended message box.
///
/// A modal box with an optional icon, a message, and a column of up to eight buttons whose labels, identifiers and
/// default the caller chooses. The box grows with its message. KVMB_MessageBoxExtended() takes a record that describes
/// everything; KVMB_MessageBoxError() composes a report of up to three parts and shows it with an "OK" button.
///
///     KVMB_MESSAGEBOX box = {0};
///     box.owner = window;
///     box.title = "Import";
///     box.text = "The file has changed since it was read.";
///     box.icon = LoadIconA(NULL, IDI_QUESTION);
///     box.buttonCount = 2;
///     box.buttons[0].label = "&Read again";
///     box.buttons[0].id = IDRETRY;
///     box.buttons[1].kind = KVMB_BTN_CANCEL;
///     box.buttons[1].id = IDCANCEL;
///     if (KVMB_MessageBoxExtended(&box) == IDRETRY) ReadAgain();
///
/// Result. The identifier of the button that was pressed. Escape, Alt+F4 and the caption's close box give IDCANCEL,
/// whether or not a button has that identifier. 0 means that the box could not be shown; use no button with that
/// identifier. An identifier travels in the low word of `WM_COMMAND`, so that it should lie in 1 to 65535.
///
/// Size. A message of at most 140 characters opens the narrow box, a longer one the wide one; `KVMB_SMALL` and
/// `KVMB_LARGE` decide instead of the length. Words are wrapped at the message area's width. A message narrower than
/// that is centred in it, and beside the icon if it is lower than it; without an icon the message moves left over half
/// of the icon's space. A word wider than the area widens the box and moves the buttons right. Line ends are "\n" or
/// "\r\n"; "&" is an ordinary character in a message and marks the mnemonic in a label. Labels are as wide as the
/// buttons of the box, 48 dialog units; what is longer is cut off at its sides.
///
/// A box does not scroll. Its end leaves a screen of 640 by 480 pixels with more than about 1500 characters of ordinary text
/// in the wide box, 900 in the narrow one, or 31 lines; one of 800 by 600 with 2000, 1200 or 41, one of 1024 by 768 with
/// 2600, 1600 or 54. The buttons, at the top, stay in reach. A word of more than about 80 letters, such as a long path,
/// pushes them off the right edge of the smallest of these screens: put line ends into it.
///
/// Place. With a `position` its top left corner is there; without one it is centred over its owner, inside the screen.
/// Without an owner it keeps the place of its template, near the screen's top left corner.
///
/// Owner. The record's `owner`, if it is a window and not the desktop; otherwise the calling thread's active window, if
/// there is one. The owner is disabled while the box is shown, and active again afterwards. If the active window stepped in,
/// the focus then goes back to where it was. With an owner of the record's own that is the owner's business: a dialog sets
/// the focus to its control again, as at every activation; a plain window has the focus itself, and hands it on if it likes
/// when it gets `WM_SETFOCUS`.
///
/// Task-modal. With `KVMB_TASKMODAL` every other enabled top-level window of the owner's thread (of the calling thread
/// if the record has no owner) is disabled as well; when the box closes, whoever closes it (a button, EndDialog() from
/// elsewhere, the end of the owner), exactly these are enabled again. One that was disabled before stays so. If memory runs out, the windows that could not be noted stay enabled.
///
/// The box runs on the calling thread until it is closed. Boxes may be opened from boxes.
#pragma once

#include "cvapi.h"

/// Entries of a record's button table.
#define KVMB_MAXBUTTONS 8

/// @name Flags of a record
/// @{
#define KVMB_SMALL 0x0002      ///< the narrow box, whatever the length of the message
#define KVMB_LARGE 0x0004      ///< the wide box, if KVMB_SMALL is not set
#define KVMB_TASKMODAL 0x0010  ///< disables the owner's thread's other windows, see above
/// @}

/// @name Kinds of buttons
/// The label of a button that brings none of its own.
/// @{
#define KVMB_BTN_OK 0      ///< "OK"
#define KVMB_BTN_CANCEL 1  ///< "Cancel"
#define KVMB_BTN_YES 2     ///< "Yes"
#define KVMB_BTN_NO 3      ///< "No"
/// @}

/// @name Joining modes of KVMB_MessageBoxError()
/// What stands between the message, the second part and the third part.
/// @{
#define KVMB_SEP_SPACE 0      ///< a blank
#define KVMB_SEP_REASON 1     ///< an empty line and "Reason:" before the second part, an empty line before the third
#define KVMB_SEP_LINE 2       ///< a line end
#define KVMB_SEP_PARAGRAPH 3  ///< an empty line
/// @}

#pragma pack(push, 8)

/// A button of a box.
typedef struct KVMB_BUTTON {
    DWORD kind;    ///< KVMB_BTN_ value: the label where `label` is null; other values are not allowed then
    LPCSTR label;  ///< the button's text; null takes the standard label of `kind`
    LONG id;       ///< control identifier and result
} KVMB_BUTTON;

/// A box. Set what is not used to zero. The record is written to, and must live, until the box is closed.
typedef struct KVMB_MESSAGEBOX {
    HWND owner;                            ///< owner window; may be null
    LPCSTR title;                          ///< caption; null for an empty one
    LPCSTR text;                           ///< message; null for none
    HICON icon;                            ///< stays the caller's; null for none
    WORD reservedWord;                     ///< not read by the library
    WORD flags;                            ///< KVMB_SMALL, KVMB_LARGE, KVMB_TASKMODAL
    DWORD reserved;                        ///< not read by the library; zero
    const POINT* position;                 ///< of the top left corner, in screen coordinates; null centres the box
    WORD defaultButton;                    ///< index of the default button, which has the focus; set to 0 if too large
    WORD buttonCount;                      ///< entries of `buttons` in use, at most KVMB_MAXBUTTONS
    KVMB_BUTTON buttons[KVMB_MAXBUTTONS];  ///< from top to bottom
    LPVOID disabledWindows;  ///< written by the library: what a task-modal box disabled; not valid afterwards
} KVMB_MESSAGEBOX;

#pragma pack(pop)

/// Shows a box and waits until it is closed.
/// @param box  describes it; not null. A number of buttons above KVMB_MAXBUTTONS or a kind above KVMB_BTN_NO is not
/// allowed and not tested.
/// @return the identifier of the button that closed the box, IDCANCEL (2) if it was dismissed, 0 if it or one of its
/// buttons could not be made.
CVAPI(int) KVMB_MessageBoxExtended(KVMB_MESSAGEBOX* box);

/// Reports an error with one "OK" button.
///
/// Each text is a pointer to a text, or the identifier of a string (MAKEINTRESOURCEA) in the module that follows it;
/// a null module stands for the library's own. A missing string counts as an empty text. The caption is cut to 255
/// bytes and the composed message to 511.
///
///     KVMB_MessageBoxError(window, "Import", NULL, "The file cannot be read.", NULL, reason, NULL, NULL, NULL, NULL,
///     0,
///                          KVMB_SEP_REASON | MB_ICONHAND);
///
/// @param owner  as in a record.
/// @param title  the caption; null (or 0) for an empty one.
/// @param titleModule  where the title's identifier is looked up.
/// @param message  the message.
/// @param messageModule  where its identifier is looked up.
/// @param second  the second part, or null.
/// @param secondModule  where its identifier is looked up.
/// @param third  the third part, or null. Without a second part it is joined straight to the message.
/// @param thirdModule  where its identifier is looked up.
/// @param icon  an icon; null lets @p style choose one of the system's.
/// @param reservedWord  its low word goes into the record's `reservedWord`.
/// @param style  a KVMB_SEP_ mode, and MB_ICONHAND, MB_ICONQUESTION, MB_ICONEXCLAMATION, MB_ICONASTERISK or no icon.
/// @return IDOK, IDCANCEL if the box was dismissed, or 0 as KVMB_MessageBoxExtended().
CVAPI(int)
KVMB_MessageBoxError(HWND owner, LPCSTR title, HINSTANCE titleModule, LPCSTR message, HINSTANCE messageModule,
                     LPCSTR second, HINSTANCE secondModule, LPCSTR third, HINSTANCE thirdModule, HICON icon,
                     DWORD reservedWord, DWORD style);
