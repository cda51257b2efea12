#include "tests/support/temp_folder.h"

namespace testing_support {

std::filesystem::path HostPathOf(std::string const& path) {
    return path;
}

}  // namespace testing_support
