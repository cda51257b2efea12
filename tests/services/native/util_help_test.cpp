// Help topics in popup windows, which hosts without a help engine show.
#include <cvutil32/util.h>

#include "tests/support/leaks.h"
#include "tests/support/temp_folder.h"
#include "tests/support/window.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

using namespace testing_support;

namespace {

constexpr char kGraphicButton[] = "Calverin_GraphicButton";

class UtilHelpPopup : public ::testing::Test {
  protected:
    UtilHelpPopup() : window_(nullptr, {50, 50, 250, 200}) {
        folder_.MakeFile("Viewer.txt",
                         "About this file\r\n[1001]\r\n\r\nThe name.\r\nIn two lines.\r\n[1002]\nA folder.");
        file_ = folder_.Path("VIEWER.HLP");
        // The mark that some editors put at the beginning, and no line before the first topic.
        folder_.MakeFile("Long.txt", "\xEF\xBB\xBF[1]\nThe first.\n[2]\n" + std::string(1500, 'w') + "\n[3]\n" +
                                         Repeated("Many words make a long topic. ", 2000) + "\n[4]\n" +
                                         Repeated("A line.\n", 400) + "The last line.");
        long_ = folder_.Path("long.hlp");
    }
    ~UtilHelpPopup() override {
        WinHelpA(nullptr, nullptr, HELP_QUIT, 0);
    }

    HWND Add(HWND parent, char const* type, int id) const {
        return MakeChild(parent, type, 0, {0, 0, 200, 150}, id);
    }
    static std::string Repeated(std::string const& text, int times) {
        std::string all;
        for (int i = 0; i < times; ++i) {
            all += text;
        }
        return all;
    }
    /// Where the popup lies; it must be on the screen with all its borders.
    RECT PopupOf(DWORD topic) const {
        EXPECT_TRUE(UTIL_WinHelp(window_, long_.c_str(), HELP_CONTEXTPOPUP, topic));
        RECT place = {};
        GetWindowRect(GetCapture(), &place);
        EXPECT_GE(place.left, 0);
        EXPECT_GE(place.top, 0);
        EXPECT_LE(place.right, GetSystemMetrics(SM_CXSCREEN));
        EXPECT_LE(place.bottom, GetSystemMetrics(SM_CYSCREEN));
        return place;
    }
    static Picture Look(HWND popup) {
        UpdateWindow(popup);
        return testing_support::PictureOf(popup);
    }
    static std::string Shown() {
        char text[128] = "";
        if (HWND const popup = FindWindowA("CvHelpPopup", nullptr)) {
            GetWindowTextA(popup, text, sizeof text);
        }
        return text;
    }

