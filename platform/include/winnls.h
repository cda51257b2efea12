/// @file winnls.h
/// Code pages, comparison of text and facts about the locale.
#pragma once

#include "windef.h"
#include "winnt.h"

// --- code pages

#define CP_ACP 0
#define CP_OEMCP 1
#define CP_THREAD_ACP 3
#define CP_UTF8 65001

#define MAX_LEADBYTES 12
#define MAX_DEFAULTCHAR 2

#define MB_PRECOMPOSED 0x00000001
#define MB_COMPOSITE 0x00000002
#define MB_USEGLYPHCHARS 0x00000004
#define MB_ERR_INVALID_CHARS 0x00000008

#define WC_DISCARDNS 0x00000010
#define WC_SEPCHARS 0x00000020
#define WC_DEFAULTCHAR 0x00000040
#define WC_COMPOSITECHECK 0x00000200
#define WC_NO_BEST_FIT_CHARS 0x00000400

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
WINBASEAPI int WINAPI WideCharToMultiByte(UINT codePage, DWORD flags, LPCWSTR wide, int wideLength, LPSTR text,
                                          int size, LPCSTR defaultChar, BOOL* usedDefaultChar);

// --- comparison

#define NORM_IGNORECASE 0x00000001
#define NORM_IGNORENONSPACE 0x00000002
#define NORM_IGNORESYMBOLS 0x00000004
#define NORM_IGNOREKANATYPE 0x00010000
#define NORM_IGNOREWIDTH 0x00020000
#define SORT_STRINGSORT 0x00001000

#define CSTR_LESS_THAN 1
#define CSTR_EQUAL 2
#define CSTR_GREATER_THAN 3

WINBASEAPI int WINAPI CompareStringA(LCID locale, DWORD flags, LPCSTR left, int leftLength, LPCSTR right,
                                     int rightLength);

// --- locale

#define LOCALE_NOUSEROVERRIDE 0x80000000
#define LOCALE_USE_CP_ACP 0x40000000

#define LOCALE_ILANGUAGE 0x00000001
#define LOCALE_SDECIMAL 0x0000000E
#define LOCALE_STHOUSAND 0x0000000F
#define LOCALE_SDATE 0x0000001D
#define LOCALE_STIME 0x0000001E
#define LOCALE_SSHORTDATE 0x0000001F
#define LOCALE_SLONGDATE 0x00000020
#define LOCALE_IDATE 0x00000021
#define LOCALE_ITIME 0x00000023
#define LOCALE_ITLZERO 0x00000025
#define LOCALE_S1159 0x00000028
#define LOCALE_S2359 0x00000029
#define LOCALE_STIMEFORMAT 0x00001003

WINBASEAPI int WINAPI GetLocaleInfoA(LCID locale, LCTYPE type, LPSTR buffer, int size);
/// Changes the user's own settings, whatever the locale; tell other windows with WM_WININICHANGE, "intl". A time format
/// sets the separator, the clock and the leading zero of times too, a short date format the order and separator of
/// dates.
WINBASEAPI BOOL WINAPI SetLocaleInfoA(LCID locale, LCTYPE type, LPCSTR data);

#ifndef CVPLATFORM_NO_GENERIC_NAMES
#define CompareString CompareStringA
#define GetLocaleInfo GetLocaleInfoA
#define SetLocaleInfo SetLocaleInfoA
#endif
