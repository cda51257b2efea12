#include "kernel/modules/library_file.h"

#include <windows.h>

#include <dlfcn.h>
#include <link.h>
#include <strings.h>
#include <unistd.h>

#include <climits>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <system_error>

#include "kernel/text/encoding.h"
#include "kernel/files/hostpath.h"

namespace platform::kernel {
namespace {

// The file of this name in the application's folder, whose case callers need not know; empty when there is none.
std::string FileBesideApplication(const std::string& name) {
    const std::string application = ApplicationPath();
    const std::string folder = application.substr(0, application.find_last_of('/') + 1);
    std::error_code error;
    for (std::filesystem::directory_iterator entry(folder, error), end; entry != end; entry.increment(error)) {
        const std::string file = entry->path().filename().string();
        if (file.size() == name.size() && strcasecmp(file.c_str(), name.c_str()) == 0) {
            return folder + file;
        }
    }
    return {};
}

}  // namespace

std::string ApplicationPath() {
    char path[PATH_MAX];
    const ssize_t length = readlink("/proc/self/exe", path, sizeof path);
    return length > 0 ? std::string(path, static_cast<std::size_t>(length)) : std::string("application");
}

std::string PathOf(const void* address) {
    Dl_info info{};
    link_map* map = nullptr;
    if (!dladdr1(address, &info, reinterpret_cast<void**>(&map), RTLD_DL_LINKMAP) || !info.dli_fname) {
        return {};
    }
    // The program is told by its empty name: the loader knows it by what it was started as, which is no path when it was
    // found on the search path.
    if (map != nullptr && *map->l_name == '\0') {
        return ApplicationPath();
    }
    char resolved[PATH_MAX];
    return realpath(info.dli_fname, resolved) ? resolved : info.dli_fname;
}

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
        const std::string beside = FileBesideApplication(file);
        if (!beside.empty()) {
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

}  // namespace platform::kernel
