// Cursors and icons of the system, known by their numbers.
#include <windows.h>

#include <algorithm>
#include <array>
#include <mutex>

#include "base/handle.h"
#include "user/window.h"

namespace {

namespace base = platform::base;
using base::HandleKind;

/// What a handle leads to. The system's own live as long as the process.
struct Shape {
    unsigned number;
    HandleKind kind;
    bool system;
};

constexpr std::array<unsigned, 17> kCursors = {32512, 32513, 32514, 32515, 32516, 32640, 32641, 32642, 32643,
                                               32644, 32645, 32646, 32648, 32649, 32650, 32651, 0};

HANDLE LoadSystem(LPCSTR name, HandleKind kind) {
    const auto number = static_cast<unsigned>(reinterpret_cast<ULONG_PTR>(name));
    const bool known = kind == HandleKind::Cursor
                           ? std::find(kCursors.begin(), kCursors.end() - 1, number) != kCursors.end() - 1
                           : number >= 32512 && number <= 32517;
    if (!IS_INTRESOURCE(name) || !known) {
        SetLastError(ERROR_RESOURCE_NAME_NOT_FOUND);
        return nullptr;
    }
    static std::mutex lock;
    static auto& shapes = *new std::array<std::array<std::uint32_t, 256>, 2>{};
    const std::lock_guard guard(lock);
    std::uint32_t& handle = shapes[kind == HandleKind::Cursor][number & 0xFF];
    if (!handle) {
        handle = base::InsertHandle(kind, new Shape{number, kind, true});
    }
    return base::ToHandle<HANDLE>(handle);
}

BOOL Destroy(HANDLE handle, HandleKind kind, DWORD error) {
    const Shape* shape = base::Find<Shape>(handle, kind);
    if (!shape) {
        SetLastError(error);
        return FALSE;
    }
    if (shape->system) {
        return TRUE;  // shared: destroying it is none of the caller's business and does no harm
    }
    base::RemoveHandle(base::ToNumber(handle), kind);
    delete shape;
    return TRUE;
}

}  // namespace

namespace platform::user {

unsigned CursorShape(HCURSOR cursor) {
    const Shape* shape = base::Find<Shape>(cursor, HandleKind::Cursor);
    return shape ? shape->number : 0;
}

}  // namespace platform::user

HCURSOR WINAPI LoadCursorA(HINSTANCE instance, LPCSTR name) {
    if (instance) {
        SetLastError(ERROR_RESOURCE_NAME_NOT_FOUND);
        return nullptr;
    }
    return static_cast<HCURSOR>(LoadSystem(name, HandleKind::Cursor));
}

BOOL WINAPI DestroyCursor(HCURSOR cursor) {
    return Destroy(cursor, HandleKind::Cursor, ERROR_INVALID_CURSOR_HANDLE);
}

HICON WINAPI LoadIconA(HINSTANCE instance, LPCSTR name) {
    if (instance) {
        SetLastError(ERROR_RESOURCE_NAME_NOT_FOUND);
        return nullptr;
    }
    return static_cast<HICON>(LoadSystem(name, HandleKind::Icon));
}

BOOL WINAPI DestroyIcon(HICON icon) {
    return Destroy(icon, HandleKind::Icon, ERROR_INVALID_ICON_HANDLE);
}

HICON WINAPI CopyIcon(HICON icon) {
    const Shape* shape = base::Find<Shape>(icon, HandleKind::Icon);
    if (!shape) {
        SetLastError(ERROR_INVALID_ICON_HANDLE);
        return nullptr;
    }
    return base::ToHandle<HICON>(base::InsertHandle(HandleKind::Icon, new Shape{shape->number, shape->kind, false}));
}
