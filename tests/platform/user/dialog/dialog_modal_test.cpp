// Modal dialogs and message boxes: nesting, owners, results, WM_QUIT, WM_ENTERIDLE.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "tests/platform/support/dialog_builder.h"

namespace {

using tests::DialogBuilder;

constexpr UINT kRun = WM_USER + 20;

/// What a dialog does when its first message arrives behind WM_INITDIALOG.
std::function<void(HWND)> atInit;
std::function<void(HWND)> running;
std::function<void(HWND)> onIdle;
HWND owner = nullptr;
std::vector<HWND> toldOfIdleness;
std::vector<HWND> cancelled;
bool everShown = false;

LRESULT CALLBACK OwnerProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_CANCELMODE)
        cancelled.push_back(window);
    if (message == WM_ENTERIDLE && wParam == MSGF_DIALOGBOX) {
        toldOfIdleness.push_back(window);
        if (onIdle)
            onIdle(reinterpret_cast<HWND>(lParam));
    }
    return DefWindowProcA(window, message, wParam, lParam);
}

INT_PTR CALLBACK ModalProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM) {
    switch (message) {
        case WM_INITDIALOG:
            if (atInit)
                atInit(dialog);
            PostMessageA(dialog, kRun, 0, 0);
            return TRUE;
        case WM_SHOWWINDOW:
            everShown = everShown || wParam;
            return FALSE;
        case kRun:
            if (running)
                running(dialog);
            return TRUE;
        case WM_COMMAND:
            EndDialog(dialog, LOWORD(wParam));
            return TRUE;
        default:
            return FALSE;
    }
}

VOID CALLBACK EndByTimer(HWND dialog, UINT, UINT_PTR, DWORD) {
    EndDialog(dialog, 1);
}

INT_PTR RunSimple(HWND forOwner, DWORD style = 0) {
    DialogBuilder builder(WS_POPUP | WS_CAPTION | style);
    builder.Title("modal").Item("button", "OK", IDOK, BS_DEFPUSHBUTTON | WS_TABSTOP, 5, 5, 50, 14);
    return DialogBoxIndirectParamA(GetModuleHandleA(nullptr), builder.Data(), forOwner, ModalProcedure, 0);
}

class DialogModalTest : public ::testing::Test {
  protected:
    void SetUp() override {
        atInit = nullptr;
        running = nullptr;
        onIdle = nullptr;
        toldOfIdleness.clear();
        everShown = false;
        owner = tests::MakeOwner(OwnerProcedure);
        SetActiveWindow(owner);
        tests::PumpMessages();
        cancelled.clear();
    }
    void TearDown() override {
        DestroyWindow(owner);
        tests::PumpMessages();
    }
    static HWND MakeChild(const char* className) {
        return CreateWindowExA(0, className, "", WS_CHILD | WS_VISIBLE, 0, 0, 10, 10, owner, nullptr, nullptr, nullptr);
    }
};

TEST_F(DialogModalTest, TheOwnerIsDisabledMeanwhileAndActiveAfterwards) {
    HWND seen = nullptr;
    running = [&](HWND dialog) {
        seen = dialog;
        EXPECT_FALSE(IsWindowEnabled(owner));
        EXPECT_EQ(dialog, GetActiveWindow());
        EXPECT_EQ(owner, GetWindow(dialog, GW_OWNER));
        EXPECT_TRUE(EndDialog(dialog, 4711));
        EXPECT_TRUE(IsWindow(dialog)) << "the loop destroys it";
        EXPECT_FALSE(IsWindowVisible(dialog));
        EXPECT_TRUE(IsWindowEnabled(owner));
    };
    // A child that is named as owner stands for its top-level window.
    for (const HWND named : {owner, MakeChild("static")}) {
        EXPECT_EQ(4711, RunSimple(named));
        EXPECT_FALSE(IsWindow(seen));
        EXPECT_TRUE(IsWindowEnabled(owner));
        EXPECT_EQ(owner, GetActiveWindow());
    }
}

