// The process: command line, identity, system folders.
#include <windows.h>

#include <unistd.h>

#include <cstdlib>
#include <cstring>
#include <new>
#include <string>

#include "kernel/text/encoding.h"
#include "kernel/guarded.h"
#include "kernel/files/hostfile.h"
#include "kernel/modules/start/module_registration.h"

using platform::kernel::AnsiFromUtf8;
using platform::kernel::CopyOut;

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

}  // namespace

LPSTR CvPlatformCommandLine(int count, char** arguments) {
    static char none[] = "";
    return platform::kernel::Guarded<LPSTR>(none, [&] {
        static std::string& line = *new std::string;
        for (int i = 1; i < count; ++i) {
            line += (i > 1 ? " " : "") + Quoted(AnsiFromUtf8(arguments[i]));
        }
        return line.data();
    });
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

DWORD WINAPI GetTempPathA(DWORD size, LPSTR buffer) {
    const char* folder = std::getenv("TMPDIR");
    return platform::kernel::Guarded(DWORD{0}, [&] {
        std::string path = platform::kernel::WindowsPath(folder && *folder == '/' ? folder : "/tmp");
        if (!path.ends_with('\\')) {
            path += '\\';
        }
        return CopyOut(path, buffer, size);
    });
}
