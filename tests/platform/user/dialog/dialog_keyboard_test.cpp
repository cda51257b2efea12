// The keyboard of dialogs: tab stops, groups, the default button, Enter and Escape, mnemonics.
#include <gtest/gtest.h>

#include <vector>

#include "tests/platform/support/dialog_builder.h"

namespace {

using tests::DialogBuilder;
using tests::DialogKey;

class DialogKeyboardTest : public ::testing::Test {
  protected:
    static constexpr int kLabel = 300, kField = 301, kRadio1 = 401, kRadio2 = 402, kRadio3 = 403, kAfter = 500,
                         kHidden = 501, kDisabled = 502, kPage = 600, kInPage = 601;
    static inline std::vector<int> clicks;
    static inline UINT wantedCode = 0;
    static INT_PTR CALLBACK Procedure(HWND, UINT message, WPARAM wParam, LPARAM) {
        if (message == WM_INITDIALOG)
            return TRUE;
        if (message != WM_COMMAND || HIWORD(wParam) != BN_CLICKED)
            return FALSE;
        clicks.push_back(LOWORD(wParam));
        return TRUE;
    }
    /// A control that takes the focus and answers WM_GETDLGCODE with what the test wants.
    static LRESULT CALLBACK FieldProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message == WM_GETDLGCODE)
            return wantedCode;
        return DefWindowProcA(window, message, wParam, lParam);
    }

    void SetUp() override {
        clicks.clear();
        wantedCode = 0;
        tests::RegisterPlain("tests_field", FieldProcedure);
        tests::RegisterPlain("tests_page");
        DialogBuilder builder(WS_POPUP | WS_CAPTION | WS_VISIBLE);
        builder.Title("keys")
            .Item("static", "&Field", kLabel, 0, 5, 5, 40, 8)
            .Item("tests_field", "&Xavier", kField, WS_TABSTOP | WS_GROUP, 50, 5, 40, 10)
            .Item("button", "&One", kRadio1, BS_AUTORADIOBUTTON | WS_TABSTOP | WS_GROUP, 5, 20, 60, 10)
            .Item("button", "&Two", kRadio2, BS_AUTORADIOBUTTON | WS_DISABLED, 5, 30, 60, 10)
            .Item("button", "T&hree", kRadio3, BS_AUTORADIOBUTTON, 5, 40, 60, 10)
            .Item("button", "&Later", kAfter, BS_PUSHBUTTON | WS_TABSTOP | WS_GROUP, 5, 55, 50, 14)
            .Item("button", "Hidden", kHidden, BS_PUSHBUTTON | WS_TABSTOP, 60, 55, 50, 14)
            .Item("button", "Disabled", kDisabled, BS_PUSHBUTTON | WS_TABSTOP | WS_DISABLED, 110, 55, 50, 14)
            .Item("tests_page", "", kPage, 0, 5, 75, 150, 20, WS_EX_CONTROLPARENT)
            .Item("button", "OK", IDOK, BS_DEFPUSHBUTTON | WS_TABSTOP, 5, 100, 50, 14)
            .Item("button", "Cancel", IDCANCEL, BS_PUSHBUTTON | WS_TABSTOP, 60, 100, 50, 14);
        dialog_ = CreateDialogIndirectParamA(GetModuleHandleA(nullptr), builder.Data(), nullptr, Procedure, 0);
        ASSERT_NE(nullptr, dialog_);
        ShowWindow(Item(kHidden), SW_HIDE);
        inPage_ = CreateWindowExA(0, "button", "In &page", WS_CHILD | WS_VISIBLE | WS_TABSTOP, 0, 0, 60, 20,
                                  Item(kPage), reinterpret_cast<HMENU>(static_cast<LONG_PTR>(kInPage)),
                                  GetModuleHandleA(nullptr), nullptr);
    }
    void TearDown() override {
        DestroyWindow(dialog_);
        UnregisterClassA("tests_field", GetModuleHandleA(nullptr));
        UnregisterClassA("tests_page", GetModuleHandleA(nullptr));
    }
    HWND Item(int id) {
        return GetDlgItem(dialog_, id);
    }
    int Focus() {
        return GetDlgCtrlID(GetFocus());
    }
    void Press(WPARAM key) {
        EXPECT_TRUE(DialogKey(dialog_, GetFocus(), key));
    }
    void Type(char character, UINT message = WM_CHAR) {
        EXPECT_TRUE(DialogKey(dialog_, GetFocus(), static_cast<WPARAM>(character), message));
    }
    LONG KindOf(int id) {
        return GetWindowLongA(Item(id), GWL_STYLE) & BS_TYPEMASK;
    }

    HWND dialog_ = nullptr;
    HWND inPage_ = nullptr;
};

TEST_F(DialogKeyboardTest, TabGoesThroughReachableStopsAndPagesAndAround) {
    ASSERT_EQ(kField, Focus());
    for (const int expected : {kRadio1, kAfter, kInPage, IDOK, IDCANCEL, kField}) {
        Press(VK_TAB);
        EXPECT_EQ(expected, Focus());
    }
    const tests::KeyHeld shift(VK_SHIFT);
    for (const int expected : {int{IDCANCEL}, int{IDOK}, kInPage, kAfter, kRadio1, kField}) {
        Press(VK_TAB);
        EXPECT_EQ(expected, Focus());
    }
}

