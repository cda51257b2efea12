// The graphic button as a window: what it is made of, how its parent answers for it, and whose the bitmaps are.
#include <cvutil32/grbutton.h>

#include "tests/controls/resource.h"
#include "tests/support/leaks.h"
#include "tests/support/window.h"

#include <gtest/gtest.h>

namespace {

using namespace testing_support;

constexpr int kButtonWidth = 25;
constexpr int kButtonHeight = 17;

HWND CreateButton(HWND parent, DWORD style = 0) {
    return MakeChild(parent, GRBUTTON_CLASSNAME, style, {20, 10, 20 + kButtonWidth, 10 + kButtonHeight}, 5);
}

BOOL SetPicture(HWND button) {
    return GRBUTTON_SetBitmaps(button, GetModuleHandleA(nullptr), MAKEINTRESOURCEA(IDB_PICTURE),
                               MAKEINTRESOURCEA(IDB_MASK));
}

HBITMAP NewBitmap() {
    return CreateBitmap(4, 4, 1, 1, nullptr);
}

bool Exists(HBITMAP bitmap) {
    BITMAP record;
    return GetObjectA(bitmap, sizeof record, &record) != 0;
}

class GraphicButton : public testing::Test {
  protected:
    GraphicButton() : button_(CreateButton(host_)) {
        UpdateWindow(button_);
        host_.Forget();
    }

