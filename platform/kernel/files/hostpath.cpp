#include "kernel/files/hostpath.h"

#include <algorithm>

#include "base/state.h"
#include "kernel/text/encoding.h"

namespace platform::kernel {

std::string HostPath(const std::string& path) {
    std::string host = Utf8FromAnsi(path);
    std::replace(host.begin(), host.end(), '\\', '/');
    if (host.size() >= 2 && host[1] == ':') {
        const char drive = static_cast<char>(host[0] | 0x20);
        host.erase(0, 2);
        if (host.empty() || host[0] != '/') {
            host.insert(0, 1, '/');
        }
        return drive == 'z' ? host : base::StateFolder() + "/drive_" + drive + host;
    }
    if (!host.empty() && host[0] == '/') {
        return host;
    }
    // The Windows folder of a program that gives no path is where win.ini lies.
    return base::StateFolder() + "/" + host;
}

std::string WindowsPath(const std::string& host) {
    std::string path = host.starts_with('/') ? "Z:" + host : host;
    std::replace(path.begin(), path.end(), '/', '\\');
    return AnsiFromUtf8(path);
}

}  // namespace platform::kernel
