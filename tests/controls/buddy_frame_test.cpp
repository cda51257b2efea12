// The buddy frame: what it arranges and how, and its border.
#include <cvutil32/buddyfr.h>

#include "tests/support/leaks.h"
#include "tests/support/window.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using namespace testing_support;

bool Is(RECT const& rect, int left, int top, int right, int bottom) {
    RECT const expected = {left, top, right, bottom};
    return EqualRect(&rect, &expected);
}

/// A dialog's client area with controls that come one after the other in its tab order. Fields and buttons are plain
/// windows that have the class names: what they do does not matter here.
class BuddyFrame : public testing::Test {
  protected:
    BuddyFrame() {
        for (char const* name : kNames) {
            WNDCLASSA record = {};
            record.lpfnWndProc = DefWindowProcA;
            record.hInstance = GetModuleHandleA(nullptr);
            record.lpszClassName = name;
            EXPECT_NE(0, RegisterClassA(&record)) << name;
        }
    }
    ~BuddyFrame() override {
        host_.Destroy();
        for (char const* name : kNames) {
            UnregisterClassA(name, GetModuleHandleA(nullptr));
        }
    }

    HWND Add(char const* name, DWORD style = WS_TABSTOP, RECT const& place = {10, 20, 110, 40}) {
        return MakeChild(host_, name, style, place);
    }
    HWND AddFrame() {
        return Add(BUDDYFR_CLASSNAME, 0, {0, 0, 9, 9});
    }
    RECT PlaceOf(HWND window) {
        RECT rect;
        GetWindowRect(window, &rect);
        POINT origin = {0, 0};
        ClientToScreen(host_, &origin);
        OffsetRect(&rect, -origin.x, -origin.y);
        return rect;
    }

    static constexpr char const* kNames[] = {"Edit", "ComboBox", "CvTestSmallButton"};
    TestWindow host_;
};

TEST_F(BuddyFrame, EditFieldWithOneButton) {
    HWND const field = Add("Edit");
    HWND const button = Add("CvTestSmallButton");
    HWND const child = MakeChild(button, "CvTestSmallButton");
    HWND const frame = AddFrame();
    EXPECT_TRUE(Is(PlaceOf(field), 10, 20, 88, 41));
    EXPECT_TRUE(Is(PlaceOf(frame), 88, 20, 110, 41));
    EXPECT_TRUE(Is(PlaceOf(button), 90, 22, 108, 39));
    EXPECT_TRUE(Is(PlaceOf(child), 90, 22, 108, 39)) << "what is in the button fills it";
}

TEST_F(BuddyFrame, ComboBoxWithTwoButtonsInTabOrder) {
    HWND const field = Add("ComboBox");
    HWND const first = Add("CvTestSmallButton");
    Add("CvTestSmallButton", 0);  // no tab stop: not one of them
    HWND const second = Add("CvTestSmallButton");
    HWND const frame = AddFrame();
    EXPECT_TRUE(Is(PlaceOf(field), 10, 20, 70, 140));
    EXPECT_TRUE(Is(PlaceOf(frame), 70, 20, 110, 40));
    EXPECT_TRUE(Is(PlaceOf(first), 72, 22, 90, 38));
    EXPECT_TRUE(Is(PlaceOf(second), 90, 22, 108, 38));
}

TEST_F(BuddyFrame, WithoutAFieldOrAButtonNothingMoves) {
    RECT const before = {10, 20, 110, 40};
    auto const stays = [&](std::vector<HWND> const& windows) {
        HWND const frame = AddFrame();
        EXPECT_TRUE(Is(PlaceOf(frame), 0, 0, 9, 9));
        for (HWND window : windows) {
            RECT const now = PlaceOf(window);
            EXPECT_TRUE(EqualRect(&now, &before));
        }
        DestroyWindow(frame);
    };
    stays({});
    HWND const field = Add("Edit");
    stays({field});
    HWND const first = Add("CvTestSmallButton");
    HWND const second = Add("CvTestSmallButton");
    HWND const third = Add("CvTestSmallButton");
    stays({field, first, second, third});
    DestroyWindow(field);
    DestroyWindow(third);
    stays({first, second});
}

TEST_F(BuddyFrame, BorderIsSunkenAndTheInsideLeftAlone) {
    COLORREF const ground = RGB(200, 100, 50);
    host_.answer = [&](Message const& message) -> std::optional<LRESULT> {
        if (message.id != WM_ERASEBKGND) {
            return std::nullopt;
        }
        RECT client;
        GetClientRect(host_, &client);
        HBRUSH const brush = CreateSolidBrush(ground);
        FillRect(reinterpret_cast<HDC>(message.wParam), &client, brush);
        return DeleteObject(brush);
    };
    HWND const frame = Add(BUDDYFR_CLASSNAME, 0, {30, 30, 42, 40});
    InvalidateRect(host_, nullptr, TRUE);
    UpdateWindow(host_);
    LeakCheck const leaks;
    UpdateWindow(frame);
    Picture const picture = PictureOf(frame);
    std::vector<std::string> letters;
    for (int y = 0; y < picture.height; ++y) {
        letters.emplace_back();
        for (int x = 0; x < picture.width; ++x) {
            COLORREF const colour = picture.At(x, y);
            letters.back() += colour == ground                            ? '.'
                              : colour == GetSysColor(COLOR_BTNSHADOW)    ? 's'
                              : colour == GetSysColor(COLOR_BTNHIGHLIGHT) ? 'h'
                              : colour == GetSysColor(COLOR_3DDKSHADOW)   ? 'd'
                              : colour == GetSysColor(COLOR_3DLIGHT)      ? 'l'
                                                                          : '?';
        }
    }
    EXPECT_EQ(
        (std::vector<std::string>{"sssssssssssh", "sdddddddddlh", "sd........lh", "sd........lh", "sd........lh",
                                  "sd........lh", "sd........lh", "sd........lh", "s.lllllllllh", "hhhhhhhhhhhh"}),
        letters);
    host_.answer = nullptr;
}

TEST(BuddyFrameFields, TheSystemsOwnComboBoxKeepsItsHeightAndItsList) {
    TestWindow const host;
    auto const add = [&](char const* name, DWORD style, int height) {
        return MakeChild(host, name, style, {10, 20, 110, 20 + height});
    };
    HWND const combo = add("combobox", CBS_DROPDOWN | WS_TABSTOP, 60);
    HWND const button = add("button", WS_TABSTOP, 9);
    RECT before;
    GetWindowRect(combo, &before);
    HWND const frame = add(BUDDYFR_CLASSNAME, 0, 9);
    RECT after;
    GetWindowRect(combo, &after);
    EXPECT_TRUE(Is(after, before.left, before.top, before.right - 22, before.bottom))
        << "closed it is as high as it was";
    RECT dropped;
    SendMessageA(combo, CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&dropped));
    EXPECT_GT(dropped.bottom - dropped.top, before.bottom - before.top) << "open there is room for the list";
    RECT place;
    GetWindowRect(frame, &place);
    EXPECT_TRUE(Is(place, before.right - 22, before.top, before.right, before.bottom));
    GetWindowRect(button, &place);
    EXPECT_TRUE(Is(place, before.right - 20, before.top + 2, before.right - 2, before.bottom - 2));
}

}  // namespace
