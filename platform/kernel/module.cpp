#include "kernel/module.h"

#include <dlfcn.h>
#include <link.h>
#include <unistd.h>

#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <utility>

#include "base/handle.h"
#include "base/report.h"
#include "kernel/encoding.h"
#include "kernel/hostpath.h"
#include "kernel/start/module_registration.h"

namespace platform::kernel {
namespace {

using base::HandleKind;

using ModuleList = std::vector<std::unique_ptr<Module>>;

ModuleList& Modules() {
    static auto& modules = *new ModuleList;
    return modules;
}

// What LoadLibraryA learns from the start-up object that runs inside the host's loader.
struct Loading {
    int depth = 0;
    bool refused = false;
};
thread_local Loading loading;

std::string ApplicationPath() {
    char path[PATH_MAX];
    const ssize_t length = readlink("/proc/self/exe", path, sizeof path);
    return length > 0 ? std::string(path, static_cast<std::size_t>(length)) : std::string("application");
}

std::string PathOf(const void* address) {
    Dl_info info{};
    if (!dladdr(address, &info) || !info.dli_fname) {
        return {};
    }
    char resolved[PATH_MAX];
    return realpath(info.dli_fname, resolved) ? resolved : info.dli_fname;
}

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

Module* Application() {
    for (const auto& module : Modules()) {
        if (module->application) {
            return module.get();
        }
    }
    Module* module = AddModule(ApplicationPath());
    if (module) {
        module->application = true;
    }
    return module;
}

// The name by which Windows callers know a module: without folder, "lib" and ending, in small letters.
std::string PlainName(std::string name) {
    const std::size_t slash = name.find_last_of("/\\:");
    if (slash != std::string::npos) {
        name.erase(0, slash + 1);
    }
    // A point at the end of a name tells that it has no ending.
    if (name.ends_with('.')) {
        name.pop_back();
    }
    CharLowerBuffA(name.data(), static_cast<DWORD>(name.size()));
    for (const char* ending : {".dll", ".exe", ".so"}) {
        if (name.ends_with(ending)) {
            name.resize(name.size() - std::strlen(ending));
            break;
        }
    }
    return name.starts_with("lib") ? name.substr(3) : name;
}

bool IsSystemName(const std::string& plain);
Module* System();
Module* FindByPath(const std::string& path);

Module* FindByName(const std::string& name) {
    const std::string plain = PlainName(name);
    if (IsSystemName(plain)) {
        return System();
    }
    for (const auto& module : Modules()) {
        if (PlainName(module->path) == plain) {
            return module.get();
        }
    }
    return nullptr;
}

void RemoveModule(Module* module) {
    for (ResourceEntry& entry : module->resources) {
        if (entry.handle) {
            base::RemoveHandle(entry.handle, HandleKind::Resource);
        }
    }
    base::RemoveHandle(base::ToNumber(module->handle), HandleKind::Module);
    std::erase_if(Modules(), [module](const auto& other) { return other.get() == module; });
}

// The system's own libraries are this one.
bool IsSystemName(const std::string& plain) {
    for (const char* name : {"kernel32", "user32", "gdi32", "advapi32", "comctl32", "comdlg32", "shell32", "ole32"}) {
        if (plain == name) {
            return true;
        }
    }
    return false;
}

Module* System() {
    static const char inside = 0;
    const std::string path = PathOf(&inside);
    Module* module = FindByPath(path);
    return module ? module : AddModule(path);
}

// A library beside the application comes first, then what the host's loader finds.
void* OpenLibrary(const std::string& name) {
    const bool hasFolder = name.find_first_of("/\\:") != std::string::npos;
    std::string file = hasFolder ? HostPath(name) : Utf8FromAnsi(name);
    const std::size_t base = file.find_last_of('/') == std::string::npos ? 0 : file.find_last_of('/') + 1;
    std::string ending = file.size() >= base + 4 ? file.substr(file.size() - 4) : std::string();
    CharLowerBuffA(ending.data(), static_cast<DWORD>(ending.size()));
    if (ending == ".dll") {
        file.resize(file.size() - 4);
    } else if (file.ends_with('.')) {
        file.pop_back();
    }
    if (file.find(".so", base) == std::string::npos) {
        file = file.substr(0, base) + "lib" + file.substr(base) + ".so";
    }
    if (!hasFolder) {
        const std::string application = ApplicationPath();
        const std::string beside = application.substr(0, application.find_last_of('/') + 1) + file;
        if (access(beside.c_str(), R_OK) == 0) {
            return dlopen(beside.c_str(), RTLD_NOW | RTLD_LOCAL);
        }
    }
    return dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
}

/// @returns the file that a library of the host's loader came from.
std::string PathOfLoaded(void* loaded) {
    link_map* map = nullptr;
    if (dlinfo(loaded, RTLD_DI_LINKMAP, &map) != 0 || !map || !map->l_name) {
        return {};
    }
    char resolved[PATH_MAX];
    return realpath(map->l_name, resolved) ? resolved : map->l_name;
}

Module* FindByPath(const std::string& path) {
    for (const auto& module : Modules()) {
        if (module->path == path) {
            return module.get();
        }
    }
    return nullptr;
}

}  // namespace

std::recursive_mutex& ModuleLock() {
    static auto& lock = *new std::recursive_mutex;
    return lock;
}

Module* FindModule(HMODULE module) {
    Module* found = module ? base::Find<Module>(module, HandleKind::Module) : Application();
    if (!found) {
        SetLastError(ERROR_INVALID_HANDLE);
    }
    return found;
}

void NotifyThread(DWORD reason) {
    std::vector<std::pair<HINSTANCE, BOOL(WINAPI*)(HINSTANCE, DWORD, LPVOID)>> entries;
    {
        const std::lock_guard guard(ModuleLock());
        for (const auto& module : Modules()) {
            if (module->entry && module->wantsThreads) {
                entries.emplace_back(module->handle, module->entry);
            }
        }
    }
    for (const auto& [handle, entry] : entries) {
        entry(handle, reason, nullptr);
    }
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
    const std::lock_guard guard(ModuleLock());
    if (!module->application) {
        RemoveModule(module);
    }
}

HMODULE WINAPI GetModuleHandleA(LPCSTR name) {
    const std::lock_guard guard(ModuleLock());
    const Module* module = name ? FindByName(name) : Application();
    if (!module) {
        SetLastError(ERROR_MOD_NOT_FOUND);
        return nullptr;
    }
    return module->handle;
}

DWORD WINAPI GetModuleFileNameA(HMODULE handle, LPSTR buffer, DWORD size) {
    const std::lock_guard guard(ModuleLock());
    const Module* module = FindModule(handle);
    if (!module || !buffer || size == 0) {
        return 0;
    }
    const std::string path = WindowsPath(module->path);
    const bool fits = path.size() < size;
    const DWORD copied = fits ? static_cast<DWORD>(path.size()) : size - 1;
    std::memcpy(buffer, path.data(), copied);
    buffer[copied] = '\0';
    SetLastError(fits ? NO_ERROR : ERROR_INSUFFICIENT_BUFFER);
    return fits ? copied : size;
}

HMODULE WINAPI LoadLibraryA(LPCSTR name) {
    if (!name || !*name) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
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
        SetLastError(ERROR_DLL_INIT_FAILED);
        return nullptr;
    }
    if (!loaded) {
        SetLastError(ERROR_MOD_NOT_FOUND);
        return nullptr;
    }
    const std::lock_guard guard(ModuleLock());
    const std::string path = PathOfLoaded(loaded);
    Module* module = FindByPath(path);
    if (!module) {
        // A library of the host's own kind, which has announced nothing.
        module = AddModule(path);
    }
    if (!module) {
        dlclose(loaded);
        SetLastError(ERROR_NOT_ENOUGH_MEMORY);
        return nullptr;
    }
    module->loaded = loaded;
    module->loads = 1;
    return module->handle;
}

BOOL WINAPI FreeLibrary(HMODULE handle) {
    void* loaded = nullptr;
    bool foreign = false;
    {
        const std::lock_guard guard(ModuleLock());
        Module* module = handle ? FindModule(handle) : nullptr;
        if (!module) {
            SetLastError(ERROR_INVALID_HANDLE);
            return FALSE;
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

BOOL WINAPI DisableThreadLibraryCalls(HMODULE handle) {
    const std::lock_guard guard(ModuleLock());
    Module* module = handle ? FindModule(handle) : nullptr;
    if (!module) {
        SetLastError(ERROR_INVALID_HANDLE);
        return FALSE;
    }
    module->wantsThreads = false;
    return TRUE;
}

FARPROC WINAPI GetProcAddress(HMODULE handle, LPCSTR name) {
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
    void* opened =
        IS_INTRESOURCE(name) ? nullptr : dlopen(path.empty() ? nullptr : path.c_str(), RTLD_NOW | RTLD_NOLOAD);
    void* address = opened ? dlsym(opened, name) : nullptr;
    if (opened) {
        dlclose(opened);
    }
    if (!address) {
        SetLastError(ERROR_PROC_NOT_FOUND);
    }
    return reinterpret_cast<FARPROC>(address);
}
