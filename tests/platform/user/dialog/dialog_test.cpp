// Making dialogs: templates, controls, WM_INITDIALOG, answers of the dialog procedure, fonts, items.
#include <gtest/gtest.h>

#include <string>

#include "tests/platform/support/dialog_builder.h"
#include "tests/platform/support/looking.h"

namespace {

using tests::DialogBuilder;

class DialogTest : public ::testing::Test {
  protected:
    static inline INT_PTR initResult = FALSE;
    static inline HWND initFocusOffered = nullptr;
    static inline HWND initFocusTaken = nullptr;
    static INT_PTR CALLBACK Procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
        switch (message) {
            case WM_INITDIALOG:
                initFocusOffered = reinterpret_cast<HWND>(wParam);
                if (lParam)
                    SetFocus(initFocusTaken = GetDlgItem(dialog, static_cast<int>(lParam)));
                return initResult;
            case WM_VKEYTOITEM:
                SetWindowLongPtrA(dialog, DWLP_MSGRESULT, 1);
                return 77;
            case WM_USER + 8:
                return TRUE;
            case WM_USER + 7:
                SetWindowLongPtrA(dialog, DWLP_MSGRESULT, 4711);
                return TRUE;
            default:
                return FALSE;
        }
    }

    void SetUp() override {
        initResult = FALSE;
        initFocusOffered = initFocusTaken = nullptr;
    }
    void TearDown() override {
        if (dialog_ && IsWindow(dialog_))
            DestroyWindow(dialog_);
    }
    HWND Make(DialogBuilder& builder, LPARAM parameter = 0, HWND owner = nullptr) {
        dialog_ = CreateDialogIndirectParamA(GetModuleHandleA(nullptr), builder.Data(), owner, Procedure, parameter);
        return dialog_;
    }

    HWND dialog_ = nullptr;
};

std::string TextOf(HWND window) {
    char text[256] = "";
    GetWindowTextA(window, text, sizeof text);
    return text;
}

std::string ClassOf(HWND window) {
    char name[64] = "";
    GetClassNameA(window, name, sizeof name);
    CharLowerA(name);
    return name;
}

// Both forms say the same, so both make the same dialog.
class TemplateForm : public DialogTest, public ::testing::WithParamInterface<bool> {};

TEST_P(TemplateForm, MakesTheDialogAndItsControls) {
    DialogBuilder builder(WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_SETFONT | DS_MODALFRAME, 160, 120, GetParam());
    builder.Title("Title", "MS Sans Serif")
        .NumberedItem(0x0082, "&Name:", 300, SS_LEFT, 7, 9, 40, 8)
        .Item("button", "OK", IDOK, BS_DEFPUSHBUTTON | WS_TABSTOP, 50, 100, 50, 14)
        .NumberedItem(0x0080, "Box", 1000, BS_AUTOCHECKBOX | WS_TABSTOP, 7, 40, 60, 10);
    ASSERT_NE(nullptr, Make(builder));

    EXPECT_EQ("Title", TextOf(dialog_));
    EXPECT_EQ("#32770", ClassOf(dialog_));
    EXPECT_FALSE(IsWindowVisible(dialog_));
    EXPECT_TRUE(GetWindowLongA(dialog_, GWL_EXSTYLE) & WS_EX_DLGMODALFRAME);
    const HWND label = GetDlgItem(dialog_, 300);
    const HWND check = GetDlgItem(dialog_, 1000);
    EXPECT_EQ("static", ClassOf(label));
    EXPECT_EQ("&Name:", TextOf(label));
    EXPECT_EQ("button", ClassOf(check));
    EXPECT_EQ(1000, GetDlgCtrlID(check));
    EXPECT_EQ(MAKELONG(IDOK, DC_HASDEFID), SendMessageA(dialog_, DM_GETDEFID, 0, 0));

    // Every position is its template's, in units of the dialog's own font.
    RECT expected{7, 40, 67, 50};
    ASSERT_TRUE(MapDialogRect(dialog_, &expected));
    RECT actual = tests::PlaceOf(check);
    MapWindowPoints(nullptr, dialog_, reinterpret_cast<POINT*>(&actual), 2);
    EXPECT_TRUE(EqualRect(&expected, &actual));
    const RECT client = tests::ClientOf(dialog_);
    RECT size{0, 0, 160, 120};
    MapDialogRect(dialog_, &size);
    EXPECT_TRUE(EqualRect(&size, &client));

    // The controls have the dialog's font.
    const LRESULT font = SendMessageA(dialog_, WM_GETFONT, 0, 0);
    EXPECT_NE(0, font);
    EXPECT_EQ(font, SendMessageA(label, WM_GETFONT, 0, 0));
    EXPECT_EQ(font, SendMessageA(check, WM_GETFONT, 0, 0));
}

