#include "display/display.h"

#include "base/report.h"
#include "display/sdl/entry.h"

#include <atomic>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <new>
#include <string>

namespace platform::display {
namespace {

std::atomic<bool> interactive{false};

constexpr char kChoice[] = "CVUTIL32_DISPLAY";
constexpr char kSdlModule[] = "libcvdisplay_sdl.so";

bool IsSet(const char* variable) {
    const char* value = std::getenv(variable);
    return value != nullptr && *value != '\0';
}

bool Is(const char* variable, const char* value) {
    const char* found = std::getenv(variable);
    return found != nullptr && std::strcmp(found, value) == 0;
}

bool HostWanted() {
    return !Is(kChoice, "none") && (IsSet("DISPLAY") || IsSet("WAYLAND_DISPLAY"));
}

void* OpenSdlModule() {
    Dl_info self{};
    if (dladdr(reinterpret_cast<void*>(&OpenSdlModule), &self) != 0 && self.dli_fname != nullptr) {
        std::string path(self.dli_fname);
        path.resize(path.rfind('/') == std::string::npos ? 0 : path.rfind('/') + 1);
        path += kSdlModule;
        if (void* module = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL)) {
            return module;
        }
    }
    return dlopen(kSdlModule, RTLD_NOW | RTLD_LOCAL);
}

// The module is never closed again: the host's video libraries keep threads and exit handlers of their own.
std::unique_ptr<Display> CreateSdl(const Sink& sink, const Source& source, int width, int height) {
    void* module = OpenSdlModule();
    if (module == nullptr) {
        const char* reason = dlerror();
        base::ReportOnce(
            (std::string("no window on the desktop: ") + (reason != nullptr ? reason : kSdlModule)).c_str());
        return nullptr;
    }
    const auto create = reinterpret_cast<SdlCreateFunction>(dlsym(module, kSdlCreateName));
    if (create == nullptr) {
        base::ReportOnce("no window on the desktop: libcvdisplay_sdl.so is not of this version");
        return nullptr;
    }
    char reason[256] = "";
    std::unique_ptr<Display> display(create(&sink, &source, width, height, DesktopIsScreen(), reason, sizeof reason));
    if (display == nullptr) {
        base::ReportOnce((std::string("no window on the desktop: ") + reason).c_str());
    }
    return display;
}

}  // namespace

// Programs do not place their windows themselves on a Wayland desktop, nor hear where the pointer is: there, unless it has an
// X server too, one window shows the whole screen.
bool DesktopIsScreen() {
    return HostWanted() && !Is(kChoice, "screen") && IsSet("DISPLAY") && !Is("SDL_VIDEODRIVER", "wayland");
}

bool IsInteractive() {
    return interactive;
}

std::unique_ptr<Display> Create(const Sink& sink, const Source& source, int width, int height) {
    interactive = false;
    try {
        if (HostWanted()) {
            if (auto display = CreateSdl(sink, source, width, height)) {
                interactive = display->Interactive();
                return display;
            }
        }
    } catch (const std::bad_alloc&) {
    }
    return std::unique_ptr<Display>(new (std::nothrow) Display);
}

}  // namespace platform::display
