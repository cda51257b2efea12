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
typedef GUID CLSID;
typedef IID* LPIID;

#ifdef __cplusplus
#define REFGUID const GUID&
#define REFIID const IID&
#define REFCLSID const IID&

inline bool operator==(REFGUID a, REFGUID b) {
    return memcmp(&a, &b, sizeof(GUID)) == 0;
}
inline bool operator!=(REFGUID a, REFGUID b) {
    return !(a == b);
}
inline int IsEqualGUID(REFGUID a, REFGUID b) {
    return a == b;
}
#else
#define REFGUID const GUID*
#define REFIID const IID*
#define REFCLSID const IID*
#define IsEqualGUID(a, b) (!memcmp((a), (b), sizeof(GUID)))
#endif
