// Keyboard and mouse input, from SendInput to the messages of the windows.
#include <gtest/gtest.h>
#include <windows.h>

#include <string>
#include <vector>

#include "tests/platform/support/recorder.h"

namespace {

using tests::Heard;
using tests::Pump;
using tests::PumpUntil;
using tests::Recorder;

void Key(WORD key, bool down, WORD scan = 0, DWORD flags = 0) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.wScan = scan != 0 ? scan : static_cast<WORD>(MapVirtualKeyA(key, MAPVK_VK_TO_VSC));
    input.ki.dwFlags = flags | (down ? 0 : KEYEVENTF_KEYUP);
    ASSERT_EQ(SendInput(1, &input, sizeof input), 1u);
}

// What has a time keeps it, however long the machine takes between two calls.
void Mouse(DWORD flags, DWORD data = 0, DWORD time = 0) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags;
    input.mi.mouseData = data;
    input.mi.time = time;
    ASSERT_EQ(SendInput(1, &input, sizeof input), 1u);
}

class InputTest : public tests::RecordedTest {
  protected:
    void SetUp() override {
        GetCursorPos(&cursor);
        MakeWindow(WS_POPUP | WS_VISIBLE, 100, 100, 300, 200);
        ASSERT_TRUE(PumpUntil([this] { return GetForegroundWindow() == window && GetFocus() == window; }));
        SetCursorPos(20, 20);
        Pump();
        Recorder::Get().Reset();
    }
    void TearDown() override {
        RecordedTest::TearDown();
        SetCursorPos(cursor.x, cursor.y);
    }
    bool Hears(UINT message) {
        return PumpUntil([message] { return Recorder::Get().Find(message) != nullptr; });
    }
    void ClickAndHear() {
        Mouse(MOUSEEVENTF_LEFTDOWN);
        Mouse(MOUSEEVENTF_LEFTUP);
        ASSERT_TRUE(Hears(WM_LBUTTONUP));
    }
    POINT cursor{};
};

TEST_F(InputTest, KeyMessagesCarryScanCodeAndStates) {
    Key('A', true);
    Key('A', true);
    Key('A', false);
    ASSERT_TRUE(Hears(WM_KEYUP));
    std::vector<Heard> keys;
    for (const Heard& each : Recorder::Get().heard) {
        if (each.message == WM_KEYDOWN || each.message == WM_KEYUP || each.message == WM_CHAR) {
            keys.push_back(each);
        }
    }
    ASSERT_EQ(keys.size(), 5u);
    EXPECT_EQ(keys[0].message, static_cast<UINT>(WM_KEYDOWN));
    EXPECT_EQ(keys[0].wParam, static_cast<WPARAM>('A'));
    EXPECT_EQ(static_cast<DWORD>(keys[0].lParam), 0x001E0001u);
    EXPECT_EQ(keys[1].message, static_cast<UINT>(WM_CHAR));
    EXPECT_EQ(keys[1].wParam, static_cast<WPARAM>('a'));
    EXPECT_EQ(static_cast<DWORD>(keys[2].lParam), 0x401E0001u);
    EXPECT_EQ(keys[4].message, static_cast<UINT>(WM_KEYUP));
    EXPECT_EQ(static_cast<DWORD>(keys[4].lParam), 0xC01E0001u);
}

TEST_F(InputTest, ShiftChangesCharactersAndKeyState) {
    SHORT during = 0;
    Recorder::Get().answer = [&during](const Heard& heard, LRESULT*) {
        if (heard.message == WM_KEYDOWN && heard.wParam == 'B') {
            during = GetKeyState(VK_SHIFT);
        }
        return false;
    };
    Key(VK_SHIFT, true);
    Key('B', true);
    Key('B', false);
    Key(VK_SHIFT, false);
    // The state a thread sees is that of the message it has taken last.
    EXPECT_GE(GetKeyState('B'), 0);
    ASSERT_TRUE(Hears(WM_CHAR));
    EXPECT_EQ(Recorder::Get().Find(WM_CHAR)->wParam, static_cast<WPARAM>('B'));
    EXPECT_LT(during, 0);
    ASSERT_TRUE(PumpUntil([] { return Recorder::Get().Count(WM_KEYUP) == 2; }));
    EXPECT_GE(GetKeyState(VK_SHIFT), 0);
    EXPECT_GE(GetKeyState(VK_LSHIFT), 0);
}

