// Menus under the pointer and the keys, and what may happen to them while they are open. What a test does meanwhile is a list of
// steps: each runs when all input before it has been worked off.
#include "tests/platform/support/edit_control.h"

#include <functional>
#include <thread>

#include "tests/platform/support/hands.h"
#include "tests/platform/support/recorder.h"

namespace {

using tests::At;
using tests::EditControl;
using tests::Heard;
using tests::Play;
using tests::Pump;
using tests::PumpUntil;
using tests::Recorder;

using Steps = std::vector<std::function<void()>>;

class OpenMenus : public EditControl {
  protected:
    void SetUp() override {
        Recorder::Get().Reset();
        EditControl::SetUp();
        SetWindowPos(parent_, nullptr, 200, 200, 300, 200, SWP_NOZORDER);
        SetForegroundWindow(parent_);
        Move(5, 5);
        Pump();
    }
    void TearDown() override {
        Steps_().clear();
        if (OpenClipboard(nullptr)) {
            EmptyClipboard();
            CloseClipboard();
        }
        Recorder::Get().Reset();
        if (IsWindow(window)) {
            DestroyWindow(window);
        }
        if (IsWindow(parent_)) {
            EditControl::TearDown();
        }
        Pump();
        EXPECT_EQ(nullptr, Menu());
        EXPECT_EQ(nullptr, GetCapture());
    }

    static void Move(int x, int y) {
        Play({At(x, y, 0)});
    }
    static void Click(int x, int y) {
        Play({At(x, y, MOUSEEVENTF_LEFTDOWN), At(x, y, MOUSEEVENTF_LEFTUP)});
    }
    static void RightClick(int x, int y) {
        Play({At(x, y, MOUSEEVENTF_RIGHTDOWN), At(x, y, MOUSEEVENTF_RIGHTUP)});
    }
    static void Key(WORD key) {
        Play({tests::Key(key), tests::Key(key, KEYEVENTF_KEYUP)});
    }

    /// Steps of many tests: a key; a field and the window are asked for their menu; one is open.
    static std::function<void()> Press(WORD key) {
        return [=] { Key(key); };
    }
    static std::function<void()> Ask(HWND edit) {
        return [=] { PostMessageA(edit, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(edit), -1); };
    }
    std::function<void()> AskWindow() const {
        return [of = window] { PostMessageA(of, WM_SYSCOMMAND, SC_KEYMENU, VK_SPACE); };
    }
    static std::function<void()> IsOpen() {
        return [] { EXPECT_NE(nullptr, Menu()); };
    }

    /// Runs the steps, the last of which has to leave no menu open.
    void Run(Steps steps) {
        Steps_() = std::move(steps);
        SetTimer(nullptr, 0, 10, [](HWND, UINT, UINT_PTR id, DWORD) {
            if (Steps_().empty()) {
                KillTimer(nullptr, id);
                done_ = true;
                if (const HWND open = Menu()) {
                    ADD_FAILURE() << "a menu is left open";
                    SendMessageA(open, WM_CANCELMODE, 0, 0);
                }
                return;
            }
            const auto step = Steps_().front();
            Steps_().erase(Steps_().begin());
            step();
        });
        done_ = false;
        EXPECT_TRUE(PumpUntil([] { return done_; }));
    }

