// Drives and the current folder.
#include <windows.h>

#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <exception>
#include <filesystem>
#include <string>

#include "kernel/guarded.h"
#include "kernel/hostfile.h"
#include "kernel/probe.h"

using namespace platform::kernel;

UINT WINAPI GetDriveTypeA(LPCSTR root) {
    return Guarded(UINT{DRIVE_UNKNOWN}, [&]() -> UINT {
        if (!root) {
            return DRIVE_FIXED;  // of the current folder, which is there
        }
        FullPath full;
        std::string folder;
        if (!IsReadableText(root) || Complete(root, &full) != ERROR_SUCCESS) {
            return DRIVE_NO_ROOT_DIR;
        }
        // "C:" alone is the drive here, whatever its current folder; a folder below a root is no root.
        const bool alone = root[1] == ':' && !root[2];
        const bool whole = alone || (full.closed && full.names.empty());
        return whole && DriveFolder(full.drive, &folder) ? DRIVE_FIXED : DRIVE_NO_ROOT_DIR;
    });
}

DWORD WINAPI GetLogicalDrives(void) {
    return Guarded(DWORD{0}, [&]() -> DWORD {
        DWORD drives = 0;
        std::string folder;
        for (char letter = 'a'; letter <= 'z'; ++letter) {
            if (DriveFolder(letter, &folder)) {
                drives |= 1u << (letter - 'a');
            }
        }
        return drives;
    });
}

DWORD WINAPI GetLogicalDriveStringsA(DWORD size, LPSTR buffer) {
    return Guarded(DWORD{0}, [&]() -> DWORD {
        std::string roots;
        const DWORD drives = GetLogicalDrives();
        for (char letter = 'A'; letter <= 'Z'; ++letter) {
            if (drives & 1u << (letter - 'A')) {
                roots.append(1, letter).append(":\\").append(1, '\0');
            }
        }
        return CopyOut(roots, buffer, size);
    });
}

DWORD WINAPI GetCurrentDirectoryA(DWORD size, LPSTR buffer) {
    return Guarded(DWORD{0}, [&]() -> DWORD {
        std::error_code error;
        const std::string host = std::filesystem::current_path(error).string();
        if (error) {
            SetLastError(static_cast<DWORD>(ErrorOfHost(error.value())));
            return 0;
        }
        return CopyOut(DrivePath(host == "/" ? "" : host), buffer, size);
    });
}

BOOL WINAPI SetCurrentDirectoryA(LPCSTR path) {
    return Guarded(FALSE, [&]() -> BOOL {
        std::string host;
        LONG error = path && *path ? FindHostFile(path, &host) : ERROR_PATH_NOT_FOUND;
        if (!error && chdir(host.c_str()) != 0) {
            error = errno == ENOTDIR ? ERROR_DIRECTORY : ErrorOfHost(errno);
        }
        SetLastError(static_cast<DWORD>(error));
        return error == ERROR_SUCCESS;
    });
}
