// The mouse pointer: its place and its shape.
#include "user/input/above.h"
#include "user/input/input.h"
#include "user/model/input_state.h"
#include "user/resource/icons.h"

namespace platform::user {
namespace {

HCURSOR currentCursor = nullptr;  // guarded by UserLock

void PresentCursor() {
    unsigned shape = 0;
    {
        UserGuard guard(UserLock());
        shape = currentCursor != nullptr ? CursorShape(currentCursor) : 0;
    }
    ShowCursorShape(shape);
}

}  // namespace
}  // namespace platform::user

using namespace platform::user;

BOOL WINAPI GetCursorPos(LPPOINT position) {
    if (position == nullptr) {
        SetLastError(ERROR_NOACCESS);
        return FALSE;
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
    HCURSOR previous = nullptr;
    {
        UserGuard guard(UserLock());
        previous = currentCursor;
        currentCursor = cursor;
    }
    PresentCursor();
    return previous;
}
