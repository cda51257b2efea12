// The two standard dialogs, and the windows around them, may be ended at any message: see tests/controls/native/vanishing_test.cpp.
#include <cvutil32/about.h>
#include <cvutil32/msgbox.h>

#include "tests/support/countdown.h"
#include "tests/support/leaks.h"
#include "tests/support/modal.h"
#include "tests/support/window.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

using namespace testing_support;

BOOL CALLBACK TakeDialog(HWND window, LPARAM found) {
    char name[16] = "";
    GetClassNameA(window, name, sizeof name);
    if (lstrcmpA(name, "#32770") == 0) {
        *reinterpret_cast<HWND*>(found) = window;
        return FALSE;
    }
    return TRUE;
}

HWND FindBox() {
    HWND found = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), TakeDialog, reinterpret_cast<LPARAM>(&found));
    return found;
}

BOOL CALLBACK WatchWindow(HWND window, LPARAM) {
    Countdown::Watch(window);
    return TRUE;
}

void WatchBox() {
    if (HWND const box = FindBox()) {
        Countdown::Watch(box);
        EnumChildWindows(box, WatchWindow, 0);
    }
}

/// An owner, another window of the thread, and one that closes the box from within its loop.
struct Desk {
    Desk() {
        // Whatever the owner hears while a box comes to exist: from then on that is watched too.
        owner.answer = [](Message const&) -> std::optional<LRESULT> {
            WatchBox();
            return std::nullopt;
        };
        closer.answer = [](Message const& message) -> std::optional<LRESULT> {
            HWND const box = message.id == WM_APP ? FindBox() : nullptr;
            if (box) {
                WatchBox();
                RedrawWindow(box, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN);
                for (WPARAM const key : {VK_TAB, VK_SPACE}) {
                    SendMessageA(GetFocus(), WM_KEYDOWN, key, 1);
                }
                PostMessageA(box, WM_COMMAND, IDCANCEL, 0);
            }
            return std::nullopt;
        };
        SetActiveWindow(owner);
    }

    TestWindow closer{nullptr, {400, 0, 410, 10}};
    TestWindow other{nullptr, {300, 0, 380, 80}};
    TestWindow owner;
};

enum class BoxEnd { kBox, kOwner, kOther, kEndDialog, kCommand };

void Act(BoxEnd end, Desk const& desk) {
    switch (end) {
        case BoxEnd::kBox:
            DestroyWindow(FindBox());
            break;
        case BoxEnd::kOwner:
            DestroyWindow(desk.owner);
            break;
        case BoxEnd::kOther:
            DestroyWindow(desk.other);
            break;
        case BoxEnd::kEndDialog:
            EndDialog(FindBox(), 5);
            break;
        case BoxEnd::kCommand:
            SendMessageA(FindBox(), WM_COMMAND, 6, 0);
            break;
    }
}

bool IsUsable(HWND window) {
    return !IsWindow(window) || IsWindowEnabled(window);
}

void TakeThrough(std::function<void(HWND owner)> const& show) {
    testing_support::OpenFirstDialog();
    LeakCheck const leaks;
    for (BoxEnd const end : {BoxEnd::kBox, BoxEnd::kOwner, BoxEnd::kOther, BoxEnd::kEndDialog, BoxEnd::kCommand}) {
        SCOPED_TRACE(testing::Message() << "end of " << static_cast<int>(end));
        int const boxes = Sweep([&](int at) {
            Desk desk;
            PumpMessages();
            Countdown const countdown(at, [&] { Act(end, desk); });
            Countdown::Watch(desk.owner);
            Countdown::Watch(desk.other);
            PostMessageA(desk.closer, WM_APP, 0, 0);
            show(desk.owner);
            EXPECT_EQ(nullptr, FindBox());
            EXPECT_TRUE(IsUsable(desk.owner));
            EXPECT_TRUE(IsUsable(desk.other));
            EXPECT_TRUE(IsUsable(desk.closer));
            return countdown.HasHappened();
        });
        EXPECT_LT(20, boxes) << "the messages are counted";
    }
}

TEST(VanishingBoxes, ExtendedMessageBox) {
    for (WORD const flags : {WORD{0}, WORD{KVMB_TASKMODAL}}) {
        SCOPED_TRACE(flags);
        TakeThrough([=](HWND owner) {
            KVMB_MESSAGEBOX box = {};
            box.owner = owner;
            box.title = "Caption";
            box.text = "What now?";
            box.flags = flags;
            box.icon = LoadIconA(nullptr, IDI_HAND);
            box.buttonCount = 3;
            for (int i = 0; i < 3; ++i) {
                box.buttons[i].kind = static_cast<DWORD>(i);
                box.buttons[i].id = 101 + i;
            }
            KVMB_MessageBoxExtended(&box);
        });
    }
}

TEST(VanishingBoxes, AboutBox) {
    TakeThrough([](HWND owner) {
        ABOUT_DisplayAboutBox(owner, nullptr, nullptr, "Planner", "Version 2", "A notice", IDI_HAND);
    });
}

}  // namespace
