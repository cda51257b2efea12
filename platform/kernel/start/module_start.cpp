// Linked into every module that has resources or a DllMain, as the start-up code of a Windows module is.
#include "module_registration.h"

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID reserved)
    __attribute__((weak, visibility("hidden")));

#ifdef CV_MODULE_HAS_RESOURCES
extern "C" const unsigned char cvModuleResources[] __attribute__((visibility("hidden")));
extern "C" const unsigned char cvModuleResourcesEnd[] __attribute__((visibility("hidden")));
#endif

namespace {

HINSTANCE instance = nullptr;

__attribute__((constructor)) void Attach() {
    CvModuleStart start{};
#ifdef CV_MODULE_HAS_RESOURCES
    start.resources = cvModuleResources;
    start.resourcesEnd = cvModuleResourcesEnd;
#endif
    start.entry = DllMain;
    start.address = &instance;
    instance = CvPlatformAttachModule(&start);
}

__attribute__((destructor)) void Detach() {
    CvPlatformDetachModule(instance);
}

}  // namespace
