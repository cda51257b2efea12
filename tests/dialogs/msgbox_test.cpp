// Message boxes in use: keys, results, owners, focus, task-modal boxes, boxes from boxes.
#include <cvutil32/msgbox.h>

#include "tests/support/leaks.h"
#include "tests/support/modal.h"
#include "tests/support/window.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace {

using namespace testing_support;

KVMB_MESSAGEBOX BoxOf(HWND owner, WORD count = 3) {
    KVMB_MESSAGEBOX box = {};
    box.owner = owner;
    box.title = "Caption";
    box.text = "What now?";
    box.buttonCount = count;
    char const* const labels[] = {"&First", "&Second", "&Third"};
    for (int i = 0; i < 3; ++i) {
        box.buttons[i].label = labels[i];
        box.buttons[i].id = 101 + i;
    }
    return box;
}

int Ask(KVMB_MESSAGEBOX& box, std::function<void(HWND)> visit) {
    OnNextDialog(std::move(visit));
    return KVMB_MessageBoxExtended(&box);
}

class MessageBoxUse : public testing::Test {
  protected:
    static void SetUpTestSuite() {
        testing_support::OpenFirstDialog();
    }

    int PressIn(std::vector<WORD> const& keys, bool alt = false) {
        KVMB_MESSAGEBOX box = BoxOf(owner_);
        return Ask(box, [&](HWND dialog) {
            for (WORD const key : keys) {
                PressKey(dialog, key, alt);
            }
        });
    }

    LeakCheck const leaks_;
    TestWindow const owner_;
};

TEST_F(MessageBoxUse, KeysAndTheCloseBox) {
    EXPECT_EQ(101, PressIn({VK_RETURN}));
    EXPECT_EQ(IDCANCEL, PressIn({VK_ESCAPE}));
    EXPECT_EQ(IDCANCEL, PressIn({VK_F4}, true));
    EXPECT_EQ(102, PressIn({'S'}, true));
    EXPECT_EQ(103, PressIn({VK_TAB, VK_TAB, VK_RETURN})) << "the button with the focus is the default one";
    EXPECT_EQ(101, PressIn({VK_TAB, VK_TAB, VK_TAB, VK_RETURN})) << "once round";
    EXPECT_EQ(102, PressIn({VK_DOWN, VK_SPACE}));
    KVMB_MESSAGEBOX box = BoxOf(owner_);
    EXPECT_EQ(IDCANCEL, Ask(box, [](HWND dialog) { PostMessageA(dialog, WM_SYSCOMMAND, SC_CLOSE, 0); }));
}

TEST_F(MessageBoxUse, TheFirstCommandIsTheResultInFull) {
    KVMB_MESSAGEBOX box = BoxOf(owner_);
    box.flags = KVMB_TASKMODAL;
    EXPECT_EQ(MAKELONG(5, 3), Ask(box, [](HWND dialog) {
                  PostMessageA(dialog, WM_COMMAND, MAKEWPARAM(5, 3), 0);
                  SendMessageA(dialog, WM_COMMAND, MAKEWPARAM(5, 3), 0);
                  SendMessageA(dialog, WM_COMMAND, MAKEWPARAM(6, 0), 0);
              }));
}

// --- owners and focus

TEST_F(MessageBoxUse, TheOwnerIsDisabledAndGetsTheFocusBack) {
    TestWindow const child(owner_, {10, 10, 60, 40});
    SetFocus(child);
    KVMB_MESSAGEBOX box = BoxOf(owner_);
    Ask(box, [&](HWND dialog) {
        EXPECT_EQ(owner_.Handle(), GetWindow(dialog, GW_OWNER));
        EXPECT_FALSE(IsWindowEnabled(owner_));
        PostMessageA(dialog, WM_COMMAND, 1, 0);
    });
    EXPECT_TRUE(IsWindowEnabled(owner_));
    EXPECT_EQ(owner_.Handle(), GetActiveWindow());
    // The application that named its owner sets the focus when it is activated; this one sets none.

    SetFocus(child);
    for (HWND unusable : {HWND{}, GetDesktopWindow()}) {
        box = BoxOf(unusable);
        Ask(box, [&](HWND dialog) {
            EXPECT_EQ(owner_.Handle(), GetWindow(dialog, GW_OWNER)) << "the active window steps in";
            PostMessageA(dialog, WM_COMMAND, 1, 0);
        });
        EXPECT_EQ(child.Handle(), GetFocus());
    }
}

