#include <cvplatform.h>

#include <initializer_list>

#include "base/handle.h"

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
            return Sum({HandleKind::Pen, HandleKind::Brush, HandleKind::Font, HandleKind::Bitmap, HandleKind::Region,
                        HandleKind::DeviceContext});
        case CV_PLATFORM_OTHER_HANDLES:
            return Sum({HandleKind::Thread, HandleKind::Event, HandleKind::File, HandleKind::FindFile,
                        HandleKind::RegistryKey});
    }
    return 0;
}
