// Window classes: registration, look-up in the documented order, and what can be asked about them.
#include "user/window/class.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <mutex>
#include <new>

#include "kernel/modules/module.h"
#include "user/model/window.h"
#include "user/window/above.h"

namespace platform::user {

namespace {

constexpr int kMostExtra = 0x10000;
constexpr UINT kKnownStyles = CS_VREDRAW | CS_HREDRAW | CS_DBLCLKS | CS_GLOBALCLASS;

constexpr std::size_t kLongestName = 255;

std::vector<std::unique_ptr<WindowClass>>& Classes() {
    static std::vector<std::unique_ptr<WindowClass>> classes;
    return classes;
}

HINSTANCE OrProgram(HINSTANCE instance) {
    return instance ? instance : GetModuleHandleA(nullptr);
}

bool IsGlobal(const WindowClass& windowClass) {
    return !windowClass.system && (windowClass.style & CS_GLOBALCLASS);
}

bool IsRealBrush(HBRUSH brush) {
    return reinterpret_cast<std::uintptr_t>(brush) >= 0x10000;
}

/// @returns an atom that no class has yet, 0 when all are taken. Lock held.
ATOM FreeAtom() {
    ATOM atom = 0xC000;
    while (atom && std::ranges::any_of(Classes(), [=](const auto& one) { return one->atom == atom; })) {
        ++atom;
    }
    return atom;
}

ATOM Register(const WNDCLASSA& given) {
    if (IS_INTRESOURCE(given.lpszClassName) || !*given.lpszClassName ||
        std::strlen(given.lpszClassName) > kLongestName || !given.lpfnWndProc || given.cbClsExtra < 0 ||
        given.cbWndExtra < 0 || given.cbClsExtra > kMostExtra || given.cbWndExtra > kMostExtra ||
        (given.style & ~kKnownStyles)) {
        return Fail(ERROR_INVALID_PARAMETER, 0);
    }
    InitialiseClasses();
    const HINSTANCE instance = OrProgram(given.hInstance);
    const UserGuard guard(UserLock());
    for (const auto& other : Classes()) {
        if (IsNamed(*other, given.lpszClassName) && !other->system &&
            (given.style & CS_GLOBALCLASS ? IsGlobal(*other) : !IsGlobal(*other) && other->instance == instance)) {
            return Fail(ERROR_CLASS_ALREADY_EXISTS, 0);
        }
    }
    const ATOM atom = FreeAtom();
    if (!atom) {
        return Fail(ERROR_NOT_ENOUGH_MEMORY, 0);
    }
    auto made = std::make_unique<WindowClass>();
    made->atom = atom;
    made->name = given.lpszClassName;
    made->instance = instance;
    made->style = given.style;
    made->procedure = given.lpfnWndProc;
    made->windowExtra = given.cbWndExtra;
    made->icon = given.hIcon;
    made->cursor = given.hCursor;
    made->background = given.hbrBackground;
    Classes().push_back(std::move(made));
    return atom;
}

/// Takes one class out. @return false if there is none, and else a brush that is nobody's any more.
bool ForgetOne(HINSTANCE module, HBRUSH& background) {
    const UserGuard guard(UserLock());
    auto& classes = Classes();
    const auto found =
        std::ranges::find_if(classes, [=](const auto& one) { return !one->system && one->instance == module; });
    if (found == classes.end()) {
        return false;
    }
    if ((*found)->windows > 0) {
        // Kept for them, but found by nobody any more.
        (*found)->instance = nullptr;
        (*found)->style &= ~UINT{CS_GLOBALCLASS};
        background = nullptr;
    } else {
        background = (*found)->background;
        classes.erase(found);
    }
    return true;
}

// A module's classes go with it, since its procedures do.
void ForgetClasses(HINSTANCE module) {
    for (HBRUSH background = nullptr; ForgetOne(module, background);) {
        if (IsRealBrush(background)) {
            DeleteObject(background);
        }
    }
}

}  // namespace

WindowClass* FindClass(HINSTANCE instance, LPCSTR name) {
    const HINSTANCE module = OrProgram(instance);
    WindowClass* global = nullptr;
    WindowClass* system = nullptr;
    for (const auto& one : Classes()) {
        if (!IsNamed(*one, name)) {
            continue;
        }
        if (one->system) {
            system = one.get();
        } else if (IsGlobal(*one)) {
            global = one.get();
        } else if (one->instance == module) {
            return one.get();
        }
    }
    return global ? global : system;
}

void RegisterSystemClass(const char* name, WNDPROC procedure, UINT style, int windowExtra, LPCSTR cursor,
                         HBRUSH background) {
    auto made = std::make_unique<WindowClass>();
    made->name = name;
    made->system = true;
    made->style = style;
    made->procedure = procedure;
    made->windowExtra = windowExtra;
    made->cursor = cursor ? LoadCursorA(nullptr, cursor) : nullptr;
    made->background = background;
    const UserGuard guard(UserLock());
    // "#32770" is a number already.
    made->atom = *name == '#' ? static_cast<ATOM>(std::atoi(name + 1)) : FreeAtom();
    Classes().push_back(std::move(made));
}

bool IsClassName(LPCSTR name) {
    return std::any_of(Classes().begin(), Classes().end(), [=](const auto& one) { return IsNamed(*one, name); });
}

void InitialiseClasses() {
    static std::once_flag once;
    std::call_once(once, [] {
        RegisterDialogClasses();
        RegisterMenuClass();
        kernel::WhenModulesGo(ForgetClasses);
    });
}

}  // namespace platform::user

