#include <cvplatform.h>

#include <initializer_list>

#include "base/handle.h"
#include "base/live.h"

namespace {

using platform::base::HandleKind;

size_t Sum(std::initializer_list<HandleKind> kinds) {
    size_t sum = 0;
    for (const HandleKind kind : kinds) {
        sum += platform::base::CountHandles(kind);
    }
    return sum;
}

}  // namespace

size_t CvPlatformCount(CvPlatformKind kind) {
    switch (kind) {
        case CV_PLATFORM_GLOBAL_BLOCKS:
            return Sum({HandleKind::GlobalBlock});
        case CV_PLATFORM_WINDOWS:
            return Sum({HandleKind::Window});
        case CV_PLATFORM_GDI_OBJECTS:
            return Sum(
                {HandleKind::Pen, HandleKind::Brush, HandleKind::Font, HandleKind::Bitmap, HandleKind::DeviceContext});
        case CV_PLATFORM_OTHER_HANDLES:
            return Sum({HandleKind::Thread, HandleKind::Event, HandleKind::FindFile, HandleKind::RegistryKey});
        case CV_PLATFORM_COMPONENT_OBJECTS:
            return static_cast<size_t>(platform::base::g_componentObjects.load());
        case CV_PLATFORM_SHELL_BLOCKS:
            return static_cast<size_t>(platform::base::g_shellBlocks.load());
    }
    return 0;
}
