// Drives.
#include <windows.h>

#include <string>

#include "kernel/guarded.h"
#include "kernel/hostfile.h"

using namespace platform::kernel;

namespace {

bool IsLetter(char character) {
    return (character | 0x20) >= 'a' && (character | 0x20) <= 'z';
}

}  // namespace

UINT WINAPI GetDriveTypeA(LPCSTR root) {
    return Guarded(UINT{DRIVE_UNKNOWN}, [&]() -> UINT {
        if (!root) {
            return DRIVE_FIXED;  // of the current folder, which is there
        }
        std::string folder;
        const bool whole =
            IsLetter(root[0]) && root[1] == ':' && (!root[2] || ((root[2] == '\\' || root[2] == '/') && !root[3]));
        return whole && DriveFolder(root[0], &folder) ? DRIVE_FIXED : DRIVE_NO_ROOT_DIR;
    });
}