TEST_F(MessageBoxUse, ADestroyedOwnerIsReplacedByTheActiveWindow) {
    TestWindow gone;
    KVMB_MESSAGEBOX box = BoxOf(gone);
    gone.Destroy();
    SetActiveWindow(owner_);
    box.flags = KVMB_TASKMODAL;
    EXPECT_EQ(7, Ask(box, [&](HWND dialog) {
                  EXPECT_EQ(owner_.Handle(), GetWindow(dialog, GW_OWNER));
                  PostMessageA(dialog, WM_COMMAND, 7, 0);
              }));
    EXPECT_TRUE(IsWindowEnabled(owner_));
}

TEST_F(MessageBoxUse, TheFocusWindowMayBeGoneAfterwards) {
    auto child = std::make_unique<TestWindow>(owner_, RECT{10, 10, 60, 40});
    SetFocus(*child);
    KVMB_MESSAGEBOX box = BoxOf(nullptr);
    EXPECT_EQ(7, Ask(box, [&](HWND dialog) {
                  child.reset();
                  PostMessageA(dialog, WM_COMMAND, 7, 0);
              }));
}

TEST(MessageBoxAlone, WithoutAnyWindowItStaysAtTheTemplatesPlace) {
    testing_support::OpenFirstDialog();
    LeakCheck const leaks;
    PumpMessages();
    ASSERT_EQ(nullptr, GetActiveWindow());
    KVMB_MESSAGEBOX box = BoxOf(nullptr);
    Ask(box, [](HWND dialog) {
        EXPECT_EQ(nullptr, GetWindow(dialog, GW_OWNER));
        RECT window = {};
        GetWindowRect(dialog, &window);
        RECT const place = ToPixels(dialog, {60, 40, 0, 0});
        // Systems differ in whether the place is that of the frame's corner or of the client area's.
        EXPECT_LE(place.left - window.left, GetSystemMetrics(SM_CXDLGFRAME));
        EXPECT_LE(place.top - window.top, GetSystemMetrics(SM_CYDLGFRAME) + GetSystemMetrics(SM_CYCAPTION));
        EXPECT_GE(place.left, window.left);
        EXPECT_GE(place.top, window.top);
        PostMessageA(dialog, WM_COMMAND, 1, 0);
    });
}

TEST_F(MessageBoxUse, ABoxFromABox) {
    KVMB_MESSAGEBOX outer = BoxOf(owner_);
    int innerResult = 0;
    int const result = Ask(outer, [&](HWND first) {
        HWND const focus = GetFocus();
        KVMB_MESSAGEBOX inner = BoxOf(nullptr);
        inner.flags = KVMB_TASKMODAL;
        innerResult = Ask(inner, [&](HWND second) {
            EXPECT_EQ(first, GetWindow(second, GW_OWNER));
            EXPECT_FALSE(IsWindowEnabled(first));
            EXPECT_FALSE(IsWindowEnabled(owner_));
            PressKey(second, VK_ESCAPE);
        });
        EXPECT_TRUE(IsWindowEnabled(first));
        EXPECT_FALSE(IsWindowEnabled(owner_)) << "disabled by the outer box";
        EXPECT_EQ(focus, GetFocus());
        PressKey(first, VK_RETURN);
    });
    EXPECT_EQ(IDCANCEL, innerResult);
    EXPECT_EQ(101, result);
    EXPECT_TRUE(IsWindowEnabled(owner_));
}

