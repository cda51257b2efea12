// The gallery's help where the system has no viewer: a key on a control shows the control's topic, the next key takes it away.
#include <windows.h>

#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <string>

namespace {

constexpr DWORD kPatience = 30000;

bool Becomes(std::function<bool()> const& condition) {
    for (DWORD const start = GetTickCount(); GetTickCount() - start < kPatience; Sleep(20)) {
        if (condition()) {
            return true;
        }
    }
    return false;
}

void Press(WORD key) {
    INPUT inputs[2] = {};
    inputs[0].type = inputs[1].type = INPUT_KEYBOARD;
    inputs[0].ki.wVk = inputs[1].ki.wVk = key;
    inputs[1].ki.dwFlags = KEYEVENTF_KEYUP;
    SendInput(2, inputs, sizeof(INPUT));
}

HWND Topic() {
    HWND const window = FindWindowA("GalleryTopic", nullptr);
    return IsWindowVisible(window) ? window : nullptr;
}

/// The gallery in a process of its own, with its window in front.
class GalleryHelp : public testing::Test {
  protected:
    void SetUp() override {
        char command[MAX_PATH + 40];
        GetModuleFileNameA(nullptr, command, MAX_PATH);
        lstrcpyA(std::strrchr(command, '\\') + 1, "gallery.exe --page Dates");
        STARTUPINFOA start = {};
        start.cb = sizeof start;
        ASSERT_TRUE(CreateProcessA(nullptr, command, nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &process_));
        ASSERT_TRUE(Becomes([this] {
            frame_ = FindWindowA("#32770", "CVUTIL32 Gallery");
            return IsWindowVisible(frame_) && (SetForegroundWindow(frame_), GetForegroundWindow() == frame_);
        }));
    }

    void TearDown() override {
        PostMessageA(frame_, WM_CLOSE, 0, 0);
        DWORD code = 0;
        if (WaitForSingleObject(process_.hProcess, kPatience) != WAIT_OBJECT_0) {
            TerminateProcess(process_.hProcess, 9);
        }
        GetExitCodeProcess(process_.hProcess, &code);
        EXPECT_EQ(1U, code) << "cancelled";
        CloseHandle(process_.hThread);
        CloseHandle(process_.hProcess);
    }

    HWND frame_ = nullptr;
    PROCESS_INFORMATION process_ = {};
};

TEST_F(GalleryHelp, F1ShowsTheTopicOfTheControlWithTheFocus) {
    Press(VK_F1);
    ASSERT_TRUE(Becomes([] { return Topic() != nullptr; }));
    char text[40] = "";
    GetWindowTextA(Topic(), text, sizeof text);
    EXPECT_EQ(0, std::string(text).rfind("A date field.", 0)) << text;
    Press(VK_SPACE);
    EXPECT_TRUE(Becomes([] { return Topic() == nullptr; }));
    EXPECT_TRUE(Becomes([this] { return GetForegroundWindow() == frame_; })) << "and the gallery is in front again";
}

}  // namespace
