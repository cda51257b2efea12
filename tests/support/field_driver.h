/// @file field_driver.h
/// A date or time field under test: keys, steps, where its text and its caret are, and what it looks like.
#pragma once

#include "tests/support/window.h"

#include <windows.h>

#include <gtest/gtest.h>

namespace testing_support {

class FieldDriver {
  public:
    static constexpr int kWidth = 120;
    static constexpr int kHeight = 26;

    /// Makes a field, in place of the one before.
    void Create(char const* className) {
        if (field_) {
            DestroyWindow(field_);
        }
        field_ = MakeChild(host_, className, 0, {10, 10, 10 + kWidth, 10 + kHeight});
        ASSERT_NE(nullptr, field_);
    }
    void Key(WPARAM key) const {
        SendMessageA(field_, WM_KEYDOWN, key, 1);
    }
    void Type(char const* characters) const {
        for (; *characters; ++characters) {
            SendMessageA(field_, WM_CHAR, static_cast<unsigned char>(*characters), 1);
        }
    }
    void Scroll(WORD code) const {
        SendMessageA(field_, WM_VSCROLL, MAKEWPARAM(code, 0), 0);
    }
    void MoveTo(int position) const {
        Key(VK_HOME);
        for (int i = 0; i < position; ++i) {
            Key(VK_RIGHT);
        }
    }

    int Extent(char const* text, int count) const {
        HDC const dc = GetDC(field_);
        SIZE size = {};
        GetTextExtentPoint32A(dc, text, count, &size);
        ReleaseDC(field_, dc);
        return size.cx;
    }
    static POINT Caret() {
        POINT position = {-1, -1};
        GetCaretPos(&position);
        return position;
    }
    /// The position whose place the caret has, given the text that is shown; -1 for none.
    int CaretIn(char const* text) const {
        int const x = Caret().x;
        for (int position = 0; position < lstrlenA(text); ++position) {
            if (Extent(text, position) == x) {
                return position;
            }
        }
        return -1;
    }

    /// What a field with this text must look like.
    Picture Expected(char const* text) const {
        HDC const dc = GetDC(field_);
        HDC const memory = CreateCompatibleDC(dc);
        HBITMAP const bitmap = CreateCompatibleBitmap(dc, kWidth, kHeight);
        HGDIOBJ const former = SelectObject(memory, bitmap);
        RECT area = {0, 0, kWidth, kHeight};
        FillRect(memory, &area, GetSysColorBrush(COLOR_WINDOW));
        area.left = area.top = 1;
        DrawTextA(memory, text, -1, &area, DT_LEFT | DT_TOP);
        Picture const picture = PictureOf(memory, kWidth, kHeight);
        SelectObject(memory, former);
        DeleteObject(bitmap);
        DeleteDC(memory);
        ReleaseDC(field_, dc);
        return picture;
    }

  protected:
    HWND field_ = nullptr;
    TestWindow host_;
};

}  // namespace testing_support