    DWORD const table_[5] = {7, 1001, 8, 1002, 0};
    ULONG_PTR const data_ = reinterpret_cast<ULONG_PTR>(table_);
    TempFolder folder_;
    TestWindow window_;
    std::string file_;
    std::string long_;
};

TEST_F(UtilHelpPopup, ATopicStaysUntilTheNextClickOrKey) {
    // The first popup makes a brush that stays.
    EXPECT_TRUE(WinHelpA(window_, file_.c_str(), HELP_CONTEXT, 1002));
    WinHelpA(nullptr, nullptr, HELP_QUIT, 0);
    LeakCheck const leaks;
    HWND const control = Add(window_, "button", 7);
    EXPECT_TRUE(UTIL_WinHelp(control, file_.c_str(), HELP_WM_HELP, data_));
    EXPECT_EQ("The name.\nIn two lines.", Shown());
    HWND const popup = GetCapture();
    SendMessageA(popup, WM_LBUTTONDOWN, 0, 0);
    EXPECT_FALSE(IsWindow(popup));
    EXPECT_TRUE(UTIL_WinHelp(window_, file_.c_str(), HELP_CONTEXTPOPUP, 1002));
    EXPECT_EQ("A folder.", Shown());
    SendMessageA(GetFocus(), WM_KEYDOWN, VK_ESCAPE, 0);
    EXPECT_EQ("", Shown());
    DestroyWindow(control);
    PumpMessages();
}

TEST_F(UtilHelpPopup, ATopicOnTheFirstLineOfAFileWithAByteOrderMark) {
    EXPECT_TRUE(UTIL_WinHelp(window_, long_.c_str(), HELP_CONTEXTPOPUP, 1));
    EXPECT_EQ("The first.", Shown());
}

TEST_F(UtilHelpPopup, AnUnbrokenWordWraps) {
    RECT const place = PopupOf(2);
    EXPECT_LT(place.right - place.left, 400);
    EXPECT_GT(place.bottom - place.top, 300);
    // To the end of each line there are letters.
    Picture const picture = Look(GetCapture());
    for (int x : {12, picture.width - 20}) {
        int ink = 0;
        for (int y = 0; y < picture.height; ++y) {
            for (int i = 0; i < 8; ++i) {
                ink += picture.At(x + i, y) == GetSysColor(COLOR_INFOTEXT);
            }
        }
        EXPECT_GT(ink, 100) << x;
    }
}

TEST_F(UtilHelpPopup, ATopicLongerThanTheScreenIsScrolled) {
    PopupOf(3);  // becomes wider
    RECT const place = PopupOf(4);
    HWND const popup = GetCapture();
    EXPECT_GT(place.bottom - place.top, GetSystemMetrics(SM_CYSCREEN) / 2);
    Picture const start = Look(popup);
    auto const key = [&](WPARAM which) {
        SendMessageA(popup, WM_KEYDOWN, which, 0);
        return Look(popup);
    };
    EXPECT_EQ(start, key(VK_UP));
    Picture const down = key(VK_NEXT);
    EXPECT_NE(start, down);
    Picture const end = key(VK_END);
    EXPECT_NE(down, end);
    EXPECT_EQ(end, key(VK_DOWN));
    SendMessageA(popup, WM_MOUSEWHEEL, MAKEWPARAM(0, WHEEL_DELTA), 0);
    EXPECT_NE(end, Look(popup));
    EXPECT_EQ(start, key(VK_HOME));
    // The arrows at the corners.
    SendMessageA(popup, WM_LBUTTONDOWN, 0, MAKELPARAM(start.width - 8, start.height - 8));
    EXPECT_NE(start, Look(popup));
    SendMessageA(popup, WM_LBUTTONDOWN, 0, MAKELPARAM(start.width - 8, 8));
    EXPECT_EQ(start, Look(popup));
    EXPECT_TRUE(IsWindow(popup));
    SendMessageA(popup, WM_LBUTTONDOWN, 0, MAKELPARAM(20, 20));
    EXPECT_FALSE(IsWindow(popup));
}

TEST_F(UtilHelpPopup, WhatHasNoTopicFails) {
    EXPECT_FALSE(UTIL_WinHelp(window_, file_.c_str(), HELP_CONTEXTPOPUP, 1003));
    EXPECT_FALSE(UTIL_WinHelp(window_, folder_.Path("other.hlp").c_str(), HELP_CONTEXTPOPUP, 1001));
    EXPECT_FALSE(UTIL_WinHelp(window_, nullptr, HELP_CONTEXTPOPUP, 1001));
    EXPECT_FALSE(UTIL_WinHelp(nullptr, file_.c_str(), HELP_WM_HELP, data_));
    EXPECT_FALSE(UTIL_WinHelp(window_, file_.c_str(), HELP_WM_HELP, 0));
    EXPECT_FALSE(UTIL_WinHelp(window_, file_.c_str(), 0x4711, 1001));
    EXPECT_EQ("", Shown());
}

TEST_F(UtilHelpPopup, TheHelpKeyAsksForHelpForTheControl) {
    HWND const control = Add(window_, "button", 7);
    window_.answer = [&](testing_support::Message const& message) -> std::optional<LRESULT> {
        if (message.id != WM_HELP) {
            return std::nullopt;
        }
        auto const* help = reinterpret_cast<HELPINFO const*>(message.lParam);
        EXPECT_EQ(7, help->iCtrlId);
        return UTIL_WinHelp(static_cast<HWND>(help->hItemHandle), file_.c_str(), HELP_WM_HELP, data_);
    };
    ShowWindow(window_, SW_SHOW);
    SetForegroundWindow(window_);
    SetFocus(control);
    INPUT key = {};
    key.type = INPUT_KEYBOARD;
    key.ki.wVk = VK_F1;
    SendInput(1, &key, sizeof key);
    PumpMessages();
    key.ki.dwFlags = KEYEVENTF_KEYUP;
    SendInput(1, &key, sizeof key);
    PumpMessages();
    EXPECT_EQ("The name.\nIn two lines.", Shown());
}

TEST_F(UtilHelpPopup, AGraphicButtonInAControlStandsForTheControl) {
    HWND const around = Add(window_, "static", 8);
    HWND const button = Add(around, kGraphicButton, 99);
    HWND const alone = Add(window_, kGraphicButton, 98);
    PumpMessages();
    SetCursorPos(100, 100);
    EXPECT_TRUE(UTIL_WinHelp(button, file_.c_str(), HELP_WM_HELP, data_));
    EXPECT_EQ("A folder.", Shown());
    WinHelpA(nullptr, nullptr, HELP_QUIT, 0);
    DestroyWindow(alone);
    SetCursorPos(100, 100);
    EXPECT_TRUE(UTIL_WinHelp(button, file_.c_str(), HELP_CONTEXTMENU, data_));
    EXPECT_EQ("A folder.", Shown());
    WinHelpA(nullptr, nullptr, HELP_QUIT, 0);
    DestroyWindow(around);
}

}  // namespace
