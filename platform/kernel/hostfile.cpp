#include "kernel/hostfile.h"

#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <filesystem>
#include <memory>
#include <system_error>

#include "base/state.h"
#include "kernel/encoding.h"

namespace platform::kernel {
namespace {

std::string Upper(std::string name) {
    CharUpperBuffA(name.data(), static_cast<DWORD>(name.size()));
    return name;
}

bool IsFolder(const std::string& path) {
    struct stat status {};
    return stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

std::string CurrentFolder() {
    std::error_code error;
    return std::filesystem::current_path(error).string();
}

// Goes from a folder that exists to what lies below it.
std::string Descend(std::string folder, std::string_view rest) {
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find('/'), rest.size());
        const std::string name(rest.substr(0, end));
        rest.remove_prefix(std::min(end + 1, rest.size()));
        if (name.empty()) {
            continue;
        }
        std::string next = folder + '/' + name;
        if (access(next.c_str(), F_OK) != 0) {
            const std::string other = FindInAnyCase(folder, name);
            if (!other.empty()) {
                next = folder + '/' + other;
            }
        }
        folder = std::move(next);
    }
    return folder;
}

}  // namespace

std::string FindInAnyCase(const std::string& folder, const std::string& name) {
    const std::unique_ptr<DIR, int (*)(DIR*)> listing(opendir(folder.empty() ? "/" : folder.c_str()), closedir);
    if (!listing) {
        return {};
    }
    const std::string wanted = Upper(AnsiFromUtf8(name));
    std::string best;
    while (const dirent* entry = readdir(listing.get())) {
        const std::string_view found = entry->d_name;
        // Two names that differ in case alone: the choice is the same each time.
        if (Upper(AnsiFromUtf8(found)) == wanted && (best.empty() || found < best)) {
            best = found;
        }
    }
    return best;
}

bool DriveFolder(char letter, std::string* folder) {
    const char drive = static_cast<char>(letter | 0x20);
    if (drive == 'z') {
        folder->clear();
        return true;
    }
    *folder = base::StateFolder() + "/drive_" + drive;
    if (drive < 'a' || drive > 'z') {
        return false;
    }
    if (drive == 'c' && !IsFolder(*folder)) {
        std::error_code error;
        std::filesystem::create_directories(*folder + "/WINDOWS/SYSTEM", error);
    }
    return IsFolder(*folder);
}

LONG FindHostFile(std::string_view path, std::string* host) {
    if (path.size() >= MAX_PATH) {
        return ERROR_FILENAME_EXCED_RANGE;
    }
    std::string rest = Utf8FromAnsi(path);
    std::replace(rest.begin(), rest.end(), '\\', '/');
    std::string folder;
    if (rest.size() >= 2 && rest[1] == ':') {
        if (!DriveFolder(rest[0], &folder)) {
            return ERROR_PATH_NOT_FOUND;
        }
        rest.erase(0, 2);
    } else if (rest.starts_with("//")) {
        return ERROR_PATH_NOT_FOUND;
    } else if (!rest.starts_with('/')) {
        folder = CurrentFolder();
    }
    *host = folder;
    for (std::string_view left = rest; !left.empty();) {
        const std::size_t end = std::min(left.find('/'), left.size());
        if (end) {
            host->append(1, '/').append(left.substr(0, end));
        }
        left.remove_prefix(std::min(end + 1, left.size()));
    }
    if (!host->empty() && access(host->c_str(), F_OK) != 0) {
        *host = Descend(folder, rest);
    }
    if (host->empty()) {
        *host = "/";
    }
    return ERROR_SUCCESS;
}

LONG ErrorOfHost(int number) {
    switch (number) {
        case ENOENT:
            return ERROR_FILE_NOT_FOUND;
        case ENOTDIR:
        case ELOOP:
            return ERROR_PATH_NOT_FOUND;
        case EACCES:
        case EPERM:
            return ERROR_ACCESS_DENIED;
        case ENAMETOOLONG:
            return ERROR_FILENAME_EXCED_RANGE;
        case EMFILE:
        case ENFILE:
            return ERROR_TOO_MANY_OPEN_FILES;
        case ENOMEM:
            return ERROR_NOT_ENOUGH_MEMORY;
        default:
            return ERROR_GEN_FAILURE;
    }
}

}  // namespace platform::kernel
