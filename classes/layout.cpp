// Applications compile the size of an object in wherever they make one: these sizes stay as they are for good.
#include "cvutil32/cbase.h"
#include "cvutil32/cdatastr.h"
#include "cvutil32/clist.h"
#include "cvutil32/cstring.h"

static_assert(sizeof(void*) != 4 || (sizeof(CBASE) == 8 && sizeof(CSTRING) == 32 && sizeof(CLIST) == 12 &&
                                     sizeof(CDATASTR) == sizeof(CSTRING) + 4));
