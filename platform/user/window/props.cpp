// Window properties: handles kept with a window under a name.
#include "user/model/window.h"

#include <algorithm>
#include <new>

namespace platform::user {

namespace {

auto Locate(Window* window, LPCSTR name) {
    return std::find_if(window->properties.begin(), window->properties.end(), [name](const WindowProperty& one) {
        return !IS_INTRESOURCE(name) && SameName(one.name, name);
    });
}

}  // namespace

}  // namespace platform::user

using namespace platform::user;

BOOL WINAPI SetPropA(HWND window, LPCSTR name, HANDLE data) try {
    const UserGuard guard(UserLock());
    Window* object = FindWindowObject(window);
    if (!object) {
        return FALSE;
    }
    if (IS_INTRESOURCE(name) || !*name) {
        return Fail(ERROR_INVALID_PARAMETER, FALSE);
    }
    const auto found = Locate(object, name);
    if (found != object->properties.end()) {
        found->data = data;
    } else {
        object->properties.push_back({name, data});
    }
    return TRUE;
} catch (const std::bad_alloc&) {
    return Fail(ERROR_NOT_ENOUGH_MEMORY, FALSE);
}

HANDLE WINAPI GetPropA(HWND window, LPCSTR name) {
    const UserGuard guard(UserLock());
    Window* object = FindWindowObject(window);
    if (!object || object->properties.empty()) {
        return nullptr;
    }
    const auto found = Locate(object, name);
    return found == object->properties.end() ? nullptr : found->data;
}

HANDLE WINAPI RemovePropA(HWND window, LPCSTR name) {
    const UserGuard guard(UserLock());
    Window* object = FindWindowObject(window);
    if (!object) {
        return nullptr;
    }
    const auto found = Locate(object, name);
    if (found == object->properties.end()) {
        return nullptr;
    }
    const HANDLE data = found->data;
    object->properties.erase(found);
    return data;
}
