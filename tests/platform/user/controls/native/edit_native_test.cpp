// How edit fields look here, and what of them and of the clipboard only this host's layer settles.
#include <cvplatform.h>

#include <set>

#include "tests/platform/support/edit_control.h"

namespace {

using tests::EditControl;

class EditLook : public EditControl {
  protected:
    static std::set<COLORREF> Colours(HWND edit) {
        const RECT client = tests::ClientOf(edit);
        const HDC context = GetDC(edit);
        std::set<COLORREF> colours;
        for (int y = 0; y < client.bottom; ++y) {
            for (int x = 0; x < client.right; ++x)
                colours.insert(GetPixel(context, x, y));
        }
        ReleaseDC(edit, context);
        return colours;
    }

    const COLORREF window = GetSysColor(COLOR_WINDOW);
    const COLORREF face = GetSysColor(COLOR_BTNFACE);
    const COLORREF text = GetSysColor(COLOR_WINDOWTEXT);
};

TEST_F(EditLook, ColoursSayWhatCanBeDone) {
    const HWND edit = Make(ES_AUTOHSCROLL, "hello");
    UpdateWindow(edit);
    EXPECT_EQ((std::set<COLORREF>{window, text}), Colours(edit));
    EnableWindow(edit, FALSE);
    EXPECT_EQ((std::set<COLORREF>{face, GetSysColor(COLOR_GRAYTEXT)}), Colours(edit));
    EnableWindow(edit, TRUE);
    Send(edit, EM_SETREADONLY, TRUE);
    EXPECT_EQ((std::set<COLORREF>{face, text}), Colours(edit));
}

TEST_F(EditLook, PasswordShowsNoneOfItsCharacters) {
    const HWND secret = Make(ES_AUTOHSCROLL | ES_PASSWORD, "iiii");
    const HWND stars = Make(ES_AUTOHSCROLL, "****");
    UpdateWindow(secret);
    UpdateWindow(stars);
    for (int y = 0; y < 18; ++y) {
        for (int x = 0; x < 40; ++x)
            ASSERT_EQ(tests::PixelOf(stars, x, y), tests::PixelOf(secret, x, y));
    }
    Select(secret, 0, -1);
    Send(secret, WM_COPY);
    Send(secret, WM_CUT);
    EXPECT_EQ("iiii", Text(secret));
    ASSERT_TRUE(OpenClipboard(parent_));
    EXPECT_EQ(nullptr, GetClipboardData(CF_TEXT)) << "and gives none away";
    CloseClipboard();
}

TEST_F(EditLook, SelectionIsHighlightedWhileTheFieldHasTheFocus) {
    const HWND edit = Make(ES_AUTOHSCROLL, "hello");
    const COLORREF highlight = GetSysColor(COLOR_HIGHLIGHT);
    Select(edit, 0, 5);
    SetFocus(edit);
    HideCaret(edit);
    EXPECT_TRUE(Colours(edit).contains(highlight));
    EXPECT_TRUE(Colours(edit).contains(GetSysColor(COLOR_HIGHLIGHTTEXT)));
    EXPECT_FALSE(Colours(edit).contains(text)) << "all of it is selected";
    SetFocus(parent_);
    EXPECT_FALSE(Colours(edit).contains(highlight));
}

TEST_F(EditLook, ATextThatIsNowhereIsRefused) {
    const HWND edit = Make(ES_AUTOHSCROLL, "kept");
    EXPECT_EQ(DWORD{ERROR_NOACCESS}, tests::ErrorOf([=] { return SetWindowTextA(edit, reinterpret_cast<LPCSTR>(8)); }));
    EXPECT_EQ("kept", Text(edit));
    EXPECT_TRUE(SetWindowTextA(edit, nullptr));
    EXPECT_EQ("", Text(edit));
}

TEST_F(EditLook, ASecretTellsNothingOfItsWords) {
    const HWND edit = Make(ES_AUTOHSCROLL | ES_PASSWORD, "wi ll");
    Select(edit, 0, 0);
    const tests::KeyHeld control(VK_CONTROL);
    Key(edit, VK_RIGHT);
    EXPECT_EQ("wi ll|", Marked(edit));
}

}  // namespace
