/// @file winuser/help.h
/// Help. There is no help engine: where a plain text file lies beside the named help file, with ".txt" in place of
/// ".hlp", its topics are shown in a popup window. A line "[1001]" begins the topic with that number, which ends where
/// the next one begins.
#pragma once

#include "../windef.h"

#define HELP_CONTEXT 0x0001L
#define HELP_QUIT 0x0002L
#define HELP_CONTEXTPOPUP 0x0008L
#define HELP_CONTEXTMENU 0x000AL
#define HELP_WM_HELP 0x000CL

#define HELPINFO_WINDOW 0x0001

/// What lParam of WM_HELP points to.
typedef struct tagHELPINFO {
    UINT cbSize;
    int iContextType;
    int iCtrlId;
    HANDLE hItemHandle;
    DWORD_PTR dwContextId;
    POINT MousePos;
} HELPINFO, *LPHELPINFO;

/// Shows a topic: the one with the number @p data, or for HELP_CONTEXTMENU and HELP_WM_HELP the one that the table at
/// @p data has for the control. @returns FALSE for any other command but HELP_QUIT, and when there is no such topic.
WINUSERAPI BOOL WINAPI WinHelpA(HWND window, LPCSTR helpFile, UINT command, ULONG_PTR data);

#define WinHelp WinHelpA
