#include "cvutil32/util.h"

namespace {

// Written while the library is being attached, before any other export can run; read without a lock from then on.
HINSTANCE g_moduleInstance = nullptr;

}  // namespace

CVAPI(void) UTIL_SetModuleInstance(HINSTANCE instance) {
    g_moduleInstance = instance;
}

CVAPI(HINSTANCE) UTIL_GetModuleInstance(void) {
    return g_moduleInstance;
}
