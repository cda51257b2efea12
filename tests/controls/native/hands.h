/// @file hands.h
/// A person at a modal dialog: real input, a step at a time.
#pragma once

#include "tests/support/window.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

namespace hands {

inline void Key(WORD key, bool down) {
    INPUT input = {};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.wScan = static_cast<WORD>(MapVirtualKeyA(key, MAPVK_VK_TO_VSC));
    input.ki.dwFlags = down ? 0 : KEYEVENTF_KEYUP;
    SendInput(1, &input, sizeof input);
}

inline void Press(std::vector<WORD> const& keys) {
    for (WORD const key : keys) {
        Key(key, true);
        Key(key, false);
    }
}

inline void Click(HWND window, POINT at, int times = 1) {
    ClientToScreen(window, &at);
    SetCursorPos(at.x, at.y);
    for (int i = 0; i < times; ++i) {
        for (DWORD const flags : {MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP}) {
            INPUT input = {};
            input.type = INPUT_MOUSE;
            input.mi.dwFlags = flags;
            SendInput(1, &input, sizeof input);
        }
    }
}

inline void ClickMiddle(HWND window) {
    RECT client;
    GetClientRect(window, &client);
    Click(window, {client.right / 2, client.bottom / 2});
}

/// What a message box says.
inline std::string MessageOf(HWND box) {
    char text[2048] = "";
    GetDlgItemTextA(box, 0xFFFF, text, sizeof text);
    return text;
}

/// What is selected in an edit field that has the focus; else nothing.
inline std::string Selected(HWND edit) {
    char text[2048] = "";
    GetWindowTextA(edit, text, sizeof text);
    DWORD from = 0;
    DWORD to = 0;
    SendMessageA(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&from), reinterpret_cast<LPARAM>(&to));
    return GetFocus() == edit ? std::string(text).substr(from, to - from) : std::string();
}

/// What the user does, a step at a time: each once the one before has come to rest.
class Hands {
  public:
    using Step = std::function<void(HWND dialog)>;

    explicit Hands(std::vector<Step> steps) {
        g_steps = std::move(steps);
        g_next = 0;
        timer_ = SetTimer(nullptr, 0, 20, Tick);
    }
    ~Hands() {
        KillTimer(nullptr, timer_);
        EXPECT_EQ(g_steps.size(), g_next) << "not all was done";
        g_steps.clear();
    }
    Hands(Hands const&) = delete;
    Hands& operator=(Hands const&) = delete;

  private:
    static void CALLBACK Tick(HWND, UINT, UINT_PTR, DWORD) {
        HWND const dialog = GetForegroundWindow();
        char name[16] = "";
        GetClassNameA(dialog, name, sizeof name);
        if (g_next < g_steps.size() && lstrcmpA(name, "#32770") == 0) {
            g_steps[g_next++](dialog);
        }
    }

    static inline std::vector<Step> g_steps;
    static inline std::size_t g_next = 0;
    UINT_PTR timer_;
};

/// A test on a folder of drive C, which goes with it. Needs a state folder of its own.
class Walk : public testing::Test {
  protected:
    void TearDown() override {
        if (!root_.empty()) {
            std::filesystem::remove_all(root_);
        }
    }
    /// @returns false without a state folder.
    bool Make(std::initializer_list<char const*> folders, std::initializer_list<char const*> files) {
        char const* const home = std::getenv("CVUTIL32_HOME");
        if (!home) {
            return false;
        }
        root_ = std::filesystem::path(home) / "drive_c" / "walk";
        std::filesystem::remove_all(root_);
        for (char const* name : folders) {
            std::filesystem::create_directories(root_ / name);
        }
        for (char const* name : files) {
            std::ofstream(root_ / name) << name;
        }
        return true;
    }

    std::filesystem::path root_;
    testing_support::TestWindow host_;
};

}  // namespace hands
