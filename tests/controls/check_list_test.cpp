// The check list: its boxes pixel by pixel, the height of its items, and what of its parent's messages it keeps.
#include <cvutil32/cklist.h>

#include "tests/platform/support/gdi_canvas.h"
#include "tests/support/leaks.h"
#include "tests/support/window.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using namespace testing_support;

constexpr int kBox = 11;
constexpr DWORD kStyle = LBS_OWNERDRAWFIXED | LBS_HASSTRINGS | LBS_MULTIPLESEL | LBS_NOTIFY;

using Rows = std::vector<std::string>;

Rows const kEmpty = {"00777777777", "7fffffffff7", "7fffffffff7", "7fffffffff7", "7fffffffff7", "7fffffffff7",
                     "7fffffffff7", "7fffffffff7", "7fffffffff7", "7fffffffff7", "77777777777"};
Rows const kTicked = {"77777777777", "7fffffffff7", "7fffffff0f7", "7ffffff00f7", "7f0fff000f7", "7f00f000ff7",
                      "7f00000fff7", "7ff000ffff7", "7fff0fffff7", "7fffffffff7", "77777777777"};

char LetterOf(std::uint32_t pixel) {
    return pixel == 0 ? '0' : pixel == 0x808080 ? '7' : pixel == 0xFFFFFF ? 'f' : '?';
}

class CheckList : public testing::Test {
  protected:
    static constexpr int kId = 12;

    CheckList() : list_(Create(CKLIST_CLASSNAME, kId)) {}

    HWND Create(char const* name, int id, DWORD style = kStyle) {
        return MakeChild(host_, name, style, {10, 10, 130, 70}, id);
    }
    LRESULT Ask(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return SendMessageA(list_, message, wParam, lParam);
    }
    void Add(std::string const& text) const {
        EXPECT_NE(LB_ERR, Ask(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str())));
    }
    /// Has the parent draw an item, as the list box does.
    LRESULT Draw(HDC dc, RECT const& rect, UINT state, UINT item = 0, UINT action = ODA_DRAWENTIRE) const {
        DRAWITEMSTRUCT draw = {};
        draw.CtlType = ODT_LISTBOX;
        draw.CtlID = kId;
        draw.itemID = item;
        draw.itemAction = action;
        draw.itemState = state;
        draw.hwndItem = list_;
        draw.hDC = dc;
        draw.rcItem = rect;
        return SendMessageA(host_, WM_DRAWITEM, kId, reinterpret_cast<LPARAM>(&draw));
    }
    static Rows BoxAt(Canvas& canvas, int x, int y) {
        Rows rows;
        for (int row = 0; row < kBox; ++row) {
            rows.emplace_back();
            for (int column = 0; column < kBox; ++column) {
                rows.back() += LetterOf(canvas.At(x + column, y + row));
            }
        }
        return rows;
    }
    int AscentOf(HWND list) const {
        TEXTMETRICA metrics = {};
        HDC const dc = GetDC(list);
        GetTextMetricsA(dc, &metrics);
        ReleaseDC(list, dc);
        return metrics.tmAscent;
    }

    TestWindow host_;
    HWND list_;
};

TEST_F(CheckList, BoxTellsSelectedAndNothingElse) {
    Add("");
    Canvas canvas(60, 30);
    struct {
        UINT state;
        Rows const& box;
    } const cases[] = {{0, kEmpty},
                       {ODS_SELECTED, kTicked},
                       {ODS_SELECTED | ODS_FOCUS, kEmpty},
                       {ODS_SELECTED | ODS_DISABLED, kEmpty}};
    for (auto const& [state, box] : cases) {
        canvas.Clear(0x123456);
        EXPECT_EQ(0, Draw(canvas, {3, 4, 60, 15}, state));
        EXPECT_EQ(box, BoxAt(canvas, 10, 4)) << state << ": at 10 whatever the item's left edge is";
        std::uint32_t const window = PixelOf(GetSysColor(COLOR_WINDOW));
        EXPECT_EQ(window, canvas.At(3, 4));
        EXPECT_EQ(window, canvas.At(59, 14));
        EXPECT_EQ(0x123456u, canvas.At(2, 4));
        EXPECT_EQ(0x123456u, canvas.At(10, 15));
    }
}

