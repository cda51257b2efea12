// The micro scroll bar as a window: line messages, timers, capture, pictures, attaching and arrow keys.
#include <cvutil32/scroll.h>

#include "tests/support/window.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

namespace {

using namespace testing_support;

constexpr int kBarWidth = 18;
constexpr int kBarHeight = 20;
constexpr LPARAM kUpper = MAKELPARAM(8, 5);
constexpr LPARAM kLower = MAKELPARAM(8, 15);
constexpr LPARAM kOutside = MAKELPARAM(8, 60);

HWND CreateBar(HWND parent, LONG style, int width = kBarWidth, int height = kBarHeight) {
    return MakeChild(parent, SCROLL_CLASSNAME, static_cast<DWORD>(style), {150, 10, 150 + width, 10 + height});
}

class ScrollBar : public testing::Test {
  protected:
    ScrollBar() : bar_(CreateBar(host_, SCROLL_VERTICAL)) {
        host_.Forget();
    }

    void Press(LPARAM at) const {
        SendMessageA(bar_, WM_LBUTTONDOWN, MK_LBUTTON, at);
    }
    void Move(LPARAM to) const {
        SendMessageA(bar_, WM_MOUSEMOVE, MK_LBUTTON, to);
    }
    void Release(LPARAM at) const {
        SendMessageA(bar_, WM_LBUTTONUP, 0, at);
    }
    void Tick(UINT_PTR timer) const {
        SendMessageA(bar_, WM_TIMER, timer, 0);
    }

    /// The codes of the line messages that the host got, as digits; any other detail that is wrong shows too.
    std::string Lines(UINT expected = WM_VSCROLL) {
        std::string codes;
        for (UINT id : {UINT{WM_VSCROLL}, UINT{WM_HSCROLL}}) {
            for (Message const& message : host_.Received(id)) {
                codes += id == expected ? "" : "?";
                codes += message.lParam == reinterpret_cast<LPARAM>(bar_) ? "" : "!";
                codes += std::to_string(message.wParam);
            }
        }
        host_.Forget();
        return codes;
    }

    Picture Painted() const {
        UpdateWindow(bar_);
        return PictureOf(bar_);
    }

