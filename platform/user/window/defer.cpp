// Changes of several windows' positions that are collected and then made together.
#include <algorithm>
#include <memory>
#include <new>
#include <vector>

#include "base/handle.h"
#include "user/window/position.h"

namespace platform::user {
namespace {

constexpr UINT kKeep = SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOREDRAW | SWP_NOACTIVATE | SWP_NOCOPYBITS |
                       SWP_NOOWNERZORDER | SWP_NOSENDCHANGING | SWP_DEFERERASE;

struct Batch {
    std::vector<PositionChange> changes;
};

/// A later request for the same window adds to the earlier one.
void Merge(WINDOWPOS& into, const WINDOWPOS& add) {
    if ((add.flags & SWP_NOMOVE) == 0) {
        into.x = add.x;
        into.y = add.y;
    }
    if ((add.flags & SWP_NOSIZE) == 0) {
        into.cx = add.cx;
        into.cy = add.cy;
    }
    if ((add.flags & SWP_NOZORDER) == 0) {
        into.hwndInsertAfter = add.hwndInsertAfter;
    }
    into.flags = (into.flags & add.flags & kKeep) | ((into.flags | add.flags) & ~kKeep);
}

}  // namespace
}  // namespace platform::user

using namespace platform::user;
namespace base = platform::base;

HDWP WINAPI BeginDeferWindowPos(int count) {
    if (count < 0) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    try {
        auto batch = std::make_unique<Batch>();
        batch->changes.reserve(std::min(count, 64));
        const auto handle = base::InsertHandle(base::HandleKind::PositionBatch, batch.get());
        if (handle == 0) {
            SetLastError(ERROR_NOT_ENOUGH_MEMORY);
            return nullptr;
        }
        batch.release();
        return base::ToHandle<HDWP>(handle);
    } catch (const std::bad_alloc&) {
        SetLastError(ERROR_NOT_ENOUGH_MEMORY);
        return nullptr;
    }
}

HDWP WINAPI DeferWindowPos(HDWP handle, HWND window, HWND after, int x, int y, int width, int height, UINT flags) {
    auto* batch = base::Find<Batch>(handle, base::HandleKind::PositionBatch);
    if (batch == nullptr) {
        SetLastError(ERROR_INVALID_HANDLE);
        return nullptr;
    }
    UserGuard guard(UserLock());
    const Window* object = FindWindowObject(window);
    bool good = object != nullptr && object != Desktop();
    if (good && (flags & SWP_NOZORDER) == 0 && !IsInsertAfter(after)) {
        const Window* sibling = FindWindowObject(after);
        good = sibling != nullptr && sibling->parent == object->parent;
    }
    if (good) {
        try {
            const WINDOWPOS position{window, after, x, y, width, height, flags};
            const auto known =
                std::find_if(batch->changes.begin(), batch->changes.end(),
                             [window](const PositionChange& each) { return each.position.hwnd == window; });
            if (known != batch->changes.end()) {
                Merge(known->position, position);
            } else {
                batch->changes.push_back(PositionChange{position});
            }
            return handle;
        } catch (const std::bad_alloc&) {
            SetLastError(ERROR_NOT_ENOUGH_MEMORY);
        }
    }
    // A batch that could not take a window is gone, so that callers need not end it.
    delete static_cast<Batch*>(base::RemoveHandle(base::ToNumber(handle), base::HandleKind::PositionBatch));
    return nullptr;
}

BOOL WINAPI EndDeferWindowPos(HDWP handle) {
    const std::unique_ptr<Batch> batch(
        static_cast<Batch*>(base::RemoveHandle(base::ToNumber(handle), base::HandleKind::PositionBatch)));
    if (batch == nullptr) {
        SetLastError(ERROR_INVALID_HANDLE);
        return FALSE;
    }
    if (batch->changes.empty()) {
        return TRUE;
    }
    return ChangePositions(batch->changes.data(), batch->changes.size());
}
