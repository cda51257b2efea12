// The process: command line, environment, standard streams, system folders.
#include <windows.h>

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>
#include <string>

#include "base/handle.h"

namespace {

// One argument as a Windows program expects to find it: quoted where it holds blanks, backslashes doubled before a quote.
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
        line += (line.empty() ? "" : " ") + Quoted(argument);
    }
    return line;
}

DWORD Deliver(const char* value, LPSTR buffer, DWORD size) {
    const auto length = static_cast<DWORD>(std::strlen(value));
    if (!buffer || length >= size) {
        return length + 1;
    }
    std::memcpy(buffer, value, length + 1);
    return length;
}

// Standard handles are numbers of their own, which no table ever gives out.
constexpr ULONG_PTR kFirstStandard = 0x10;

}  // namespace

LPSTR WINAPI GetCommandLineA(void) {
    static std::string& line = *new std::string(MakeCommandLine());
    return line.data();
}

DWORD WINAPI GetEnvironmentVariableA(LPCSTR name, LPSTR buffer, DWORD size) {
    const char* value = name ? std::getenv(name) : nullptr;
    if (!value) {
        SetLastError(ERROR_ENVVAR_NOT_FOUND);
        return 0;
    }
    return Deliver(value, buffer, size);
}

BOOL WINAPI SetEnvironmentVariableA(LPCSTR name, LPCSTR value) {
    if (!name || !*name || std::strchr(name, '=')) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return FALSE;
    }
    return (value ? setenv(name, value, 1) : unsetenv(name)) == 0;
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

BOOL WINAPI WriteFile(HANDLE file, LPCVOID bytes, DWORD count, LPDWORD written, LPVOID) {
    const ULONG_PTR stream = reinterpret_cast<ULONG_PTR>(file) - kFirstStandard;
    DWORD done = 0;
    if (stream != 1 && stream != 2) {
        SetLastError(ERROR_INVALID_HANDLE);
        return FALSE;
    }
    while (done < count) {
        const ssize_t now = write(static_cast<int>(stream), static_cast<const char*>(bytes) + done, count - done);
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
    return Deliver("C:\\WINDOWS", buffer, size);
}

UINT WINAPI GetSystemDirectoryA(LPSTR buffer, UINT size) {
    return Deliver("C:\\WINDOWS\\SYSTEM", buffer, size);
}