TEST_F(DialogModalTest, Nested) {
    running = [](HWND outer) {
        running = [outer](HWND inner) {
            EXPECT_FALSE(IsWindowEnabled(outer));
            EXPECT_FALSE(IsWindowEnabled(owner));
            EXPECT_EQ(inner, GetActiveWindow());
            EndDialog(inner, 2);
        };
        EXPECT_EQ(2, RunSimple(outer));
        EXPECT_TRUE(IsWindowEnabled(outer));
        EXPECT_FALSE(IsWindowEnabled(owner));
        EXPECT_EQ(outer, GetActiveWindow());
        EXPECT_EQ(GetDlgItem(outer, IDOK), GetFocus());
        EndDialog(outer, 3);
    };
    EXPECT_EQ(3, RunSimple(owner));
    EXPECT_TRUE(IsWindowEnabled(owner));
}

TEST_F(DialogModalTest, AMessageThatWaitsMayEndItBeforeItIsSeen) {
    running = [](HWND dialog) {
        EXPECT_FALSE(IsWindowVisible(dialog));
        EndDialog(dialog, 6);
    };
    EXPECT_EQ(6, RunSimple(owner));
    EXPECT_FALSE(everShown);
    // With nothing to do it comes up, whatever comes later (not so soon that a slow host has no time for it).
    running = [](HWND dialog) { SetTimer(dialog, 1, 500, EndByTimer); };
    EXPECT_EQ(1, RunSimple(owner));
    EXPECT_TRUE(everShown);
    // A template can ask to be seen at once.
    running = [](HWND dialog) {
        EXPECT_TRUE(IsWindowVisible(dialog));
        EndDialog(dialog, 7);
    };
    EXPECT_EQ(7, RunSimple(owner, WS_VISIBLE));
}

TEST_F(DialogModalTest, NobodyHoldsTheMouseInItsLoop) {
    const HWND child = MakeChild("button");
    SendMessageA(child, WM_LBUTTONDOWN, MK_LBUTTON, 0);
    ASSERT_EQ(child, GetCapture());
    running = [&](HWND dialog) {
        EXPECT_EQ(nullptr, GetCapture());
        EXPECT_FALSE(SendMessageA(child, BM_GETSTATE, 0, 0) & BST_PUSHED) << "the press is over";
        EndDialog(dialog, 1);
    };
    EXPECT_EQ(1, RunSimple(owner));
    EXPECT_EQ(std::vector<HWND>{owner}, cancelled);
    // The dialog itself is no exception, nor is a window without anything to do with it.
    atInit = [](HWND dialog) { SetCapture(dialog); };
    EXPECT_EQ(1, RunSimple(owner));
    atInit = nullptr;
    SetCapture(owner);
    cancelled.clear();
    EXPECT_EQ(1, RunSimple(nullptr));
    EXPECT_FALSE(cancelled.empty()) << "the active window is told, though it is no owner";
}

TEST_F(DialogModalTest, AnOwnerInsideAnotherWindowIsDisabledAlone) {
    const HWND outer = tests::MakeOwner(OwnerProcedure);
    SetParent(owner, outer);
    const HWND child = MakeChild("static");
    onIdle = [](HWND dialog) { EndDialog(dialog, 8); };
    running = [&](HWND dialog) {
        EXPECT_EQ(owner, GetWindow(dialog, GW_OWNER));
        EXPECT_FALSE(IsWindowEnabled(owner));
        EXPECT_TRUE(IsWindowEnabled(outer));
    };
    for (const HWND named : {owner, child}) {
        EXPECT_EQ(8, RunSimple(named));
        EXPECT_EQ(std::vector<HWND>{owner}, std::exchange(toldOfIdleness, {}));
        EXPECT_TRUE(IsWindowEnabled(owner));
    }
    DestroyWindow(outer);
    EXPECT_FALSE(IsWindow(owner));
}

TEST_F(DialogModalTest, EndingAModelessDialogGivesItsOwnerBack) {
    DialogBuilder builder(WS_POPUP | WS_CAPTION | WS_VISIBLE);
    builder.Title("modeless").Item("button", "OK", IDOK, BS_DEFPUSHBUTTON | WS_TABSTOP, 5, 5, 50, 14);
    const HWND dialog = CreateDialogIndirectParamA(nullptr, builder.Data(), owner, ModalProcedure, 0);
    ASSERT_EQ(dialog, GetActiveWindow());
    EnableWindow(owner, FALSE);
    EXPECT_TRUE(EndDialog(dialog, 1));
    EXPECT_TRUE(IsWindowEnabled(owner));
    EXPECT_EQ(owner, GetActiveWindow());
    EXPECT_TRUE(IsWindow(dialog)) << "nobody destroys it";
    EXPECT_FALSE(IsWindowVisible(dialog));
    DestroyWindow(dialog);
}

