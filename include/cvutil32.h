/// @file cvutil32.h
/// Everything that CVUTIL32 offers, in one include.
///
/// Each family also has a header of its own under `cvutil32/`, which tells all there is to know about it. The flat
/// families can be used from C and from C++; the object classes need C++.
#pragma once

#include "cvutil32/cvapi.h"

#include "cvutil32/about.h"
#include "cvutil32/animate.h"
#include "cvutil32/browse.h"
#include "cvutil32/buddyfr.h"
#include "cvutil32/cklist.h"
#include "cvutil32/datectrl.h"
#include "cvutil32/grbutton.h"
#include "cvutil32/list.h"
#include "cvutil32/msgbox.h"
#include "cvutil32/numfld.h"
#include "cvutil32/reg.h"
#include "cvutil32/scroll.h"
#include "cvutil32/timectrl.h"
#include "cvutil32/treelist.h"
#include "cvutil32/util.h"

#ifdef __cplusplus
#include "cvutil32/cbase.h"
#include "cvutil32/cdatastr.h"
#include "cvutil32/clist.h"
#include "cvutil32/cstring.h"
#endif
