#include "display/sdl/entry.h"

#include "display/sdl/sdl_display.h"

#include <exception>
#include <cstdio>
#include <memory>
#include <string>

using namespace platform::display;

extern "C" __attribute__((visibility("default"))) Display* cvdisplay_sdl_create(const Sink* sink, const Source* source,
                                                                                int width, int height, bool panes,
                                                                                char* reason, std::size_t reasonSize) {
    try {
        auto display = std::make_unique<SdlDisplay>(*sink, *source, width, height, panes);
        const std::string error = display->Start();
        if (error.empty()) {
            return display.release();
        }
        std::snprintf(reason, reasonSize, "%s", error.c_str());
    } catch (const std::exception& error) {
        std::snprintf(reason, reasonSize, "%s", error.what());
    }
    return nullptr;
}
