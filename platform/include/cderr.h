/// @file cderr.h
/// What CommDlgExtendedError tells.
#pragma once

#define CDERR_STRUCTSIZE 0x0001
#define CDERR_INITIALIZATION 0x0002
#define CDERR_MEMALLOCFAILURE 0x0009
#define CDERR_NOHOOK 0x000B
#define CDERR_DIALOGFAILURE 0xFFFF

#define FNERR_BUFFERTOOSMALL 0x3003
