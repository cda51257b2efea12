// The library's entry point.
#include "core/registration.h"

#include "cvutil32/datectrl.h"
#include "cvutil32/numfld.h"
#include "cvutil32/scroll.h"
#include "cvutil32/timectrl.h"
#include "cvutil32/util.h"

namespace {

// One row a control, in the order in which the classes must come to exist: a superclass copies its base class, so the
// browse button stands behind the graphic button; the check list, which alone has something to release again, stands
// last.
constexpr registration::Function kRegistrations[] = {
    SCROLL_RegisterClass,
    NUMFLD_RegisterClass,
    DATECTRL_RegisterClass,
    TIMECTRL_RegisterClass,
};

BOOL Attach(HINSTANCE instance) {
    UTIL_SetModuleInstance(instance);
    return registration::RegisterInOrder(kRegistrations, instance);
}

}  // namespace

// Classes are left registered at detach: they go with the process, and windows of theirs may still be there.
extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID) {
    switch (reason) {
        case DLL_PROCESS_ATTACH:
            return Attach(instance);
        default:
            return TRUE;
    }
}
