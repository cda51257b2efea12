// The keyboard in windows that are no dialogs, as far as only this host's layer settles it: mnemonics, the default button.
#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "tests/platform/support/dialog_builder.h"
#include "tests/platform/support/edit_control.h"
#include "tests/platform/support/recorder.h"

namespace {

using tests::DialogKey;
using tests::Recorder;

class PlainWindowRules : public ::testing::Test {
  protected:
    static constexpr int kField = 11, kOne = 12, kTwo = 13, kLabel = 14, kLines = 15;

    void SetUp() override {
        Recorder::Get().Reset();
        window_ = Recorder::Get().Make(WS_POPUP | WS_VISIBLE, 50, 50, 300, 200);
        Child("edit", "", kField, WS_TABSTOP);
        Child("button", "&One", kOne, WS_TABSTOP);
        Child("button", "&Two", kTwo, WS_TABSTOP | BS_DEFPUSHBUTTON);
        Child("static", "&Label", kLabel, 0);
        Child("edit", "", kLines, WS_TABSTOP | ES_MULTILINE | ES_AUTOVSCROLL);
        SetFocus(Item(kField));
        Recorder::Get().Clear();
    }
    void TearDown() override {
        DestroyWindow(window_);
        Recorder::Get().Reset();
    }
    HWND Child(const char* className, const char* text, int id, DWORD style) {
        return CreateWindowExA(0, className, text, WS_CHILD | WS_VISIBLE | style, 0, 0, 20, 20, window_,
                               reinterpret_cast<HMENU>(static_cast<LONG_PTR>(id)), nullptr, nullptr);
    }
    HWND Item(int id) {
        return GetDlgItem(window_, id);
    }
    int Press(WPARAM key, UINT message = WM_KEYDOWN) {
        EXPECT_TRUE(DialogKey(window_, GetFocus(), key, message));
        return GetDlgCtrlID(GetFocus());
    }
    /// The buttons and other identifiers that were clicked or commanded since the last time.
    static std::vector<int> Clicked() {
        std::vector<int> clicked;
        for (const tests::Heard& heard : std::exchange(Recorder::Get().heard, {})) {
            if (heard.message == WM_COMMAND && HIWORD(heard.wParam) == BN_CLICKED)
                clicked.push_back(LOWORD(heard.wParam));
        }
        return clicked;
    }
    int Outlined() {
        int found = 0;
        for (const int id : {kOne, kTwo}) {
            if ((GetWindowLongA(Item(id), GWL_STYLE) & BS_TYPEMASK) == BS_DEFPUSHBUTTON)
                found = found * 100 + id;
        }
        return found;
    }
    HWND window_ = nullptr;
};

TEST_F(PlainWindowRules, MnemonicsMoveTheFocus) {
    EXPECT_EQ(kLines, Press('l', WM_SYSCHAR));
    EXPECT_EQ(kOne, Press('o', WM_SYSCHAR));
    EXPECT_EQ(std::vector<int>{kOne}, Clicked());
    EXPECT_EQ(kTwo, Press('t', WM_CHAR)) << "no characters are typed in a button";
    EXPECT_EQ(std::vector<int>{kTwo}, Clicked());
}

TEST_F(PlainWindowRules, EnterPressesTheButtonThatLooksLikeIt) {
    Press(VK_RETURN);
    EXPECT_EQ(std::vector<int>{kTwo}, Clicked());
    // The outline goes with the focus and comes back.
    EXPECT_EQ(kOne, Press(VK_TAB));
    EXPECT_EQ(kOne, Outlined());
    Press(VK_RETURN);
    EXPECT_EQ(std::vector<int>{kOne}, Clicked());
    {
        const tests::ShiftHeld shift;
        EXPECT_EQ(kField, Press(VK_TAB));
    }
    EXPECT_EQ(kTwo, Outlined());
    Press(VK_RETURN);
    EXPECT_EQ(std::vector<int>{kTwo}, Clicked());
    EnableWindow(Item(kTwo), FALSE);
    Press(VK_RETURN);
    EXPECT_EQ(std::vector<int>{}, Clicked());
    DestroyWindow(Item(kTwo));
    Press(VK_RETURN);
    EXPECT_EQ(std::vector<int>{IDOK}, Clicked());
}

TEST_F(PlainWindowRules, AWindowMayNameItsDefaultButton) {
    Recorder::Get().answer = [](const tests::Heard& heard, LRESULT* result) {
        *result = MAKELONG(kOne, DC_HASDEFID);
        return heard.message == DM_GETDEFID;
    };
    Press(VK_RETURN);
    EXPECT_EQ(std::vector<int>{kOne}, Clicked());
}

TEST_F(PlainWindowRules, LinesOfTextLetGo) {
    SetFocus(Item(kLines));
    Press(VK_RETURN);
    EXPECT_EQ(std::vector<int>{kTwo}, Clicked());
    {
        const tests::KeyHeld control(VK_CONTROL);
        EXPECT_EQ(kLines, Press(VK_TAB)) << "with Ctrl it is text";
    }
    EXPECT_EQ(1, GetWindowTextLengthA(Item(kLines)));
    EXPECT_EQ(kField, Press(VK_TAB));
    // Only a window that is asked for its keys has a dialog around it to close.
    Recorder::Get().Clear();
    const HWND alone = Child("edit", "", 0, ES_MULTILINE);
    SendMessageA(alone, WM_KEYDOWN, VK_ESCAPE, 1);
    tests::Pump();
    EXPECT_EQ(nullptr, Recorder::Get().Find(WM_CLOSE));
}

TEST_F(PlainWindowRules, EndDialogIsForDialogs) {
    Press(VK_TAB);
    EXPECT_FALSE(EndDialog(window_, 1));
    EXPECT_TRUE(IsWindowVisible(window_));
}

TEST_F(PlainWindowRules, OddArguments) {
    MSG message{};
    EXPECT_FALSE(IsDialogMessageA(window_, nullptr));
    EXPECT_FALSE(IsDialogMessageA(nullptr, &message));
    EXPECT_FALSE(IsDialogMessageA(window_, &message));
    const HWND all = reinterpret_cast<HWND>(static_cast<INT_PTR>(-1));
    const HWND stale = Child("static", "", 0, 0);
    DestroyWindow(stale);
    for (const HWND bad : {HWND{}, all, stale}) {
        EXPECT_EQ(nullptr, GetNextDlgGroupItem(bad, nullptr, FALSE));
        EXPECT_EQ(nullptr, GetNextDlgTabItem(bad, nullptr, TRUE));
        EXPECT_FALSE(EndDialog(bad, -1));
        if (bad) {
            EXPECT_EQ(nullptr, GetNextDlgGroupItem(window_, bad, FALSE));
        }
    }
    EXPECT_EQ(Item(kField), GetNextDlgGroupItem(window_, window_, FALSE));
    const HWND empty = CreateWindowExA(0, "static", "", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
    EXPECT_EQ(nullptr, GetNextDlgGroupItem(empty, nullptr, FALSE));
    EXPECT_EQ(nullptr, GetNextDlgTabItem(empty, nullptr, FALSE));
    for (const WPARAM key : {VK_TAB, VK_RETURN, VK_ESCAPE, VK_DOWN, VK_LEFT})
        EXPECT_TRUE(DialogKey(empty, empty, key));
    EXPECT_TRUE(DialogKey(empty, empty, 'x', WM_SYSCHAR));
    DestroyWindow(empty);
}

}  // namespace