TEST_F(InputTest, AltMakesSystemKeys) {
    Recorder::Get().answer = [](const Heard& heard, LRESULT* result) {
        *result = 0;  // keeps the menu out of it
        return heard.message >= WM_SYSKEYDOWN && heard.message <= WM_SYSCHAR;
    };
    Key(VK_MENU, true, 0x38);
    Key('X', true);
    Key('X', false);
    Key(VK_MENU, false, 0x38);
    ASSERT_TRUE(PumpUntil([] { return Recorder::Get().Find(WM_KEYUP) || Recorder::Get().Count(WM_SYSKEYUP) == 2; }));
    const Heard* character = Recorder::Get().Find(WM_SYSCHAR);
    ASSERT_NE(character, nullptr);
    EXPECT_EQ(character->wParam, static_cast<WPARAM>('x'));
    EXPECT_EQ(static_cast<DWORD>(character->lParam), 0x202D0001u);
    EXPECT_EQ(static_cast<DWORD>(Recorder::Get().Find(WM_SYSKEYDOWN)->lParam), 0x20380001u);
    EXPECT_EQ(Recorder::Get().Find(WM_KEYDOWN), nullptr);
}

TEST_F(InputTest, AsyncStateLeadsTheQueue) {
    GetAsyncKeyState(VK_F7);
    Key(VK_F7, true);
    ASSERT_TRUE(PumpUntil([] { return (GetAsyncKeyState(VK_F7) & 0x8000) != 0; }));
    Key(VK_F7, false);
    ASSERT_TRUE(Hears(WM_KEYUP));
    EXPECT_EQ(GetAsyncKeyState(VK_F7) & 0x8000, 0);
}

TEST_F(InputTest, MouseMessagesUseClientCoordinates) {
    HWND child = Recorder::Get().Make(WS_CHILD | WS_VISIBLE, 50, 40, 100, 80, window);
    Recorder::Get().Clear();
    SetCursorPos(100 + 50 + 7, 100 + 40 + 9);
    ClickAndHear();
    const Heard* down = Recorder::Get().Find(WM_LBUTTONDOWN);
    ASSERT_NE(down, nullptr);
    EXPECT_EQ(down->window, child);
    EXPECT_EQ(down->wParam, static_cast<WPARAM>(MK_LBUTTON));
    EXPECT_EQ(down->lParam, MAKELPARAM(7, 9));
    EXPECT_EQ(Recorder::Get().Find(WM_LBUTTONUP)->wParam, 0u);
    // Who is asked and told on the way, in this order.
    const std::vector<UINT> order = Recorder::Get().Numbers({WM_MOUSEACTIVATE, WM_LBUTTONDOWN});
    EXPECT_EQ(order, (std::vector<UINT>{WM_MOUSEACTIVATE, WM_MOUSEACTIVATE, WM_LBUTTONDOWN}));
    const Heard* asked = Recorder::Get().Find(WM_SETCURSOR, child);
    ASSERT_NE(asked, nullptr);
    EXPECT_EQ(asked->wParam, reinterpret_cast<WPARAM>(child));
    EXPECT_EQ(LOWORD(asked->lParam), HTCLIENT);
}

TEST_F(InputTest, DoubleClickNeedsTimeAndPlace) {
    SetCursorPos(200, 150);
    Pump();
    Recorder::Get().Clear();
    const DWORD now = GetTickCount();
    for (int i = 0; i < 3; ++i) {
        Mouse(MOUSEEVENTF_LEFTDOWN, 0, now);
        Mouse(MOUSEEVENTF_LEFTUP, 0, now);
    }
    ASSERT_TRUE(PumpUntil([] { return Recorder::Get().Count(WM_LBUTTONUP) == 3; }));
    const std::vector<UINT> order = Recorder::Get().Numbers({WM_LBUTTONDOWN, WM_LBUTTONDBLCLK});
    EXPECT_EQ(order, (std::vector<UINT>{WM_LBUTTONDOWN, WM_LBUTTONDBLCLK, WM_LBUTTONDOWN}));
    Recorder::Get().Clear();
    SetCursorPos(240, 150);
    Mouse(MOUSEEVENTF_LEFTDOWN, 0, now);
    Mouse(MOUSEEVENTF_LEFTUP, 0, now);
    ASSERT_TRUE(PumpUntil([] { return Recorder::Get().Count(WM_LBUTTONUP) == 1; }));
    EXPECT_EQ(Recorder::Get().Find(WM_LBUTTONDBLCLK), nullptr);
}