using namespace platform::user;

ATOM WINAPI RegisterClassA(const WNDCLASSA* windowClass) try {
    return windowClass ? Register(*windowClass) : Fail(ERROR_INVALID_PARAMETER, ATOM{0});
} catch (const std::bad_alloc&) {
    return Fail(ERROR_NOT_ENOUGH_MEMORY, 0);
}

BOOL WINAPI UnregisterClassA(LPCSTR name, HINSTANCE instance) {
    HBRUSH background = nullptr;
    {
        const UserGuard guard(UserLock());
        const HINSTANCE module = OrProgram(instance);
        auto& classes = Classes();
        const auto found = std::find_if(classes.begin(), classes.end(), [=](const auto& one) {
            return IsNamed(*one, name) && !one->system && one->instance == module;
        });
        if (found == classes.end()) {
            return Fail(ERROR_CLASS_DOES_NOT_EXIST, FALSE);
        }
        if ((*found)->windows > 0) {
            return Fail(ERROR_CLASS_HAS_WINDOWS, FALSE);
        }
        background = (*found)->background;
        classes.erase(found);
    }
    // The system owns a class's brush from its registration on.
    if (IsRealBrush(background)) {
        DeleteObject(background);
    }
    return TRUE;
}

BOOL WINAPI GetClassInfoA(HINSTANCE instance, LPCSTR name, LPWNDCLASSA windowClass) {
    if (!name || !windowClass) {
        return Fail(ERROR_INVALID_PARAMETER, 0);
    }
    InitialiseClasses();
    const UserGuard guard(UserLock());
    const WindowClass* found = FindClass(instance, name);
    if (!found) {
        return Fail(ERROR_CLASS_DOES_NOT_EXIST, 0);
    }
    *windowClass = {found->style,
                    found->procedure,
                    0,
                    found->windowExtra,
                    found->system ? nullptr : instance,
                    found->icon,
                    found->cursor,
                    found->background,
                    nullptr,
                    name};
    return found->atom;
}

int WINAPI GetClassNameA(HWND window, LPSTR name, int size) {
    const UserGuard guard(UserLock());
    const Window* object = FindWindowObject(window);
    if (!object) {
        return 0;
    }
    if (!name || size <= 0) {
        return Fail(ERROR_INSUFFICIENT_BUFFER, 0);
    }
    return CopyText(object->windowClass->name, static_cast<std::size_t>(size), name);
}
