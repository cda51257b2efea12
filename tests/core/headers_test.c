/* The flat families' headers serve C programs too: this file only has to compile and link. */
#include <cvutil32.h>

#include <cvutil32/animate.h>
#include <cvutil32/browse.h>
#include <cvutil32/buddyfr.h>
#include <cvutil32/cklist.h>
#include <cvutil32/datectrl.h>
#include <cvutil32/grbutton.h>
#include <cvutil32/numfld.h>
#include <cvutil32/scroll.h>
#include <cvutil32/timectrl.h>
#include <cvutil32/treelist.h>
#include <cvutil32/util.h>

/* What the system's headers take away from programs is taken away on every host, so that what compiles here compiles there. */
#if !defined(near) || !defined(far) || !defined(NEAR) || !defined(FAR) || !defined(pascal) || !defined(cdecl)
#error "the words of the 16-bit days are free"
#endif

BOOL HeadersServeC(void);

BOOL HeadersServeC(void) {
    SYSTEMTIME date = {0};
    date.wYear = 1995;
    date.wMonth = 12;
    date.wDay = 31;
    return DATECTRL_IncrementDate(&date, DATECTRL_DAY) && date.wYear == 1996 && UTIL_GetModuleInstance() != NULL &&
           SCROLL_SetAssociateWindow(NULL, NULL) == NULL && !GRBUTTON_SetHBitmaps(NULL, NULL, NULL) &&
           !ANIMATE_Stop(NULL) && TIMECTRL_IncrementTime(&date, TIMECTRL_SECOND) && NUMFLD_GetValue(NULL) == 0 &&
           BROWSE_GetDialogOptions(NULL) == 0 && TREELIST_GetFolder(NULL, NULL) == 0;
}