    TestWindow host_;
    HWND bar_;
};

// --- line messages

TEST_F(ScrollBar, ClickSendsOneLineOnRelease) {
    SetFocus(bar_);
    Press(kUpper);
    EXPECT_EQ("", Lines()) << "the press itself sends nothing";
    EXPECT_EQ(bar_, GetCapture());
    HWND focus = nullptr;
    host_.answer = [&](Message const& message) -> std::optional<LRESULT> {
        if (message.id == WM_VSCROLL) {
            focus = GetFocus();
        }
        return std::nullopt;
    };
    Release(kUpper);
    EXPECT_EQ("0", Lines());
    EXPECT_EQ(host_.Handle(), focus) << "the associate has the focus before it gets the message";
    EXPECT_NE(bar_, GetCapture());
    Press(kLower);
    Release(kLower);
    EXPECT_EQ("1", Lines());
    host_.answer = nullptr;
}

TEST_F(ScrollBar, PressesOrReleasesElsewhereSendNothing) {
    for (LPARAM at : {kOutside, kLower}) {
        Press(kUpper);
        Release(at);
        EXPECT_EQ("", Lines());
        EXPECT_NE(bar_, GetCapture());
    }
    Release(kUpper);
    EXPECT_EQ("", Lines()) << "a release without a press";
    for (LPARAM at : {MAKELPARAM(8, 10), MAKELPARAM(0, 5), MAKELPARAM(17, 5), MAKELPARAM(8, 0), MAKELPARAM(8, 19)}) {
        Press(at);
        EXPECT_NE(bar_, GetCapture()) << "edges press nothing";
        Release(at);
        EXPECT_EQ("", Lines());
    }
}

TEST_F(ScrollBar, DoubleClickSendsTwoLines) {
    Press(kUpper);
    Release(kUpper);
    SendMessageA(bar_, WM_LBUTTONDBLCLK, MK_LBUTTON, kUpper);
    EXPECT_EQ(bar_, GetCapture());
    Release(kUpper);
    EXPECT_EQ("00", Lines());
}

TEST_F(ScrollBar, SideBySideTheFirstArrowStillSendsOne) {
    DestroyWindow(bar_);
    bar_ = CreateBar(host_, 0, 20, 18);
    Press(MAKELPARAM(5, 8));
    Release(MAKELPARAM(5, 8));
    Press(MAKELPARAM(15, 8));
    Release(MAKELPARAM(15, 8));
    EXPECT_EQ("10", Lines(WM_HSCROLL));
}

// --- repeat

TEST_F(ScrollBar, HeldArrowRepeatsWhileThePointerIsInside) {
    Press(kLower);
    Tick(500);
    EXPECT_EQ("1", Lines());
    EXPECT_FALSE(KillTimer(bar_, 500)) << "the first timer has done its work";
    Tick(501);
    Tick(501);
    EXPECT_EQ("11", Lines());
    Move(kUpper);
    Tick(501);
    EXPECT_EQ("", Lines()) << "outside the held arrow";
    Move(kLower);
    Tick(501);
    EXPECT_EQ("1", Lines());
    Release(kLower);
    EXPECT_EQ("1", Lines()) << "and one on release";
    EXPECT_FALSE(KillTimer(bar_, 501));
    Tick(501);
    EXPECT_EQ("", Lines());
}

TEST_F(ScrollBar, TimersRunByThemselves) {
    Press(kUpper);
    DWORD const start = GetTickCount();
    DWORD first = 0;
    DWORD second = 0;
    host_.answer = [&](Message const& message) -> std::optional<LRESULT> {
        if (message.id == WM_VSCROLL) {
            (first ? second : first) = GetTickCount() - start;
        }
        return std::nullopt;
    };
    while (!second && GetTickCount() - start < 60000) {
        testing_support::PumpMessages();
        Sleep(5);
    }
    Release(kOutside);
    EXPECT_GE(first, 380u);
    EXPECT_GE(second, first + 40);
    EXPECT_NE(0u, second);
    host_.answer = nullptr;
}

TEST_F(ScrollBar, LosingTheCaptureEndsThePress) {
    Press(kUpper);
    Tick(500);
    Lines();
    SetCapture(host_);
    EXPECT_EQ("", Lines());
    EXPECT_FALSE(KillTimer(bar_, 501)) << "nothing goes on by itself";
    Tick(501);
    ReleaseCapture();
    Release(kUpper);
    EXPECT_EQ("", Lines());
    Press(kUpper);
    Release(kUpper);
    EXPECT_EQ("0", Lines()) << "the next press works";
}

INT_PTR CALLBACK EndAtOnce(HWND dialog, UINT message, WPARAM, LPARAM) {
    if (message == WM_INITDIALOG) {
        PostMessageA(dialog, WM_APP, 0, 0);
    } else if (message == WM_APP) {
        EXPECT_EQ(nullptr, GetCapture());
        // The timers of a press that goes on would send lines under the dialog's eyes.
        HWND const bar = reinterpret_cast<HWND>(GetPropA(GetWindow(dialog, GW_OWNER), "Bar"));
        SendMessageA(bar, WM_TIMER, 501, 0);
        EndDialog(dialog, 1);
    }
    return message == WM_INITDIALOG;
}

TEST_F(ScrollBar, AModalDialogEndsThePress) {
    struct {
        DLGTEMPLATE head;
        WORD menu, windowClass, title;
    } const empty{{WS_POPUP | WS_CAPTION, 0, 0, 0, 0, 60, 30}, 0, 0, 0};
    SetPropA(host_, "Bar", bar_);
    Press(kUpper);
    Tick(500);
    EXPECT_EQ("0", Lines()) << "held, it repeats";
    EXPECT_EQ(1, DialogBoxIndirectParamA(nullptr, &empty.head, host_, EndAtOnce, 0));
    Tick(501);
    EXPECT_EQ("", Lines());
    EXPECT_NE(bar_, GetCapture());
    RemovePropA(host_, "Bar");
}

TEST_F(ScrollBar, AssociateMayEndTheBar) {
    host_.answer = [this](Message const& message) -> std::optional<LRESULT> {
        if (message.id == WM_VSCROLL) {
            DestroyWindow(bar_);
        }
        return std::nullopt;
    };
    Press(kUpper);
    Release(kUpper);
    EXPECT_FALSE(IsWindow(bar_));
    host_.answer = nullptr;
}

// --- associates

TEST_F(ScrollBar, AssociateCanBeReplaced) {
    TestWindow other(host_, {0, 0, 20, 20});
    EXPECT_EQ(host_.Handle(), SCROLL_SetAssociateWindow(bar_, other));
    Press(kUpper);
    Release(kUpper);
    EXPECT_EQ("", Lines());
    EXPECT_EQ(1u, other.Received(WM_VSCROLL).size());
    EXPECT_EQ(other.Handle(), SCROLL_SetAssociateWindow(bar_, host_));

    EXPECT_EQ(nullptr, SCROLL_SetAssociateWindow(nullptr, host_));
    EXPECT_EQ(nullptr, SCROLL_SetAssociateWindow(bar_, nullptr));
    HWND const gone = other;
    other.Destroy();
    EXPECT_EQ(nullptr, SCROLL_SetAssociateWindow(bar_, gone));
    EXPECT_EQ(host_.Handle(), SCROLL_SetAssociateWindow(bar_, host_));
}

TEST_F(ScrollBar, AttachesToThePreviousSibling) {
    TestWindow field(host_, {10, 30, 110, 50});
    // A new window comes last, so the one created before it is its previous sibling.
    HWND const bar = CreateBar(host_, SCROLL_VERTICAL | SCROLL_PREVSIBLING | SCROLL_ATTACH, 1, 1);
    POINT origin = {0, 0};
    ClientToScreen(host_, &origin);
    auto const liesAt = [&](HWND window, int left, int right) {
        RECT const wanted = {origin.x + left, origin.y + 30, origin.x + right, origin.y + 50};
        RECT place;
        GetWindowRect(window, &place);
        return EqualRect(&wanted, &place);
    };
    EXPECT_TRUE(liesAt(field, 10, 10 + 82 + GetSystemMetrics(SM_CXBORDER)));
    EXPECT_TRUE(liesAt(bar, 92, 110));
    SendMessageA(bar, WM_LBUTTONDOWN, MK_LBUTTON, kUpper);
    SendMessageA(bar, WM_LBUTTONUP, 0, kUpper);
    EXPECT_EQ(1u, field.Received(WM_VSCROLL).size());
}

// --- arrow keys

class ArrowKeys : public testing::Test {
  protected:
    static WNDPROC ProcedureOf(HWND window) {
        return reinterpret_cast<WNDPROC>(GetWindowLongPtrA(window, GWLP_WNDPROC));
    }

