#include "core/registration.h"

#include <algorithm>

namespace registration {

BOOL RegisterInOrder(std::span<Function const> functions, HINSTANCE instance) {
    return std::all_of(functions.begin(), functions.end(), [=](Function add) { return add(instance) != 0; });
}

}  // namespace registration
