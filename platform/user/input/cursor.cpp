// The mouse pointer: its place and its shape.
#include "user/input/above.h"
#include "user/input/input.h"
#include "user/model/input_state.h"
#include "user/resource/icons.h"

namespace platform::user {
namespace {

HCURSOR currentCursor = nullptr;  // guarded by UserLock

void PresentCursor() {
    const HCURSOR cursor = Shared(currentCursor);
    ShowCursorShape(cursor != nullptr ? CursorShape(cursor) : 0);
}

}  // namespace
}  // namespace platform::user

using namespace platform::user;

BOOL WINAPI GetCursorPos(LPPOINT position) {
    if (position == nullptr) {
        return Fail(ERROR_NOACCESS, FALSE);
    }
    UserGuard guard(UserLock());
    *position = Input().cursor;
    return TRUE;
}

BOOL WINAPI SetCursorPos(int x, int y) {
    InjectMouseMove(x, y);
    return TRUE;
}

HCURSOR WINAPI SetCursor(HCURSOR cursor) {
    const HCURSOR previous = ExchangeShared(currentCursor, cursor);
    PresentCursor();
    return previous;
}