    HWND Hook() {
        return CreateBar(host_, SCROLL_VERTICAL | SCROLL_PREVSIBLING | SCROLL_ARROWKEYS);
    }

    TestWindow host_;
};

TEST_F(ArrowKeys, BecomeLineMessages) {
    TestWindow field(host_, {0, 0, 50, 20});
    HWND const bar = Hook();
    field.Forget();
    SendMessageA(field, WM_KEYDOWN, VK_UP, 1);
    SendMessageA(field, WM_KEYDOWN, VK_DOWN, 1);
    SendMessageA(field, WM_KEYDOWN, VK_LEFT, 1);
    auto const lines = field.Received(WM_VSCROLL);
    ASSERT_EQ(2u, lines.size());
    EXPECT_EQ(0u, lines[0].wParam);
    EXPECT_EQ(1u, lines[1].wParam);
    EXPECT_EQ(reinterpret_cast<LPARAM>(field.Handle()), lines[0].lParam);
    auto const keys = field.Received(WM_KEYDOWN);
    ASSERT_EQ(1u, keys.size());
    EXPECT_EQ(static_cast<WPARAM>(VK_LEFT), keys[0].wParam);

    DestroyWindow(bar);
    SendMessageA(field, WM_KEYDOWN, VK_UP, 1);
    EXPECT_EQ(3u, field.Received(WM_VSCROLL).size()) << "the hook outlives the bar";
}

TEST_F(ArrowKeys, HookedWindowNeverSeesItsEnd) {
    TestWindow field(host_, {0, 0, 50, 20});
    Hook();
    field.Destroy();
    EXPECT_EQ(1u, field.Received(WM_DESTROY).size());
    EXPECT_TRUE(field.Received(WM_NCDESTROY).empty());
}

TEST_F(ArrowKeys, TwoBarsOnOneWindowWorkAndEnd) {
    TestWindow field(host_, {0, 0, 50, 20});
    HWND const first = Hook();
    DestroyWindow(first);
    Hook();
    field.Forget();
    SendMessageA(field, WM_KEYDOWN, VK_UP, 1);
    EXPECT_EQ(1u, field.Received(WM_VSCROLL).size());
    SendMessageA(field, WM_USER, 0, 0);
    EXPECT_EQ(1u, field.Received(WM_USER).size());
    HWND const handle = field;
    field.Destroy();
    EXPECT_FALSE(IsWindow(handle));
}

TEST_F(ArrowKeys, EightyWindowsAreHookedAndTheirPlacesReused) {
    for (int round = 0; round < 2; ++round) {
        std::vector<std::unique_ptr<TestWindow>> fields;
        WNDPROC own = nullptr;
        for (int i = 0; i < 81; ++i) {
            fields.push_back(std::make_unique<TestWindow>(host_, RECT{0, 0, 10, 10}));
            own = ProcedureOf(*fields.back());
            DestroyWindow(Hook());
        }
        EXPECT_NE(own, ProcedureOf(*fields[79]));
        EXPECT_EQ(own, ProcedureOf(*fields[80])) << "the table is full";
    }
}

// --- picture

TEST_F(ScrollBar, DrawsRaisedAndPressedArrows) {
    COLORREF const face = GetSysColor(COLOR_BTNFACE);
    COLORREF const shadow = GetSysColor(COLOR_BTNSHADOW);
    COLORREF const highlight = GetSysColor(COLOR_BTNHIGHLIGHT);
    COLORREF const text = GetSysColor(COLOR_BTNTEXT);
    COLORREF const frame = GetSysColor(COLOR_WINDOWFRAME);

    Picture const raised = Painted();
    ASSERT_EQ(kBarWidth, raised.width);
    ASSERT_EQ(kBarHeight, raised.height);
    auto const have = [](Picture const& picture, COLORREF colour, std::initializer_list<POINT> places) {
        for (POINT const& at : places) {
            EXPECT_EQ(colour, picture.At(at.x, at.y)) << at.x << ' ' << at.y;
        }
    };
    have(raised, frame, {{0, 0}, {17, 0}, {17, 19}, {5, 10}});
    have(raised, highlight, {{1, 1}, {15, 1}, {1, 8}});
    have(raised, shadow, {{16, 1}, {15, 2}, {1, 9}, {2, 8}});
    // The upper triangle's tip and base, and the lower one's, and what lies beside them.
    have(raised, text, {{8, 3}, {9, 3}, {5, 6}, {12, 6}, {8, 15}, {5, 12}});
    have(raised, face, {{3, 3}, {10, 3}, {13, 6}, {8, 16}});

    Press(kUpper);
    Picture const pressed = Painted();
    have(pressed, shadow, {{1, 1}, {16, 1}});
    have(pressed, face, {{16, 5}, {8, 3}});  // no lower right edge
    have(pressed, text, {{9, 4}});           // shifted right and down
    have(pressed, highlight, {{1, 11}});     // the other arrow stays raised
    Move(kOutside);
    EXPECT_EQ(raised, Painted());
    Move(kUpper);
    EXPECT_EQ(pressed, Painted());
    Release(kOutside);
    EXPECT_EQ(raised, Painted());
}

TEST_F(ScrollBar, NoticesNewSystemColoursAtItsNextPainting) {
    Painted();
    int const index = COLOR_BTNTEXT;
    COLORREF const former = GetSysColor(index);
    COLORREF const red = RGB(255, 0, 0);
    ASSERT_TRUE(SetSysColors(1, &index, &red));
    InvalidateRect(bar_, nullptr, TRUE);
    EXPECT_EQ(red, Painted().At(8, 3));
    EXPECT_TRUE(SetSysColors(1, &index, &former));
    SendMessageA(bar_, WM_SYSCOLORCHANGE, 0, 0);
    InvalidateRect(bar_, nullptr, TRUE);
    EXPECT_EQ(former, Painted().At(8, 3));
}

}  // namespace
