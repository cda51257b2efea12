/// @file winuser/clipboard.h
/// The clipboard: one text. It is shared with the host's clipboard where the screen is shown on a desktop.
#pragma once

#include "../windef.h"

#define CF_TEXT 1

WINUSERAPI BOOL WINAPI OpenClipboard(HWND owner);
WINUSERAPI BOOL WINAPI CloseClipboard(VOID);
WINUSERAPI BOOL WINAPI EmptyClipboard(VOID);
/// CF_TEXT is the one format, and the text is there at once. The block belongs to the clipboard then.
WINUSERAPI HANDLE WINAPI SetClipboardData(UINT format, HANDLE data);
WINUSERAPI HANDLE WINAPI GetClipboardData(UINT format);
WINUSERAPI BOOL WINAPI IsClipboardFormatAvailable(UINT format);
