// Applications compile the size of an object in wherever they make one: these sizes stay as they are for good.
#include "classes/clist_header.h"

#include "cvutil32/cbase.h"
#include "cvutil32/cdatastr.h"
#include "cvutil32/clist.h"
#include "cvutil32/cstring.h"

#include <cstddef>

static_assert(sizeof(void*) != 4 || (sizeof(CBASE) == 8 && sizeof(CSTRING) == 32 && sizeof(CLIST) == 12 &&
                                     sizeof(CDATASTR) == sizeof(CSTRING) + 4));

// Old callers read a list's record by its places.
static_assert(sizeof(CLISTTYPE) == 4 && CLISTTYPE_POINTER == 0 && CLISTTYPE_INLINE == 1);
static_assert(offsetof(CLISTHEADER, signature) == 0 && offsetof(CLISTHEADER, itemSize) == 4 &&
              offsetof(CLISTHEADER, slotSize) == 8 && offsetof(CLISTHEADER, count) == 12 &&
              offsetof(CLISTHEADER, capacity) == 16 && offsetof(CLISTHEADER, type) == 20 &&
              offsetof(CLISTHEADER, prototype) == 24);
static_assert(sizeof(void*) != 4 || (offsetof(CLISTHEADER, array) == 28 && sizeof(CLISTHEADER) == 32));
