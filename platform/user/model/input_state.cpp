#include "user/model/input_state.h"

#include "base/immortal.h"

namespace platform::user {

InputState& Input() {
    static base::Immortal<InputState> input;
    return *input;
}

}  // namespace platform::user
