// The process: command line, environment, standard streams, system folders.
#include <windows.h>

#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <new>
#include <string>

#include "kernel/encoding.h"
#include "kernel/guarded.h"
#include "kernel/hostpath.h"

using platform::kernel::AnsiFromUtf8;
using platform::kernel::CopyOut;
using platform::kernel::Utf8FromAnsi;

namespace {

// One argument as a Windows program expects to find it: quoted where it holds blanks, backslashes doubled before a
// quote.
std::string Quoted(const std::string& argument) {
    if (!argument.empty() && argument.find_first_of(" \t\"") == std::string::npos) {
        return argument;
    }
    std::string quoted = "\"";
    std::size_t slashes = 0;
    for (const char character : argument) {
        slashes = character == '\\' ? slashes + 1 : (quoted.append(character == '"' ? slashes + 1 : 0, '\\'), 0);
        quoted += character;
    }
    return quoted.append(slashes, '\\') + '"';
}

std::string MakeCommandLine() {
    std::ifstream file("/proc/self/cmdline", std::ios::binary);
    std::string line;
    for (std::string argument; std::getline(file, argument, '\0');) {
        line += (line.empty() ? "" : " ") + Quoted(AnsiFromUtf8(argument));
    }
    return line;
}

// Standard handles are numbers of their own, which no table ever gives out.
constexpr ULONG_PTR kFirstStandard = 0x10;

}  // namespace

LPSTR WINAPI GetCommandLineA(void) {
    static char none[] = "";
    return platform::kernel::Guarded<LPSTR>(none, [] {
        static std::string& line = *new std::string(MakeCommandLine());
        return line.data();
    });
}

void WINAPI GetStartupInfoA(LPSTARTUPINFOA information) {
    *information = STARTUPINFOA{};
    information->cb = sizeof(STARTUPINFOA);
    information->dwFlags = STARTF_USESTDHANDLES;
    information->hStdInput = GetStdHandle(STD_INPUT_HANDLE);
    information->hStdOutput = GetStdHandle(STD_OUTPUT_HANDLE);
    information->hStdError = GetStdHandle(STD_ERROR_HANDLE);
}

DWORD WINAPI GetEnvironmentVariableA(LPCSTR name, LPSTR buffer, DWORD size) {
    try {
        const char* value = name ? std::getenv(Utf8FromAnsi(name).c_str()) : nullptr;
        if (!value) {
            SetLastError(ERROR_ENVVAR_NOT_FOUND);
            return 0;
        }
        return CopyOut(AnsiFromUtf8(value), buffer, size);
    } catch (const std::bad_alloc&) {
        SetLastError(ERROR_NOT_ENOUGH_MEMORY);
        return 0;
    }
}

BOOL WINAPI SetEnvironmentVariableA(LPCSTR name, LPCSTR value) {
    if (!name || !*name || std::strchr(name, '=')) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return FALSE;
    }
    try {
        const std::string hostName = Utf8FromAnsi(name);
        return (value ? setenv(hostName.c_str(), Utf8FromAnsi(value).c_str(), 1) : unsetenv(hostName.c_str())) == 0;
    } catch (const std::bad_alloc&) {
        SetLastError(ERROR_NOT_ENOUGH_MEMORY);
        return FALSE;
    }
}

HANDLE WINAPI GetStdHandle(DWORD which) {
    switch (which) {
        case STD_INPUT_HANDLE:
        case STD_OUTPUT_HANDLE:
        case STD_ERROR_HANDLE:
            return reinterpret_cast<HANDLE>(kFirstStandard + (STD_INPUT_HANDLE - which));
        default:
            SetLastError(ERROR_INVALID_HANDLE);
            return INVALID_HANDLE_VALUE;
    }
}

BOOL WINAPI WriteFile(HANDLE file, LPCVOID bytes, DWORD count, LPDWORD written, LPOVERLAPPED) {
    const ULONG_PTR stream = reinterpret_cast<ULONG_PTR>(file) - kFirstStandard;
    DWORD done = 0;
    if (stream != 1 && stream != 2) {
        SetLastError(ERROR_INVALID_HANDLE);
        return FALSE;
    }
    while (done < count) {
        const ssize_t now = write(static_cast<int>(stream), static_cast<const char*>(bytes) + done, count - done);
        if (now < 0 && errno == EINTR) {
            continue;
        }
        if (now <= 0) {
            break;
        }
        done += static_cast<DWORD>(now);
    }
    if (written) {
        *written = done;
    }
    if (done < count) {
        SetLastError(ERROR_WRITE_FAULT);
        return FALSE;
    }
    return TRUE;
}

void WINAPI OutputDebugStringA(LPCSTR) {
    // Nobody listens: without a debugger this does nothing on Windows either.
}

DWORD WINAPI GetCurrentProcessId(void) {
    return static_cast<DWORD>(getpid());
}

HANDLE WINAPI GetCurrentProcess(void) {
    return reinterpret_cast<HANDLE>(LONG_PTR{-1});
}

void WINAPI ExitProcess(UINT code) {
    std::exit(static_cast<int>(code));
}

UINT WINAPI GetWindowsDirectoryA(LPSTR buffer, UINT size) {
    return CopyOut("C:\\WINDOWS", buffer, size);
}

UINT WINAPI GetSystemDirectoryA(LPSTR buffer, UINT size) {
    return CopyOut("C:\\WINDOWS\\SYSTEM", buffer, size);
}

DWORD WINAPI GetTempPathA(DWORD size, LPSTR buffer) {
    const char* folder = std::getenv("TMPDIR");
    try {
        std::string path = platform::kernel::WindowsPath(folder && *folder == '/' ? folder : "/tmp");
        if (!path.ends_with('\\')) {
            path += '\\';
        }
        return CopyOut(path, buffer, size);
    } catch (const std::bad_alloc&) {
        SetLastError(ERROR_NOT_ENOUGH_MEMORY);
        return 0;
    }
}
