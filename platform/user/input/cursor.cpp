// The mouse pointer: its place, its shape, and how long two clicks belong together.
#include <algorithm>

#include "user/input/above.h"
#include "user/input/input.h"
#include "user/model/input_state.h"
#include "user/resource/icons.h"

namespace platform::user {
namespace {

constexpr UINT kDefaultDoubleClick = 500;
constexpr UINT kLongestDoubleClick = 5000;

// Guarded by UserLock.
HCURSOR currentCursor = nullptr;
int showCount = 0;
UINT doubleClickTime = kDefaultDoubleClick;

void PresentCursor() {
    unsigned shape = 0;
    {
        UserGuard guard(UserLock());
        shape = showCount >= 0 && currentCursor != nullptr ? CursorShape(currentCursor) : 0;
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
    MoveCursor({x, y});
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

HCURSOR WINAPI GetCursor(VOID) {
    UserGuard guard(UserLock());
    return currentCursor;
}

int WINAPI ShowCursor(BOOL show) {
    int count = 0;
    {
        UserGuard guard(UserLock());
        showCount += show ? 1 : -1;
        count = showCount;
    }
    PresentCursor();
    return count;
}

UINT WINAPI GetDoubleClickTime(VOID) {
    UserGuard guard(UserLock());
    return doubleClickTime;
}

BOOL WINAPI SetDoubleClickTime(UINT milliseconds) {
    UserGuard guard(UserLock());
    doubleClickTime = milliseconds == 0 ? kDefaultDoubleClick : std::min(milliseconds, kLongestDoubleClick);
    return TRUE;
}