// --- task-modal

TEST_F(MessageBoxUse, TaskModalDisablesTheOthersAndOnlyThemForAWhile) {
    std::vector<std::unique_ptr<TestWindow>> others;
    for (int i = 0; i < 40; ++i) {
        others.push_back(std::make_unique<TestWindow>());
    }
    EnableWindow(*others[7], FALSE);
    TestWindow const child(*others[8], {0, 0, 5, 5});
    SetActiveWindow(owner_);
    KVMB_MESSAGEBOX box = BoxOf(owner_);
    Ask(box, [&](HWND dialog) {
        EXPECT_TRUE(IsWindowEnabled(*others[0])) << "not task-modal";
        PostMessageA(dialog, WM_COMMAND, 1, 0);
    });
    EXPECT_EQ(nullptr, box.disabledWindows);

    box.flags = KVMB_TASKMODAL;
    Ask(box, [&](HWND dialog) {
        EXPECT_TRUE(IsWindowEnabled(dialog));
        EXPECT_TRUE(IsWindowEnabled(child));
        for (auto const& other : others) {
            EXPECT_FALSE(IsWindowEnabled(*other));
        }
        others[9].reset();  // one goes meanwhile
        PostMessageA(dialog, WM_COMMAND, 1, 0);
    });
    for (std::size_t i = 0; i < others.size(); ++i) {
        if (others[i]) {
            EXPECT_EQ(i != 7, IsWindowEnabled(*others[i]) != 0) << i;
        }
    }
    EXPECT_TRUE(IsWindowEnabled(owner_));
}

TEST_F(MessageBoxUse, WhateverEndsATaskModalBoxGivesTheOthersBackOnce) {
    TestWindow other;
    EXPECT_TRUE(SetActiveWindow(owner_));
    struct {
        char const* name;
        bool ends;  ///< the dialog, as dialogs are ended: else it is the system's affair what becomes of the owner
        std::function<void(HWND dialog, TestWindow& owner)> end;
    } const ways[] = {
        {"a command", true, [](HWND dialog, TestWindow&) { SendMessageA(dialog, WM_COMMAND, 1, 0); }},
        {"EndDialog from outside", true, [](HWND dialog, TestWindow&) { EndDialog(dialog, 5); }},
        {"DestroyWindow of the box", false, [](HWND dialog, TestWindow&) { DestroyWindow(dialog); }},
        {"the owner's end", false, [](HWND, TestWindow& owner) { owner.Destroy(); }},
        {"the program's end", false, [](HWND, TestWindow&) { PostQuitMessage(3); }},
    };
    for (auto const& way : ways) {
        SCOPED_TRACE(way.name);
        TestWindow owner;
        KVMB_MESSAGEBOX box = BoxOf(owner);
        box.flags = KVMB_TASKMODAL;
        other.Forget();
        Ask(box, [&](HWND dialog) {
            EXPECT_FALSE(IsWindowEnabled(other));
            way.end(dialog, owner);
        });
        EXPECT_TRUE(IsWindowEnabled(other));
        EXPECT_TRUE(IsWindowEnabled(owner_));
        EXPECT_TRUE(!way.ends || IsWindowEnabled(owner));
        EXPECT_EQ(2u, other.Received(WM_ENABLE).size()) << "disabled once, enabled once";
        MSG quit = {};
        PeekMessageA(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE);
    }
}

