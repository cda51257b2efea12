/// @file winuser/dialogs.h
/// Dialogs: templates in memory and in resources, modal and modeless dialogs, their controls' values, keyboard rules
/// and units; message boxes.
#pragma once

#include "../windef.h"

typedef INT_PTR(CALLBACK* DLGPROC)(HWND, UINT, WPARAM, LPARAM);

#pragma pack(push, 2)
/// The head of a template; menu, class and title follow as 16-bit strings, then point size and face with DS_SETFONT.
typedef struct {
    DWORD style;
    DWORD dwExtendedStyle;
    WORD cdit;
    short x;
    short y;
    short cx;
    short cy;
} DLGTEMPLATE;

/// The head of an item, on a DWORD boundary; class, title and creation data follow.
typedef struct {
    DWORD style;
    DWORD dwExtendedStyle;
    short x;
    short y;
    short cx;
    short cy;
    WORD id;
} DLGITEMTEMPLATE;
#pragma pack(pop)

typedef DLGTEMPLATE* LPDLGTEMPLATEA;
typedef DLGTEMPLATE* LPDLGTEMPLATE;
typedef const DLGTEMPLATE* LPCDLGTEMPLATEA;
typedef const DLGTEMPLATE* LPCDLGTEMPLATE;
typedef DLGITEMTEMPLATE* LPDLGITEMTEMPLATE;

#define DS_3DLOOK 0x0004
#define DS_SETFONT 0x40
#define DS_MODALFRAME 0x80
#define DS_NOIDLEMSG 0x100
#define DS_CONTROL 0x0400
#define DS_CENTER 0x0800
#define DS_CONTEXTHELP 0x2000

#define DM_GETDEFID (WM_USER + 0)
#define DM_SETDEFID (WM_USER + 1)
#define DC_HASDEFID 0x534B

/// Extra bytes of a dialog's window; a private dialog class must have at least DLGWINDOWEXTRA of them.
#ifdef __LP64__
#define DLGWINDOWEXTRA 48
#else
#define DLGWINDOWEXTRA 30
#endif
#define DWLP_MSGRESULT 0
#define DWLP_DLGPROC (DWLP_MSGRESULT + (int)sizeof(LRESULT))
#define DWLP_USER (DWLP_DLGPROC + (int)sizeof(DLGPROC))

#define IDOK 1
#define IDCANCEL 2
#define IDABORT 3
#define IDRETRY 4
#define IDIGNORE 5
#define IDYES 6
#define IDNO 7
#define IDCLOSE 8
#define IDHELP 9

#define MB_OK 0x00000000
#define MB_OKCANCEL 0x00000001
#define MB_ABORTRETRYIGNORE 0x00000002
#define MB_YESNOCANCEL 0x00000003
#define MB_YESNO 0x00000004
#define MB_RETRYCANCEL 0x00000005
#define MB_ICONHAND 0x00000010
#define MB_ICONQUESTION 0x00000020
#define MB_ICONEXCLAMATION 0x00000030
#define MB_ICONASTERISK 0x00000040
#define MB_ICONWARNING MB_ICONEXCLAMATION
#define MB_ICONERROR MB_ICONHAND
#define MB_ICONINFORMATION MB_ICONASTERISK
#define MB_ICONSTOP MB_ICONHAND
#define MB_DEFBUTTON1 0x00000000
#define MB_DEFBUTTON2 0x00000100
#define MB_DEFBUTTON3 0x00000200
#define MB_TYPEMASK 0x0000000F
#define MB_ICONMASK 0x000000F0
#define MB_DEFMASK 0x00000F00

// --- making and ending dialogs

WINUSERAPI HWND WINAPI CreateDialogParamA(HINSTANCE instance, LPCSTR templateName, HWND owner, DLGPROC procedure,
                                          LPARAM initParam);
