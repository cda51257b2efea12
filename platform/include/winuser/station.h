/// @file winuser/station.h
/// The window station: whether windows of this process are shown to anybody.
#pragma once

#include "../windef.h"

DECLARE_HANDLE(HWINSTA);

#define UOI_FLAGS 1

#define WSF_VISIBLE 0x0001

typedef struct tagUSEROBJECTFLAGS {
    BOOL fInherit;
    BOOL fReserved;
    DWORD dwFlags;
} USEROBJECTFLAGS, *PUSEROBJECTFLAGS;

WINUSERAPI HWINSTA WINAPI GetProcessWindowStation(void);
WINUSERAPI BOOL WINAPI GetUserObjectInformationA(HANDLE object, int index, PVOID information, DWORD size,
                                                 LPDWORD needed);

#define GetUserObjectInformation GetUserObjectInformationA
