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
    HWND window_ = nullptr;
};

TEST_F(PlainWindowRules, EnterIsACommand) {
    Press(VK_RETURN);
    EXPECT_EQ(std::vector<int>{IDOK}, Clicked());
}

TEST_F(PlainWindowRules, LinesOfTextLetGoOfEnterUnlessAStyleKeepsIt) {
    SetFocus(Item(kLines));
    Press(VK_RETURN);
    EXPECT_EQ(std::vector<int>{IDOK}, Clicked());
    EXPECT_EQ(0, GetWindowTextLengthA(Item(kLines)));
    SetWindowLongA(Item(kLines), GWL_STYLE, GetWindowLongA(Item(kLines), GWL_STYLE) | ES_WANTRETURN);
    Press(VK_RETURN);
    tests::Pump();
    EXPECT_EQ(std::vector<int>{}, Clicked());
    EXPECT_EQ(2, GetWindowTextLengthA(Item(kLines)));
}

TEST_F(PlainWindowRules, AWindowMayNameItsDefaultButton) {
    Recorder::Get().answer = [](const tests::Heard& heard, LRESULT* result) {
        *result = MAKELONG(kOne, DC_HASDEFID);
        return heard.message == DM_GETDEFID;
    };
    Press(VK_RETURN);
    EXPECT_EQ(std::vector<int>{kOne}, Clicked());
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
