// A control may be ended by whoever gets a message of its, at any message: by its parent, by the window that it works for,
// by somebody in front of its own procedure. So may its parent and the dialog around both. Each test takes a control through
// its life again and again, and ends one of the three at the first message, at the second, and so on. What goes wrong is
// seen by the leak check, and by the sanitizers. Here alone: the predefined controls of other systems do not promise it.
#include <cvutil32.h>

#include "tests/controls/resource.h"
#include "tests/support/countdown.h"
#include "tests/support/leaks.h"
#include "tests/support/window.h"

#include <commctrl.h>

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace {

using namespace testing_support;

/// A dialog, a page in it, on the page a control and perhaps a window that it works for.
struct Stage {
    TestWindow dialog;
    TestWindow page{dialog, {0, 0, 280, 180}};
    HWND companion = nullptr;
    HWND control = nullptr;

    HWND Make(char const* name, DWORD style, int id = 7) const {
        return MakeChild(page, name, WS_TABSTOP | style, {10, 10, 130, 70}, id);
    }
    void MakeControl(char const* name, DWORD style) {
        control = Make(name, style);
        Countdown::Watch(control);
    }
    void MakeCompanion(char const* name, DWORD style) {
        companion = Make(name, style, 6);
        Countdown::Watch(companion);
    }
    void Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        SendMessageA(control, message, wParam, lParam);
    }
};

enum class End { kControl, kCompanion, kPage, kDialog };

/// What all controls go through once they are made.
void Handle(Stage const& stage) {
    RedrawWindow(stage.control, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    SetFocus(stage.control);
    stage.Send(WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(ANSI_VAR_FONT)), TRUE);
    // Inside, outside, inside; the lower half of the control, and the upper one.
    LPARAM const down = MAKELPARAM(30, 45);
    LPARAM const up = MAKELPARAM(30, 12);
    for (LPARAM const point : {down, up}) {
        stage.Send(WM_LBUTTONDOWN, MK_LBUTTON, point);
        stage.Send(WM_TIMER, 500);
        stage.Send(WM_TIMER, 501);
        stage.Send(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(300, 300));
        stage.Send(WM_MOUSEMOVE, MK_LBUTTON, point);
        stage.Send(WM_LBUTTONUP, 0, point);
        stage.Send(WM_LBUTTONDBLCLK, MK_LBUTTON, point);
        SetCapture(stage.page);
        ReleaseCapture();
        stage.Send(WM_LBUTTONUP, 0, point);
    }
    for (WPARAM const key : {VK_RIGHT, VK_HOME, VK_DOWN, VK_UP, VK_SPACE}) {
        stage.Send(WM_KEYDOWN, key, 1);
        stage.Send(WM_KEYUP, key, 1);
    }
    for (char const character : {'1', ' ', '\b', 'p'}) {
        stage.Send(WM_CHAR, static_cast<WPARAM>(character), 1);
    }
    for (UINT const message : {WM_VSCROLL, WM_HSCROLL}) {
        stage.Send(message, SB_LINEUP);
        stage.Send(message, SB_LINEDOWN);
    }
    stage.Send(WM_TIMER, 1);
    stage.Send(WM_WININICHANGE, 0, reinterpret_cast<LPARAM>("intl"));
    stage.Send(WM_SYSCOLORCHANGE);
    SetWindowTextA(stage.control, "12");
    EnableWindow(stage.control, FALSE);
    EnableWindow(stage.control, TRUE);
    MoveWindow(stage.control, 5, 5, 100, 50, TRUE);
    ShowWindow(stage.control, SW_HIDE);
    ShowWindow(stage.control, SW_SHOW);
    SetFocus(stage.page);
    PumpMessages();
}

using Life = std::function<void(Stage&)>;

/// Takes a control through its life, and ends each of the windows at each message. @return the number of lives.
int TakeThrough(Life const& live) {
    int lives = 0;
    for (End const end : {End::kControl, End::kCompanion, End::kPage, End::kDialog}) {
        SCOPED_TRACE(testing::Message() << "end of " << static_cast<int>(end));
        lives += Sweep([&](int at) {
            Stage stage;
            Countdown const countdown(at, [&] {
                DestroyWindow(end == End::kControl     ? stage.control
                              : end == End::kCompanion ? stage.companion
                              : end == End::kPage      ? stage.page.Handle()
                                                       : stage.dialog.Handle());
            });
            Countdown::Watch(stage.dialog);
            Countdown::Watch(stage.page);
            live(stage);
            DestroyWindow(stage.control);
            return countdown.HasHappened();
        });
    }
    return lives;
}

/// The same, where nothing may be left over. The first life is not counted: what the system makes once it keeps.
int TakeThroughWithoutLeaks(Life const& live) {
    {
        Stage stage;
        live(stage);
    }
    LeakCheck const leaks;
    return TakeThrough(live);
}

TEST(Vanishing, DateField) {
    int const lives = TakeThroughWithoutLeaks([](Stage& stage) {
        stage.MakeControl(DATECTRL_CLASSNAME, 0);
        DATECTRL_SetDate(stage.control, nullptr, TRUE);
        Handle(stage);
    });
    EXPECT_LT(200, lives) << "the messages are counted";
}

