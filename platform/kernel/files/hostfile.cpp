#include "kernel/files/hostfile.h"

#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <filesystem>
#include <iterator>
#include <memory>
#include <system_error>

#include "base/state.h"
#include "kernel/text/encoding.h"

namespace platform::kernel {
namespace {

bool IsFolder(const std::string& path) {
    struct stat status {};
    return stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

// The names in a text with slashes.
std::vector<std::string> Split(std::string_view text) {
    std::vector<std::string> names;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('/'), text.size());
        if (end) {
            names.emplace_back(text.substr(0, end));
        }
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return names;
}

// The letter of the drive among the folders of the state folder that a host's path leads to or into; 'z' for none.
char DriveOf(std::string_view host, std::string_view state) {
    constexpr std::string_view kDrive = "/drive_";
    const bool inside = host.size() > state.size() + kDrive.size() && host.starts_with(state) &&
                        host.substr(state.size()).starts_with(kDrive);
    if (!inside) {
        return 'z';
    }
    const std::string_view rest = host.substr(state.size() + kDrive.size());
    return rest[0] >= 'a' && rest[0] < 'z' && (rest.size() == 1 || rest[1] == '/') ? rest[0] : 'z';
}

std::size_t DriveLength(std::string_view state) {
    return state.size() + std::size("/drive_c") - 1;
}

// The current folder. The host tells it without links, so the state folder is looked at without them too.
FullPath Current() {
    std::error_code error;
    const std::string host = std::filesystem::current_path(error).string();
    const std::string state = std::filesystem::weakly_canonical(base::StateFolder(), error).string();
    FullPath current;
    current.drive = DriveOf(host, state);
    current.names = Split(std::string_view(host).substr(current.drive == 'z' ? 0 : DriveLength(state)));
    return current;
}

// What the system makes of a name: of the last one nothing remains behind its last character that is no dot or blank, and
// any other one loses a single dot.
std::string_view Made(std::string_view name, bool last) {
    if (last) {
        return WithoutTail(name);
    }
    return name.ends_with('.') && !name.ends_with("..") ? name.substr(0, name.size() - 1) : name;
}

// Goes from a folder that exists to what lies below it.
std::string Descend(std::string folder, const FullPath& full) {
    for (std::size_t i = 0; i < full.names.size(); ++i) {
        const std::string_view made = Made(full.names[i], i + 1 == full.names.size() && !full.closed);
        std::string found;
        for (const std::string_view name : {std::string_view(full.names[i]), made}) {
            if (found.empty() && !name.empty()) {
                const std::string exact(name);
                found = access((folder + '/' + exact).c_str(), F_OK) == 0 ? exact : FindInAnyCase(folder, exact);
            }
        }
        if (found.empty()) {
            found = made;
        }
        if (!found.empty()) {
            folder.append(1, '/').append(found);
        }
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

std::string_view WithoutTail(std::string_view name) {
    return name.substr(0, name.find_last_not_of(". ") + 1);
}

LONG Complete(std::string_view path, FullPath* full) {
    if (path.size() >= MAX_PATH) {
        return ERROR_FILENAME_EXCED_RANGE;
    }
    std::string text = Utf8FromAnsi(path);
    std::replace(text.begin(), text.end(), '\\', '/');
    std::string_view rest = text;
    if (rest.starts_with("//") || rest.find_first_not_of(' ') == std::string_view::npos) {
        return ERROR_PATH_NOT_FOUND;
    }
    const bool hasDrive = rest.size() >= 2 && rest[1] == ':';
    const auto letter = static_cast<char>(rest[0] | 0x20);
    if (hasDrive && (letter < 'a' || letter > 'z')) {
        return ERROR_PATH_NOT_FOUND;
    }
    rest.remove_prefix(hasDrive ? 2 : 0);
    *full = {};
    if (hasDrive) {
        full->drive = letter;
    }
    if (const bool fromRoot = rest.starts_with('/'); !fromRoot || !hasDrive) {
        FullPath current = Current();
        if (!hasDrive || current.drive == letter) {
            full->drive = current.drive;
            full->names = fromRoot ? std::vector<std::string>() : std::move(current.names);
        }
    }
    full->closed = rest.empty() || rest.ends_with('/');
    for (std::string& name : Split(rest)) {
        if (name == ".." && !full->names.empty()) {
            full->names.pop_back();
        } else if (name != "." && name != "..") {
            full->names.push_back(std::move(name));
        }
    }
    return ERROR_SUCCESS;
}

LONG FindHostFile(std::string_view path, std::string* host, bool* root) {
    FullPath full;
    if (const LONG error = Complete(path, &full)) {
        return error;
    }
    std::string folder;
    if (!DriveFolder(full.drive, &folder)) {
        return ERROR_PATH_NOT_FOUND;
    }
    if (root) {
        *root = full.names.empty();
    }
    *host = folder;
    for (const std::string& name : full.names) {
        host->append(1, '/').append(name);
    }
    if (!host->empty() && access(host->c_str(), F_OK) != 0) {
        *host = Descend(std::move(folder), full);
    }
    if (host->empty()) {
        *host = "/";
    }
    return ERROR_SUCCESS;
}

std::string WindowsPath(const std::string& host) {
    std::string path = host.starts_with('/') ? "Z:" + host : host;
    std::replace(path.begin(), path.end(), '/', '\\');
    return AnsiFromUtf8(path);
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
