// Who is asked for a menu, by clicks and by keys.
#include "tests/platform/support/edit_control.h"

#include "tests/platform/support/recorder.h"

namespace {

using tests::EditControl;
using tests::Heard;
using tests::Pump;
using tests::Recorder;

class Menus : public EditControl {
  protected:
    void SetUp() override {
        EditControl::SetUp();
        SetForegroundWindow(parent_);
    }
    void TearDown() override {
        Recorder::Get().Reset();
        EditControl::TearDown();
        Pump();
    }
};

TEST_F(Menus, AreAskedForUpToTheTopLevelWindow) {
    const HWND top = Recorder::Get().Make(WS_POPUP | WS_VISIBLE, 40, 40, 200, 100);
    const HWND child = Recorder::Get().Make(WS_CHILD | WS_VISIBLE, 10, 10, 50, 50, top);
    Recorder::Get().Clear();
    DefWindowProcA(child, WM_RBUTTONUP, 0, MAKELPARAM(5, 6));
    std::vector<Heard> asked;
    for (const Heard& each : Recorder::Get().heard) {
        if (each.message == WM_CONTEXTMENU)
            asked.push_back(each);
    }
    ASSERT_EQ(2U, asked.size());
    EXPECT_EQ(child, asked[0].window);
    EXPECT_EQ(top, asked[1].window);
    EXPECT_EQ(reinterpret_cast<WPARAM>(child), asked[1].wParam);
    EXPECT_EQ(MAKELPARAM(55, 56), asked[1].lParam);

    Recorder::Get().Clear();
    {
        const tests::KeyHeld shift(VK_SHIFT);
        DefWindowProcA(child, WM_SYSKEYDOWN, VK_F10, 1);
    }
    DefWindowProcA(child, WM_SYSKEYDOWN, VK_F10, 1);
    ASSERT_EQ(2, Recorder::Get().Count(WM_CONTEXTMENU)) << "F10 alone is no request";
    EXPECT_EQ(-1, static_cast<int>(Recorder::Get().Find(WM_CONTEXTMENU)->lParam));
    DestroyWindow(top);
}

TEST_F(Menus, OfAWindowAreAskedForBySpaceWithAlt) {
    const HWND top = Recorder::Get().Make(WS_POPUP | WS_VISIBLE | WS_CAPTION | WS_SYSMENU, 40, 40, 200, 100);
    const HWND child = Recorder::Get().Make(WS_CHILD | WS_VISIBLE, 10, 10, 50, 50, top);
    Recorder::Get().answer = [](const Heard& heard, LRESULT*) { return heard.message == WM_SYSCOMMAND; };
    Recorder::Get().Clear();
    SendMessageA(top, WM_SYSCHAR, VK_SPACE, 0x20390001);
    ASSERT_EQ(1, Recorder::Get().Count(WM_SYSCOMMAND));
    EXPECT_EQ(WPARAM{SC_KEYMENU}, Recorder::Get().Find(WM_SYSCOMMAND)->wParam);
    EXPECT_EQ(LPARAM{VK_SPACE}, Recorder::Get().Find(WM_SYSCOMMAND)->lParam);
    Recorder::Get().answer = nullptr;
    DestroyWindow(child);
    DestroyWindow(top);
}

}  // namespace
