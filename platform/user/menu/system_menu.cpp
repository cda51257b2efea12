// The system menu: what can be done with a window as a whole, by its styles and its state.
#include <new>

#include "user/frame/above.h"
#include "user/frame/nonclient.h"
#include "user/menu/menu.h"

namespace platform::user {
namespace {

struct Subject {
    DWORD style;
    MenuPlace place;
};

bool Describe(HWND handle, const POINT* at, bool keyboard, Subject* subject) {
    const UserGuard guard(UserLock());
    const Window* window = PeekWindow(handle);
    if (!window || !(window->style & WS_SYSMENU)) {
        return false;
    }
    subject->style = window->style;
    subject->place.firstChosen = keyboard;
    if (at) {
        subject->place.at = *at;
        return true;
    }
    const CaptionParts parts = LayOutCaption(window, window->windowRect);
    subject->place.at = {window->windowRect.left, window->windowRect.top};
    if (parts.height) {
        subject->place.at = {parts.bar.left, parts.bar.bottom};
        subject->place.beside = parts.bar;
    }
    return true;
}

std::vector<MenuItem> ItemsFor(const Subject& subject) {
    const bool minimized = (subject.style & WS_MINIMIZE) != 0;
    const bool maximized = !minimized && (subject.style & WS_MAXIMIZE);
    const bool plain = !minimized && !maximized;
    const MenuItem move{SC_MOVE, "&Move", plain};
    const MenuItem close{SC_CLOSE, "&Close\tAlt+F4", true};
    if (!(subject.style & (WS_THICKFRAME | WS_MINIMIZEBOX | WS_MAXIMIZEBOX))) {
        return {move, close};
    }
    return {{SC_RESTORE, "&Restore", !plain},
            move,
            {SC_SIZE, "&Size", plain && (subject.style & WS_THICKFRAME)},
            {SC_MINIMIZE, "Mi&nimize", !minimized && (subject.style & WS_MINIMIZEBOX)},
            {SC_MAXIMIZE, "Ma&ximize", !maximized && (subject.style & WS_MAXIMIZEBOX)},
            {0, "", false},
            close};
}

}  // namespace

void OpenSystemMenu(HWND window, const POINT* at, bool keyboard) try {
    Subject subject{};
    if (!Describe(window, at, keyboard, &subject)) {
        return;
    }
    const MenuChoice choice = RunMenu(window, ItemsFor(subject), subject.place);
    if (choice.command && IsWindow(window)) {
        SendMessageA(window, WM_SYSCOMMAND, choice.command,
                     choice.byMouse ? MAKELPARAM(choice.point.x, choice.point.y) : 0);
    }
} catch (const std::bad_alloc&) {
    return;
}

}  // namespace platform::user