TEST_F(MessageBoxUse, WindowsMayEndTheBoxWhenTheyAreToldOfIt) {
    TestWindow other;
    TestWindow last;
    HWND dialog = nullptr;
    int commands = 0;
    auto const command = [&](Message const& message) -> std::optional<LRESULT> {
        if (message.id == WM_ENABLE) {
            SendMessageA(dialog, WM_COMMAND, static_cast<WPARAM>(50 + ++commands), 0);
        }
        return std::nullopt;
    };
    // Told that it is enabled again, one sends a second command into the end of the first.
    KVMB_MESSAGEBOX box = BoxOf(owner_);
    box.flags = KVMB_TASKMODAL;
    EXPECT_EQ(7, Ask(box, [&](HWND shown) {
                  dialog = shown;
                  other.answer = command;
                  SendMessageA(shown, WM_COMMAND, 7, 0);
              }));
    EXPECT_TRUE(IsWindowEnabled(last));

    // Told that it is disabled, one ends the box before the others are.
    other.answer = [&](Message const& message) -> std::optional<LRESULT> {
        if (message.id == WM_ENABLE && !message.wParam) {
            dialog = FindWindowA("#32770", box.title);
        }
        return command(message);
    };
    last.answer = other.answer;
    commands = 0;
    box = BoxOf(owner_);
    box.flags = KVMB_TASKMODAL;
    EXPECT_EQ(51, KVMB_MessageBoxExtended(&box));
    for (HWND const window : {owner_.Handle(), other.Handle(), last.Handle()}) {
        EXPECT_TRUE(IsWindowEnabled(window));
    }
}

/// Another thread with two windows, in a message loop.
struct OtherThread {
    HANDLE ready = CreateEventA(nullptr, TRUE, FALSE, nullptr);
    HWND windows[2] = {};
    DWORD id = 0;
};

DWORD WINAPI RunOtherThread(LPVOID parameter) {
    auto& other = *static_cast<OtherThread*>(parameter);
    for (HWND& window : other.windows) {
        window = CreateWindowExA(0, "static", "", WS_POPUP | WS_VISIBLE, 300, 300, 200, 150, nullptr, nullptr, nullptr,
                                 nullptr);
    }
    SetEvent(other.ready);
    MSG message;
    while (GetMessageA(&message, nullptr, 0, 0) > 0) {
        DispatchMessageA(&message);
    }
    for (HWND window : other.windows) {
        DestroyWindow(window);
    }
    return 0;
}

TEST_F(MessageBoxUse, TheOwnerMayBelongToAnotherThread) {
    OtherThread other;
    HANDLE const thread = CreateThread(nullptr, 0, RunOtherThread, &other, 0, &other.id);
    WaitForSingleObject(other.ready, INFINITE);
    KVMB_MESSAGEBOX box = BoxOf(other.windows[0]);
    box.flags = KVMB_TASKMODAL;
    OnNextDialog([&](HWND dialog) {
        EXPECT_FALSE(IsWindowEnabled(other.windows[0]));
        EXPECT_FALSE(IsWindowEnabled(other.windows[1]));
        EXPECT_TRUE(IsWindowEnabled(owner_)) << "of the calling thread";
        PostMessageA(dialog, WM_COMMAND, 4, 0);
    });
    EXPECT_EQ(4, KVMB_MessageBoxExtended(&box));
    EXPECT_TRUE(IsWindowEnabled(other.windows[0]));
    EXPECT_TRUE(IsWindowEnabled(other.windows[1]));
    PostThreadMessageA(other.id, WM_QUIT, 0, 0);
    WaitForSingleObject(thread, INFINITE);
    CloseHandle(thread);
    CloseHandle(other.ready);
    PumpMessages();
}

// --- error reports

class ErrorBox : public testing::Test {
  protected:
    static void SetUpTestSuite() {
        testing_support::OpenFirstDialog();
    }

    struct Seen {
        std::string caption;
        std::string text;
        HICON icon;
        bool iconVisible;
    };

    Seen Report(LPCSTR title, LPCSTR message, LPCSTR second, LPCSTR third, DWORD style, HICON icon = nullptr,
                HINSTANCE module = nullptr) {
        Seen seen = {};
        OnNextDialog([&](HWND box) {
            HWND const control = GetDlgItem(box, 10101);
            seen = {testing_support::TextOf(box), testing_support::TextOf(GetDlgItem(box, 10102)),
                    reinterpret_cast<HICON>(SendMessageA(control, STM_GETICON, 0, 0)), IsWindowVisible(control) != 0};
            PressKey(box, VK_RETURN);
        });
        EXPECT_EQ(IDOK, KVMB_MessageBoxError(owner_, title, module, message, module, second, module, third, module,
                                             icon, 0x12345678, style));
        return seen;
    }

