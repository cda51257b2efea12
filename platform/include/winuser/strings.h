/// @file winuser/strings.h
/// Characters of the code page in use, formatted text, and resource types and strings.
#pragma once

#include <stdarg.h>
#include "../winbase.h"

// --- characters

WINUSERAPI LPSTR WINAPI CharNextA(LPCSTR current);
WINUSERAPI LPSTR WINAPI CharPrevA(LPCSTR start, LPCSTR current);
/// A pointer whose upper bits are 0 is a single character, which is converted and returned.
WINUSERAPI LPSTR WINAPI CharUpperA(LPSTR text);
WINUSERAPI LPSTR WINAPI CharLowerA(LPSTR text);
WINUSERAPI DWORD WINAPI CharUpperBuffA(LPSTR text, DWORD length);
WINUSERAPI DWORD WINAPI CharLowerBuffA(LPSTR text, DWORD length);
WINUSERAPI BOOL WINAPI IsCharAlphaA(CHAR character);
WINUSERAPI BOOL WINAPI IsCharAlphaNumericA(CHAR character);

// --- formatted text, at most 1024 bytes with the final NUL

WINUSERAPI int wsprintfA(LPSTR target, LPCSTR format, ...);
WINUSERAPI int WINAPI wvsprintfA(LPSTR target, LPCSTR format, va_list arguments);

// --- resources

#define RT_BITMAP MAKEINTRESOURCEA(2)
#define RT_ICON MAKEINTRESOURCEA(3)
#define RT_DIALOG MAKEINTRESOURCEA(5)
#define RT_STRING MAKEINTRESOURCEA(6)
#define RT_GROUP_ICON MAKEINTRESOURCEA(14)

/// Returns the length without the NUL, or 0 when there is no such string; size 0 gives 0.
WINUSERAPI int WINAPI LoadStringA(HINSTANCE module, UINT id, LPSTR buffer, int size);

#define CharLower CharLowerA
#define CharLowerBuff CharLowerBuffA
#define CharNext CharNextA
#define CharPrev CharPrevA
#define CharUpper CharUpperA
#define CharUpperBuff CharUpperBuffA
#define IsCharAlpha IsCharAlphaA
#define IsCharAlphaNumeric IsCharAlphaNumericA
#define LoadString LoadStringA
#define wsprintf wsprintfA
#define wvsprintf wvsprintfA
