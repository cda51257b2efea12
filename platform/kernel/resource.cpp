#include "kernel/resource.h"

#include <cstring>

#include "base/handle.h"
#include "base/report.h"
#include "kernel/module.h"

using namespace platform::kernel;
namespace base = platform::base;

namespace {

template <class Result>
Result Fail(DWORD error, Result result) {
    SetLastError(error);
    return result;
}

void Read(Module& module) {
    if (module.resourcesRead) {
        return;
    }
    module.resourcesRead = true;
    module.resources = ReadResources(module.resourceFile, &module.resourcesDamaged);
    if (module.resourcesDamaged) {
        base::ReportOnce(("the resources of " + module.path + " are damaged").c_str());
    }
}

// Lock held. Without a language that fits, the first entry serves, as all callers of one language expect.
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
        ResourceEntry* any = nullptr;
        for (ResourceEntry& entry : module->resources) {
            if (entry.type != wantedType) {
                continue;
            }
            typeSeen = true;
            if (entry.name != wantedName) {
                continue;
            }
            nameSeen = true;
            if (language < 0 || language == 0 || entry.language == language || entry.language == 0) {
                any = &entry;
                break;
            }
        }
        if (any) {
            return any;
        }
        return Fail<ResourceEntry*>(nameSeen   ? ERROR_RESOURCE_LANG_NOT_FOUND
                                    : typeSeen ? ERROR_RESOURCE_NAME_NOT_FOUND
                                               : (module->resources.empty() ? ERROR_RESOURCE_DATA_NOT_FOUND
                                                                            : ERROR_RESOURCE_TYPE_NOT_FOUND),
                                    nullptr);
    } catch (const std::bad_alloc&) {
        return Fail<ResourceEntry*>(ERROR_NOT_ENOUGH_MEMORY, nullptr);
    }
}

ResourceEntry* Entry(HRSRC resource) {
    return base::Find<ResourceEntry>(resource, base::HandleKind::Resource);
}

HRSRC HandleOf(ResourceEntry* entry) {
    if (entry && !entry->handle) {
        entry->handle = base::InsertHandle(base::HandleKind::Resource, entry);
        if (!entry->handle) {
            return Fail<HRSRC>(ERROR_NOT_ENOUGH_MEMORY, nullptr);
        }
    }
    return entry ? base::ToHandle<HRSRC>(entry->handle) : nullptr;
}

}  // namespace

namespace platform::kernel {

Bytes FindResourceBytes(HMODULE module, LPCSTR name, LPCSTR type) {
    const std::lock_guard guard(ModuleLock());
    const ResourceEntry* entry = Find(module, name, type, -1);
    return entry ? entry->data : Bytes();
}

}  // namespace platform::kernel

HRSRC WINAPI FindResourceA(HMODULE module, LPCSTR name, LPCSTR type) {
    const std::lock_guard guard(ModuleLock());
    return HandleOf(Find(module, name, type, -1));
}

HRSRC WINAPI FindResourceExA(HMODULE module, LPCSTR type, LPCSTR name, WORD language) {
    const std::lock_guard guard(ModuleLock());
    return HandleOf(Find(module, name, type, language));
}

// A loaded resource is its own memory: the handle serves for both.
HGLOBAL WINAPI LoadResource(HMODULE, HRSRC resource) {
    return Entry(resource) ? static_cast<HGLOBAL>(resource) : Fail<HGLOBAL>(ERROR_INVALID_HANDLE, nullptr);
}

LPVOID WINAPI LockResource(HGLOBAL resource) {
    const ResourceEntry* entry = base::Find<ResourceEntry>(resource, base::HandleKind::Resource);
    return entry ? const_cast<unsigned char*>(entry->data.data()) : Fail<LPVOID>(ERROR_INVALID_HANDLE, nullptr);
}

DWORD WINAPI SizeofResource(HMODULE, HRSRC resource) {
    const ResourceEntry* entry = Entry(resource);
    return entry ? static_cast<DWORD>(entry->data.size()) : Fail<DWORD>(ERROR_INVALID_HANDLE, 0);
}

BOOL WINAPI FreeResource(HGLOBAL) {
    return FALSE;
}

// Strings come in blocks of 16, each a count of UTF-16 units and the units.
int WINAPI LoadStringA(HINSTANCE module, UINT id, LPSTR buffer, int size) {
    if (!buffer || size <= 0) {
        return 0;
    }
    buffer[0] = '\0';
    Bytes block = FindResourceBytes(module, MAKEINTRESOURCEA(id / 16 + 1), RT_STRING);
    for (UINT skip = id % 16;; --skip) {
        WORD units = 0;
        if (block.size() < 2) {
            return 0;
        }
        std::memcpy(&units, block.data(), 2);
        if (block.size() - 2 < std::size_t{units} * 2) {
            return 0;
        }
        if (skip > 0) {
            block = block.subspan(2 + std::size_t{units} * 2);
            continue;
        }
        if (units == 0) {
            return 0;
        }
        std::u16string wide(units, u'\0');
        std::memcpy(wide.data(), block.data() + 2, std::size_t{units} * 2);
        std::string narrow(std::size_t{units} * 2, '\0');
        const int length = WideCharToMultiByte(CP_ACP, 0, wide.data(), units, narrow.data(),
                                               static_cast<int>(narrow.size()), nullptr, nullptr);
        // A text that is cut does not end in half a character.
        int copied = 0;
        while (copied < length) {
            const int width = IsDBCSLeadByte(static_cast<BYTE>(narrow[copied])) && copied + 1 < length ? 2 : 1;
            if (copied + width > size - 1) {
                break;
            }
            copied += width;
        }
        std::memcpy(buffer, narrow.data(), static_cast<std::size_t>(copied));
        buffer[copied] = '\0';
        return copied;
    }
}
