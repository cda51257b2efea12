// The drives of the computer: C in the state folder, Z the host, and others where the state folder holds them.
#include <windows.h>

#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>

#include "base/state.h"
#include "kernel/hostpath.h"
#include "shell/place.h"

namespace platform::shell {

bool IsRemovable(char letter) {
    return letter == 'A' || letter == 'B';
}

std::vector<char> Drives() {
    std::vector<char> drives;
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        struct stat facts {};
        std::string root = kernel::HostPath(std::string(1, letter) + ":\\");
        while (root.size() > 1 && root.back() == '/') {
            root.pop_back();
        }
        // A link that leads nowhere is a drive without a medium.
        if (letter == 'C' || letter == 'Z' || lstat(root.c_str(), &facts) == 0) {
            drives.push_back(letter);
        }
    }
    return drives;
}

}  // namespace platform::shell
