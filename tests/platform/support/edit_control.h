// An edit control in a window that writes down its notifications, for the tests of the edit class.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/platform/support/dialog_builder.h"

namespace tests {

class EditControl : public ::testing::Test {
  protected:
    void SetUp() override {
        Notified().clear();
        DestroyOn() = 0;
        parent_ = MakeOwner(ParentProcedure);
        SetActiveWindow(parent_);
    }
    void TearDown() override {
        DestroyWindow(parent_);
    }

    HWND Make(DWORD style = ES_AUTOHSCROLL, const char* text = "", int width = 120, int height = 22) {
        return CreateWindowExA(WS_EX_CLIENTEDGE, "edit", text, WS_CHILD | WS_VISIBLE | style, 10, 10, width, height,
                               parent_, reinterpret_cast<HMENU>(static_cast<LONG_PTR>(kId)), nullptr, nullptr);
    }

    static LRESULT Send(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
        return SendMessageA(window, message, wParam, lParam);
    }
    static void Type(HWND edit, const char* text) {
        for (; *text; ++text)
            Send(edit, WM_CHAR, static_cast<unsigned char>(*text), 1);
    }
    static void Key(HWND edit, WPARAM key) {
        Send(edit, WM_KEYDOWN, key, 1);
    }
    static void Select(HWND edit, int start, int end) {
        Send(edit, EM_SETSEL, static_cast<WPARAM>(start), end);
    }

    /// Where a character begins: where the caret stands before it.
    static POINT PlaceOf(HWND edit, int position) {
        SetFocus(edit);
        Select(edit, position, position);
        POINT place{};
        GetCaretPos(&place);
        return place;
    }

    static std::string Text(HWND edit) {
        char text[300] = "";
        GetWindowTextA(edit, text, sizeof text);
        return text;
    }
    /// The text with the selection in brackets, or the caret as a bar.
    static std::string Marked(HWND edit) {
        DWORD start = 0;
        DWORD end = 0;
        Send(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
        const std::string text = Text(edit);
        if (start > end || end > text.size())
            return "selection outside of the text";
        if (start == end)
            return text.substr(0, start) + '|' + text.substr(start);
        return text.substr(0, start) + '[' + text.substr(start, end - start) + ']' + text.substr(end);
    }

    static std::vector<UINT>& Notified() {
        static std::vector<UINT> notified;
        return notified;
    }
    static std::vector<UINT> TakeNotified() {
        return std::exchange(Notified(), {});
    }
    /// The notification on which the parent destroys the control.
    static UINT& DestroyOn() {
        static UINT code = 0;
        return code;
    }

    static constexpr int kId = 100;
    HWND parent_ = nullptr;

  private:
    static LRESULT CALLBACK ParentProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message == WM_COMMAND && LOWORD(wParam) == kId) {
            Notified().push_back(HIWORD(wParam));
            if (HIWORD(wParam) == DestroyOn())
                DestroyWindow(reinterpret_cast<HWND>(lParam));
            return 0;
        }
        return DefWindowProcA(window, message, wParam, lParam);
    }
};

}  // namespace tests
