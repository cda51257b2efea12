// Window properties: handles kept with a window under a name or an atom.
#include "user/model/window.h"

#include <algorithm>
#include <new>

#include "user/model/atoms.h"

namespace platform::user {

namespace {

/// The name that a property is kept under; a number is a name too.
class PropertyName {
  public:
    explicit PropertyName(LPCSTR name) {
        if (!IS_INTRESOURCE(name)) {
            view_ = name;
        } else if (LOWORD(name)) {
            owned_ = '#' + std::to_string(LOWORD(name));
            view_ = owned_;
        } else {
            SetLastError(ERROR_INVALID_PARAMETER);
        }
    }
    bool Valid() const {
        return !view_.empty();
    }
    std::string_view View() const {
        return view_;
    }

  private:
    std::string owned_;
    std::string_view view_;
};

auto Locate(Window* window, std::string_view name) {
    return std::find_if(window->properties.begin(), window->properties.end(),
                        [name](const WindowProperty& one) { return SameName(one.name, name); });
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
    const PropertyName key(name);
    if (!key.Valid()) {
        return FALSE;
    }
    const auto found = Locate(object, key.View());
    if (found != object->properties.end()) {
        found->data = data;
    } else {
        object->properties.push_back({std::string(key.View()), data});
    }
    return TRUE;
} catch (const std::bad_alloc&) {
    SetLastError(ERROR_NOT_ENOUGH_MEMORY);
    return FALSE;
}

HANDLE WINAPI GetPropA(HWND window, LPCSTR name) try {
    const UserGuard guard(UserLock());
    Window* object = FindWindowObject(window);
    if (!object || object->properties.empty()) {
        return nullptr;
    }
    const auto found = Locate(object, PropertyName(name).View());
    return found == object->properties.end() ? nullptr : found->data;
} catch (const std::bad_alloc&) {
    SetLastError(ERROR_NOT_ENOUGH_MEMORY);
    return nullptr;
}

HANDLE WINAPI RemovePropA(HWND window, LPCSTR name) try {
    const UserGuard guard(UserLock());
    Window* object = FindWindowObject(window);
    if (!object) {
        return nullptr;
    }
    const auto found = Locate(object, PropertyName(name).View());
    if (found == object->properties.end()) {
        return nullptr;
    }
    const HANDLE data = found->data;
    object->properties.erase(found);
    return data;
} catch (const std::bad_alloc&) {
    SetLastError(ERROR_NOT_ENOUGH_MEMORY);
    return nullptr;
}
