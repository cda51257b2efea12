#include "kernel/files/hostpath.h"

#include <algorithm>

#include "kernel/text/encoding.h"

namespace platform::kernel {

std::string WindowsPath(const std::string& host) {
    std::string path = host.starts_with('/') ? "Z:" + host : host;
    std::replace(path.begin(), path.end(), '/', '\\');
    return AnsiFromUtf8(path);
}

}  // namespace platform::kernel
