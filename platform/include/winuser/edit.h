/// @file winuser/edit.h
/// Messages and notifications of the "edit" class. Its styles (ES_) are in controls.h.
///
/// Positions count the characters of the code page's bytes from 0: a double-byte character takes two positions.
#pragma once

#include "../windef.h"

// --- notifications (WM_COMMAND to the parent)

#define EN_SETFOCUS 0x0100
#define EN_KILLFOCUS 0x0200
#define EN_CHANGE 0x0300
#define EN_UPDATE 0x0400
#define EN_MAXTEXT 0x0501

// --- messages

#define EM_GETSEL 0x00B0
#define EM_SETSEL 0x00B1
#define EM_LIMITTEXT 0x00C5
#define EM_SETREADONLY 0x00CF
#define EM_GETLIMITTEXT 0x00D5