    /// @returns the menu that is open.
    static HWND Menu() {
        HWND each = nullptr;
        do {
            each = FindWindowExA(nullptr, each, "#32768", nullptr);
        } while (each != nullptr && !IsWindowVisible(each));
        return each;
    }
    using EditControl::PlaceOf;
    static RECT PlaceOf(HWND handle) {
        return tests::PlaceOf(handle);
    }
    static POINT Point(HWND edit, int x, int y) {
        POINT point{x, y};
        ClientToScreen(edit, &point);
        return point;
    }
    static COLORREF Pixel(int x, int y) {
        return tests::PixelOf(nullptr, x, y);
    }
    /// @returns whether the item whose middle is this far below the menu's top is highlighted.
    static bool IsLit(int y) {
        const RECT menu = PlaceOf(Menu());
        return Pixel(menu.left + 6, menu.top + y) == GetSysColor(COLOR_HIGHLIGHT);
    }
    static constexpr char kWithIcon[] = "MenuWithIcon";
    static HWND MakeWindow(DWORD style, const char* className = Recorder::kClass) {
        DestroyWindow(Recorder::Get().Make(WS_POPUP, 0, 0, 9, 9));  // registers the class
        WNDCLASSA withIcon{};
        GetClassInfoA(GetModuleHandleA(nullptr), Recorder::kClass, &withIcon);
        withIcon.hIcon = LoadIconA(nullptr, IDI_APPLICATION);
        withIcon.lpszClassName = kWithIcon;
        RegisterClassA(&withIcon);
        const HWND made = CreateWindowExA(0, className, "", WS_POPUP | WS_VISIBLE | WS_CAPTION | WS_SYSMENU | style,
                                          100, 100, 300, 150, nullptr, nullptr, GetModuleHandleA(nullptr), nullptr);
        SetForegroundWindow(made);
        Pump();
        Recorder::Get().Clear();
        return made;
    }
    /// The system commands that a window has got, without the one that opens the menu.
    static std::vector<WPARAM> Commands() {
        std::vector<WPARAM> commands;
        for (const Heard& each : Recorder::Get().heard) {
            const WPARAM command = each.wParam & 0xFFF0;
            if (each.message == WM_SYSCOMMAND && command != SC_KEYMENU && command != SC_MOUSEMENU) {
                commands.push_back(command);
            }
        }
        return commands;
    }
    /// How many items the open menu has, and lines between them.
    static int ItemsOf(int lines) {
        const RECT rect = PlaceOf(Menu());
        return (rect.bottom - rect.top - 6 - lines * 9) / kItem;
    }

    static constexpr int kItem = 17;
    /// The middles of the items of a field's menu.
    static constexpr int kUndo = 3 + 8;
    static constexpr int kLine = 3 + kItem + 4;
    static constexpr int kCut = kUndo + kItem + 9;
    static constexpr int kCopy = kCut + kItem;
    static constexpr int kPaste = kCopy + kItem;
    static constexpr int kDelete = kPaste + kItem;
    static constexpr int kSelectAll = kDelete + kItem + 9;

    /// Opens the field's menu by the keyboard and goes down some items. The keys are queued before it opens, a spare Escape too.
    static void Choose(HWND edit, int down, WPARAM last = VK_RETURN) {
        SetFocus(edit);
        for (int i = 0; i < down; ++i)
            PostMessageA(edit, WM_KEYDOWN, VK_DOWN, 1);
        PostMessageA(edit, WM_KEYDOWN, last, 1);
        PostMessageA(edit, WM_KEYDOWN, VK_ESCAPE, 1);
        Send(edit, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(edit), -1);
        Pump();
        SetFocus(edit);
    }
    /// Which item of a field's menu is which, from the top.
    enum : int { kUndoItem = 1, kCutItem, kCopyItem, kPasteItem, kDeleteItem, kSelectAllItem };