TEST(Vanishing, TimeField) {
    TakeThroughWithoutLeaks([](Stage& stage) {
        stage.MakeControl(TIMECTRL_CLASSNAME, 0);
        TIMECTRL_SetTime(stage.control, nullptr, TRUE);
        Handle(stage);
    });
}

TEST(Vanishing, NumericField) {
    TakeThroughWithoutLeaks([](Stage& stage) {
        stage.MakeControl(NUMFLD_CLASSNAME, ES_AUTOHSCROLL);
        NUMFLD_SetLimits(stage.control, 1, 20);
        NUMFLD_SetValue(stage.control, 7);
        Handle(stage);
    });
}

TEST(Vanishing, ScrollBar) {
    TakeThroughWithoutLeaks([](Stage& stage) {
        stage.MakeCompanion("static", 0);
        stage.MakeControl(SCROLL_CLASSNAME, SCROLL_STANDARD);
        SetWindowPos(stage.control, nullptr, 0, 0, 60, 60, SWP_NOMOVE);
        Handle(stage);
    });
}

TEST(Vanishing, GraphicButton) {
    TakeThroughWithoutLeaks([](Stage& stage) {
        stage.MakeControl(GRBUTTON_CLASSNAME, 0);
        GRBUTTON_SetBitmaps(stage.control, GetModuleHandleA(nullptr), MAKEINTRESOURCEA(IDB_PICTURE),
                            MAKEINTRESOURCEA(IDB_MASK));
        Handle(stage);
    });
}

TEST(Vanishing, BuddyFrame) {
    TakeThroughWithoutLeaks([](Stage& stage) {
        stage.MakeCompanion("edit", 0);
        Countdown::Watch(stage.Make(GRBUTTON_CLASSNAME, 0, 5));
        stage.MakeControl(BUDDYFR_CLASSNAME, 0);
        Handle(stage);
    });
}

TEST(Vanishing, CheckList) {
    TakeThroughWithoutLeaks([](Stage& stage) {
        stage.MakeControl(CKLIST_CLASSNAME,
                          WS_VSCROLL | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS | LBS_MULTIPLESEL | LBS_NOTIFY);
        for (char const* text : {"one", "two", "three", "four", "five", "six"}) {
            stage.Send(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text));
        }
        stage.Send(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(std::string(300, 'x').c_str()));
        stage.Send(LB_SETSEL, TRUE, 1);
        Handle(stage);
    });
}

// An animation that does not get WM_CLOSE keeps its pictures, as it says.
TEST(Vanishing, Animation) {
    TakeThrough([](Stage& stage) {
        stage.MakeControl(ANIMATE_CLASSNAME, 0);
        ANIMATE_Initialize(stage.control, GetModuleHandleA(nullptr), MAKEINTRESOURCEA(IDB_STRIP), 8, CLR_NONE);
        ANIMATE_Start(stage.control);
        stage.Send(WM_TIMER, 1);
        ANIMATE_Stop(stage.control);
        ANIMATE_Start(stage.control);
        Handle(stage);
        stage.Send(WM_CLOSE);
    });
}

TEST(Vanishing, FolderTree) {
    TakeThroughWithoutLeaks([](Stage& stage) {
        stage.MakeControl(TREELIST_CLASSNAME, 0);
        HWND const tree = GetWindow(stage.control, GW_CHILD);
        Countdown::Watch(tree);
        SetFocus(stage.control);
        for (WPARAM const key : {VK_DOWN, VK_RIGHT, VK_DOWN, VK_LEFT, VK_UP}) {
            SendMessageA(tree, WM_KEYDOWN, key, 1);
        }
        RedrawWindow(tree, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
        char folder[MAX_PATH];
        TREELIST_GetFolder(stage.control, folder);
        Handle(stage);
    });
}

/// A window that gets a posted message while a modal dialog runs, and chooses something in it.
class Chooser {
  public:
    Chooser() {
        window_.answer = [](testing_support::Message const& message) -> std::optional<LRESULT> {
            HWND const dialog = message.id == WM_APP ? FindWindowA("#32770", "Browse for Folder") : nullptr;
            if (dialog) {
                Countdown::Watch(dialog);
                SendMessageA(GetWindow(GetDlgItem(dialog, 102), GW_CHILD), WM_KEYDOWN, VK_DOWN, 1);
                PostMessageA(dialog, WM_COMMAND, IDOK, 0);
            }
            return std::nullopt;
        };
    }
    void Ask() const {
        PostMessageA(window_, WM_APP, 0, 0);
    }

  private:
    TestWindow window_{nullptr, {300, 300, 310, 310}};
};

TEST(Vanishing, BrowseButton) {
    for (char const* name : {"edit", "combobox"}) {
        SCOPED_TRACE(name);
        Chooser const chooser;
        TakeThroughWithoutLeaks([&](Stage& stage) {
            stage.MakeCompanion(name, CBS_DROPDOWN);
            SetWindowTextA(stage.companion, "C:\\a\\folder\\that\\is\\not\\there");
            stage.MakeControl(BROWSE_CLASSNAME, BROWSE_AUTOBUDDY | BROWSE_NOTIFY | BROWSE_APPEND);
            chooser.Ask();
            SendMessageA(stage.page, WM_COMMAND, MAKEWPARAM(7, BN_CLICKED), reinterpret_cast<LPARAM>(stage.control));
        });
    }
}

}  // namespace
