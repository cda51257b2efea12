#include "base/state.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <string_view>
#include <system_error>

#include "base/report.h"

namespace platform::base {
namespace {

std::string_view Environment(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

std::string_view UserFolder() {
    const std::string_view home = Environment("HOME");
    if (!home.empty()) {
        return home;
    }
    const passwd* entry = getpwuid(getuid());
    return entry && entry->pw_dir ? entry->pw_dir : "/";
}

// A folder without slashes at its end, and what comes below it: the path in two parts, which are in memory already.
struct Place {
    Place(std::string_view folder, std::string_view rest) : base(folder), below(rest) {
        while (base.size() > 1 && base.back() == '/') {
            base.remove_suffix(1);
        }
    }
    std::string_view base;
    std::string_view below;
};

Place StatePlace() {
    if (const std::string_view chosen = Environment("CVUTIL32_HOME"); !chosen.empty()) {
        return {chosen, ""};
    }
    // A relative XDG_DATA_HOME is invalid and to be ignored.
    if (const std::string_view data = Environment("XDG_DATA_HOME"); data.starts_with('/')) {
        return {data, "/cvutil32"};
    }
    return {UserFolder(), "/.local/share/cvutil32"};
}

}  // namespace

std::string StateFolder() {
    const Place place = StatePlace();
    return std::string(place.base).append(place.below);
}

bool IsStateFolder(std::string_view folder) {
    const Place place = StatePlace();
    return folder.size() == place.base.size() + place.below.size() && folder.starts_with(place.base) &&
           folder.ends_with(place.below);
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