TEST_F(CheckList, BoxStandsInTheMiddleOfAHighItem) {
    Add("");
    Canvas canvas(60, 30);
    Draw(canvas, {0, 3, 60, 24}, ODS_SELECTED);
    EXPECT_EQ(kTicked, BoxAt(canvas, 10, 8));
}

TEST_F(CheckList, TextFollowsTheBox) {
    Add("HHH");
    Canvas canvas(120, 20);
    SetTextColor(canvas, RGB(255, 0, 0));
    SetBkColor(canvas, RGB(0, 255, 0));
    Draw(canvas, {3, 0, 120, 20}, ODS_SELECTED);
    int const left = 3 + kBox + 18;
    EXPECT_EQ(0, canvas.Count({0, 0, left, 20}, 0xFF0000));
    EXPECT_GT(canvas.Count({left, 0, left + 4, 20}, 0xFF0000), 4);
    EXPECT_EQ(0, canvas.Count(canvas.All(), 0x00FF00)) << "no ground behind the text";
    EXPECT_EQ(TRANSPARENT, GetBkMode(canvas));
}

TEST_F(CheckList, FocusChangeTogglesTheRectangleAlone) {
    Add("x");
    Canvas canvas(60, 20);
    canvas.Clear(0x808000);
    Draw(canvas, {5, 5, 50, 16}, ODS_SELECTED | ODS_FOCUS, 0, ODA_FOCUS);
    EXPECT_NE(60 * 20, canvas.Count(canvas.All(), 0x808000));
    EXPECT_EQ(43 * 9, canvas.Count({6, 6, 49, 15}, 0x808000)) << "nothing inside";
    Draw(canvas, {5, 5, 50, 16}, ODS_SELECTED, 0, ODA_FOCUS);
    EXPECT_EQ(60 * 20, canvas.Count(canvas.All(), 0x808000));
}

TEST_F(CheckList, LongTextsAndMissingItemsAreDrawnSafely) {
    LeakCheck const leaks;
    Canvas canvas(2000, 16);
    std::vector<int> ink;
    for (std::size_t length : {254u, 255u, 256u, 5000u}) {
        Ask(LB_RESETCONTENT);
        Add(std::string(length, 'l'));
        canvas.Clear(Canvas::kWhite);
        Draw(canvas, {0, 0, 2000, 16}, 0);
        ink.push_back(canvas.Count({30, 0, 2000, 16}, Canvas::kBlack));
    }
    EXPECT_LT(ink[0], ink[1]);
    EXPECT_EQ(ink[1], ink[2]) << "255 characters are shown";
    EXPECT_EQ(ink[1], ink[3]);
    Ask(LB_RESETCONTENT);
    for (UINT item : {0u, 7u, static_cast<UINT>(-1)}) {
        canvas.Clear(Canvas::kWhite);
        Draw(canvas, {0, 0, 60, 11}, 0, item);
        EXPECT_EQ(kEmpty, BoxAt(canvas, 10, 0));
    }
    EXPECT_EQ(0, SendMessageA(host_, WM_DRAWITEM, kId, 0));
    EXPECT_EQ(0, SendMessageA(host_, WM_MEASUREITEM, kId, 0));
}

