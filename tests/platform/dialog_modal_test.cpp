// Modal dialogs and message boxes: nesting, owners, results, WM_QUIT, WM_ENTERIDLE.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "dialog_builder.h"

namespace {

using tests::DialogBuilder;

constexpr UINT kRun = WM_USER + 20;

/// What a dialog does when its first message arrives behind WM_INITDIALOG.
std::function<void(HWND)> atInit;
std::function<void(HWND)> running;
std::function<void(HWND)> onIdle;
HWND owner = nullptr;
std::vector<HWND> idleDialogs;

LRESULT CALLBACK OwnerProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_ENTERIDLE && wParam == MSGF_DIALOGBOX) {
        idleDialogs.push_back(reinterpret_cast<HWND>(lParam));
        if (onIdle)
            onIdle(idleDialogs.back());
    }
    return DefWindowProcA(window, message, wParam, lParam);
}

INT_PTR CALLBACK Procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM) {
    switch (message) {
        case WM_INITDIALOG:
            if (atInit)
                atInit(dialog);
            PostMessageA(dialog, kRun, 0, 0);
            return TRUE;
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
    return DialogBoxIndirectParamA(GetModuleHandleA(nullptr), builder.Data(), forOwner, Procedure, 0);
}

class DialogModalTest : public ::testing::Test {
  protected:
    void SetUp() override {
        atInit = nullptr;
        running = nullptr;
        onIdle = nullptr;
        idleDialogs.clear();
        owner = tests::MakeOwner(OwnerProcedure);
        SetActiveWindow(owner);
        tests::PumpMessages();
    }
    void TearDown() override {
        DestroyWindow(owner);
        tests::PumpMessages();
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
    EXPECT_EQ(4711, RunSimple(owner));
    EXPECT_FALSE(IsWindow(seen));
    EXPECT_TRUE(IsWindowEnabled(owner));
    EXPECT_EQ(owner, GetActiveWindow());
}

TEST_F(DialogModalTest, AChildNamedAsOwnerStandsForItsTopLevelWindow) {
    const HWND child =
        CreateWindowExA(0, "static", "", WS_CHILD | WS_VISIBLE, 0, 0, 10, 10, owner, nullptr, nullptr, nullptr);
    running = [](HWND dialog) {
        EXPECT_FALSE(IsWindowEnabled(owner));
        EXPECT_EQ(owner, GetWindow(dialog, GW_OWNER));
        EndDialog(dialog, 1);
    };
    EXPECT_EQ(1, RunSimple(child));
    EXPECT_TRUE(IsWindowEnabled(owner));
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

TEST_F(DialogModalTest, EndedInInitDialogItIsNeverShown) {
    bool shown = false;
    atInit = [](HWND dialog) { EndDialog(dialog, 9); };
    running = [&](HWND) { shown = true; };
    EXPECT_EQ(9, RunSimple(owner));
    EXPECT_FALSE(shown);
    EXPECT_TRUE(IsWindowEnabled(owner));
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

TEST_F(DialogModalTest, TheOwnerHearsWhenTheDialogIsIdle) {
    onIdle = [](HWND dialog) {
        EXPECT_TRUE(IsWindowVisible(dialog));
        EndDialog(dialog, 8);
    };
    EXPECT_EQ(8, RunSimple(owner));
    EXPECT_EQ(1U, idleDialogs.size());
    onIdle = nullptr;
    idleDialogs.clear();
    running = [](HWND dialog) { SetTimer(dialog, 1, 10, EndByTimer); };
    RunSimple(owner, DS_NOIDLEMSG);
    EXPECT_TRUE(idleDialogs.empty());
}

TEST_F(DialogModalTest, FailuresLeaveTheOwnerAlone) {
    DialogBuilder builder;
    builder.Title("").Item("tests_no_such_class", "", 1, 0, 0, 0, 9, 9);
    EXPECT_EQ(-1, DialogBoxIndirectParamA(nullptr, builder.Data(), owner, Procedure, 0));
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
HWND boxSeen = nullptr;
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
    boxSeen = box;
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
    EXPECT_EQ(IDRETRY, Ask(MB_RETRYCANCEL | MB_TASKMODAL, VK_RETURN));
    EXPECT_TRUE(IsWindowEnabled(owner));
}

}  // namespace
