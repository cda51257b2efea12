#include "kernel/resource.h"

#include <cstring>

#include "base/fail.h"
#include "base/handle.h"
#include "base/report.h"
#include "kernel/module.h"

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

constexpr int kAnyLanguage = -1;

// How well an entry serves a caller; 0 is not at all. A caller that names no language gets the user's, else the neutral
// one, else American English, else what there is.
int Fit(WORD has, int wanted) {
    const auto primary = [](int language) { return language & 0x3FF; };
    if (wanted != kAnyLanguage && wanted != 0) {
        return has == wanted ? 3 : has == primary(wanted) ? 2 : has == 0 ? 1 : 0;
    }
    const int users = GetUserDefaultLangID();
    return has == users ? 5 : has == primary(users) ? 4 : has == 0 ? 3 : has == 0x0409 ? 2 : 1;
}

// Lock held.
ResourceEntry* Find(HMODULE handle, LPCSTR name, LPCSTR type, int language) {
    Module* module = FindModule(handle);
    if (!module) {
        return nullptr;
    }
    try {
        Read(*module);
        const ResourceName wantedType = ResourceName::FromArgument(type);
        const ResourceName wantedName = ResourceName::FromArgument(name);
        bool typeSeen = false;
        bool nameSeen = false;
        int bestFit = 0;
        ResourceEntry* best = nullptr;
        for (ResourceEntry& entry : module->resources) {
            const bool isType = entry.type == wantedType;
            const bool isName = isType && entry.name == wantedName;
            const int fit = isName ? Fit(entry.language, language) : 0;
            typeSeen = typeSeen || isType;
            nameSeen = nameSeen || isName;
            if (fit > bestFit) {
                bestFit = fit;
                best = &entry;
            }
        }
        if (best) {
            return best;
        }
        return base::Fail<ResourceEntry*>(nameSeen                    ? ERROR_RESOURCE_LANG_NOT_FOUND
                                          : typeSeen                  ? ERROR_RESOURCE_NAME_NOT_FOUND
                                          : module->resources.empty() ? ERROR_RESOURCE_DATA_NOT_FOUND
                                                                      : ERROR_RESOURCE_TYPE_NOT_FOUND,
                                          nullptr);
    } catch (const std::bad_alloc&) {
        return base::Fail<ResourceEntry*>(ERROR_NOT_ENOUGH_MEMORY, nullptr);
    }
}

ResourceEntry* Entry(HRSRC resource) {
    return base::Find<ResourceEntry>(resource, base::HandleKind::Resource);
}

HRSRC HandleOf(ResourceEntry* entry) {
    if (entry && !entry->handle) {
        entry->handle = base::InsertHandle(base::HandleKind::Resource, entry);
        if (!entry->handle) {
            return base::Fail<HRSRC>(ERROR_NOT_ENOUGH_MEMORY, nullptr);
        }
    }
    return entry ? base::ToHandle<HRSRC>(entry->handle) : nullptr;
}

}  // namespace

namespace platform::kernel {

Bytes FindResourceBytes(HMODULE module, LPCSTR name, LPCSTR type) {
    const std::lock_guard guard(ModuleLock());
    const ResourceEntry* entry = Find(module, name, type, kAnyLanguage);
    return entry ? entry->data : Bytes();
}

}  // namespace platform::kernel

HRSRC WINAPI FindResourceA(HMODULE module, LPCSTR name, LPCSTR type) {
    const std::lock_guard guard(ModuleLock());
    return HandleOf(Find(module, name, type, kAnyLanguage));
}

HRSRC WINAPI FindResourceExA(HMODULE module, LPCSTR type, LPCSTR name, WORD language) {
    const std::lock_guard guard(ModuleLock());
    return HandleOf(Find(module, name, type, language));
}

// A loaded resource is its own memory: the handle serves for both.
HGLOBAL WINAPI LoadResource(HMODULE, HRSRC resource) {
    return Entry(resource) ? static_cast<HGLOBAL>(resource) : base::Fail<HGLOBAL>(ERROR_INVALID_HANDLE, nullptr);
}

LPVOID WINAPI LockResource(HGLOBAL resource) {
    const ResourceEntry* entry = base::Find<ResourceEntry>(resource, base::HandleKind::Resource);
    return entry ? const_cast<unsigned char*>(entry->data.data()) : base::Fail<LPVOID>(ERROR_INVALID_HANDLE, nullptr);
}

DWORD WINAPI SizeofResource(HMODULE, HRSRC resource) {
    const ResourceEntry* entry = Entry(resource);
    return entry ? static_cast<DWORD>(entry->data.size()) : base::Fail<DWORD>(ERROR_INVALID_HANDLE, 0);
}

BOOL WINAPI FreeResource(HGLOBAL) {
    return FALSE;
}