    static Steps& Steps_() {
        static Steps steps;
        return steps;
    }
    static inline bool done_ = false;
    HWND window = nullptr;
};

TEST_F(OpenMenus, OfAFieldStandAtThePointerAndLeaveItTheFocus) {
    const HWND edit = Make(ES_AUTOHSCROLL, "one two");
    Select(edit, 0, 3);
    const POINT at = Point(edit, 60, 8);
    Run({[&] { RightClick(at.x, at.y); },
         [&] {
             const RECT menu = PlaceOf(Menu());
             EXPECT_EQ(at.x, menu.left);
             EXPECT_EQ(at.y, menu.top);
             EXPECT_EQ(6, ItemsOf(2));
             EXPECT_EQ(edit, GetFocus());
             EXPECT_EQ(parent_, GetActiveWindow());
             EXPECT_EQ("[one] two", Marked(edit));
             const POINT selected = Point(edit, 4, 2);
             EXPECT_EQ(GetSysColor(COLOR_HIGHLIGHT), Pixel(selected.x, selected.y));
             EXPECT_EQ(GetSysColor(COLOR_3DHIGHLIGHT), Pixel(menu.left + 1, menu.top + 1));
             EXPECT_EQ(GetSysColor(COLOR_3DDKSHADOW), Pixel(menu.right - 1, menu.bottom - 1));
             EXPECT_EQ(GetSysColor(COLOR_3DSHADOW), Pixel(menu.left + 20, menu.top + kLine - 1));
             EXPECT_EQ(GetSysColor(COLOR_3DHIGHLIGHT), Pixel(menu.left + 20, menu.top + kLine));
             EXPECT_FALSE(IsLit(kCopy));
             Move(menu.left + 10, menu.top + kCopy);
         },
         [&] {
             EXPECT_TRUE(IsLit(kCopy));
             Move(at.x + 10, at.y + kPaste);
         },
         [&] {
             EXPECT_FALSE(IsLit(kCopy));
             EXPECT_TRUE(IsLit(kPaste)) << "disabled ones too";
             Move(at.x - 30, at.y);
         },
         [&] {
             EXPECT_FALSE(IsLit(kPaste)) << "the pointer has left the menu";
             Click(at.x + 10, at.y + kUndo);
         },
         [&] {
             ASSERT_NE(nullptr, Menu()) << "nothing to undo: the item does not answer";
             Click(at.x + 10, at.y + kLine);
         },
         [&] {
             ASSERT_NE(nullptr, Menu());
             Click(at.x + 10, at.y + kCut);
         }});
    EXPECT_EQ("| two", Marked(edit));
}

TEST_F(OpenMenus, OfAFieldDoWhatTheirItemsSay) {
    const HWND edit = Make(ES_AUTOHSCROLL, "one two");
    Choose(edit, kSelectAllItem);
    EXPECT_EQ("[one two]", Marked(edit));
    Select(edit, 0, 3);
    Choose(edit, kCutItem);
    EXPECT_EQ("| two", Marked(edit));
    Choose(edit, kUndoItem);
    EXPECT_EQ("[one] two", Marked(edit));
    Choose(edit, kCopyItem);
    Select(edit, 7, 7);
    Choose(edit, kPasteItem);
    EXPECT_EQ("one twoone|", Marked(edit));
    Select(edit, 3, 7);
    Choose(edit, kDeleteItem);
    EXPECT_EQ("one|one", Marked(edit));
    Select(edit, 0, 2);
    Choose(edit, kDeleteItem, VK_ESCAPE);
    EXPECT_EQ("[on]eone", Marked(edit)) << "put away, with the selection as it was";
    EXPECT_EQ(edit, GetFocus());
}

TEST_F(OpenMenus, OfAFieldOfferWhatCanBeDone) {
    const HWND edit = Make(ES_AUTOHSCROLL | ES_READONLY, "secret");
    Select(edit, 0, 6);
    SetFocus(edit);
    // A letter whose item is disabled leaves the menu open.
    Steps steps{Ask(edit)};
    for (const char letter : {'U', 'T', 'P', 'D', 'A'}) {
        steps.push_back(Press(static_cast<WORD>(letter)));
        steps.push_back([=] { EXPECT_NE(nullptr, Menu()) << letter; });
    }
    steps.push_back(Press('C'));
    Run(steps);
    EXPECT_EQ("[secret]", Marked(edit));
    Send(edit, EM_SETREADONLY, FALSE);
    Select(edit, 6, 6);
    Run({Ask(edit), Press('P')});
    EXPECT_EQ("secretsecret|", Marked(edit));
}

TEST_F(OpenMenus, AreGoneThroughByKeys) {
    const HWND edit = Make(ES_AUTOHSCROLL, "one two");
    Select(edit, 0, 3);
    SetFocus(edit);
    Run({Ask(edit), [&] {
             // Below the caret's line.
             POINT caret{};
             GetCaretPos(&caret);
             ClientToScreen(edit, &caret);
             EXPECT_EQ(caret.x, PlaceOf(Menu()).left);
             EXPECT_EQ(caret.y + static_cast<LONG>(HIWORD(GetDialogBaseUnits())), PlaceOf(Menu()).top);
             Key(VK_ESCAPE);
         }});
    // From one end to the other; nothing to undo; past a line; no item has this letter.
    Steps steps{Press(VK_APPS)};
    for (const auto& [key, lit] : {std::pair<WORD, int>{VK_UP, kSelectAll},
                                   {VK_DOWN, kUndo},
                                   {VK_RETURN, kUndo},
                                   {VK_DOWN, kCut},
                                   {VK_END, kSelectAll},
                                   {'Q', kSelectAll},
                                   {VK_HOME, kUndo}}) {
        steps.push_back(Press(key));
        steps.push_back([key = key, lit = lit] { EXPECT_TRUE(IsLit(lit)) << key; });
    }
    steps.push_back(Press(VK_ESCAPE));
    Run(steps);
    EXPECT_EQ("[one] two", Marked(edit));
    EXPECT_EQ(edit, GetFocus());
}

TEST_F(OpenMenus, TheMiddleButtonHasNothingToInsertWithoutADesktop) {
    const HWND edit = Make(ES_AUTOHSCROLL, "one two");
    Select(edit, 0, 3);
    Type(edit, "\x03");
    Send(edit, WM_MBUTTONDOWN, MK_MBUTTON, MAKELPARAM(60, 8));
    EXPECT_EQ("[one] two", Marked(edit)) << "the clipboard is something else";
}

TEST_F(OpenMenus, AClickBesideThemGoesWhereItWasMeant) {
    const HWND edit = Make(ES_AUTOHSCROLL, "one two");
    const HWND other = CreateWindowExA(0, "edit", "other", WS_CHILD | WS_VISIBLE, 10, 150, 100, 20, parent_, nullptr,
                                       nullptr, nullptr);
    const POINT at = Point(edit, 60, 8);
    const POINT beside = Point(other, 5, 5);
    Run({[&] { RightClick(at.x, at.y); }, IsOpen(), [&] { Click(beside.x, beside.y); },
         [&] {
             EXPECT_EQ(nullptr, Menu());
             EXPECT_EQ(other, GetFocus());
             RightClick(at.x, at.y);
         },
         [&] { RightClick(beside.x, beside.y); },
         [&] {
             EXPECT_EQ(beside.y, PlaceOf(Menu()).top) << "the other field's menu in its place";
             Key(VK_ESCAPE);
         }});
}

TEST_F(OpenMenus, StayOnTheScreen) {
    const int width = GetSystemMetrics(SM_CXSCREEN);
    const int height = GetSystemMetrics(SM_CYSCREEN);
    SetWindowPos(parent_, nullptr, width - 140, height - 80, 300, 200, SWP_NOZORDER);
    const HWND edit = Make(ES_AUTOHSCROLL, "one two");
    const POINT at = Point(edit, 110, 8);
    Run({[&] { RightClick(at.x, at.y); },
         [&] {
             EXPECT_EQ(at.x, PlaceOf(Menu()).right);
             EXPECT_EQ(at.y, PlaceOf(Menu()).bottom);
             Key(VK_ESCAPE);
         }});
}

TEST_F(OpenMenus, EndWithWhatTheyBelongTo) {
    const auto open = [&](HWND edit, const std::function<void()>& happens) {
        Run({Ask(edit), IsOpen(), happens, [] { EXPECT_EQ(nullptr, Menu()); }});
        if (IsWindow(parent_)) {
            SetForegroundWindow(parent_);
        }
    };
    const HWND edit = Make(ES_AUTOHSCROLL, "one");
    open(edit, [&] { SendMessageA(edit, WM_CANCELMODE, 0, 0); });
    open(edit, [&] { SendMessageA(parent_, WM_CANCELMODE, 0, 0); });
    open(edit, [&] { EnableWindow(parent_, FALSE); });
    EnableWindow(parent_, TRUE);
    open(edit, [&] { ShowWindow(parent_, SW_HIDE); });
    ShowWindow(parent_, SW_SHOW);
    open(edit, [&] { SetCapture(parent_); });
    ReleaseCapture();
    open(edit, [&] {
        window = Recorder::Get().Make(WS_POPUP | WS_VISIBLE, 500, 500, 50, 50);
        SetActiveWindow(window);
    });
    open(edit, [&] {
        std::thread([&] {
            const HWND other =
                CreateWindowExA(0, "static", "", WS_POPUP | WS_VISIBLE, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
            SetForegroundWindow(other);
            DestroyWindow(other);
        }).join();
    });
    open(edit, [&] {
        SendMessageA(edit, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(edit), -1);
        SendMessageA(Menu(), WM_CLOSE, 0, 0);
    });
    open(edit, [&] { DestroyWindow(edit); });
    const HWND second = Make(ES_AUTOHSCROLL, "two");
    open(second, [&] { DestroyWindow(parent_); });
}

TEST_F(OpenMenus, TheEndOfTheProgramEndsThem) {
    const HWND edit = Make(ES_AUTOHSCROLL, "one");
    PostMessageA(edit, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(edit), -1);
    PostQuitMessage(5);
    MSG message;
    int taken = 0;
    while (GetMessageA(&message, nullptr, 0, 0) > 0 && ++taken < 100) {
        DispatchMessageA(&message);
    }
    EXPECT_EQ(UINT{WM_QUIT}, message.message);
    EXPECT_EQ(5U, message.wParam);
}

TEST_F(OpenMenus, OfAWindowOfferWhatItsStylesAllow) {
    window = MakeWindow(0);
    Steps steps{AskWindow(),
                [&] {
                    EXPECT_EQ(2, ItemsOf(0)) << "a dialog's: Move and Close";
                    EXPECT_TRUE(IsLit(kUndo)) << "the first item, from the start";
                },
                Press(VK_ESCAPE)};
    Run(steps);
    DestroyWindow(window);

    window = MakeWindow(WS_THICKFRAME | WS_MAXIMIZEBOX | WS_MINIMIZEBOX);
    Run({AskWindow(),
         [] {
             EXPECT_EQ(6, ItemsOf(1));
             Key('R');
         },
         [] {
             EXPECT_NE(nullptr, Menu()) << "it is not to be restored";
             Key('X');
         }});
    EXPECT_TRUE(IsZoomed(window));
    EXPECT_EQ((std::vector<WPARAM>{SC_MAXIMIZE}), Commands());
    for (const char letter : {'M', 'S', 'X'}) {
        Run({AskWindow(), Press(static_cast<WORD>(letter)), [=] { EXPECT_NE(nullptr, Menu()) << letter; },
             Press(VK_ESCAPE)});
    }
    Run({AskWindow(), Press('R')});
    EXPECT_FALSE(IsZoomed(window));
    Run({AskWindow(), Press('N')});
    EXPECT_TRUE(IsIconic(window));
    Run({[&] { PostMessageA(window, WM_SYSCOMMAND, SC_RESTORE, 0); }, AskWindow(), Press('C')});
    EXPECT_FALSE(IsWindow(window));
}

TEST_F(OpenMenus, OfAWindowComeByItsCaptionAndItsIcon) {
    window = MakeWindow(WS_MINIMIZEBOX, kWithIcon);
    constexpr POINT kIcon{112, 112};
    constexpr POINT kCaption{200, 112};
    Run({[&] { RightClick(kCaption.x, kCaption.y); },
         [&] {
             EXPECT_EQ(kCaption.x, PlaceOf(Menu()).left);
             EXPECT_EQ(kCaption.y, PlaceOf(Menu()).top);
             Key(VK_ESCAPE);
             Click(kIcon.x, kIcon.y);
         },
         [&] {
             EXPECT_EQ(103, PlaceOf(Menu()).left) << "below the icon";
             EXPECT_EQ(121, PlaceOf(Menu()).top);
             EXPECT_FALSE(IsLit(kUndo));
             Key(VK_ESCAPE);
         }});
    // Clicks on the icon come and go with the menu, as long as they are no double click.
    const auto press = [=](DWORD time, DWORD flags) {
        INPUT input = At(kIcon.x, kIcon.y, flags);
        input.mi.time = time;
        Play({input});
    };
    const auto clickAt = [=](DWORD time) {
        press(time, MOUSEEVENTF_LEFTDOWN);
        press(time, MOUSEEVENTF_LEFTUP);
    };
    const DWORD now = GetTickCount() + 10000;
    Run({[=] { clickAt(now); }, IsOpen(), [=] { clickAt(now + 5000); }, [] { EXPECT_EQ(nullptr, Menu()); },
         [=] { clickAt(now + 10000); }, IsOpen(),
         // Pressed, dragged to the last item, let go.
         Press(VK_ESCAPE), [=] { press(now + 20000, MOUSEEVENTF_LEFTDOWN); },
         [] {
             const RECT menu = PlaceOf(Menu());
             Play({At(menu.left + 20, menu.bottom - 10, 0)});
         },
         [] {
             const RECT menu = PlaceOf(Menu());
             Play({At(menu.left + 20, menu.bottom - 10, MOUSEEVENTF_LEFTUP)});
         }});
    EXPECT_FALSE(IsWindow(window));

    window = MakeWindow(0, kWithIcon);
    Run({[=] { clickAt(now + 30000); }, [=] { clickAt(now + 30000); }});
    EXPECT_FALSE(IsWindow(window)) << "a double click closes";
}

TEST_F(OpenMenus, MovingAndSizingGoByArrows) {
    window = MakeWindow(WS_THICKFRAME);
    const auto choose = [&](WORD letter, const std::vector<WORD>& keys) {
        Steps steps{AskWindow(), [=] { Key(letter); }};
        for (const WORD each : keys) {
            steps.push_back([=] { Key(each); });
        }
        Run(steps);
        return PlaceOf(window);
    };
    const RECT moved = choose('M', {VK_RIGHT, VK_RIGHT, VK_DOWN, VK_RETURN});
    EXPECT_EQ(116, moved.left);
    EXPECT_EQ(108, moved.top);
    EXPECT_EQ(116, choose('M', {VK_LEFT, VK_UP, VK_ESCAPE}).left);
    const RECT wider = choose('S', {VK_RIGHT, VK_RIGHT, VK_RIGHT, VK_RETURN});
    EXPECT_EQ(116, wider.left);
    EXPECT_EQ(416 + 16, wider.right) << "the first arrow takes hold of the edge";
    const RECT corner = choose('S', {VK_LEFT, VK_LEFT, VK_UP, VK_UP, VK_RIGHT, VK_RETURN});
    EXPECT_EQ(116, corner.left);
    EXPECT_EQ(100, corner.top);
    EXPECT_EQ(wider.right, corner.right);
    EXPECT_EQ(wider.bottom, corner.bottom);
    // The mouse goes on from where it is, and a click ends it.
    Run({AskWindow(), Press('M'), [] { Move(605, 605); }, [] { Move(615, 600); }, [] { Click(615, 600); }});
    EXPECT_EQ(nullptr, GetCapture());
    EXPECT_EQ(WPARAM{SC_MOVE}, Commands().back());
}

}  // namespace
