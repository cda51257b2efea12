#include "gallery/desktop.h"

#include <windows.h>

#include <cstdlib>
#include <filesystem>

namespace gallery {
namespace {

std::filesystem::path Folder(const char* variable) {
    const char* value = std::getenv(variable);
    return value != nullptr ? value : "";
}

std::filesystem::path StateFolder() {
    if (const auto home = Folder("CVUTIL32_HOME"); !home.empty()) {
        return home;
    }
    for (const char* variable : {"XDG_DATA_HOME", "LOCALAPPDATA"}) {
        if (const auto data = Folder(variable); data.is_absolute()) {
            return data / "cvutil32";
        }
    }
    if (const auto home = Folder("HOME"); !home.empty()) {
        return home / ".local" / "share" / "cvutil32";
    }
    return std::filesystem::temp_directory_path() / "cvutil32";
}

}  // namespace

bool HasDesktop() {
    USEROBJECTFLAGS flags{};
    DWORD needed = 0;
    return !GetUserObjectInformationA(GetProcessWindowStation(), UOI_FLAGS, &flags, sizeof flags, &needed) ||
           (flags.dwFlags & WSF_VISIBLE) != 0;
}

std::string PictureFile() {
    const std::filesystem::path folder = StateFolder();
    std::error_code ignored;  // a folder that cannot be made shows when the picture is written
    std::filesystem::create_directories(folder, ignored);
    return (folder / "gallery.png").string();
}

}  // namespace gallery
