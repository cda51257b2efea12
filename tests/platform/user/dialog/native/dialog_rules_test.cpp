// Rules of dialogs that are documented but not kept by every host of the portable tests.
#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "tests/platform/support/dialog_builder.h"
#include "tests/platform/support/recorder.h"
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

// --- windows that are no dialogs

class PlainWindowRules : public tests::RecordedTest {
  protected:
    void SetUp() override {
        MakeWindow(WS_POPUP | WS_VISIBLE, 50, 50, 300, 200);
        field_ = CreateWindowExA(0, "edit", "", WS_CHILD | WS_VISIBLE | WS_TABSTOP, 0, 0, 20, 20, window, nullptr,
                                 nullptr, nullptr);
        SetFocus(field_);
    }
    HWND field_ = nullptr;
};

TEST_F(PlainWindowRules, EnterAndEscapeAreCommands) {
    for (const auto& [key, command] : {std::pair{VK_RETURN, IDOK}, std::pair{VK_ESCAPE, IDCANCEL}}) {
        tests::Recorder::Get().Clear();
        EXPECT_TRUE(DialogKey(window, GetFocus(), static_cast<WPARAM>(key)));
        const tests::Heard* heard = tests::Recorder::Get().Find(WM_COMMAND);
        ASSERT_NE(nullptr, heard);
        EXPECT_EQ(MAKEWPARAM(command, BN_CLICKED), heard->wParam);
    }
}

TEST_F(PlainWindowRules, OddArguments) {
    MSG message{};
    RECT rect{4, 8, 4, 8};
    EXPECT_FALSE(MapDialogRect(window, &rect));
    EXPECT_EQ(4, rect.left);
    EXPECT_FALSE(EndDialog(window, 1));
    EXPECT_FALSE(IsDialogMessageA(window, nullptr));
    EXPECT_FALSE(IsDialogMessageA(nullptr, &message));
    EXPECT_FALSE(IsDialogMessageA(window, &message));
    const HWND all = reinterpret_cast<HWND>(static_cast<INT_PTR>(-1));
    const HWND stale = CreateWindowExA(0, "static", "", WS_CHILD, 0, 0, 9, 9, window, nullptr, nullptr, nullptr);
    DestroyWindow(stale);
    for (const HWND bad : {HWND{}, all, stale}) {
        EXPECT_EQ(nullptr, GetNextDlgGroupItem(bad, nullptr, FALSE));
        EXPECT_EQ(nullptr, GetNextDlgTabItem(bad, nullptr, TRUE));
        EXPECT_FALSE(EndDialog(bad, -1));
        if (bad) {
            EXPECT_EQ(nullptr, GetNextDlgGroupItem(window, bad, FALSE));
        }
    }
    EXPECT_EQ(field_, GetNextDlgGroupItem(window, window, FALSE));
    const HWND empty = CreateWindowExA(0, "static", "", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
    EXPECT_EQ(nullptr, GetNextDlgGroupItem(empty, nullptr, FALSE));
    EXPECT_EQ(nullptr, GetNextDlgTabItem(empty, nullptr, FALSE));
    for (const WPARAM key : {VK_TAB, VK_RETURN, VK_ESCAPE, VK_DOWN, VK_LEFT})
        EXPECT_TRUE(DialogKey(empty, empty, key));
    EXPECT_TRUE(DialogKey(empty, empty, 'x', WM_SYSCHAR));
    DestroyWindow(empty);
}

}  // namespace
