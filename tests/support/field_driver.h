/// @file field_driver.h
/// A date or time field under test: keys, steps, and where its text and its caret are.
#pragma once

#include <windows.h>

namespace testing_support {

class FieldDriver {
  public:
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

  protected:
    HWND field_ = nullptr;
};

}  // namespace testing_support