WINUSERAPI HWND WINAPI CreateDialogIndirectParamA(HINSTANCE instance, LPCDLGTEMPLATEA dialogTemplate, HWND owner,
                                                  DLGPROC procedure, LPARAM initParam);
WINUSERAPI INT_PTR WINAPI DialogBoxParamA(HINSTANCE instance, LPCSTR templateName, HWND owner, DLGPROC procedure,
                                          LPARAM initParam);
WINUSERAPI INT_PTR WINAPI DialogBoxIndirectParamA(HINSTANCE instance, LPCDLGTEMPLATEA dialogTemplate, HWND owner,
                                                  DLGPROC procedure, LPARAM initParam);
WINUSERAPI BOOL WINAPI EndDialog(HWND dialog, INT_PTR result);

#define CreateDialogA(instance, name, owner, procedure) CreateDialogParamA(instance, name, owner, procedure, 0L)
#define CreateDialogIndirectA(instance, dialogTemplate, owner, procedure) \
    CreateDialogIndirectParamA(instance, dialogTemplate, owner, procedure, 0L)
#define DialogBoxA(instance, name, owner, procedure) DialogBoxParamA(instance, name, owner, procedure, 0L)
#define DialogBoxIndirectA(instance, dialogTemplate, owner, procedure) \
    DialogBoxIndirectParamA(instance, dialogTemplate, owner, procedure, 0L)

WINUSERAPI BOOL WINAPI IsDialogMessageA(HWND dialog, MSG* message);

// --- controls of a dialog

WINUSERAPI HWND WINAPI GetDlgItem(HWND dialog, int id);
WINUSERAPI int WINAPI GetDlgCtrlID(HWND control);
WINUSERAPI BOOL WINAPI SetDlgItemTextA(HWND dialog, int id, LPCSTR text);
WINUSERAPI UINT WINAPI GetDlgItemTextA(HWND dialog, int id, LPSTR text, int size);
WINUSERAPI BOOL WINAPI SetDlgItemInt(HWND dialog, int id, UINT value, BOOL isSigned);
WINUSERAPI UINT WINAPI GetDlgItemInt(HWND dialog, int id, BOOL* translated, BOOL isSigned);
WINUSERAPI LRESULT WINAPI SendDlgItemMessageA(HWND dialog, int id, UINT message, WPARAM wParam, LPARAM lParam);
WINUSERAPI BOOL WINAPI CheckDlgButton(HWND dialog, int id, UINT check);
WINUSERAPI BOOL WINAPI CheckRadioButton(HWND dialog, int first, int last, int check);
WINUSERAPI UINT WINAPI IsDlgButtonChecked(HWND dialog, int id);
WINUSERAPI HWND WINAPI GetNextDlgTabItem(HWND dialog, HWND control, BOOL previous);
WINUSERAPI HWND WINAPI GetNextDlgGroupItem(HWND dialog, HWND control, BOOL previous);

// --- dialog units

WINUSERAPI BOOL WINAPI MapDialogRect(HWND dialog, LPRECT rect);
WINUSERAPI LONG WINAPI GetDialogBaseUnits(void);

// --- message boxes

WINUSERAPI int WINAPI MessageBoxA(HWND owner, LPCSTR text, LPCSTR caption, UINT type);
WINUSERAPI BOOL WINAPI MessageBeep(UINT type);

#define CreateDialogParam CreateDialogParamA
#define CreateDialogIndirectParam CreateDialogIndirectParamA
#define DialogBoxParam DialogBoxParamA
#define DialogBoxIndirectParam DialogBoxIndirectParamA
#define CreateDialog CreateDialogA
#define CreateDialogIndirect CreateDialogIndirectA
#define DialogBox DialogBoxA
#define DialogBoxIndirect DialogBoxIndirectA
#define IsDialogMessage IsDialogMessageA
#define SetDlgItemText SetDlgItemTextA
#define GetDlgItemText GetDlgItemTextA
#define SendDlgItemMessage SendDlgItemMessageA
#define MessageBox MessageBoxA
