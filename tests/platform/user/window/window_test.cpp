// How windows come and go, and how they stand to each other.
#include <gtest/gtest.h>

#include <windows.h>

#include <string>
#include <thread>
#include <vector>

#include "tests/platform/support/looking.h"
#include "tests/platform/support/recorder.h"

namespace {

BOOL CALLBACK AddToList(HWND window, LPARAM list) {
    reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
    return TRUE;
}

using tests::Heard;
using tests::Recorder;

class Windows : public tests::RecordedTest {
  protected:
    HWND Make(DWORD style, int x, int y, int width, int height, HWND parent = nullptr) {
        return Recorder::Get().Make(style, x, y, width, height, parent);
    }
    HWND Child(HWND parent, int x, int y, int width, int height, DWORD style = 0) {
        return Make(WS_CHILD | style, x, y, width, height, parent);
    }
};

TEST_F(Windows, HearOfTheirCreationInOrder) {
    HWND parent = Make(WS_POPUP, 20, 30, 200, 100);
    Recorder::Get().Clear();
    HWND child = Child(parent, 5, 6, 50, 40);
    const std::vector<UINT> told{WM_NCCREATE, WM_CREATE, WM_SIZE, WM_MOVE};
    EXPECT_EQ(Recorder::Get().Numbers(told, child), told);
    const Heard* notice = Recorder::Get().Find(WM_PARENTNOTIFY, parent);
    ASSERT_NE(notice, nullptr);
    EXPECT_EQ(LOWORD(notice->wParam), WM_CREATE);
    EXPECT_EQ(reinterpret_cast<HWND>(notice->lParam), child);
    EXPECT_EQ(Recorder::Get().Find(WM_SIZE, child)->lParam, MAKELPARAM(50, 40));
    EXPECT_EQ(Recorder::Get().Find(WM_MOVE, child)->lParam, MAKELPARAM(5, 6));
}

TEST_F(Windows, HearOfTheirEndFromTheRootDownAndAreGoneFromTheLeavesUp) {
    HWND parent = Make(WS_POPUP, 20, 30, 200, 100);
    HWND child = Child(parent, 5, 6, 50, 40);
    HWND grandchild = Child(child, 0, 0, 10, 10);
    Recorder::Get().Clear();
    EXPECT_TRUE(DestroyWindow(parent));
    std::vector<std::pair<HWND, UINT>> heard;
    for (const Heard& each : Recorder::Get().heard) {
        if (each.message == WM_DESTROY || each.message == WM_NCDESTROY) {
            heard.push_back({each.window, each.message});
        }
    }
    const std::vector<std::pair<HWND, UINT>> expected{{parent, WM_DESTROY},     {child, WM_DESTROY},
                                                      {grandchild, WM_DESTROY}, {grandchild, WM_NCDESTROY},
                                                      {child, WM_NCDESTROY},    {parent, WM_NCDESTROY}};
    EXPECT_EQ(heard, expected);
    EXPECT_FALSE(IsWindow(grandchild));
    EXPECT_FALSE(DestroyWindow(parent));
}

TEST_F(Windows, CanRefuseToBeMade) {
    const DWORD before = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS);
    Recorder::Get().answer = [](const Heard& heard, LRESULT* result) {
        *result = FALSE;
        return heard.message == WM_NCCREATE;
    };
    EXPECT_EQ(Make(WS_POPUP, 0, 0, 10, 10), nullptr);
    EXPECT_EQ(Recorder::Get().Count(WM_CREATE), 0);
    EXPECT_EQ(Recorder::Get().Count(WM_DESTROY), 0);

    Recorder::Get().Clear();
    Recorder::Get().answer = [](const Heard& heard, LRESULT* result) {
        *result = -1;
        return heard.message == WM_CREATE;
    };
    EXPECT_EQ(Make(WS_POPUP, 0, 0, 10, 10), nullptr);
    const std::vector<UINT> told{WM_NCCREATE, WM_CREATE, WM_NCDESTROY};
    EXPECT_EQ(Recorder::Get().Numbers(told), told);
    EXPECT_EQ(GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS), before);
}

