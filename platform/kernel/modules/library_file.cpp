#include "kernel/modules/library_file.h"

#include <windows.h>

#include <dlfcn.h>
#include <link.h>
#include <unistd.h>

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <filesystem>
#include <system_error>
#include <utility>

#include "kernel/text/encoding.h"
#include "kernel/files/hostfile.h"

namespace platform::kernel {
namespace {

std::string LastPart(const std::string& name) {
    const std::size_t slash = name.find_last_of("/\\:");
    return slash == std::string::npos ? name : name.substr(slash + 1);
}

std::string Small(std::string text) {
    CharLowerBuffA(text.data(), static_cast<DWORD>(text.size()));
    return text;
}

// Where the ending of one of the host's libraries begins: ".so", or ".so.1.2"; the size of a name without one.
std::size_t HostEnding(const std::string& name) {
    const std::size_t at = name.rfind(".so");
    const bool whole = at != std::string::npos && name.find_first_not_of("0123456789.", at + 3) == std::string::npos &&
                       (at + 3 == name.size() || name[at + 3] == '.');
    return whole ? at : name.size();
}

std::string Resolved(const std::string& file) {
    char resolved[PATH_MAX];
    return realpath(file.c_str(), resolved) ? resolved : std::string();
}

// The library of a name in a folder whose case, and whose version, callers need not know; empty when there is none.
std::string LibraryIn(const std::string& folder, const std::string& plain) {
    std::string best;
    std::error_code error;
    for (std::filesystem::directory_iterator entry(folder + '/', error), end; entry != end; entry.increment(error)) {
        const std::string file = entry->path().filename().string();
        // The shortest name leads to the version to build with, or to the only one that there is.
        if (HostEnding(file) < file.size() && PlainName(AnsiFromUtf8(file)) == plain && (best.empty() || file < best)) {
            best = file;
        }
    }
    return best.empty() ? best : folder + '/' + best;
}

std::string FolderOf(const std::string& file) {
    return file.substr(0, std::min(file.find_last_of('/'), file.size()));
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
    const std::string resolved = Resolved(info.dli_fname);
    return resolved.empty() ? info.dli_fname : resolved;
}

bool HasFolder(const std::string& name) {
    return name.find_first_of("/\\:") != std::string::npos;
}

bool NamesApplication(const std::string& name, const std::string& path) {
    const std::string wanted = Small(name);
    const std::string own = Small(AnsiFromUtf8(LastPart(path)));
    return wanted == own || wanted == own + ".exe";
}

std::string PlainName(const std::string& name) {
    std::string plain = Small(LastPart(name));
    const std::size_t ending = HostEnding(plain);
    if (ending < plain.size()) {
        plain.resize(ending);
        return plain.starts_with("lib") ? plain.substr(3) : plain;
    }
    if (plain.ends_with(".dll")) {
        plain.resize(plain.size() - 4);
    } else if (plain.ends_with('.')) {
        plain.pop_back();  // which tells that the name has no ending
    }
    return plain;
}

std::vector<std::string> NamedFiles(const std::string& name) {
    std::string host;
    if (FindHostFile(name, &host) != ERROR_SUCCESS) {
        return {};
    }
    std::vector<std::string> files = {Resolved(host), Resolved(LibraryIn(FolderOf(host), PlainName(name)))};
    // "X.dll" and "X" are this host's "libX.so", whatever else may lie there under that name.
    const std::string file = LastPart(host);
    if (Small(file).ends_with(".dll") || file.find('.') == std::string::npos || file.ends_with('.')) {
        std::swap(files[0], files[1]);
    }
    std::erase(files, std::string());
    return files;
}

// A library beside the application comes first, then one beside this one, then what the host's loader finds.
void* OpenLibrary(const std::string& name) {
    if (HasFolder(name)) {
        const std::vector<std::string> files = NamedFiles(name);
        return files.empty() ? nullptr : dlopen(files[0].c_str(), RTLD_NOW | RTLD_LOCAL);
    }
    static const char inside = 0;
    for (const std::string& place : {ApplicationPath(), PathOf(&inside)}) {
        const std::string file = LibraryIn(FolderOf(place), PlainName(name));
        if (!file.empty()) {
            return dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
        }
    }
    std::string file = Utf8FromAnsi(name);
    if (HostEnding(file) == file.size()) {
        const bool hasEnding = file.size() > 4 && Small(file.substr(file.size() - 4)) == ".dll";
        file = "lib" + file.substr(0, file.size() - (hasEnding ? 4 : file.ends_with('.') ? 1 : 0)) + ".so";
    }
    return dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
}

std::string PathOfLoaded(void* loaded) {
    link_map* map = nullptr;
    if (dlinfo(loaded, RTLD_DI_LINKMAP, &map) != 0 || !map || !map->l_name) {
        return {};
    }
    const std::string resolved = Resolved(map->l_name);
    return resolved.empty() ? map->l_name : resolved;
}

}  // namespace platform::kernel