TEST_F(InputTest, CaptureTakesTheMouseOutsideTheWindow) {
    HWND child = Recorder::Get().Make(WS_CHILD | WS_VISIBLE, 0, 0, 10, 10, window);
    EXPECT_EQ(SetCapture(window), nullptr);
    SetCursorPos(50, 60);
    Mouse(MOUSEEVENTF_LEFTDOWN);
    ASSERT_TRUE(Hears(WM_LBUTTONDOWN));
    EXPECT_EQ(static_cast<SHORT>(LOWORD(Recorder::Get().Find(WM_LBUTTONDOWN)->lParam)), -50);
    EXPECT_EQ(static_cast<SHORT>(HIWORD(Recorder::Get().Find(WM_LBUTTONDOWN)->lParam)), -40);
    EXPECT_EQ(Recorder::Get().Find(WM_MOUSEACTIVATE), nullptr);
    EXPECT_EQ(SetCapture(child), window);
    const Heard* changed = Recorder::Get().Find(WM_CAPTURECHANGED, window);
    ASSERT_NE(changed, nullptr);
    EXPECT_EQ(changed->lParam, reinterpret_cast<LPARAM>(child));
    Mouse(MOUSEEVENTF_LEFTUP);
    ASSERT_TRUE(Hears(WM_LBUTTONUP));
    EXPECT_EQ(Recorder::Get().Find(WM_LBUTTONUP)->window, child);
    EXPECT_TRUE(ReleaseCapture());
    EXPECT_NE(Recorder::Get().Find(WM_CAPTURECHANGED, child), nullptr);
    EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(InputTest, FrameClicksAreNonClientMessages) {
    Recorder::Get().answer = [](const Heard& heard, LRESULT* result) {
        if (heard.message == WM_NCHITTEST) {
            *result = HTBORDER;
            return true;
        }
        return false;
    };
    SetCursorPos(150, 160);
    Mouse(MOUSEEVENTF_RIGHTDOWN);
    Mouse(MOUSEEVENTF_RIGHTUP);
    ASSERT_TRUE(Hears(WM_NCRBUTTONUP));
    const Heard* down = Recorder::Get().Find(WM_NCRBUTTONDOWN);
    ASSERT_NE(down, nullptr);
    EXPECT_EQ(down->wParam, static_cast<WPARAM>(HTBORDER));
    EXPECT_EQ(down->lParam, MAKELPARAM(150, 160));
    EXPECT_NE(Recorder::Get().Find(WM_NCMOUSEMOVE), nullptr);
}

TEST_F(InputTest, WheelTurnsTheFocusWindow) {
    SetCursorPos(150, 160);
    Pump();
    Recorder::Get().Clear();
    Mouse(MOUSEEVENTF_WHEEL, static_cast<DWORD>(-WHEEL_DELTA));
    ASSERT_TRUE(Hears(WM_MOUSEWHEEL));
    const Heard* wheel = Recorder::Get().Find(WM_MOUSEWHEEL);
    EXPECT_EQ(GET_WHEEL_DELTA_WPARAM(wheel->wParam), -WHEEL_DELTA);
    EXPECT_EQ(wheel->lParam, MAKELPARAM(150, 160));
}

TEST_F(InputTest, MovesAddUpToOneMessage) {
    SetCursorPos(150, 150);
    Pump();
    Recorder::Get().Clear();
    SetCursorPos(151, 149);
    SetCursorPos(152, 148);
    Pump();
    EXPECT_EQ(Recorder::Get().Count(WM_MOUSEMOVE), 1);
    EXPECT_EQ(Recorder::Get().Find(WM_MOUSEMOVE)->lParam, MAKELPARAM(52, 48));
    INPUT input{};
    EXPECT_EQ(SendInput(1, &input, sizeof input - 4), 0u);
}

}  // namespace
