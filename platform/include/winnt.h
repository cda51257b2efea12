/// @file winnt.h
/// Constants and structures that the system's headers share.
#pragma once

#include "windef.h"

#define TEXT(quote) quote

/// Before a declaration: another module has it.
#define DECLSPEC_IMPORT __attribute__((visibility("default")))

// --- reasons of DllMain

#define DLL_PROCESS_DETACH 0
#define DLL_PROCESS_ATTACH 1

// --- languages and locales

#define LANG_NEUTRAL 0x00
#define LANG_ENGLISH 0x09
#define SUBLANG_DEFAULT 0x01
#define SUBLANG_ENGLISH_US 0x01
#define SUBLANG_SYS_DEFAULT 0x02
#define SORT_DEFAULT 0x0

#define MAKELANGID(primary, sub) ((((WORD)(sub)) << 10) | (WORD)(primary))
#define MAKELCID(language, sort) ((DWORD)((((DWORD)((WORD)(sort))) << 16) | ((DWORD)((WORD)(language)))))
#define LANG_SYSTEM_DEFAULT (MAKELANGID(LANG_NEUTRAL, SUBLANG_SYS_DEFAULT))
#define LANG_USER_DEFAULT (MAKELANGID(LANG_NEUTRAL, SUBLANG_DEFAULT))
#define LOCALE_SYSTEM_DEFAULT (MAKELCID(LANG_SYSTEM_DEFAULT, SORT_DEFAULT))
#define LOCALE_USER_DEFAULT (MAKELCID(LANG_USER_DEFAULT, SORT_DEFAULT))

// --- processors (SYSTEM_INFO)

#define PROCESSOR_INTEL_PENTIUM 586
#define PROCESSOR_ARCHITECTURE_INTEL 0

// --- pages of memory

#define PAGE_NOACCESS 0x01
#define PAGE_READONLY 0x02
#define PAGE_READWRITE 0x04
#define MEM_COMMIT 0x1000
#define MEM_RESERVE 0x2000
#define MEM_RELEASE 0x8000
