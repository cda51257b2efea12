// Profile files: win.ini and those that callers name. They are ordinary text files; a write replaces the file as a
// whole, so that a reader, or a process that is killed, never meets half of one.
#include <windows.h>

#include <fcntl.h>
#include <strings.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/report.h"
#include "base/immortal.h"
#include "base/state.h"
#include "base/fail.h"
#include "kernel/text/encoding.h"
#include "kernel/guarded.h"
#include "kernel/files/hostfile.h"
#include "kernel/profiles/ini_file.h"
#include "kernel/locale/intl.h"
#include "kernel/text/above.h"

using namespace platform::kernel;
namespace base = platform::base;

namespace {

constexpr off_t kMostFileBytes = 16 << 20;

struct Descriptor {
    int number;
    explicit Descriptor(int n) : number(n) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() {
        if (number >= 0) {
            close(number);
        }
    }
};

struct Cached {
    struct stat status {};  ///< when it was read
    std::shared_ptr<const IniFile> file;
};

std::mutex& CacheLock() {
    static platform::base::Immortal<std::mutex> lock;
    return *lock;
}

bool ReadAll(int descriptor, off_t size, std::string& text) {
    text.resize(static_cast<std::size_t>(size));
    std::size_t done = 0;
    while (done < text.size()) {
        const ssize_t now = read(descriptor, text.data() + done, text.size() - done);
        if (now < 0 && errno == EINTR) {
            continue;
        }
        if (now < 0) {
            return false;
        }
        if (now == 0) {
            break;
        }
        done += static_cast<std::size_t>(now);
    }
    text.resize(done);
    return true;
}

/// @returns the file's text; an empty one when there is no such file; nothing, after one line, when it cannot be read.
std::optional<std::string> ReadText(const std::string& path, struct stat* status) {
    const Descriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (file.number < 0) {
        *status = {};
        if (errno == ENOENT || errno == ENOTDIR) {
            return std::string();
        }
    } else if (fstat(file.number, status) == 0 && S_ISREG(status->st_mode) && status->st_size <= kMostFileBytes) {
        std::string text;
        if (ReadAll(file.number, status->st_size, text)) {
            return text;
        }
    }
    base::ReportOnce(("cannot read the settings file " + path).c_str());
    return std::nullopt;
}

bool IsCurrent(const Cached& cached, const struct stat& status) {
    const struct stat& then = cached.status;
    return cached.file && then.st_size == status.st_size && then.st_ino == status.st_ino &&
           then.st_mtim.tv_sec == status.st_mtim.tv_sec && then.st_mtim.tv_nsec == status.st_mtim.tv_nsec;
}

// A file that has not changed since it was read costs one look at its date.
std::shared_ptr<const IniFile> Load(const std::string& path) {
    static auto& cache = *new std::map<std::string, Cached>;
    const std::lock_guard guard(CacheLock());
    struct stat status {};
    if (stat(path.c_str(), &status) != 0) {
        status = {};
    }
    Cached& cached = cache[path];
    if (IsCurrent(cached, status)) {
        return cached.file;
    }
    cached.file = std::make_shared<const IniFile>(ReadText(path, &status).value_or(std::string()));
    cached.status = status;
    return cached.file;
}

bool WriteAll(int descriptor, const std::string& text) {
    for (std::size_t done = 0; done < text.size();) {
        const ssize_t now = write(descriptor, text.data() + done, text.size() - done);
        if (now < 0 && errno == EINTR) {
            continue;
        }
        if (now <= 0) {
            return false;
        }
        done += static_cast<std::size_t>(now);
    }
    return fsync(descriptor) == 0;
}

bool ReplaceFile(const std::string& named, const std::string& text) {
    // What a link leads to is replaced, not the link.
    char resolved[PATH_MAX];
    const std::string path = realpath(named.c_str(), resolved) ? resolved : named;
    std::string temporary = path + ".XXXXXX";
    struct stat status {};
    const mode_t mode = stat(path.c_str(), &status) == 0 ? status.st_mode & 0777 : 0644;
    const Descriptor file(mkstemp(temporary.data()));
    if (file.number < 0) {
        return false;
    }
    fchmod(file.number, mode);
    if (WriteAll(file.number, text) && rename(temporary.c_str(), path.c_str()) == 0) {
        return true;
    }
    unlink(temporary.c_str());
    return false;
}

// Applies an edit to the file as it is now. Writers take turns by a lock on the folder.
template <class Edit>
BOOL Change(const std::string& path, Edit edit) {
    const std::string folder = path.substr(0, path.find_last_of('/'));
    if (base::IsStateFolder(folder) && !base::EnsureStateFolder()) {
        return base::Fail(ERROR_ACCESS_DENIED, FALSE);
    }
    const Descriptor lock(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (lock.number < 0) {
        return base::Fail(ERROR_PATH_NOT_FOUND, FALSE);
    }
    flock(lock.number, LOCK_EX);
    struct stat status {};
    const std::optional<std::string> text = ReadText(path, &status);
    if (!text) {
        return base::Fail(ERROR_ACCESS_DENIED, FALSE);
    }
    IniFile file(*text);
    edit(file);
    const std::string changed = file.Text();
    if (changed == *text) {
        return TRUE;
    }
    if (!ReplaceFile(path, changed)) {
        return base::Fail(errno == ENOSPC ? ERROR_DISK_FULL : ERROR_ACCESS_DENIED, FALSE);
    }
    return TRUE;
}

std::string WinIni() {
    return base::StateFolder() + "/win.ini";
}

// A bare name, and one in the Windows folder, which is where bare names lie, is a file of the state folder.
std::string ProfilePath(LPCSTR file) {
    std::string plain = Utf8FromAnsi(WithoutTail(file ? file : "win.ini"));
    if (plain.find_first_of("\\/:") != std::string::npos) {
        FullPath full;
        std::string path;
        if (Complete(file, &full) == ERROR_SUCCESS && full.drive == 'c' && full.names.size() == 2 && !full.closed &&
            strcasecmp(full.names[0].c_str(), "WINDOWS") == 0) {
            plain = WithoutTail(full.names[1]);
        } else {
            FindHostFile(file, &path);
            return path;
        }
    }
    if (strcasecmp(plain.c_str(), "win.ini") == 0) {
        return WinIni();
    }
    std::string path = base::StateFolder() + '/' + plain;
    if (access(path.c_str(), F_OK) != 0) {
        const std::string other = FindInAnyCase(base::StateFolder(), plain);
        return other.empty() ? path : base::StateFolder() + '/' + other;
    }
    return path;
}

DWORD DeliverText(std::string_view text, LPSTR buffer, DWORD size) {
    if (size == 0) {
        return 0;
    }
    const DWORD copied = text.size() < size ? static_cast<DWORD>(text.size()) : size - 1;
    std::memcpy(buffer, text.data(), copied);
    buffer[copied] = '\0';
    return copied;
}

/// The value of a key: from the file, or for win.ini's international settings from the host.
std::optional<std::string> Value(const std::string& path, LPCSTR section, LPCSTR key) {
    if (!section || !key) {
        return std::nullopt;
    }
    const std::shared_ptr<const IniFile> file = Load(path);
    const std::string* value = file->Find(section, key);
    if (!value && lstrcmpiA(section, "intl") == 0 && path == WinIni()) {
        value = HostIntlValue(key);
    }
    return value ? std::optional(*value) : std::nullopt;
}

DWORD GetText(const std::string& path, LPCSTR section, LPCSTR key, LPCSTR defaultText, LPSTR buffer, DWORD size) {
    if (!buffer) {
        return 0;
    }
    if (const std::optional<std::string> value = Value(path, section, key)) {
        return DeliverText(*value, buffer, size);
    }
    std::string_view otherwise = defaultText ? defaultText : "";
    while (otherwise.ends_with(' ')) {
        otherwise.remove_suffix(1);
    }
    return DeliverText(otherwise, buffer, size);
}

// A sign, then digits up to the first character that is none; "0x" begins hexadecimal ones. An empty value is no
// number.
UINT GetNumber(const std::string& path, LPCSTR section, LPCSTR key, INT defaultValue) {
    const std::optional<std::string> value = Value(path, section, key);
    if (!value || value->empty()) {
        return static_cast<UINT>(defaultValue);
    }
    const char* at = value->c_str();
    const bool negative = *at == '-';
    at += *at == '-' || *at == '+';
    const UINT base = at[0] == '0' && (at[1] | 0x20) == 'x' ? 16 : 10;
    at += base == 16 ? 2 : 0;
    UINT number = 0;
    for (;; ++at) {
        const char small = static_cast<char>(*at | 0x20);
        const UINT digit = *at >= '0' && *at <= '9'       ? static_cast<UINT>(*at - '0')
                           : small >= 'a' && small <= 'f' ? static_cast<UINT>(small - 'a' + 10)
                                                          : 16;
        if (digit >= base) {
            return negative ? 0 - number : number;
        }
        number = number * base + digit;
    }
}

BOOL Write(const std::string& path, LPCSTR section, LPCSTR key, LPCSTR text) {
    if (!section) {
        return base::Fail(ERROR_INVALID_PARAMETER, FALSE);
    }
    return Change(path, [&](IniFile& file) {
        if (!key) {
            file.RemoveSection(section);
        } else if (!text) {
            file.RemoveKey(section, key);
        } else {
            file.Set(section, key, text);
        }
    });
}

}  // namespace

namespace platform::kernel {

std::optional<std::string> WinIniValue(const char* section, const char* key) {
    const std::shared_ptr<const IniFile> file = Load(WinIni());
    const std::string* value = file->Find(section, key);
    return value ? std::optional<std::string>(*value) : std::nullopt;
}

}  // namespace platform::kernel

UINT WINAPI GetProfileIntA(LPCSTR section, LPCSTR key, INT defaultValue) {
    return Guarded(static_cast<UINT>(defaultValue), [&] { return GetNumber(WinIni(), section, key, defaultValue); });
}

DWORD WINAPI GetProfileStringA(LPCSTR section, LPCSTR key, LPCSTR defaultText, LPSTR buffer, DWORD size) {
    return Guarded(DWORD{0}, [&] { return GetText(WinIni(), section, key, defaultText, buffer, size); });
}

BOOL WINAPI WriteProfileStringA(LPCSTR section, LPCSTR key, LPCSTR text) {
    return Guarded(FALSE, [&] { return Write(WinIni(), section, key, text); });
}

UINT WINAPI GetPrivateProfileIntA(LPCSTR section, LPCSTR key, INT defaultValue, LPCSTR file) {
    return Guarded(static_cast<UINT>(defaultValue),
                   [&] { return GetNumber(ProfilePath(file), section, key, defaultValue); });
}

DWORD WINAPI GetPrivateProfileStringA(LPCSTR section, LPCSTR key, LPCSTR defaultText, LPSTR buffer, DWORD size,
                                      LPCSTR file) {
    return Guarded(DWORD{0}, [&] { return GetText(ProfilePath(file), section, key, defaultText, buffer, size); });
}

BOOL WINAPI WritePrivateProfileStringA(LPCSTR section, LPCSTR key, LPCSTR text, LPCSTR file) {
    return Guarded(FALSE, [&] { return Write(ProfilePath(file), section, key, text); });
}
