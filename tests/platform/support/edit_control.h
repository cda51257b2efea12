// An edit control in a window that writes down its notifications, for the tests of the edit class.
#pragma once

#include <string>

#include "tests/platform/support/controls.h"

namespace tests {

class EditControl : public Controls {
  protected:
    HWND Make(DWORD style = ES_AUTOHSCROLL, const char* text = "", int width = 120, int height = 22) {
        return MakeControl("edit", text, style, width, height, kId, WS_EX_CLIENTEDGE);
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
};

}  // namespace tests
