// The library's entry point.
#include "controls/cklist/cklist.h"
#include "core/registration.h"

#include "cvutil32/animate.h"
#include "cvutil32/browse.h"
#include "cvutil32/buddyfr.h"
#include "cvutil32/datectrl.h"
#include "cvutil32/grbutton.h"
#include "cvutil32/numfld.h"
#include "cvutil32/scroll.h"
#include "cvutil32/timectrl.h"
#include "cvutil32/treelist.h"
#include "cvutil32/util.h"

namespace {

// One row a control, in the order in which the classes must come to exist: a superclass copies its base class, so the
// browse button stands behind the graphic button; the check list, which alone has something to release again, stands
// last.
constexpr registration::Function kRegistrations[] = {
    GRBUTTON_RegisterClass,  // of "button"
    BUDDYFR_RegisterClass,   // own
    ANIMATE_RegisterClass,   // own
    BROWSE_RegisterClass,    // of the graphic button
    SCROLL_RegisterClass,    // own
    NUMFLD_RegisterClass,    // of "edit"
    DATECTRL_RegisterClass,  // own
    TIMECTRL_RegisterClass,  // own
    TREELIST_RegisterClass,  // own
    cklist::Register,        // of "listbox"
};

BOOL Attach(HINSTANCE instance) {
    UTIL_SetModuleInstance(instance);
    return registration::RegisterInOrder(kRegistrations, instance);
}

}  // namespace

// At detach the check list alone is taken back, since it holds a picture. The other classes go with the process, and
// windows of theirs may still be there.
extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID) {
    switch (reason) {
        case DLL_PROCESS_ATTACH:
            return Attach(instance);
        case DLL_PROCESS_DETACH:
            return cklist::Unregister(instance);
        default:
            return TRUE;
    }
}
