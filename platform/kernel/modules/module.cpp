#include "kernel/modules/module.h"

#include <dlfcn.h>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <utility>

#include "base/handle.h"
#include "base/immortal.h"
#include "base/report.h"
#include "base/fail.h"
#include "kernel/text/encoding.h"
#include "kernel/guarded.h"
#include "kernel/files/hostfile.h"
#include "kernel/memory/probe.h"
#include "kernel/modules/library_file.h"
#include "kernel/modules/start/module_registration.h"

namespace platform::kernel {
namespace {

using base::HandleKind;

using ModuleList = std::vector<std::unique_ptr<Module>>;

ModuleList& Modules() {
    static platform::base::Immortal<ModuleList> modules;
    return *modules;
}

// What LoadLibraryA learns from the start-up object that runs inside the host's loader.
struct Loading {
    int depth = 0;
    bool refused = false;
};
thread_local Loading loading;

// The one part of the layer that keeps something for modules.
std::atomic<void (*)(HINSTANCE module)> forgetful = nullptr;

Module* AddModule(std::string path) {
    auto module = std::make_unique<Module>();
    const std::uint32_t handle = base::InsertHandle(HandleKind::Module, module.get());
    if (!handle) {
        return nullptr;
    }
    module->handle = base::ToHandle<HINSTANCE>(handle);
    module->path = std::move(path);
    Modules().push_back(std::move(module));
    return Modules().back().get();
}

template <class Fits>
Module* FirstModule(Fits fits) {
    const auto found = std::ranges::find_if(Modules(), [&](const auto& module) { return fits(*module); });
    return found == Modules().end() ? nullptr : found->get();
}

Module* Application() {
    if (Module* known = FirstModule([](const Module& module) { return module.application; })) {
        return known;
    }
    Module* module = AddModule(ApplicationPath());
    if (module) {
        module->application = true;
    }
    return module;
}

void RemoveModule(Module* module) {
    base::RemoveHandle(base::ToNumber(module->handle), HandleKind::Module);
    std::erase_if(Modules(), [module](const auto& other) { return other.get() == module; });
}

Module* FindByPath(const std::string& path) {
    return FirstModule([&](const Module& module) { return module.path == path; });
}

Module* FindByName(const std::string& name) {
    const std::string plain = PlainName(name);
    Module* const application = Application();
    if (HasFolder(name)) {
        const std::vector<std::string> files = NamedFiles(name);
        if (application && std::find(files.begin(), files.end(), application->path) != files.end()) {
            return application;
        }
        return files.empty() ? nullptr : FindByPath(files[0]);
    }
    if (application && NamesApplication(name, application->path)) {
        return application;
    }
    return FirstModule(
        [&](const Module& module) { return !module.application && PlainName(AnsiFromUtf8(module.path)) == plain; });
}

}  // namespace

std::recursive_mutex& ModuleLock() {
    static platform::base::Immortal<std::recursive_mutex> lock;
    return *lock;
}

Module* FindModule(HMODULE module) {
    Module* found = module ? base::Find<Module>(module, HandleKind::Module) : Application();
    return found ? found : base::Fail<Module*>(ERROR_INVALID_HANDLE, nullptr);
}

void WhenModulesGo(void (*forget)(HINSTANCE)) {
    forgetful = forget;
}

}  // namespace platform::kernel

using namespace platform::kernel;
namespace base = platform::base;

HINSTANCE CvPlatformAttachModule(const CvModuleStart* start) {
    Module* module = nullptr;
    {
        const std::lock_guard guard(ModuleLock());
        std::string path = PathOf(start->address);
        const bool application = path == ApplicationPath();
        module = application ? Application() : AddModule(std::move(path));
        if (!module) {
            return nullptr;
        }
        module->address = start->address;
        module->entry = application ? nullptr : start->entry;
        if (start->resources) {
            module->resourceFile = Bytes(start->resources, start->resourcesEnd);
        }
    }
    const HINSTANCE handle = module->handle;
    if (module->entry && !module->entry(handle, DLL_PROCESS_ATTACH, nullptr)) {
        if (loading.depth > 0) {
            loading.refused = true;
        } else {
            base::ReportOnce(("the library " + module->path + " could not be initialised").c_str());
            std::_Exit(1);
        }
    }
    return handle;
}

void CvPlatformDetachModule(HINSTANCE instance) {
    Module* module = base::Find<Module>(instance, base::HandleKind::Module);
    if (!module) {
        return;
    }
    if (module->entry) {
        module->entry(instance, DLL_PROCESS_DETACH, nullptr);
    }
    // Without the lock, which that part of the layer takes after its own.
    if (const auto forget = module->application ? nullptr : forgetful.load()) {
        forget(instance);
    }
    const std::lock_guard guard(ModuleLock());
    if (!module->application) {
        RemoveModule(module);
    }
}