INSTANTIATE_TEST_SUITE_P(Forms, TemplateForm, ::testing::Bool());

TEST_F(DialogTest, CreationDataIsPassedOver) {
    WNDCLASSA windowClass{};
    windowClass.lpfnWndProc = DefWindowProcA;
    windowClass.hInstance = GetModuleHandleA(nullptr);
    windowClass.lpszClassName = "tests_creation_data";
    ASSERT_NE(0, RegisterClassA(&windowClass));
    for (const bool extended : {false, true}) {
        DialogBuilder builder(WS_POPUP, 100, 50, extended);
        builder.Title("")
            .Item("tests_creation_data", "", 1, 0, 0, 0, 9, 9, 0, {0x1234, 0x5678})
            .Item("tests_creation_data", "behind", 2, 0, 0, 0, 9, 9);
        ASSERT_NE(nullptr, Make(builder)) << extended;
        EXPECT_EQ("behind", TextOf(GetDlgItem(dialog_, 2))) << extended;
        DestroyWindow(dialog_);
    }
    UnregisterClassA("tests_creation_data", windowClass.hInstance);
}

TEST_F(DialogTest, FromResources) {
    const HINSTANCE instance = GetModuleHandleA(nullptr);
    dialog_ = CreateDialogParamA(instance, MAKEINTRESOURCEA(2000), nullptr, Procedure, 0);
    ASSERT_NE(nullptr, dialog_);
    EXPECT_EQ("From resources", TextOf(dialog_));
    EXPECT_EQ("&Apply", TextOf(GetDlgItem(dialog_, 2101)));
    EXPECT_EQ(nullptr, CreateDialogParamA(instance, MAKEINTRESOURCEA(2999), nullptr, Procedure, 0));
    EXPECT_EQ(-1, DialogBoxParamA(instance, "no such dialog", nullptr, Procedure, 0));
}

TEST_F(DialogTest, InitDialogDecidesOnTheFocus) {
    DialogBuilder builder(WS_POPUP | WS_VISIBLE);
    builder.Title("")
        .Item("static", "text", 300, 0, 0, 0, 9, 9)
        .Item("button", "1", 1001, WS_TABSTOP | WS_DISABLED, 0, 0, 9, 9)
        .Item("button", "2", 1002, WS_TABSTOP, 0, 0, 9, 9)
        .Item("button", "3", 1003, WS_TABSTOP, 0, 0, 9, 9);
    initResult = TRUE;
    ASSERT_NE(nullptr, Make(builder));
    EXPECT_EQ(GetDlgItem(dialog_, 1002), initFocusOffered);
    EXPECT_EQ(GetDlgItem(dialog_, 1002), GetFocus());
    DestroyWindow(dialog_);

    initResult = FALSE;
    ASSERT_NE(nullptr, Make(builder, 1003));
    EXPECT_EQ(initFocusTaken, GetFocus());
}

TEST_F(DialogTest, TheFocusComesBackWithTheActivation) {
    DialogBuilder builder(WS_POPUP | WS_VISIBLE);
    builder.Title("")
        .Item("button", "1", 1001, WS_TABSTOP, 0, 0, 9, 9)
        .Item("button", "2", 1002, WS_TABSTOP, 0, 0, 9, 9);
    ASSERT_NE(nullptr, Make(builder, 1002));
    const HWND other = tests::MakeOwner();
    SetActiveWindow(other);
    EXPECT_NE(GetDlgItem(dialog_, 1002), GetFocus());
    SetActiveWindow(dialog_);
    EXPECT_EQ(GetDlgItem(dialog_, 1002), GetFocus());
    DestroyWindow(other);
}

