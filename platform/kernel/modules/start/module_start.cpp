// Linked into every module that has resources or a DllMain, as the start-up code of a Windows module is.
#include "module_registration.h"

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID reserved)
    __attribute__((weak, visibility("hidden")));

#ifdef CV_MODULE_HAS_RESOURCES
extern "C" const unsigned char cvModuleResources[] __attribute__((visibility("hidden")));
extern "C" const unsigned char cvModuleResourcesEnd[] __attribute__((visibility("hidden")));
#endif

namespace {

// An object rather than a pair of functions, so that DllMain is called after the module's other static objects are made
// and before they go. (This source comes last in its module, and objects are made in the order of the sources.)
class ModuleStart {
  public:
    ModuleStart() {
        CvModuleStart start{};
#ifdef CV_MODULE_HAS_RESOURCES
        start.resources = cvModuleResources;
        start.resourcesEnd = cvModuleResourcesEnd;
#endif
        start.entry = DllMain;
        start.address = this;
        instance_ = CvPlatformAttachModule(&start);
    }
    ~ModuleStart() {
        CvPlatformDetachModule(instance_);
    }
    ModuleStart(const ModuleStart&) = delete;
    ModuleStart& operator=(const ModuleStart&) = delete;

  private:
    HINSTANCE instance_ = nullptr;
};

ModuleStart moduleStart;

}  // namespace
