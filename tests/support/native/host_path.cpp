#include "tests/support/temp_folder.h"

#include <algorithm>

namespace testing_support {

std::filesystem::path HostPathOf(std::string const& path) {
    std::string host = path.substr(path.starts_with("Z:") ? 2 : 0);
    std::replace(host.begin(), host.end(), '\\', '/');
    return host;
}

}  // namespace testing_support
