#include <cvutil32/util.h>

#include "tests/support/modal.h"
#include "tests/support/profile.h"
#include "tests/support/temp_folder.h"
#include "tests/support/window.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

using namespace testing_support;

namespace {

TEST(UtilSubdirs, SignsComeAndGo) {
    TestWindow window;
    HWND const field = MakeChild(window, "static", 0, {0, 0, 60, 20}, 7);
    auto const changed = [&](std::string const& text, BOOL add) {
        SetWindowTextA(field, text.c_str());
        UTIL_AddRemoveSubdirSymbol(window, 7, add);
        return TextOf(field);
    };
    struct {
        char const* plain;
        char const* marked;
    } const cases[] = {
        {"C:\\a;C:\\b", "C:\\a+;C:\\b+"},
        {"a; b", "a+; b+"},
        {"a", "a+"},
        {"\"C:\\my a\";b", "\"C:\\my a\"+;b+"},
        {"\"a+b c\" d", "\"a+b c\"+ d+"},
        {"a;", "a+;"},
        {"\"no end a;b", "\"no end a;b"},
        {"C:\\\xDC"
         "bung;D:\\b",
         "C:\\\xDC"
         "bung+;D:\\b+"},
    };
    for (auto const& c : cases) {
        EXPECT_EQ(c.marked, changed(c.plain, TRUE));
        EXPECT_EQ(c.marked, changed(c.marked, TRUE)) << "twice is once";
        EXPECT_EQ(c.plain, changed(c.marked, FALSE));
    }
    EXPECT_EQ("+ a+", changed(" a", TRUE)) << "a separator without a path before it";
    EXPECT_EQ("ab", changed("a++b+", FALSE));
}

TEST(UtilSubdirs, AnEmptyFieldIsNotWritten) {
    TestWindow window;
    TestWindow field(window.Handle());
    SetWindowLongPtrA(field, GWLP_ID, 8);
    field.Forget();
    UTIL_AddRemoveSubdirSymbol(window, 8, TRUE);
    UTIL_AddRemoveSubdirSymbol(window, 9, TRUE);
    UTIL_AddRemoveSubdirSymbol(nullptr, 8, TRUE);
    EXPECT_TRUE(field.Received(WM_SETTEXT).empty());
}

POINT CenteredAt(HWND owner, int width, int height) {
    HWND const popup = CreateWindowExA(0, "static", "", WS_POPUP, 5, 6, width, height, owner, nullptr,
                                       GetModuleHandleA(nullptr), nullptr);
    UTIL_CenterPopup(popup);
    RECT place = {};
    GetWindowRect(popup, &place);
    EXPECT_EQ(width, place.right - place.left);
    EXPECT_EQ(height, place.bottom - place.top);
    DestroyWindow(popup);
    return {place.left, place.top};
}

TEST(UtilCenterPopup, OverItsOwnerAndOnTheScreen) {
    int const screenWidth = GetSystemMetrics(SM_CXSCREEN);
    int const screenHeight = GetSystemMetrics(SM_CYSCREEN);
    TestWindow owner(nullptr, {100, 100, 301, 300});
    POINT at = CenteredAt(owner, 100, 50);
    EXPECT_EQ((401 - 100) / 2, at.x);
    EXPECT_EQ((400 - 50) / 2, at.y);
    at = CenteredAt(nullptr, 100, 50);
    EXPECT_EQ((screenWidth - 100) / 2, at.x);
    EXPECT_EQ((screenHeight - 50) / 2, at.y);
    at = CenteredAt(owner, 600, 500);
    EXPECT_EQ(0, at.x);
    EXPECT_EQ(0, at.y);
    TestWindow corner(nullptr, {screenWidth - 40, screenHeight - 30, screenWidth, screenHeight});
    at = CenteredAt(corner, 100, 50);
    EXPECT_EQ(screenWidth - 100, at.x);
    EXPECT_EQ(screenHeight - 50, at.y);
    UTIL_CenterPopup(nullptr);
    UTIL_CenterPopup(reinterpret_cast<HWND>(INT_PTR{0x123450}));
}

std::string Grouped(long value, int size = 40) {
    char out[48];
    std::memset(out, '#', sizeof out);
    UTIL_LongToStringWithCommas(value, out, size);
    EXPECT_EQ('#', out[size]);
    return out;
}

TEST(UtilNumbers, HaveThousandsSeparators) {
    IntlSetting const separator("sThousand", ",");
    struct {
        long value;
        char const* text;
    } const cases[] = {{0, "0"},
                       {999, "999"},
                       {1000, "1,000"},
                       {1234567, "1,234,567"},
                       {-1234, "-1,234"},
                       {-123, "-,123"},
                       {-123456, "-,123,456"},
                       {2147483647L, "2,147,483,647"},
                       {-2147483647L - 1, "-2,147,483,648"}};
    for (auto const& c : cases) {
        EXPECT_EQ(c.text, Grouped(c.value));
    }
    EXPECT_EQ("1,2", Grouped(1234567, 4));
    EXPECT_EQ("", Grouped(1234567, 1));
    UTIL_LongToStringWithCommas(1, nullptr, 10);
    separator.Change("<=>long");
    EXPECT_EQ("1<=>234<=>567", Grouped(1234567)) << "three characters of it";
    separator.Change("\xA0");
    EXPECT_EQ(
        "1\xA0"
        "000",
        Grouped(1000));
}

TEST(UtilFiles, WhatExists) {
    TempFolder const folder;
    std::string const file = folder.MakeFile("File.txt");
    folder.MakeFolder("Sub");
    struct {
        std::string path;
        bool isFolder, isFile;
    } const cases[] = {
        {folder.Path(), true, false},
        {folder.Path("sub") + "\\", true, false},
        {folder.Path("sub") + ". .", true, false},  // dots at the end do not count
        {"\\", true, false},                        // the root of the current drive
        {"C:\\", true, false},
        {file, false, true},
        {folder.Path("fILE.TXT"), false, true},
        {file + "\\", false, false},
        {folder.Path("missing"), false, false},
        {folder.Path("*.txt"), false, true},
        {folder.Path(std::string(300, 'x')), false, false},
        {"", false, false},
    };
    for (auto const& each : cases) {
        EXPECT_EQ(each.isFolder, UTIL_DirExists(each.path.c_str()) != FALSE) << each.path;
        EXPECT_EQ(each.isFile, UTIL_FileExists(each.path.c_str()) != FALSE) << each.path;
    }
    EXPECT_FALSE(UTIL_FileExists(folder.Path("S*").c_str())) << "the first that fits is a folder";
    EXPECT_FALSE(UTIL_DirExists(nullptr));
    EXPECT_FALSE(UTIL_FileExists(nullptr));
}

TEST(UtilHelp, NoHelpForAControlThatTheTableLacks) {
    DWORD const table[] = {7, 1001, 0, 0};
    TestWindow window(nullptr, {50, 50, 250, 200});
    HWND const control = MakeChild(window, "button", 0, {0, 0, 200, 150}, 8);
    testing_support::PumpMessages();
    SetCursorPos(100, 100);
    POINT cursor = {};
    GetCursorPos(&cursor);
    ASSERT_EQ(control, WindowFromPoint(cursor)) << "the button lies under the pointer";
    EXPECT_EQ(TRUE, UTIL_WinHelp(control, "no such file.hlp", HELP_CONTEXTMENU, reinterpret_cast<ULONG_PTR>(table)));
}

}  // namespace
