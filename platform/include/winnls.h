/// @file winnls.h
/// Code pages, comparison of text and facts about the locale.
#pragma once

#include "windef.h"
#include "winnt.h"

// --- code pages

#define CP_ACP 0
#define CP_UTF8 65001

#define MAX_LEADBYTES 12
#define MAX_DEFAULTCHAR 2

#define MB_PRECOMPOSED 0x00000001
#define MB_ERR_INVALID_CHARS 0x00000008

typedef struct _cpinfo {
    UINT MaxCharSize;
    BYTE DefaultChar[MAX_DEFAULTCHAR];
    BYTE LeadByte[MAX_LEADBYTES];
} CPINFO, *LPCPINFO;

WINBASEAPI UINT WINAPI GetACP(void);
WINBASEAPI UINT WINAPI GetOEMCP(void);
WINBASEAPI BOOL WINAPI GetCPInfo(UINT codePage, LPCPINFO information);
WINBASEAPI BOOL WINAPI IsDBCSLeadByte(BYTE character);
WINBASEAPI int WINAPI MultiByteToWideChar(UINT codePage, DWORD flags, LPCSTR text, int length, LPWSTR wide,
                                          int wideSize);
/// Characters that the page lacks become the nearest it has, or '?': flags are 0, the last two arguments null.
WINBASEAPI int WINAPI WideCharToMultiByte(UINT codePage, DWORD flags, LPCWSTR wide, int wideLength, LPSTR text,
                                          int size, LPCSTR defaultChar, BOOL* usedDefaultChar);

// --- comparison

#define NORM_IGNORECASE 0x00000001
#define NORM_IGNOREWIDTH 0x00020000

#define CSTR_LESS_THAN 1
#define CSTR_EQUAL 2
#define CSTR_GREATER_THAN 3

WINBASEAPI int WINAPI CompareStringA(LCID locale, DWORD flags, LPCSTR left, int leftLength, LPCSTR right,
                                     int rightLength);

// --- locale

#define LOCALE_STHOUSAND 0x0000000F
#define LOCALE_SDATE 0x0000001D
#define LOCALE_STIME 0x0000001E
#define LOCALE_SSHORTDATE 0x0000001F
#define LOCALE_IDATE 0x00000021
#define LOCALE_ITIME 0x00000023
#define LOCALE_ITLZERO 0x00000025
#define LOCALE_STIMEFORMAT 0x00001003

/// @param locale  the user's or the system's.
WINBASEAPI int WINAPI GetLocaleInfoA(LCID locale, LCTYPE type, LPSTR buffer, int size);
/// Changes the user's own separator of times or, with the clock and the leading zero, the format of times; tell other
/// windows with WM_WININICHANGE, "intl".
WINBASEAPI BOOL WINAPI SetLocaleInfoA(LCID locale, LCTYPE type, LPCSTR data);