    TestWindow host_;
    HWND button_;
};

TEST_F(GraphicButton, EveryKindBecomesOwnerDrawn) {
    for (DWORD kind : {DWORD{BS_DEFPUSHBUTTON}, DWORD{BS_AUTOCHECKBOX | BS_LEFTTEXT}, DWORD{BS_GROUPBOX}}) {
        HWND const button = CreateButton(host_, kind | WS_TABSTOP | WS_BORDER);
        auto const style = static_cast<DWORD>(GetWindowLongA(button, GWL_STYLE));
        EXPECT_EQ(DWORD{BS_OWNERDRAW}, style & 0xFFFF);
        EXPECT_EQ((WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_BORDER) >> 16, style >> 16);
    }
    SendMessageA(button_, BM_CLICK, 0, 0);
    ASSERT_EQ(1u, host_.Received(WM_COMMAND).size()) << "and is a button all the same";
    EXPECT_EQ(MAKEWPARAM(5, BN_CLICKED), host_.Received(WM_COMMAND)[0].wParam);
}

TEST_F(GraphicButton, TheSecondOfTwoQuickClicksIsADoubleClick) {
    LPARAM const inside = MAKELPARAM(5, 5);
    SendMessageA(button_, WM_LBUTTONDOWN, MK_LBUTTON, inside);
    SendMessageA(button_, WM_LBUTTONUP, 0, inside);
    SendMessageA(button_, WM_LBUTTONDBLCLK, MK_LBUTTON, inside);
    SendMessageA(button_, WM_LBUTTONUP, 0, inside);
    auto const commands = host_.Received(WM_COMMAND);
    ASSERT_EQ(2U, commands.size());
    EXPECT_EQ(MAKEWPARAM(5, BN_CLICKED), commands[0].wParam);
    EXPECT_EQ(MAKEWPARAM(5, BN_DOUBLECLICKED), commands[1].wParam);
}

TEST_F(GraphicButton, EnterIsForTheDefaultButton) {
    SetFocus(button_);
    ASSERT_EQ(button_, GetFocus());
    host_.Forget();
    MSG enter = {};
    enter.hwnd = button_;
    enter.message = WM_KEYDOWN;
    enter.wParam = VK_RETURN;
    EXPECT_TRUE(IsDialogMessageA(host_, &enter));
    auto const commands = host_.Received(WM_COMMAND);
    ASSERT_EQ(1U, commands.size());
    EXPECT_EQ(IDOK, LOWORD(commands[0].wParam));
}

TEST_F(GraphicButton, LooksAsItIsToldTo) {
    ASSERT_TRUE(SetPicture(button_));
    InvalidateRect(button_, nullptr, TRUE);
    UpdateWindow(button_);
    // The face of 21 by 13 leaves 20 by 12; the picture of 6 by 4 stands at 7, 4 of it.
    auto const whereItIs = [](Picture const& picture, int x, int y) {
        return picture.At(x, y) == GetSysColor(COLOR_BTNFACE) && picture.At(x + 1, y) == RGB(0, 0, 255) &&
               picture.At(x + 5, y + 3) == GetSysColor(COLOR_BTNFACE) && picture.At(x + 5, y + 2) == RGB(0, 0, 255);
    };
    Picture const raised = PictureOf(button_);
    EXPECT_TRUE(whereItIs(raised, 9, 6));
    EXPECT_EQ(GetSysColor(COLOR_BTNHIGHLIGHT), raised.At(0, 0));
    EXPECT_EQ(GetSysColor(COLOR_WINDOWFRAME), raised.At(kButtonWidth - 1, kButtonHeight - 1));

    SendMessageA(button_, BM_SETSTATE, TRUE, 0);
    Picture const pressed = PictureOf(button_);
    EXPECT_TRUE(whereItIs(pressed, 10, 7));
    EXPECT_EQ(GetSysColor(COLOR_WINDOWFRAME), pressed.At(0, 0));
    EXPECT_EQ(GetSysColor(COLOR_BTNSHADOW), pressed.At(1, 1));

    SendMessageA(button_, BM_SETSTATE, FALSE, 0);
    Picture const released = PictureOf(button_);
    EXPECT_TRUE(whereItIs(released, 9, 6));
    EXPECT_EQ(GetSysColor(COLOR_WINDOWFRAME), released.At(0, 0));
    EXPECT_EQ(GetSysColor(COLOR_BTNHIGHLIGHT), released.At(1, 1)) << "the ring stays, the edge lies inside it";

    InvalidateRect(button_, nullptr, TRUE);
    UpdateWindow(button_);
    EXPECT_EQ(raised, PictureOf(button_)) << "a full redraw has no ring";
    EnableWindow(button_, FALSE);
    UpdateWindow(button_);
    EXPECT_EQ(raised, PictureOf(button_)) << "disabled looks the same";
}

TEST_F(GraphicButton, FocusShows) {
    SetFocus(host_);
    InvalidateRect(button_, nullptr, TRUE);
    UpdateWindow(button_);
    Picture const without = PictureOf(button_);
    SetFocus(button_);
    EXPECT_EQ(button_, GetFocus());
    Picture const with = PictureOf(button_);
    EXPECT_NE(without, with);
    SetFocus(host_);
    EXPECT_EQ(without, PictureOf(button_));
}

TEST_F(GraphicButton, OtherItemsAreTheParentsOwn) {
    host_.answer = [](Message const& message) -> std::optional<LRESULT> {
        return message.id == WM_DRAWITEM ? std::optional<LRESULT>(17) : std::nullopt;
    };
    DRAWITEMSTRUCT item = {};
    item.CtlType = ODT_STATIC;
    item.CtlID = 77;
    item.hwndItem = button_;
    EXPECT_EQ(0, SendMessageA(host_, WM_DRAWITEM, 5, reinterpret_cast<LPARAM>(&item)));
    item.CtlType = ODT_BUTTON;
    item.hwndItem = host_;
    EXPECT_EQ(0, SendMessageA(host_, WM_DRAWITEM, 6, reinterpret_cast<LPARAM>(&item)));
    ASSERT_EQ(2u, host_.Received(WM_DRAWITEM).size());
    for (Message const& message : host_.Received(WM_DRAWITEM)) {
        EXPECT_EQ(77u, message.wParam);
        EXPECT_EQ(reinterpret_cast<LPARAM>(&item), message.lParam);
    }
    host_.Forget();
    EXPECT_EQ(0, SendMessageA(host_, WM_DRAWITEM, 5, 0));
    InvalidateRect(button_, nullptr, TRUE);
    UpdateWindow(button_);
    EXPECT_TRUE(host_.Received(WM_DRAWITEM).empty()) << "nothing and graphic buttons do not reach it";
    host_.answer = nullptr;
}

TEST_F(GraphicButton, BitmapsBelongToTheButton) {
    LeakCheck const leaks;
    HWND const button = CreateButton(host_);
    HBITMAP const image = NewBitmap();
    HBITMAP const mask = NewBitmap();
    EXPECT_FALSE(GRBUTTON_SetHBitmaps(button, image, nullptr));
    EXPECT_FALSE(GRBUTTON_SetHBitmaps(button, nullptr, mask));
    EXPECT_TRUE(GRBUTTON_SetHBitmaps(button, image, mask));
    DestroyWindow(button);
    EXPECT_FALSE(Exists(image));
    EXPECT_FALSE(Exists(mask));

    HWND const second = CreateButton(host_);
    HBITMAP const deleted = NewBitmap();
    EXPECT_TRUE(SetPicture(second));
    DestroyWindow(second);

    HWND const third = CreateButton(host_);
    DeleteObject(deleted);
    EXPECT_TRUE(GRBUTTON_SetHBitmaps(third, deleted, deleted));
    UpdateWindow(third);
    DestroyWindow(third);
}

TEST_F(GraphicButton, SettersTestWhatTheyGet) {
    HINSTANCE const module = GetModuleHandleA(nullptr);
    HWND const plain = MakeChild(host_, "button");
    HWND const gone = CreateButton(host_);
    DestroyWindow(gone);
    HBITMAP const bitmap = NewBitmap();
    for (HWND window : {HWND{nullptr}, plain, gone, host_.Handle()}) {
        EXPECT_FALSE(SetPicture(window));
        EXPECT_FALSE(GRBUTTON_SetHBitmaps(window, bitmap, bitmap));
    }
    DeleteObject(bitmap);
    EXPECT_FALSE(GRBUTTON_SetBitmaps(button_, nullptr, MAKEINTRESOURCEA(IDB_PICTURE), nullptr));
    EXPECT_FALSE(GRBUTTON_SetBitmaps(button_, module, nullptr, MAKEINTRESOURCEA(IDB_MASK)));
    EXPECT_FALSE(GRBUTTON_SetBitmaps(button_, module, MAKEINTRESOURCEA(999), nullptr));
    EXPECT_TRUE(GRBUTTON_SetBitmaps(button_, module, MAKEINTRESOURCEA(IDB_PICTURE), nullptr));
}

}  // namespace
