#include "kernel/modules/resource.h"

#include <new>

#include "base/report.h"
#include "kernel/locale/intl.h"
#include "kernel/modules/module.h"

using namespace platform::kernel;
namespace base = platform::base;

namespace {

void Read(Module& module) {
    if (module.resourcesRead) {
        return;
    }
    module.resources = ReadResources(module.resourceFile, &module.resourcesDamaged);
    module.resourcesRead = true;
    if (module.resourcesDamaged) {
        base::ReportOnce(("the resources of " + module.path + " are damaged").c_str());
    }
}

// How well an entry serves the user: in the user's language, else the neutral one, else American English, else what
// there is.
int Fit(WORD has) {
    const int users = UsersLanguage();
    return has == users ? 5 : has == (users & 0x3FF) ? 4 : has == 0 ? 3 : has == 0x0409 ? 2 : 1;
}

// Lock held.
const ResourceEntry* Find(HMODULE handle, LPCSTR name, LPCSTR type) {
    Module* module = FindModule(handle);
    if (!module) {
        return nullptr;
    }
    try {
        Read(*module);
        const ResourceName wantedType = ResourceName::FromArgument(type);
        const ResourceName wantedName = ResourceName::FromArgument(name);
        bool typeSeen = false;
        int bestFit = 0;
        const ResourceEntry* best = nullptr;
        for (const ResourceEntry& entry : module->resources) {
            const bool isType = entry.type == wantedType;
            const int fit = isType && entry.name == wantedName ? Fit(entry.language) : 0;
            typeSeen = typeSeen || isType;
            if (fit > bestFit) {
                bestFit = fit;
                best = &entry;
            }
        }
        if (best) {
            return best;
        }
        SetLastError(typeSeen                    ? ERROR_RESOURCE_NAME_NOT_FOUND
                     : module->resources.empty() ? ERROR_RESOURCE_DATA_NOT_FOUND
                                                 : ERROR_RESOURCE_TYPE_NOT_FOUND);
    } catch (const std::bad_alloc&) {
        SetLastError(ERROR_NOT_ENOUGH_MEMORY);
    }
    return nullptr;
}

}  // namespace

namespace platform::kernel {

Bytes FindResourceBytes(HMODULE module, LPCSTR name, LPCSTR type) {
    const std::lock_guard guard(ModuleLock());
    const ResourceEntry* entry = Find(module, name, type);
    return entry ? entry->data : Bytes();
}

}  // namespace platform::kernel
