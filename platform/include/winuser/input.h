/// @file input.h
/// Keyboard, mouse, focus, activation, capture and carets.
#pragma once

#include "../windef.h"

// --- virtual keys; letters and digits are their upper-case ASCII codes

#define VK_LBUTTON 0x01
#define VK_RBUTTON 0x02
#define VK_CANCEL 0x03
#define VK_MBUTTON 0x04
#define VK_BACK 0x08
#define VK_TAB 0x09
#define VK_CLEAR 0x0C
#define VK_RETURN 0x0D
#define VK_SHIFT 0x10
#define VK_CONTROL 0x11
#define VK_MENU 0x12
#define VK_PAUSE 0x13
#define VK_CAPITAL 0x14
#define VK_ESCAPE 0x1B
#define VK_SPACE 0x20
#define VK_PRIOR 0x21
#define VK_NEXT 0x22
#define VK_END 0x23
#define VK_HOME 0x24
#define VK_LEFT 0x25
#define VK_UP 0x26
#define VK_RIGHT 0x27
#define VK_DOWN 0x28
#define VK_SNAPSHOT 0x2C
#define VK_INSERT 0x2D
#define VK_DELETE 0x2E
#define VK_LWIN 0x5B
#define VK_RWIN 0x5C
#define VK_APPS 0x5D
#define VK_NUMPAD0 0x60
#define VK_NUMPAD1 0x61
#define VK_NUMPAD2 0x62
#define VK_NUMPAD3 0x63
#define VK_NUMPAD4 0x64
#define VK_NUMPAD5 0x65
#define VK_NUMPAD6 0x66
#define VK_NUMPAD7 0x67
#define VK_NUMPAD8 0x68
#define VK_NUMPAD9 0x69
#define VK_MULTIPLY 0x6A
#define VK_ADD 0x6B
#define VK_SUBTRACT 0x6D
#define VK_DECIMAL 0x6E
#define VK_DIVIDE 0x6F
#define VK_F1 0x70
#define VK_F2 0x71
#define VK_F3 0x72
#define VK_F4 0x73
#define VK_F5 0x74
#define VK_F6 0x75
#define VK_F7 0x76
#define VK_F8 0x77
#define VK_F9 0x78
#define VK_F10 0x79
#define VK_F11 0x7A
#define VK_F12 0x7B
#define VK_NUMLOCK 0x90
#define VK_SCROLL 0x91
#define VK_LSHIFT 0xA0
#define VK_RSHIFT 0xA1
#define VK_LCONTROL 0xA2
#define VK_RCONTROL 0xA3
#define VK_LMENU 0xA4
#define VK_RMENU 0xA5
#define VK_OEM_1 0xBA
#define VK_OEM_PLUS 0xBB
#define VK_OEM_COMMA 0xBC
#define VK_OEM_MINUS 0xBD
#define VK_OEM_PERIOD 0xBE
#define VK_OEM_2 0xBF
#define VK_OEM_3 0xC0
#define VK_OEM_4 0xDB
#define VK_OEM_5 0xDC
#define VK_OEM_6 0xDD
#define VK_OEM_7 0xDE
#define VK_OEM_102 0xE2
#define VK_PACKET 0xE7

// --- synthesised input

typedef struct tagMOUSEINPUT {
    LONG dx;
    LONG dy;
    DWORD mouseData;
    DWORD dwFlags;
    DWORD time;
    ULONG_PTR dwExtraInfo;
} MOUSEINPUT, *PMOUSEINPUT, *LPMOUSEINPUT;

typedef struct tagKEYBDINPUT {
    WORD wVk;
    WORD wScan;
    DWORD dwFlags;
    DWORD time;
    ULONG_PTR dwExtraInfo;
} KEYBDINPUT, *PKEYBDINPUT, *LPKEYBDINPUT;

typedef struct tagINPUT {
    DWORD type;
    union {
        MOUSEINPUT mi;
        KEYBDINPUT ki;
    };
} INPUT, *PINPUT, *LPINPUT;

#define INPUT_MOUSE 0
#define INPUT_KEYBOARD 1

#define KEYEVENTF_KEYUP 0x0002

#define MOUSEEVENTF_LEFTDOWN 0x0002
#define MOUSEEVENTF_LEFTUP 0x0004
#define MOUSEEVENTF_RIGHTDOWN 0x0008
#define MOUSEEVENTF_RIGHTUP 0x0010
#define MOUSEEVENTF_MIDDLEDOWN 0x0020
#define MOUSEEVENTF_MIDDLEUP 0x0040
#define MOUSEEVENTF_WHEEL 0x0800

WINUSERAPI UINT WINAPI SendInput(UINT count, LPINPUT inputs, int size);

// --- keyboard

#define MAPVK_VK_TO_VSC 0

WINUSERAPI SHORT WINAPI GetKeyState(int key);
WINUSERAPI SHORT WINAPI GetAsyncKeyState(int key);
WINUSERAPI UINT WINAPI MapVirtualKeyA(UINT code, UINT mapType);

// --- mouse and cursor

WINUSERAPI BOOL WINAPI GetCursorPos(LPPOINT position);
WINUSERAPI BOOL WINAPI SetCursorPos(int x, int y);
WINUSERAPI HCURSOR WINAPI SetCursor(HCURSOR cursor);

WINUSERAPI HWND WINAPI GetCapture(VOID);
WINUSERAPI HWND WINAPI SetCapture(HWND window);
WINUSERAPI BOOL WINAPI ReleaseCapture(VOID);

// --- focus and activation

WINUSERAPI HWND WINAPI GetFocus(VOID);
WINUSERAPI HWND WINAPI SetFocus(HWND window);
WINUSERAPI HWND WINAPI GetActiveWindow(VOID);
WINUSERAPI HWND WINAPI SetActiveWindow(HWND window);
WINUSERAPI HWND WINAPI GetForegroundWindow(VOID);
WINUSERAPI BOOL WINAPI SetForegroundWindow(HWND window);
WINUSERAPI BOOL WINAPI BringWindowToTop(HWND window);

// --- carets

WINUSERAPI BOOL WINAPI CreateCaret(HWND window, HBITMAP bitmap, int width, int height);
WINUSERAPI BOOL WINAPI DestroyCaret(VOID);
WINUSERAPI BOOL WINAPI ShowCaret(HWND window);
WINUSERAPI BOOL WINAPI HideCaret(HWND window);
WINUSERAPI BOOL WINAPI SetCaretPos(int x, int y);
WINUSERAPI BOOL WINAPI GetCaretPos(LPPOINT position);

#define MapVirtualKey MapVirtualKeyA
