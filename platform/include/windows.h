/// @file windows.h
/// The part of the Windows API that this library and its applications call, for hosts that have none: the same names,
/// values, structure members and documented behaviour as the header of this name on Windows.
#pragma once

#include "windef.h"
#include "winerror.h"
#include "winbase.h"
#include "wingdi.h"
#include "winuser.h"
#include "winnls.h"
#include "winreg.h"