    LeakCheck const leaks_;
    TestWindow const owner_;
};

TEST_F(ErrorBox, PartsAreJoined) {
    EXPECT_EQ("M S T", Report("E", "M", "S", "T", KVMB_SEP_SPACE).text);
    EXPECT_EQ("M\n\nReason:  S\n\nT", Report("E", "M", "S", "T", KVMB_SEP_REASON).text);
    EXPECT_EQ("M\nS\nT", Report("E", "M", "S", "T", KVMB_SEP_LINE).text);
    EXPECT_EQ("M\n\nS\n\nT", Report("E", "M", "S", "T", KVMB_SEP_PARAGRAPH | 0xFFFF0000).text);
    EXPECT_EQ("M", Report("E", "M", nullptr, nullptr, KVMB_SEP_REASON).text);
    EXPECT_EQ("M\n\nT", Report("E", "M", nullptr, "T", KVMB_SEP_REASON).text) << "straight to the message";
    EXPECT_EQ(" S", Report("E", nullptr, "S", nullptr, KVMB_SEP_SPACE).text);
}

TEST_F(ErrorBox, TextsMayBeStrings) {
    auto const seen = Report(MAKEINTRESOURCEA(10102), MAKEINTRESOURCEA(10103), MAKEINTRESOURCEA(10104),
                             MAKEINTRESOURCEA(9), KVMB_SEP_LINE);
    EXPECT_EQ("Cancel", seen.caption);
    EXPECT_EQ("&Yes\n&No\n", seen.text) << "the third string is missing";
    EXPECT_EQ("tests",
              Report(nullptr, MAKEINTRESOURCEA(100), nullptr, nullptr, 0, nullptr, GetModuleHandleA(nullptr)).text);
    EXPECT_EQ("", Report(nullptr, "M", nullptr, nullptr, 0).caption);
}

TEST_F(ErrorBox, LongTextsAreCutAtTheirBuffers) {
    std::string const longText(600, 'x');
    auto const seen = Report(longText.c_str(), longText.c_str(), longText.c_str(), longText.c_str(), KVMB_SEP_REASON);
    EXPECT_EQ(std::string(255, 'x'), seen.caption);
    EXPECT_EQ(std::string(511, 'x'), seen.text);
    std::string const almost(506, 'y');
    EXPECT_EQ(almost + "\nCanc", Report("E", almost.c_str(), MAKEINTRESOURCEA(10102), nullptr, KVMB_SEP_LINE).text);
    EXPECT_EQ(almost + "\n\nRea", Report("E", almost.c_str(), "S", "T", KVMB_SEP_REASON).text);
}

TEST_F(ErrorBox, TheStylePicksTheIcon) {
    struct {
        DWORD style;
        LPCSTR icon;
    } const cases[] = {{MB_ICONHAND, IDI_HAND},
                       {MB_ICONQUESTION, IDI_QUESTION},
                       {MB_ICONEXCLAMATION | KVMB_SEP_LINE, IDI_EXCLAMATION},
                       {MB_ICONASTERISK, IDI_ASTERISK}};
    for (auto const& each : cases) {
        EXPECT_EQ(LoadIconA(nullptr, each.icon), Report("E", "M", nullptr, nullptr, each.style).icon);
    }
    EXPECT_FALSE(Report("E", "M", nullptr, nullptr, 0).iconVisible);
    EXPECT_FALSE(Report("E", "M", nullptr, nullptr, 0x50).iconVisible);
    HICON const own = LoadIconA(nullptr, IDI_APPLICATION);
    EXPECT_EQ(own, Report("E", "M", nullptr, nullptr, MB_ICONHAND, own).icon);
}

}  // namespace
