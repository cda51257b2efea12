/// @file winuser/clipboard.h
/// The clipboard. Text is shared with the host's clipboard where the screen is shown on a desktop.
#pragma once

#include "../windef.h"

#define CF_TEXT 1
#define CF_BITMAP 2
#define CF_OEMTEXT 7
#define CF_DIB 8
#define CF_UNICODETEXT 13
#define CF_PRIVATEFIRST 0x0200
#define CF_PRIVATELAST 0x02FF

#define WM_RENDERFORMAT 0x0305
#define WM_RENDERALLFORMATS 0x0306
#define WM_DESTROYCLIPBOARD 0x0307

WINUSERAPI BOOL WINAPI OpenClipboard(HWND owner);
WINUSERAPI BOOL WINAPI CloseClipboard(VOID);
WINUSERAPI BOOL WINAPI EmptyClipboard(VOID);
/// Null data puts the rendering off: the owner is asked with WM_RENDERFORMAT. The block belongs to the clipboard then.
WINUSERAPI HANDLE WINAPI SetClipboardData(UINT format, HANDLE data);
/// CF_TEXT, CF_OEMTEXT and CF_UNICODETEXT stand in for each other.
WINUSERAPI HANDLE WINAPI GetClipboardData(UINT format);
WINUSERAPI BOOL WINAPI IsClipboardFormatAvailable(UINT format);
WINUSERAPI int WINAPI CountClipboardFormats(VOID);
WINUSERAPI UINT WINAPI EnumClipboardFormats(UINT format);
WINUSERAPI HWND WINAPI GetClipboardOwner(VOID);
WINUSERAPI HWND WINAPI GetOpenClipboardWindow(VOID);
WINUSERAPI DWORD WINAPI GetClipboardSequenceNumber(VOID);
WINUSERAPI UINT WINAPI RegisterClipboardFormatA(LPCSTR name);

#ifndef CVPLATFORM_NO_GENERIC_NAMES
#define RegisterClipboardFormat RegisterClipboardFormatA
#endif
