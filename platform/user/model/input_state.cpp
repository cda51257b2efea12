#include "user/model/input_state.h"

namespace platform::user {

InputState& Input() {
    static auto* input = new InputState;
    return *input;
}

}  // namespace platform::user