HMODULE WINAPI GetModuleHandleA(LPCSTR name) {
    return Guarded(HMODULE{}, [&]() -> decltype(HMODULE{}) {
        if (name && !IsReadableText(name)) {
            return base::Fail(ERROR_NOACCESS, nullptr);
        }
        const std::lock_guard guard(ModuleLock());
        const Module* module = name ? FindByName(name) : Application();
        return module ? module->handle : base::Fail<HMODULE>(ERROR_MOD_NOT_FOUND, nullptr);
    });
}

DWORD WINAPI GetModuleFileNameA(HMODULE handle, LPSTR buffer, DWORD size) {
    return Guarded(DWORD{0}, [&]() -> decltype(DWORD{0}) {
        const std::lock_guard guard(ModuleLock());
        const Module* module = FindModule(handle);
        if (!module || !buffer || size == 0) {
            return 0;
        }
        const std::string path = WindowsPath(module->path);
        const bool fits = path.size() < size;
        const DWORD copied = fits ? static_cast<DWORD>(path.size()) : size - 1;
        if (IsBadWritePtr(buffer, copied + 1)) {
            return base::Fail(ERROR_NOACCESS, 0);
        }
        std::memcpy(buffer, path.data(), copied);
        buffer[copied] = '\0';
        SetLastError(fits ? NO_ERROR : ERROR_INSUFFICIENT_BUFFER);
        return fits ? copied : size;
    });
}

HMODULE WINAPI LoadLibraryA(LPCSTR name) {
    return Guarded(HMODULE{}, [&]() -> decltype(HMODULE{}) {
        if (!IsReadableText(name) || !*name) {
            return base::Fail(ERROR_INVALID_PARAMETER, nullptr);
        }
        {
            const std::lock_guard guard(ModuleLock());
            if (Module* module = FindByName(name)) {
                // The host's loader holds it already; the last FreeLibrary gives back what LoadLibraryA took.
                module->loads += module->loads > 0;
                return module->handle;
            }
        }
        // A library that loads another while it starts has its own refusal to tell.
        const bool refusedBefore = std::exchange(loading.refused, false);
        ++loading.depth;
        void* loaded = OpenLibrary(name);
        --loading.depth;
        const bool refused = std::exchange(loading.refused, refusedBefore);
        if (loaded && refused) {
            dlclose(loaded);
            return base::Fail(ERROR_DLL_INIT_FAILED, nullptr);
        }
        if (!loaded) {
            return base::Fail(ERROR_MOD_NOT_FOUND, nullptr);
        }
        const std::lock_guard guard(ModuleLock());
        const std::string path = PathOfLoaded(loaded);
        Module* module = FindByPath(path);
        // A library of the host's own kind has announced nothing.
        if (!module && !(module = AddModule(path))) {
            dlclose(loaded);
            return base::Fail(ERROR_NOT_ENOUGH_MEMORY, nullptr);
        }
        // Another thread may have come first.
        if (++module->loads == 1) {
            module->loaded = loaded;
        } else {
            dlclose(loaded);
        }
        return module->handle;
    });
}

BOOL WINAPI FreeLibrary(HMODULE handle) {
    void* loaded = nullptr;
    bool foreign = false;
    {
        const std::lock_guard guard(ModuleLock());
        Module* module = handle ? FindModule(handle) : nullptr;
        if (!module) {
            return base::Fail(ERROR_INVALID_HANDLE, FALSE);
        }
        if (module->loads > 0 && --module->loads == 0) {
            loaded = std::exchange(module->loaded, nullptr);
            foreign = module->address == nullptr;
        }
    }
    if (loaded) {
        dlclose(loaded);
        // One that announced itself has taken its leave by now, if it went.
        const std::lock_guard guard(ModuleLock());
        if (Module* module = foreign ? base::Find<Module>(handle, base::HandleKind::Module) : nullptr) {
            RemoveModule(module);
        }
    }
    return TRUE;
}

FARPROC WINAPI GetProcAddress(HMODULE handle, LPCSTR name) {
    return Guarded(FARPROC{}, [&]() -> decltype(FARPROC{}) {
        std::string path;
        {
            const std::lock_guard guard(ModuleLock());
            const Module* module = FindModule(handle);
            if (!module) {
                return nullptr;
            }
            path = module->application ? std::string() : module->path;
        }
        // Exports have no numbers here.
        void* opened = IS_INTRESOURCE(name) || !IsReadableText(name)
                           ? nullptr
                           : dlopen(path.empty() ? nullptr : path.c_str(), RTLD_NOW | RTLD_NOLOAD);
        void* address = opened ? dlsym(opened, name) : nullptr;
        if (opened) {
            dlclose(opened);
        }
        return address ? reinterpret_cast<FARPROC>(address) : base::Fail<FARPROC>(ERROR_PROC_NOT_FOUND, nullptr);
    });
}