TEST_F(Windows, MayDestroyThemselvesWhileTheyAreMade) {
    Recorder::Get().answer = [](const Heard& heard, LRESULT*) {
        if (heard.message == WM_CREATE) {
            DestroyWindow(heard.window);
        }
        return false;
    };
    EXPECT_EQ(Make(WS_POPUP, 0, 0, 10, 10), nullptr);
}

TEST_F(Windows, NeedAParentThatLives) {
    EXPECT_EQ(DWORD{ERROR_TLW_WITH_WSCHILD}, tests::ErrorOf([&] { return Child(nullptr, 0, 0, 10, 10); }));
    HWND gone = Make(WS_POPUP, 0, 0, 10, 10);
    DestroyWindow(gone);
    EXPECT_EQ(DWORD{ERROR_INVALID_WINDOW_HANDLE}, tests::ErrorOf([&] { return Child(gone, 0, 0, 10, 10); }));
}

TEST_F(Windows, BelongToTheirThread) {
    HWND window = Make(WS_POPUP, 0, 0, 10, 10);
    HWND theirs = nullptr;
    std::thread([&] {
        EXPECT_EQ(DWORD{ERROR_ACCESS_DENIED}, tests::ErrorOf([&] { return DestroyWindow(window); }));
        theirs = CreateWindowExA(0, "static", "", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
        EXPECT_TRUE(IsWindow(theirs));
        DWORD process = 0;
        EXPECT_EQ(GetWindowThreadProcessId(theirs, &process), GetCurrentThreadId());
        EXPECT_EQ(process, GetCurrentProcessId());
    }).join();
    // The thread's end may be seen a little before its windows are gone.
    for (int patience = 0; IsWindow(theirs) && patience < 6000; ++patience) {
        Sleep(10);
    }
    EXPECT_FALSE(IsWindow(theirs));
    EXPECT_TRUE(IsWindow(window));
}

TEST_F(Windows, ChildrenStandInTheOrderOfTheirCreation) {
    HWND parent = Make(WS_POPUP, 0, 0, 100, 100);
    HWND first = Child(parent, 0, 0, 10, 10);
    HWND second = Child(parent, 0, 0, 10, 10);
    HWND third = Child(parent, 0, 0, 10, 10);
    EXPECT_EQ(GetWindow(parent, GW_CHILD), first);
    EXPECT_EQ(GetWindow(first, GW_HWNDNEXT), second);
    EXPECT_EQ(GetWindow(third, GW_HWNDPREV), second);
    EXPECT_EQ(GetParent(second), parent);
    EXPECT_EQ(GetTopWindow(parent), first);
    SetWindowPos(third, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    EXPECT_EQ(GetTopWindow(parent), third);
    HWND inner = Child(second, 0, 0, 5, 5);
    EXPECT_TRUE(IsChild(parent, inner));
    EXPECT_FALSE(IsChild(first, inner));
    EXPECT_FALSE(IsChild(parent, parent));
    std::vector<HWND> listed;
    EnumChildWindows(parent, AddToList, reinterpret_cast<LPARAM>(&listed));
    EXPECT_EQ(listed, (std::vector<HWND>{third, first, second, inner}));
}

TEST_F(Windows, ANewParentTakesChildAndPlaceAlong) {
    HWND first = Make(WS_POPUP, 10, 10, 100, 100);
    HWND second = Make(WS_POPUP, 200, 150, 100, 100);
    HWND child = Child(first, 3, 4, 20, 20);
    EXPECT_EQ(SetParent(child, second), first);
    EXPECT_EQ(GetParent(child), second);
    EXPECT_EQ(tests::PlaceOf(child).left, 203);
    EXPECT_EQ(tests::PlaceOf(child).top, 154);
    DestroyWindow(first);
    EXPECT_TRUE(IsWindow(child));
}

TEST_F(Windows, AreFoundByClassTextAndPoint) {
    HWND parent =
        Recorder::Get().Make(WS_POPUP | WS_VISIBLE, 40, 40, 100, 100, nullptr, WS_EX_TOPMOST, "A Test Of Finding");
    ASSERT_NE(parent, nullptr);
    EXPECT_EQ(FindWindowA(Recorder::kClass, "a test of finding"), parent);
    EXPECT_EQ(FindWindowA(nullptr, "A Test Of Finding"), parent);
    EXPECT_EQ(FindWindowA(Recorder::kClass, "another"), nullptr);
    HWND child = Child(parent, 10, 10, 20, 20, WS_VISIBLE);
    HWND covered = Child(parent, 10, 10, 40, 40, WS_VISIBLE);
    EXPECT_EQ(FindWindowExA(parent, child, Recorder::kClass, nullptr), covered);
    EXPECT_EQ(FindWindowExA(parent, covered, Recorder::kClass, nullptr), nullptr);

    const POINT inBoth{60, 60};
    EXPECT_EQ(WindowFromPoint(inBoth), child);
    EnableWindow(child, FALSE);
    EXPECT_EQ(WindowFromPoint(inBoth), covered);
    Recorder::Get().answer = [covered](const Heard& heard, LRESULT* result) {
        *result = HTTRANSPARENT;
        return heard.message == WM_NCHITTEST && heard.window == covered;
    };
    EXPECT_EQ(WindowFromPoint(inBoth), parent);
}

TEST_F(Windows, KeepTheirTextThroughMessages) {
    HWND window = Make(WS_POPUP, 0, 0, 10, 10);
    EXPECT_TRUE(SetWindowTextA(window, "some text"));
    char text[20];
    EXPECT_EQ(GetWindowTextA(window, text, 5), 4);
    EXPECT_STREQ(text, "some");
    EXPECT_EQ(Recorder::Get().Count(WM_SETTEXT), 1);
    EXPECT_EQ(Recorder::Get().Count(WM_GETTEXT), 1);
    SetWindowTextA(window, nullptr);
    EXPECT_EQ(GetWindowTextLengthA(window), 0);
}

TEST_F(Windows, AreEnabledAndDisabled) {
    HWND window = Make(WS_POPUP, 0, 0, 10, 10);
    Recorder::Get().Clear();
    EXPECT_FALSE(EnableWindow(window, FALSE));
    EXPECT_FALSE(IsWindowEnabled(window));
    EXPECT_TRUE(EnableWindow(window, FALSE));
    EXPECT_TRUE(EnableWindow(window, TRUE));
    EXPECT_TRUE(IsWindowEnabled(window));
    EXPECT_EQ(Recorder::Get().Count(WM_ENABLE), 2);
    EXPECT_FALSE(Recorder::Get().Find(WM_ENABLE)->wParam);
    EXPECT_GE(Recorder::Get().Count(WM_CANCELMODE), 1);
}

TEST_F(Windows, NeverComeIntoACircle) {
    HWND first = Make(WS_OVERLAPPEDWINDOW, 0, 0, 100, 100);
    HWND second = Make(WS_OVERLAPPEDWINDOW, 0, 0, 100, 100);
    EXPECT_EQ(GetDesktopWindow(), SetParent(first, second));
    EXPECT_EQ(DWORD{ERROR_INVALID_PARAMETER}, tests::ErrorOf([&] { return SetParent(second, first); }));
    EXPECT_EQ(second, GetAncestor(first, GA_ROOT));
    // Styles do not matter, nor do windows on the way.
    HWND inner = Child(first, 0, 0, 10, 10);
    EXPECT_EQ(nullptr, SetParent(second, inner));
    EXPECT_EQ(nullptr, SetParent(first, first));
    DestroyWindow(second);
    EXPECT_FALSE(IsWindow(first));
}

TEST_F(Windows, WithoutACaptionAreMadeAsSmallAsAsked) {
    HWND parent = Make(WS_OVERLAPPEDWINDOW, 0, 0, 300, 300);
    for (const DWORD style : {DWORD{WS_CHILD | WS_THICKFRAME}, DWORD{WS_POPUP | WS_THICKFRAME}}) {
        HWND window = Make(style, 0, 0, 50, 20, parent);
        RECT rect = tests::PlaceOf(window);
        EXPECT_EQ(50, rect.right - rect.left);
        EXPECT_EQ(20, rect.bottom - rect.top);
        SetWindowPos(window, nullptr, 0, 0, 40, 10, SWP_NOMOVE | SWP_NOZORDER);
        rect = tests::PlaceOf(window);
        EXPECT_EQ(10, rect.bottom - rect.top);
    }
}

}  // namespace
