#include "tests/support/leaks.h"

#include <cvplatform.h>

namespace testing_support {

Counts Counts::Now() {
    return {static_cast<DWORD>(CvPlatformCount(CV_PLATFORM_GDI_OBJECTS)),
            static_cast<DWORD>(CvPlatformCount(CV_PLATFORM_WINDOWS)),
            static_cast<DWORD>(CvPlatformCount(CV_PLATFORM_GLOBAL_BLOCKS))};
}

}  // namespace testing_support
