/// @file guiddef.h
/// Identifiers of classes and interfaces.
#pragma once

#include "windef.h"

#ifdef __cplusplus
#include <string.h>
#endif

typedef struct _GUID {
    DWORD Data1;
    WORD Data2;
    WORD Data3;
    BYTE Data4[8];
} GUID;

typedef GUID IID;

#ifdef __cplusplus
#define REFIID const IID&

inline bool operator==(REFIID a, REFIID b) {
    return memcmp(&a, &b, sizeof(IID)) == 0;
}
inline bool operator!=(REFIID a, REFIID b) {
    return !(a == b);
}
#endif
