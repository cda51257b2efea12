#include "tests/support/leaks.h"

namespace testing_support {

Counts Counts::Now() {
    return {GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS), GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS),
            0};
}

}  // namespace testing_support
