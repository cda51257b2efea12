// Rules of dialogs that are documented but not kept by every host of the portable tests.
#include <gtest/gtest.h>

#include <vector>

#include "tests/platform/support/dialog_builder.h"
#include "tests/platform/support/looking.h"

namespace {

using tests::DialogBuilder;
using tests::DialogKey;

class DialogRulesTest : public ::testing::Test {
  protected:
    static inline std::vector<int> clicks;
    static inline void (*running)(HWND) = nullptr;
    static INT_PTR CALLBACK Procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM) {
        switch (message) {
            case WM_INITDIALOG:
                PostMessageA(dialog, WM_USER + 20, 0, 0);
                return TRUE;
            case WM_USER + 20:
                if (running)
                    running(dialog);
                return TRUE;
            case WM_COMMAND:
                if (HIWORD(wParam) == BN_CLICKED)
                    clicks.push_back(LOWORD(wParam));
                return TRUE;
            default:
                return FALSE;
        }
    }

    void SetUp() override {
        clicks.clear();
        running = nullptr;
        owner_ = tests::MakeOwner();
        SetActiveWindow(owner_);
        builder_ = DialogBuilder(WS_POPUP | WS_CAPTION | WS_VISIBLE);
        builder_.Title("rules")
            .Item("static", "label", 300, 0, 0, 0, 20, 8)
            .Item("button", "&Later", 500, WS_TABSTOP, 5, 20, 50, 14)
            .Item("button", "OK", IDOK, BS_DEFPUSHBUTTON | WS_TABSTOP, 5, 40, 50, 14)
            .Item("button", "Cancel", IDCANCEL, WS_TABSTOP, 60, 40, 50, 14);
    }
    void TearDown() override {
        DestroyWindow(owner_);
        tests::PumpMessages();
    }
    HWND Make() {
        return CreateDialogIndirectParamA(nullptr, builder_.Data(), owner_, Procedure, 0);
    }
    INT_PTR Run(HWND owner) {
        return DialogBoxIndirectParamA(nullptr, builder_.Data(), owner, Procedure, 0);
    }
    HWND owner_ = nullptr;
    DialogBuilder builder_;
};

TEST_F(DialogRulesTest, TheOwnersStateComesBackHoweverTheDialogEnds) {
    running = [](HWND dialog) { DestroyWindow(dialog); };
    Run(owner_);
    EXPECT_TRUE(IsWindowEnabled(owner_));

    running = [](HWND) { PostQuitMessage(5); };
    Run(owner_);
    EXPECT_TRUE(IsWindowEnabled(owner_));
    MSG message{};
    ASSERT_TRUE(PeekMessageA(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));

    EnableWindow(owner_, FALSE);
    running = [](HWND dialog) { EndDialog(dialog, 1); };
    EXPECT_EQ(1, Run(owner_));
    EXPECT_FALSE(IsWindowEnabled(owner_)) << "it was disabled before";
}

TEST_F(DialogRulesTest, DisabledButtonsAreNotPressedByKeysOrClose) {
    const HWND dialog = Make();
    SetFocus(dialog);
    EnableWindow(GetDlgItem(dialog, IDCANCEL), FALSE);
    EnableWindow(GetDlgItem(dialog, IDOK), FALSE);
    DialogKey(dialog, dialog, VK_ESCAPE);
    DialogKey(dialog, dialog, VK_RETURN);
    SendMessageA(dialog, WM_CLOSE, 0, 0);
    tests::PumpMessages();
    EXPECT_TRUE(clicks.empty());
    DestroyWindow(dialog);
}

TEST_F(DialogRulesTest, RivalsForAMnemonicOnlyPassTheFocusRound) {
    const HWND dialog = Make();
    SetWindowTextA(GetDlgItem(dialog, IDCANCEL), "&Later too");
    SetFocus(GetDlgItem(dialog, IDOK));
    DialogKey(dialog, GetFocus(), 'l', WM_SYSCHAR);
    EXPECT_EQ(IDCANCEL, GetDlgCtrlID(GetFocus()));
    DialogKey(dialog, GetFocus(), 'l', WM_SYSCHAR);
    EXPECT_EQ(500, GetDlgCtrlID(GetFocus()));
    EXPECT_TRUE(clicks.empty());
    DestroyWindow(dialog);
}

TEST_F(DialogRulesTest, PlusAndMinusSetCheckBoxes) {
    const HWND dialog = Make();
    const HWND check = CreateWindowExA(0, "button", "", WS_CHILD | BS_AUTOCHECKBOX, 0, 0, 20, 20, dialog,
                                       reinterpret_cast<HMENU>(static_cast<LONG_PTR>(77)), nullptr, nullptr);
    DialogKey(dialog, check, '+', WM_CHAR);
    DialogKey(dialog, check, '=', WM_CHAR);
    EXPECT_EQ(UINT{BST_CHECKED}, IsDlgButtonChecked(dialog, 77));
    DialogKey(dialog, check, '-', WM_CHAR);
    EXPECT_EQ(UINT{BST_UNCHECKED}, IsDlgButtonChecked(dialog, 77));
    EXPECT_EQ((std::vector<int>{77, 77}), clicks) << "a state that it has already is no click";
    DestroyWindow(dialog);
}

VOID CALLBACK PressEscape(HWND, UINT, UINT_PTR timer, DWORD) {
    const HWND box = FindWindowA("#32770", "Only OK");
    if (!box)
        return;
    KillTimer(nullptr, timer);
    PostMessageA(GetFocus(), WM_KEYDOWN, VK_ESCAPE, 1);
}

TEST_F(DialogRulesTest, EscapeAnswersAMessageBoxWithOkAlone) {
    SetTimer(nullptr, 0, 10, PressEscape);
    EXPECT_EQ(IDOK, MessageBoxA(owner_, "text", "Only OK", MB_OK));
}

TEST_F(DialogRulesTest, OnlyDialogsHaveUnitsAndEnd) {
    const HWND dialog = Make();
    const HWND button = GetDlgItem(dialog, IDOK);
    RECT rect{4, 8, 4, 8};
    EXPECT_FALSE(MapDialogRect(button, &rect));
    EXPECT_FALSE(EndDialog(button, 1));
    EXPECT_EQ(4, rect.left);
    DestroyWindow(dialog);
}

}  // namespace
