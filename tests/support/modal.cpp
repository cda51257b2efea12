#include "tests/support/modal.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>
#include <vector>

namespace testing_support {

namespace {

constexpr UINT kLook = 10;         // milliseconds between two looks at the active window
constexpr UINT kPatience = 60000;  // until a dialog that was left open is ended
constexpr char kVisited[] = "CvTestVisited";
constexpr int kTimedOut = 9999;

std::vector<std::function<void(HWND)>> g_visits;

void CALLBACK EndForgotten(HWND dialog, UINT, UINT_PTR timer, DWORD) {
    KillTimer(dialog, timer);
    ADD_FAILURE() << "a dialog was left open";
    EndDialog(dialog, kTimedOut);
}

bool IsNewDialog(HWND window) {
    char name[16] = {};
    return window && IsWindowVisible(window) && GetClassNameA(window, name, sizeof name) &&
           std::string(name) == "#32770" && !GetPropA(window, kVisited);
}

void CALLBACK Look(HWND, UINT, UINT_PTR timer, DWORD) {
    HWND const dialog = GetActiveWindow();
    if (!IsNewDialog(dialog) || g_visits.empty()) {
        return;
    }
    KillTimer(nullptr, timer);
    SetPropA(dialog, kVisited, reinterpret_cast<HANDLE>(INT_PTR{1}));
    auto const visit = std::move(g_visits.back());
    g_visits.pop_back();
    visit(dialog);
    if (IsWindow(dialog)) {
        SetTimer(dialog, kTimedOut, kPatience, EndForgotten);
    }
}

INPUT KeyInput(WORD key, bool up) {
    INPUT input = {};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.dwFlags = up ? KEYEVENTF_KEYUP : 0;
    return input;
}

}  // namespace

void OnNextDialog(std::function<void(HWND)> visit) {
    g_visits.push_back(std::move(visit));
    SetTimer(nullptr, 0, kLook, Look);
}

void PressKey(HWND dialog, WORD key, bool alt) {
    std::vector<INPUT> inputs = {KeyInput(key, false), KeyInput(key, true)};
    if (alt) {
        inputs.insert(inputs.begin(), KeyInput(VK_MENU, false));
        inputs.push_back(KeyInput(VK_MENU, true));
    }
    ASSERT_EQ(inputs.size(), SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT)));
    // The last release says that the others have been taken.
    MSG message;
    WORD const last = alt ? WORD{VK_MENU} : key;
    bool pressed = false;
    for (DWORD const start = GetTickCount(); GetTickCount() - start < kPatience;) {
        if (!PeekMessageA(&message, nullptr, WM_KEYFIRST, WM_KEYLAST, PM_REMOVE)) {
            // Ended by the press, or a dialog that the press opened has taken the release: it went elsewhere.
            if (!IsWindowVisible(dialog) || (pressed && GetKeyState(last) >= 0)) {
                return;
            }
            Sleep(1);
            continue;
        }
        bool const release = message.message == WM_KEYUP || message.message == WM_SYSKEYUP;
        bool const done = release && message.wParam == last;
        pressed |= !release && message.wParam == last;
        if (!IsDialogMessageA(dialog, &message)) {
            TranslateMessage(&message);
            DispatchMessageA(&message);
        }
        if (done) {
            return;
        }
    }
    ADD_FAILURE() << "the key " << key << " did not arrive";
}

void OpenFirstDialog() {
    HWND const owner = CreateWindowExA(0, "static", "", WS_POPUP | WS_CAPTION | WS_VISIBLE, 0, 0, 400, 300, nullptr,
                                       nullptr, nullptr, nullptr);
    OnNextDialog([](HWND outer) {
        PressKey(outer, VK_TAB);
        OnNextDialog([](HWND inner) {
            HDC const context = GetDC(inner);
            PressKey(inner, VK_TAB);
            ReleaseDC(inner, context);
            PostMessageA(inner, WM_COMMAND, IDCANCEL, 0);
        });
        MessageBoxA(outer, "text", "caption", MB_YESNOCANCEL | MB_ICONHAND);
        PostMessageA(outer, WM_COMMAND, IDCANCEL, 0);
    });
    MessageBoxA(owner, "text", "caption", MB_YESNOCANCEL | MB_ICONHAND);
    DestroyWindow(owner);
}

std::string TextOf(HWND window) {
    std::string text(static_cast<std::size_t>(GetWindowTextLengthA(window)) + 1, '\0');
    text.resize(static_cast<std::size_t>(GetWindowTextA(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

RECT PlaceIn(HWND dialog, int id) {
    RECT place = {};
    GetWindowRect(GetDlgItem(dialog, id), &place);
    MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&place), 2);
    return place;
}

RECT ToPixels(HWND dialog, RECT units) {
    MapDialogRect(dialog, &units);
    return units;
}

}  // namespace testing_support
