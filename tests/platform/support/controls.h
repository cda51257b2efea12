// A window with controls that writes down what they tell it, for the tests of their classes.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "tests/platform/support/dialog_builder.h"
#include "tests/platform/support/looking.h"

namespace tests {

class Controls : public ::testing::Test {
  protected:
    static constexpr int kId = 100;
    static constexpr UINT kNever = 0xFFFFFFFF;
    static constexpr UINT kAny = 0xFFFFFFFE;
    static inline std::vector<UINT>
        notified;  ///< the notifications; some hosts send more than `heard`, where it is set
    static inline std::vector<UINT> heard;
    static inline std::string textAtNotice;  ///< of the control, at the last of them
    static inline std::vector<DRAWITEMSTRUCT> drawn;
    static inline std::vector<MEASUREITEMSTRUCT> measured;  ///< each is answered with a height of 17
    static inline UINT destroyOn = kNever;  ///< the notification on which the parent destroys the control

    void SetUp() override {
        Forget();
        heard.clear();
        destroyOn = kNever;
        parent_ = MakeOwner(ParentProcedure);
        SetActiveWindow(parent_);
    }
    void TearDown() override {
        DestroyWindow(parent_);
    }
    static void Forget() {
        notified.clear();
        drawn.clear();
        measured.clear();
    }
    HWND MakeControl(const char* className, const char* text, DWORD style, int width, int height, int id = kId,
                     DWORD exStyle = 0) {
        return CreateWindowExA(exStyle, className, text, WS_CHILD | WS_VISIBLE | style, 10, 10, width, height, parent_,
                               reinterpret_cast<HMENU>(static_cast<LONG_PTR>(id)), nullptr, nullptr);
    }

    static LRESULT Send(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
        return SendMessageA(window, message, wParam, lParam);
    }
    static LRESULT SendText(HWND window, UINT message, int wParam, const char* text) {
        return SendMessageA(window, message, static_cast<WPARAM>(wParam), reinterpret_cast<LPARAM>(text));
    }
    static std::string Text(HWND window) {
        char text[300] = "";
        GetWindowTextA(window, text, sizeof text);
        return text;
    }
    static std::vector<UINT> TakeNotified() {
        return std::exchange(notified, {});
    }
    static void ExpectDrawn(const DRAWITEMSTRUCT& item, UINT type, UINT index, ULONG_PTR data, UINT action,
                            UINT state) {
        EXPECT_EQ(type, item.CtlType);
        EXPECT_EQ(UINT{kId}, item.CtlID);
        EXPECT_EQ(index, item.itemID);
        EXPECT_EQ(data, item.itemData);
        EXPECT_EQ(action, item.itemAction);
        EXPECT_EQ(state, item.itemState);
    }
    /// A point in an item of a list.
    static LPARAM PointIn(HWND list, int index) {
        RECT rect{};
        Send(list, LB_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&rect));
        return MAKELPARAM(rect.left + 5, (rect.top + rect.bottom) / 2);
    }
    static void Click(HWND list, int index, WPARAM keys = 0) {
        Send(list, WM_LBUTTONDOWN, MK_LBUTTON | keys, PointIn(list, index));
        Send(list, WM_LBUTTONUP, keys, PointIn(list, index));
    }

    HWND parent_ = nullptr;

  private:
    static LRESULT CALLBACK ParentProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        switch (message) {
            case WM_COMMAND:
                if (heard.empty() || std::count(heard.begin(), heard.end(), HIWORD(wParam))) {
                    notified.push_back(HIWORD(wParam));
                    textAtNotice = Text(reinterpret_cast<HWND>(lParam));
                }
                if (destroyOn == kAny || HIWORD(wParam) == destroyOn)
                    DestroyWindow(reinterpret_cast<HWND>(lParam));
                return 0;
            case WM_MEASUREITEM:
                measured.push_back(*reinterpret_cast<const MEASUREITEMSTRUCT*>(lParam));
                reinterpret_cast<MEASUREITEMSTRUCT*>(lParam)->itemHeight = 17;
                return TRUE;
            case WM_DRAWITEM:
                drawn.push_back(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
                return TRUE;
            default:
                return DefWindowProcA(window, message, wParam, lParam);
        }
    }
};

}  // namespace tests
