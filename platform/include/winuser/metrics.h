/// @file winuser/metrics.h
/// Sizes of what the system draws, and settings.
#pragma once

#include "../windef.h"
#include "../wingdi.h"

#define SM_CXSCREEN 0
#define SM_CYSCREEN 1
#define SM_CXVSCROLL 2
#define SM_CYHSCROLL 3
#define SM_CYCAPTION 4
#define SM_CXBORDER 5
#define SM_CYBORDER 6
#define SM_CXDLGFRAME 7
#define SM_CYDLGFRAME 8
#define SM_CYVTHUMB 9
#define SM_CXICON 11
#define SM_CYICON 12
#define SM_CYMENU 15
#define SM_CYVSCROLL 20
#define SM_CXFRAME 32
#define SM_CYFRAME 33
#define SM_CXDOUBLECLK 36
#define SM_CYDOUBLECLK 37
#define SM_CXFIXEDFRAME SM_CXDLGFRAME
#define SM_CYFIXEDFRAME SM_CYDLGFRAME
#define SM_CXSIZEFRAME SM_CXFRAME
#define SM_CYSIZEFRAME SM_CYFRAME
#define SM_CXEDGE 45
#define SM_CYEDGE 46
#define SM_CXSMICON 49
#define SM_CYSMICON 50
#define SM_CYSMCAPTION 51

WINUSERAPI int WINAPI GetSystemMetrics(int index);

typedef struct tagNONCLIENTMETRICSA {
    UINT cbSize;
    int iBorderWidth;
    int iScrollWidth;
    int iScrollHeight;
    int iCaptionWidth;
    int iCaptionHeight;
    LOGFONTA lfCaptionFont;
    int iSmCaptionWidth;
    int iSmCaptionHeight;
    LOGFONTA lfSmCaptionFont;
    int iMenuWidth;
    int iMenuHeight;
    LOGFONTA lfMenuFont;
    LOGFONTA lfStatusFont;
    LOGFONTA lfMessageFont;
} NONCLIENTMETRICSA, *PNONCLIENTMETRICSA, *LPNONCLIENTMETRICSA;

#define SPI_GETNONCLIENTMETRICS 0x0029
#define SPI_SETWORKAREA 0x002F
#define SPI_GETWORKAREA 0x0030

WINUSERAPI BOOL WINAPI SystemParametersInfoA(UINT action, UINT parameter, PVOID data, UINT winIni);

#define GR_GDIOBJECTS 0
#define GR_USEROBJECTS 1

WINUSERAPI DWORD WINAPI GetGuiResources(HANDLE process, DWORD flags);

typedef NONCLIENTMETRICSA NONCLIENTMETRICS;
#define SystemParametersInfo SystemParametersInfoA
