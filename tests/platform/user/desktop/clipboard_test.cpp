// The clipboard: who may use it, and what edit fields do with it.
#include "tests/platform/support/edit_control.h"

namespace {

using tests::EditControl;

class Clipboard : public EditControl {
  protected:
    void TearDown() override {
        if (OpenClipboard(parent_)) {
            EmptyClipboard();
            CloseClipboard();
        }
        EditControl::TearDown();
    }

    void Put(const char* text) {
        const HWND lines = Make(ES_MULTILINE, text);
        Select(lines, 0, -1);
        Send(lines, WM_COPY);
        EXPECT_EQ(text, Taken());
        DestroyWindow(lines);
    }
    std::string Taken() const {
        EXPECT_TRUE(OpenClipboard(parent_));
        const HANDLE block = GetClipboardData(CF_TEXT);
        const auto* text = static_cast<const char*>(block ? GlobalLock(block) : nullptr);
        const std::string taken = text ? text : "(none)";
        if (block)
            GlobalUnlock(block);
        CloseClipboard();
        return taken;
    }
};

TEST_F(Clipboard, IsOpenToOneWindow) {
    EXPECT_EQ(DWORD{ERROR_CLIPBOARD_NOT_OPEN}, tests::ErrorOf([&] { return CloseClipboard(); }));
    EXPECT_FALSE(EmptyClipboard());
    const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, 1);
    EXPECT_EQ(nullptr, SetClipboardData(CF_TEXT, block));
    EXPECT_EQ(nullptr, GlobalFree(block)) << "it is still the caller's";
    EXPECT_EQ(nullptr, GetClipboardData(CF_TEXT));

    const HWND other = Make();
    ASSERT_TRUE(OpenClipboard(parent_));
    EXPECT_FALSE(OpenClipboard(other));
    EXPECT_TRUE(EmptyClipboard());
    EXPECT_EQ(nullptr, GetClipboardData(CF_TEXT));
    EXPECT_TRUE(CloseClipboard());
    ASSERT_TRUE(OpenClipboard(other));
    EXPECT_TRUE(CloseClipboard());
}

TEST_F(Clipboard, FieldsCutCopyAndPaste) {
    const HWND edit = Make(ES_AUTOHSCROLL, "one two three");
    Select(edit, 4, 7);
    Send(edit, WM_COPY);
    EXPECT_EQ("two", Taken());
    EXPECT_EQ("one [two] three", Marked(edit));
    Select(edit, 0, 4);
    Send(edit, WM_CUT);
    EXPECT_EQ("one ", Taken());
    EXPECT_EQ("|two three", Marked(edit));
    Send(edit, WM_UNDO);
    EXPECT_EQ("one two three", Text(edit));
    Select(edit, 13, 13);
    Send(edit, WM_PASTE);
    EXPECT_EQ("one two threeone |", Marked(edit));
    Select(edit, 0, 4);
    Type(edit, "\x03");  // Ctrl+C
    Select(edit, 4, 4);
    Type(edit, "\x16");  // Ctrl+V
    EXPECT_EQ("one one |two threeone ", Marked(edit));
    Select(edit, 2, 2);
    Send(edit, WM_COPY);
    EXPECT_EQ("one ", Taken()) << "nothing selected, nothing copied";
}

TEST_F(Clipboard, PastedTextKeepsToTheLimitAndToOneLine) {
    const HWND edit = Make(ES_AUTOHSCROLL);
    Send(edit, EM_LIMITTEXT, 5);
    Put("much too long");
    Send(edit, WM_PASTE);
    EXPECT_EQ("much |", Marked(edit));
    Select(edit, 0, -1);
    Put("a\r\nb");
    Send(edit, WM_PASTE);
    EXPECT_EQ("a|", Marked(edit));
    const HWND number = Make(ES_AUTOHSCROLL | ES_NUMBER);
    Put("1x");
    Send(number, WM_PASTE);
    EXPECT_EQ("1x", Text(number)) << "typing alone is filtered";
}

}  // namespace