TEST_F(DialogModalTest, QuitEndsAllLoopsAndIsPostedAgain) {
    running = [](HWND outer) {
        running = [](HWND) { PostQuitMessage(33); };
        RunSimple(outer);
    };
    RunSimple(owner);
    MSG message{};
    ASSERT_TRUE(PeekMessageA(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(WPARAM{33}, message.wParam);
}

TEST_F(DialogModalTest, FailuresLeaveTheOwnerAlone) {
    DialogBuilder builder;
    builder.Title("").Item("tests_no_such_class", "", 1, 0, 0, 0, 9, 9);
    EXPECT_EQ(-1, DialogBoxIndirectParamA(nullptr, builder.Data(), owner, ModalProcedure, 0));
    EXPECT_TRUE(IsWindowEnabled(owner));
    EXPECT_EQ(owner, GetActiveWindow());
    const HWND dead = CreateWindowExA(0, "static", "", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
    DestroyWindow(dead);
    EXPECT_FALSE(EndDialog(dead, 0));
}

// --- message boxes

std::vector<int> buttonsSeen;
int focusSeen = 0;
WPARAM keyToPress = 0;
bool iconSeen = false;

BOOL CALLBACK LookForIcon(HWND control, LPARAM) {
    char name[16];
    GetClassNameA(control, name, sizeof name);
    if (lstrcmpiA(name, "static") == 0 && SendMessageA(control, STM_GETICON, 0, 0))
        iconSeen = true;
    return TRUE;
}

VOID CALLBACK AnswerBox(HWND, UINT, UINT_PTR timer, DWORD) {
    const HWND box = FindWindowA("#32770", "Question?");
    if (!box || !IsWindowVisible(box))
        return;
    KillTimer(nullptr, timer);
    for (const int id : {IDOK, IDCANCEL, IDABORT, IDRETRY, IDIGNORE, IDYES, IDNO}) {
        if (GetDlgItem(box, id))
            buttonsSeen.push_back(id);
    }
    focusSeen = GetDlgCtrlID(GetFocus());
    iconSeen = false;
    EnumChildWindows(box, LookForIcon, 0);
    PostMessageA(GetFocus(), WM_KEYDOWN, keyToPress, 1);
}

int Ask(UINT type, WPARAM key) {
    buttonsSeen.clear();
    keyToPress = key;
    SetTimer(nullptr, 0, 10, AnswerBox);
    return MessageBoxA(owner, "Several words\nand a second line", "Question?", type);
}

TEST_F(DialogModalTest, MessageBoxes) {
    EXPECT_EQ(IDOK, Ask(MB_OK, VK_RETURN));
    EXPECT_EQ(std::vector<int>{IDOK}, buttonsSeen);
    EXPECT_FALSE(iconSeen);
    EXPECT_EQ(owner, GetActiveWindow());
    EXPECT_EQ(IDCANCEL, Ask(MB_OKCANCEL, VK_ESCAPE));
    EXPECT_EQ((std::vector<int>{IDOK, IDCANCEL}), buttonsSeen);
    EXPECT_EQ(IDNO, Ask(MB_YESNO | MB_DEFBUTTON2 | MB_ICONQUESTION, VK_RETURN));
    EXPECT_EQ(IDNO, focusSeen);
    EXPECT_TRUE(iconSeen);
    EXPECT_EQ((std::vector<int>{IDYES, IDNO}), buttonsSeen);
    EXPECT_EQ(IDIGNORE, Ask(MB_ABORTRETRYIGNORE | MB_DEFBUTTON3, VK_RETURN));
    EXPECT_EQ(IDCANCEL, Ask(MB_YESNOCANCEL, VK_ESCAPE));
    EXPECT_EQ(IDRETRY, Ask(MB_RETRYCANCEL, VK_RETURN));
    EXPECT_TRUE(IsWindowEnabled(owner));
}

}  // namespace