TEST_F(DialogKeyboardTest, NextItemsByCall) {
    EXPECT_EQ(Item(kField), GetNextDlgTabItem(dialog_, nullptr, FALSE));
    EXPECT_EQ(inPage_, GetNextDlgTabItem(dialog_, Item(IDOK), TRUE));
    EXPECT_EQ(Item(kRadio3), GetNextDlgGroupItem(dialog_, Item(kRadio1), FALSE)) << "the disabled one is skipped";
    EXPECT_EQ(Item(kRadio1), GetNextDlgGroupItem(dialog_, Item(kRadio3), FALSE));
    EXPECT_EQ(Item(kRadio3), GetNextDlgGroupItem(dialog_, Item(kRadio1), TRUE));
    EXPECT_EQ(inPage_, GetNextDlgGroupItem(dialog_, Item(kAfter), FALSE)) << "what is on a page belongs to the group";
    EXPECT_EQ(inPage_, GetNextDlgGroupItem(dialog_, Item(IDOK), TRUE));
}

TEST_F(DialogKeyboardTest, ArrowsMoveAndCheckWithinTheGroup) {
    SetFocus(Item(kRadio1));
    Press(VK_DOWN);
    EXPECT_EQ(kRadio3, Focus());
    EXPECT_EQ(UINT{BST_CHECKED}, IsDlgButtonChecked(dialog_, kRadio3));
    EXPECT_EQ(std::vector<int>{kRadio3}, clicks);
    Press(VK_RIGHT);
    EXPECT_EQ(kRadio1, Focus());
    EXPECT_EQ(UINT{BST_UNCHECKED}, IsDlgButtonChecked(dialog_, kRadio3));
    EXPECT_EQ(UINT{BST_CHECKED}, IsDlgButtonChecked(dialog_, kRadio1));
    Press(VK_UP);
    EXPECT_EQ(kRadio3, Focus());
    // Tab stops at the checked one from now on.
    SetFocus(Item(kField));
    Press(VK_TAB);
    EXPECT_EQ(kRadio3, Focus());
}

TEST_F(DialogKeyboardTest, CodesKeepKeysForTheControl) {
    ASSERT_EQ(kField, Focus());
    wantedCode = DLGC_WANTALLKEYS;
    Press(VK_ESCAPE);
    Press(VK_RETURN);
    EXPECT_TRUE(clicks.empty());
    wantedCode = DLGC_WANTCHARS;
    Type('l');
    EXPECT_TRUE(clicks.empty());
    // With Alt a mnemonic is one even here.
    Type('l', WM_SYSCHAR);
    EXPECT_EQ(std::vector<int>{kAfter}, clicks);
}

TEST_F(DialogKeyboardTest, EnterAndEscape) {
    Press(VK_RETURN);
    EXPECT_EQ(std::vector<int>{IDOK}, clicks);
    clicks.clear();
    Press(VK_ESCAPE);
    EXPECT_EQ(std::vector<int>{IDCANCEL}, clicks);
}

TEST_F(DialogKeyboardTest, TheDefaultOutlineFollowsTheFocusAndComesBack) {
    EXPECT_EQ(BS_DEFPUSHBUTTON, KindOf(IDOK));
    SendMessageA(dialog_, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(Item(kAfter)), TRUE);
    EXPECT_EQ(BS_DEFPUSHBUTTON, KindOf(kAfter));
    EXPECT_EQ(BS_PUSHBUTTON, KindOf(IDOK));
    Press(VK_RETURN);
    EXPECT_EQ(std::vector<int>{kAfter}, clicks);
    EXPECT_EQ(MAKELONG(IDOK, DC_HASDEFID), SendMessageA(dialog_, DM_GETDEFID, 0, 0));
    SendMessageA(dialog_, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(Item(kField)), TRUE);
    EXPECT_EQ(BS_PUSHBUTTON, KindOf(kAfter));
    EXPECT_EQ(BS_DEFPUSHBUTTON, KindOf(IDOK));

    SendMessageA(dialog_, DM_SETDEFID, IDCANCEL, 0);
    EXPECT_EQ(BS_DEFPUSHBUTTON, KindOf(IDCANCEL));
    EXPECT_EQ(BS_PUSHBUTTON, KindOf(IDOK));
    clicks.clear();
    Press(VK_RETURN);
    EXPECT_EQ(std::vector<int>{IDCANCEL}, clicks);
}

TEST_F(DialogKeyboardTest, Mnemonics) {
    Type('L');
    EXPECT_EQ(std::vector<int>{kAfter}, clicks);
    EXPECT_EQ(kAfter, Focus());
    // A label passes the focus on, and the text of a field that characters go to is no label.
    wantedCode = DLGC_WANTCHARS;
    Type('x', WM_SYSCHAR);
    EXPECT_EQ(kAfter, Focus());
    wantedCode = 0;
    Type('f', WM_SYSCHAR);
    EXPECT_EQ(kField, Focus());
    // Neither does a disabled button answer.
    clicks.clear();
    Type('t', WM_SYSCHAR);
    EXPECT_TRUE(clicks.empty());
    Type('p', WM_SYSCHAR);
    EXPECT_EQ(inPage_, GetFocus());
}

TEST_F(DialogKeyboardTest, MessagesOfOtherWindowsAreNotTaken) {
    const HWND other = tests::MakeOwner();
    EXPECT_FALSE(DialogKey(dialog_, other, VK_TAB));
    DestroyWindow(other);
}

}  // namespace
