// Listing folders, and what a file is like.
#include <windows.h>

#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <exception>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "base/fail.h"
#include "base/handle.h"
#include "kernel/text/encoding.h"
#include "kernel/guarded.h"
#include "kernel/files/hostfile.h"
#include "kernel/files/wildcards.h"
#include "kernel/memory/probe.h"

using namespace platform::kernel;
namespace base = platform::base;
using base::HandleKind;

namespace {

struct Search {
    std::string folder;              ///< of the host
    std::vector<std::string> names;  ///< UTF-8
    std::size_t next = 0;
};

FILETIME FileTime(const timespec& time) {
    constexpr std::int64_t kEpoch = 11644473600;  // seconds from 1601 to 1970
    const std::int64_t ticks = (time.tv_sec + kEpoch) * 10000000 + time.tv_nsec / 100;
    return {static_cast<DWORD>(ticks), static_cast<DWORD>(ticks >> 32)};
}

// What a link leads to counts; a link that leads nowhere is a file of its own.
bool Look(const std::string& path, struct stat* status) {
    return stat(path.c_str(), status) == 0 || lstat(path.c_str(), status) == 0;
}

DWORD Attributes(const struct stat& status, std::string_view name) {
    DWORD attributes = S_ISDIR(status.st_mode) ? FILE_ATTRIBUTE_DIRECTORY : 0;
    if (!(status.st_mode & 0222)) {
        attributes |= FILE_ATTRIBUTE_READONLY;
    }
    if (name.starts_with('.') && name != "." && name != "..") {
        attributes |= FILE_ATTRIBUTE_HIDDEN;
    }
    return attributes ? attributes : FILE_ATTRIBUTE_NORMAL;
}

void Describe(const struct stat& status, const std::string& name, LPWIN32_FIND_DATAA data) {
    *data = WIN32_FIND_DATAA{};
    data->dwFileAttributes = Attributes(status, name);
    // The host tells no time of creation that all its file systems keep.
    data->ftCreationTime = FileTime(status.st_mtim);
    data->ftLastAccessTime = FileTime(status.st_atim);
    data->ftLastWriteTime = FileTime(status.st_mtim);
    if (!S_ISDIR(status.st_mode)) {
        data->nFileSizeHigh = static_cast<DWORD>(static_cast<std::uint64_t>(status.st_size) >> 32);
        data->nFileSizeLow = static_cast<DWORD>(status.st_size);
    }
    const std::string ansi = AnsiFromUtf8(name);
    std::memcpy(data->cFileName, ansi.c_str(), std::min<std::size_t>(ansi.size(), MAX_PATH - 1));
}

// The names in a folder that fit, in the order of their capitals.
LONG List(const std::string& folder, const std::string& pattern, bool root, std::vector<std::string>* names) {
    const std::unique_ptr<DIR, int (*)(DIR*)> listing(opendir(folder.empty() ? "/" : folder.c_str()), closedir);
    if (!listing) {
        return errno == ENOENT ? ERROR_PATH_NOT_FOUND : ErrorOfHost(errno);
    }
    const std::string wanted = Upper(pattern);
    std::vector<std::pair<std::string, std::string>> found;
    while (const dirent* entry = readdir(listing.get())) {
        const std::string name = entry->d_name;
        const bool dots = name == "." || name == "..";
        std::string capitals = Upper(AnsiFromUtf8(name));
        if (!(dots && root) && MatchesWildcards(wanted, capitals)) {
            found.emplace_back(std::move(capitals), name);
        }
    }
    std::sort(found.begin(), found.end());
    // The two dots come first, before names that begin with "!" or a blank.
    std::stable_partition(found.begin(), found.end(),
                          [](const auto& entry) { return entry.first == "." || entry.first == ".."; });
    names->reserve(found.size());
    for (auto& [capitals, name] : found) {
        names->push_back(std::move(name));
    }
    return ERROR_SUCCESS;
}

// Describes the next entry that is still there.
bool Advance(Search* search, LPWIN32_FIND_DATAA data) {
    while (search->next < search->names.size()) {
        const std::string& name = search->names[search->next++];
        struct stat status {};
        if (Look(search->folder + '/' + name, &status)) {
            Describe(status, name, data);
            return true;
        }
    }
    return false;
}

// Where the last name of a path begins.
std::size_t LastName(LPCSTR path) {
    std::size_t start = 0;
    for (LPCSTR at = path; *at; at = CharNextA(at)) {
        if (*at == '\\' || *at == '/' || (*at == ':' && at == path + 1)) {
            start = static_cast<std::size_t>(at - path) + 1;
        }
    }
    return start;
}

HANDLE OpenSearch(std::unique_ptr<Search> search) {
    const std::uint32_t handle = base::InsertHandle(HandleKind::FindFile, search.get());
    if (!handle) {
        return base::Fail(ERROR_NOT_ENOUGH_MEMORY, INVALID_HANDLE_VALUE);
    }
    search.release();
    return base::ToHandle<HANDLE>(handle);
}

}  // namespace

