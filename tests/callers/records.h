/* Places in the records of the library as callers of 32 bits have compiled them in, and their places for 64 bits. */
#pragma once

#include <cvutil32.h>

#include <stddef.h>

#define PLACE(of32, of64) (sizeof(void*) == 4 ? (of32) : (of64))
#define AT(type, member, of32, of64) _Static_assert(offsetof(type, member) == PLACE(of32, of64), #type "." #member)
#define SIZE(type, of32, of64) _Static_assert(sizeof(type) == PLACE(of32, of64), "size of " #type)

SIZE(KVMB_BUTTON, 12, 24);
AT(KVMB_BUTTON, kind, 0, 0);
AT(KVMB_BUTTON, label, 4, 8);
AT(KVMB_BUTTON, id, 8, 16);

SIZE(KVMB_MESSAGEBOX, 132, 256);
AT(KVMB_MESSAGEBOX, owner, 0, 0);
AT(KVMB_MESSAGEBOX, title, 4, 8);
AT(KVMB_MESSAGEBOX, text, 8, 16);
AT(KVMB_MESSAGEBOX, icon, 12, 24);
AT(KVMB_MESSAGEBOX, reservedWord, 16, 32);
AT(KVMB_MESSAGEBOX, flags, 18, 34);
AT(KVMB_MESSAGEBOX, reserved, 20, 36);
AT(KVMB_MESSAGEBOX, position, 24, 40);
AT(KVMB_MESSAGEBOX, defaultButton, 28, 48);
AT(KVMB_MESSAGEBOX, buttonCount, 30, 50);
AT(KVMB_MESSAGEBOX, buttons, 32, 56);
AT(KVMB_MESSAGEBOX, disabledWindows, 128, 248);

/* The system's records that come with calls and messages of the library. */
SIZE(SYSTEMTIME, 16, 16);
SIZE(POINT, 8, 8);
SIZE(RECT, 16, 16);
