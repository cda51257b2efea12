#include "tests/support/temp_folder.h"

#include <windows.h>

#include <fstream>

namespace testing_support {

TempFolder::TempFolder() {
    static int count = 0;
    char temp[MAX_PATH];
    GetTempPathA(sizeof temp, temp);
    path_ = temp + std::string("cvt") + std::to_string(GetCurrentProcessId()) + "_" + std::to_string(++count);
    std::filesystem::create_directories(HostPathOf(path_));
}

TempFolder::~TempFolder() {
    std::error_code error;
    std::filesystem::remove_all(HostPathOf(path_), error);
}

std::string TempFolder::Path(std::string const& name) const {
    return name.empty() ? path_ : path_ + "\\" + name;
}

std::string TempFolder::MakeFile(std::string const& name, std::string const& text) const {
    std::filesystem::path const host = HostPathOf(Path(name));
    std::filesystem::create_directories(host.parent_path());
    std::ofstream(host, std::ios::binary) << text;
    return Path(name);
}

std::string TempFolder::MakeFolder(std::string const& name) const {
    std::filesystem::create_directories(HostPathOf(Path(name)));
    return Path(name);
}

}  // namespace testing_support
