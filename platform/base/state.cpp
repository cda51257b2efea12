#include "base/state.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "base/report.h"

namespace platform::base {
namespace {

std::string Environment(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

std::string WithoutSlash(std::string path) {
    while (path.size() > 1 && path.back() == '/') {
        path.pop_back();
    }
    return path;
}

std::string UserFolder() {
    std::string home = Environment("HOME");
    if (home.empty()) {
        const passwd* entry = getpwuid(getuid());
        home = entry && entry->pw_dir ? entry->pw_dir : "/";
    }
    return home;
}

}  // namespace

std::string StateFolder() {
    std::string chosen = Environment("CVUTIL32_HOME");
    if (!chosen.empty()) {
        return WithoutSlash(std::move(chosen));
    }
    // A relative XDG_DATA_HOME is invalid and to be ignored.
    std::string data = Environment("XDG_DATA_HOME");
    if (data.empty() || data[0] != '/') {
        data = UserFolder() + "/.local/share";
    }
    return WithoutSlash(std::move(data)) + "/cvutil32";
}

bool EnsureStateFolder() {
    const std::string folder = StateFolder();
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (!std::filesystem::is_directory(folder, error) || access(folder.c_str(), W_OK) != 0) {
        ReportOnce(("cannot write to the state folder " + folder).c_str());
        return false;
    }
    return true;
}

}  // namespace platform::base