TEST_F(DialogTest, AnswersOfTheDialogProcedure) {
    DialogBuilder builder;
    builder.Title("");
    ASSERT_NE(nullptr, Make(builder));
    EXPECT_EQ(77, SendMessageA(dialog_, WM_VKEYTOITEM, 0, 0));
    EXPECT_EQ(4711, SendMessageA(dialog_, WM_USER + 7, 0, 0));
    EXPECT_EQ(0, SendMessageA(dialog_, WM_USER + 8, 0, 0)) << "an earlier result is not reused";
}

TEST_F(DialogTest, Numbers) {
    DialogBuilder builder;
    builder.Title("").Item("static", "", 300, 0, 0, 0, 99, 9);
    ASSERT_NE(nullptr, Make(builder));
    BOOL translated = FALSE;
    struct Case {
        const char* text;
        BOOL isSigned;
        UINT value;
        BOOL translated;
    };
    for (const Case& each : {Case{"  42", FALSE, 42, TRUE}, Case{"-17", TRUE, static_cast<UINT>(-17), TRUE},
                             Case{"4294967295", FALSE, 4294967295U, TRUE}, Case{"4294967296", FALSE, 0, FALSE},
                             Case{"2147483648", TRUE, 0, FALSE}, Case{"x1", TRUE, 0, FALSE}}) {
        SetDlgItemTextA(dialog_, 300, each.text);
        EXPECT_EQ(each.value, GetDlgItemInt(dialog_, 300, &translated, each.isSigned)) << each.text;
        EXPECT_EQ(each.translated, translated) << each.text;
    }
    EXPECT_EQ(0U, GetDlgItemInt(dialog_, 999, &translated, TRUE));
    EXPECT_FALSE(translated);

    SetDlgItemInt(dialog_, 300, static_cast<UINT>(-5), TRUE);
    EXPECT_EQ("-5", TextOf(GetDlgItem(dialog_, 300)));
    SetDlgItemInt(dialog_, 300, static_cast<UINT>(-5), FALSE);
    EXPECT_EQ("4294967291", TextOf(GetDlgItem(dialog_, 300)));
}

TEST_F(DialogTest, MissingItems) {
    DialogBuilder builder;
    builder.Title("");
    ASSERT_NE(nullptr, Make(builder));
    EXPECT_EQ(nullptr, GetDlgItem(dialog_, 5));
    char text[8] = "before";
    EXPECT_EQ(0U, GetDlgItemTextA(dialog_, 5, text, sizeof text));
    EXPECT_FALSE(SetDlgItemTextA(dialog_, 5, "x"));
}

TEST_F(DialogTest, NothingIsLeftBehind) {
    DialogBuilder builder(WS_POPUP | WS_CAPTION | WS_VISIBLE | DS_SETFONT);
    builder.Title("counted", "MS Sans Serif")
        .Item("button", "&Yes", 1, WS_TABSTOP, 5, 5, 50, 14)
        .Item("button", "Check", 2, BS_AUTOCHECKBOX, 5, 25, 50, 14)
        .Item("static", "Text", 3, 0, 5, 45, 50, 14);
    const auto once = [&] {
        Make(builder);
        tests::PumpMessages();
        DestroyWindow(dialog_);
    };
    once();  // caches fill
    const DWORD gdi = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
    const DWORD user = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS);
    once();
    EXPECT_EQ(gdi, GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS));
    EXPECT_EQ(user, GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS));
}

TEST_F(DialogTest, BordersOfControlsAreSunken) {
    DialogBuilder builder(WS_POPUP);
    builder.Title("")
        .Item("listbox", "", 1, WS_BORDER, 4, 4, 60, 40)
        .Item("edit", "text", 2, WS_BORDER, 5, 5, 60, 12)
        .Item("static", "text", 3, WS_BORDER, 5, 25, 60, 12)
        .Item("combobox", "", 4, WS_BORDER, 4, 50, 60, 40);
    ASSERT_NE(nullptr, Make(builder));
    for (const int id : {1, 2, 3}) {
        EXPECT_FALSE(GetWindowLongA(GetDlgItem(dialog_, id), GWL_STYLE) & WS_BORDER) << id;
        EXPECT_TRUE(GetWindowLongA(GetDlgItem(dialog_, id), GWL_EXSTYLE) & WS_EX_CLIENTEDGE) << id;
    }
    EXPECT_FALSE(GetWindowLongA(GetDlgItem(dialog_, 4), GWL_EXSTYLE) & WS_EX_CLIENTEDGE);
}

}  // namespace
