// Drives.
#include <windows.h>

#include <string>

#include "kernel/guarded.h"
#include "kernel/files/hostfile.h"
#include "kernel/memory/probe.h"

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
