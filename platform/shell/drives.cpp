// The drives of the computer: C in the state folder, Z the host, and others where the state folder holds them.
#include <sys/stat.h>

#include "kernel/files/hostfile.h"
#include "shell/place.h"

namespace platform::shell {

bool IsRemovable(char letter) {
    return letter == 'A' || letter == 'B';
}

std::vector<char> Drives() {
    std::vector<char> drives;
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        std::string folder;
        struct stat facts {};
        // A link that leads nowhere is a drive without a medium.
        if (kernel::DriveFolder(letter, &folder) || lstat(folder.c_str(), &facts) == 0) {
            drives.push_back(letter);
        }
    }
    return drives;
}

}  // namespace platform::shell