HANDLE WINAPI FindFirstFileA(LPCSTR path, LPWIN32_FIND_DATAA data) {
    return Guarded(INVALID_HANDLE_VALUE, [&]() -> HANDLE {
        if (!IsReadableText(path) || !*path) {
            return base::Fail(ERROR_PATH_NOT_FOUND, INVALID_HANDLE_VALUE);
        }
        if (IsBadWritePtr(data, sizeof *data)) {
            return base::Fail(ERROR_NOACCESS, INVALID_HANDLE_VALUE);
        }
        const std::size_t start = LastName(path);
        const std::string name = path + start;
        if (name.empty()) {
            return base::Fail(ERROR_FILE_NOT_FOUND, INVALID_HANDLE_VALUE);
        }
        auto search = std::make_unique<Search>();
        if (!HasWildcards(name)) {
            std::string host;
            bool root = false;
            if (const LONG error = FindHostFile(path, &host, &root)) {
                return base::Fail(error, INVALID_HANDLE_VALUE);
            }
            if (root) {
                return base::Fail(ERROR_FILE_NOT_FOUND, INVALID_HANDLE_VALUE);
            }
            struct stat status {};
            if (!Look(host, &status)) {
                const LONG error = ErrorOfHost(errno);
                const std::string folder = host.substr(0, host.find_last_of('/'));
                const bool lost = error == ERROR_FILE_NOT_FOUND && !folder.empty() && access(folder.c_str(), F_OK) != 0;
                return base::Fail(lost ? ERROR_PATH_NOT_FOUND : error, INVALID_HANDLE_VALUE);
            }
            Describe(status, name == "." || name == ".." ? name : host.substr(host.find_last_of('/') + 1), data);
            return OpenSearch(std::move(search));
        }
        std::string_view folder(path, start);
        bool root = false;
        LONG error = FindHostFile(folder.empty() ? "." : folder, &search->folder, &root);
        error = error ? error : List(search->folder, name, root, &search->names);
        if (error) {
            return base::Fail(error, INVALID_HANDLE_VALUE);
        }
        return Advance(search.get(), data) ? OpenSearch(std::move(search))
                                           : base::Fail(ERROR_FILE_NOT_FOUND, INVALID_HANDLE_VALUE);
    });
}

BOOL WINAPI FindNextFileA(HANDLE handle, LPWIN32_FIND_DATAA data) {
    return Guarded(FALSE, [&]() -> BOOL {
        auto* search = base::Find<Search>(handle, HandleKind::FindFile);
        if (!search) {
            return base::Fail(ERROR_INVALID_HANDLE, FALSE);
        }
        if (IsBadWritePtr(data, sizeof *data)) {
            return base::Fail(ERROR_NOACCESS, FALSE);
        }
        return Advance(search, data) ? TRUE : base::Fail(ERROR_NO_MORE_FILES, FALSE);
    });
}

BOOL WINAPI FindClose(HANDLE handle) {
    auto* search = static_cast<Search*>(base::RemoveHandle(base::ToNumber(handle), HandleKind::FindFile));
    if (!search) {
        return base::Fail(ERROR_INVALID_HANDLE, FALSE);
    }
    delete search;
    return TRUE;
}

DWORD WINAPI GetFileAttributesA(LPCSTR path) {
    return Guarded(INVALID_FILE_ATTRIBUTES, [&]() -> DWORD {
        std::string host;
        if (!IsReadableText(path) || !*path) {
            return base::Fail(ERROR_PATH_NOT_FOUND, INVALID_FILE_ATTRIBUTES);
        }
        if (const LONG error = FindHostFile(path, &host)) {
            return base::Fail(error, INVALID_FILE_ATTRIBUTES);
        }
        struct stat status {};
        if (!Look(host, &status)) {
            return base::Fail(ErrorOfHost(errno), INVALID_FILE_ATTRIBUTES);
        }
        return Attributes(status, std::string_view(host).substr(host.find_last_of('/') + 1));
    });
}
