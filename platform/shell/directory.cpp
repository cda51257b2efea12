#include "shell/directory.h"

#include <dirent.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <memory>

#include "kernel/files/hostfile.h"
#include "kernel/text/encoding.h"

namespace platform::shell {
namespace {

using Directory = std::unique_ptr<DIR, int (*)(DIR*)>;

bool IsFolder(const Directory& directory, const dirent& entry) {
    if (entry.d_type == DT_DIR) {
        return true;
    }
    if (entry.d_type != DT_LNK && entry.d_type != DT_UNKNOWN) {
        return false;
    }
    struct stat facts {};
    return fstatat(dirfd(directory.get()), entry.d_name, &facts, 0) == 0 && S_ISDIR(facts.st_mode);
}

}  // namespace

int ReadDirectory(const std::string& path, Wanted wanted, std::vector<Entry>& entries) {
    const Directory directory(opendir(path.c_str()), closedir);
    if (!directory) {
        return errno;
    }
    while (const dirent* found = readdir(directory.get())) {
        if (found->d_name[0] == '.') {
            continue;  // hidden
        }
        const bool folder = IsFolder(directory, *found);
        if (folder ? wanted.folders : wanted.files) {
            entries.push_back({found->d_name, folder});
        }
    }
    std::sort(entries.begin(), entries.end(),
              [](const Entry& a, const Entry& b) { return a.folder != b.folder ? a.folder : a.name < b.name; });
    return 0;
}

bool HasSubfolder(const std::string& path) {
    const Directory directory(opendir(path.c_str()), closedir);
    if (!directory) {
        return false;
    }
    while (const dirent* found = readdir(directory.get())) {
        if (found->d_name[0] != '.' && IsFolder(directory, *found)) {
            return true;
        }
    }
    return false;
}

bool Exists(const std::string& path, bool& folder) {
    struct stat facts {};
    if (stat(path.c_str(), &facts) != 0) {
        return false;
    }
    folder = S_ISDIR(facts.st_mode);
    return true;
}

std::string FindEntry(const std::string& path, const std::string& name) {
    const std::string exact = kernel::Utf8FromAnsi(name);
    if (exact.empty() || exact == "." || exact == ".." || exact.find('/') != exact.npos) {
        return {};
    }
    bool folder = false;
    if (Exists(path + '/' + exact, folder)) {
        return exact;
    }
    return kernel::FindInAnyCase(path, exact);
}

}  // namespace platform::shell