TEST_F(CheckList, EveryOwnerDrawnListOfTheParentIsMeasuredAlike) {
    host_.Forget();
    host_.answer = [](Message const& message) -> std::optional<LRESULT> {
        if (message.id == WM_MEASUREITEM) {
            reinterpret_cast<MEASUREITEMSTRUCT*>(message.lParam)->itemHeight = 40;
            return TRUE;
        }
        return std::nullopt;
    };
    HWND const other = Create("listbox", 13, LBS_OWNERDRAWFIXED | LBS_HASSTRINGS);
    EXPECT_EQ(AscentOf(list_), Ask(LB_GETITEMHEIGHT)) << "in place before the list asks";
    EXPECT_EQ(AscentOf(other), SendMessageA(other, LB_GETITEMHEIGHT, 0, 0));
    MEASUREITEMSTRUCT item = {};
    item.CtlType = ODT_MENU;
    EXPECT_EQ(0, SendMessageA(host_, WM_MEASUREITEM, 0, reinterpret_cast<LPARAM>(&item)));
    EXPECT_EQ(0u, item.itemHeight);
    item.CtlType = ODT_LISTBOX;
    item.CtlID = kId;
    SendMessageA(host_, WM_MEASUREITEM, kId, reinterpret_cast<LPARAM>(&item));
    RECT client;
    GetClientRect(list_, &client);
    EXPECT_EQ(static_cast<UINT>(client.right), item.itemWidth);
    EXPECT_TRUE(host_.Received(WM_MEASUREITEM).empty());
    host_.answer = nullptr;
}

TEST_F(CheckList, OtherItemsAreTheParentsOwn) {
    HWND const other = Create("listbox", 13, LBS_OWNERDRAWFIXED | LBS_HASSTRINGS);
    host_.answer = [](Message const& message) -> std::optional<LRESULT> {
        return message.id == WM_DRAWITEM ? std::optional<LRESULT>(17) : std::nullopt;
    };
    DRAWITEMSTRUCT item = {};
    item.CtlID = 77;
    item.hwndItem = list_;
    item.CtlType = ODT_COMBOBOX;
    EXPECT_EQ(0, SendMessageA(host_, WM_DRAWITEM, 5, reinterpret_cast<LPARAM>(&item)));
    item.hwndItem = other;
    item.CtlType = ODT_LISTBOX;
    EXPECT_EQ(0, SendMessageA(host_, WM_DRAWITEM, 5, reinterpret_cast<LPARAM>(&item)));
    ASSERT_EQ(2u, host_.Received(WM_DRAWITEM).size());
    EXPECT_EQ(77u, host_.Received(WM_DRAWITEM)[0].wParam);
    host_.answer = nullptr;
}

TEST_F(CheckList, ClickingTicksAndTicksAgain) {
    for (int i = 0; i < 3; ++i) {
        Add("item");
    }
    UpdateWindow(list_);
    int const height = static_cast<int>(Ask(LB_GETITEMHEIGHT));
    LPARAM const second = MAKELPARAM(20, height + height / 2);
    auto const click = [&] {
        Ask(WM_LBUTTONDOWN, MK_LBUTTON, second);
        Ask(WM_LBUTTONUP, 0, second);
    };
    auto const boxIsTicked = [&](int item) {
        Picture const picture = PictureOf(list_);
        // The tick's lowest pixel.
        return picture.At(14, item * height + (height - kBox) / 2 + 8) == RGB(0, 0, 0);
    };
    click();
    EXPECT_GT(Ask(LB_GETSEL, 1), 0);
    SetFocus(host_);
    InvalidateRect(list_, nullptr, TRUE);
    UpdateWindow(list_);
    EXPECT_FALSE(boxIsTicked(0));
    EXPECT_TRUE(boxIsTicked(1));
    SetFocus(list_);
    InvalidateRect(list_, nullptr, TRUE);
    UpdateWindow(list_);
    EXPECT_TRUE(boxIsTicked(1)) << "the item with the focus too, drawn anew as a whole";
    click();
    click();
    EXPECT_GT(Ask(LB_GETSEL, 1), 0) << "two quick clicks are two clicks";
    click();
    EXPECT_EQ(0, Ask(LB_GETSEL, 1));
    EnableWindow(list_, FALSE);
    Ask(LB_SETSEL, TRUE, 0);
    UpdateWindow(list_);
    EXPECT_FALSE(boxIsTicked(0)) << "a disabled list shows empty boxes";
}

}  // namespace
