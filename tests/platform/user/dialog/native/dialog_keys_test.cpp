// The keyboard in windows that are no dialogs, as far as only this host's layer settles it: Enter, odd arguments.
#include <gtest/gtest.h>

#include "tests/platform/support/dialog_builder.h"
#include "tests/platform/support/recorder.h"

namespace {

using tests::DialogKey;
using tests::Recorder;

class PlainWindowRules : public tests::RecordedTest {
  protected:
    static constexpr int kField = 11;

    void SetUp() override {
        MakeWindow(WS_POPUP | WS_VISIBLE, 50, 50, 300, 200);
        SetFocus(Child("edit", kField));
        Recorder::Get().Clear();
    }
    HWND Child(const char* className, int id) {
        return CreateWindowExA(0, className, "", WS_CHILD | WS_VISIBLE | WS_TABSTOP, 0, 0, 20, 20, window,
                               reinterpret_cast<HMENU>(static_cast<LONG_PTR>(id)), nullptr, nullptr);
    }
};

TEST_F(PlainWindowRules, EnterAndEscapeAreCommands) {
    for (const auto& [key, command] : {std::pair{VK_RETURN, IDOK}, std::pair{VK_ESCAPE, IDCANCEL}}) {
        Recorder::Get().Clear();
        EXPECT_TRUE(DialogKey(window, GetFocus(), static_cast<WPARAM>(key)));
        const tests::Heard* heard = Recorder::Get().Find(WM_COMMAND);
        ASSERT_NE(nullptr, heard);
        EXPECT_EQ(MAKEWPARAM(command, BN_CLICKED), heard->wParam);
    }
}

TEST_F(PlainWindowRules, OddArguments) {
    MSG message{};
    EXPECT_FALSE(IsDialogMessageA(window, nullptr));
    EXPECT_FALSE(IsDialogMessageA(nullptr, &message));
    EXPECT_FALSE(IsDialogMessageA(window, &message));
    const HWND all = reinterpret_cast<HWND>(static_cast<INT_PTR>(-1));
    const HWND stale = Child("static", 0);
    DestroyWindow(stale);
    for (const HWND bad : {HWND{}, all, stale}) {
        EXPECT_EQ(nullptr, GetNextDlgGroupItem(bad, nullptr, FALSE));
        EXPECT_EQ(nullptr, GetNextDlgTabItem(bad, nullptr, TRUE));
        EXPECT_FALSE(EndDialog(bad, -1));
        if (bad) {
            EXPECT_EQ(nullptr, GetNextDlgGroupItem(window, bad, FALSE));
        }
    }
    EXPECT_EQ(GetDlgItem(window, kField), GetNextDlgGroupItem(window, window, FALSE));
    const HWND empty = CreateWindowExA(0, "static", "", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
    EXPECT_EQ(nullptr, GetNextDlgGroupItem(empty, nullptr, FALSE));
    EXPECT_EQ(nullptr, GetNextDlgTabItem(empty, nullptr, FALSE));
    for (const WPARAM key : {VK_TAB, VK_RETURN, VK_ESCAPE, VK_DOWN, VK_LEFT})
        EXPECT_TRUE(DialogKey(empty, empty, key));
    EXPECT_TRUE(DialogKey(empty, empty, 'x', WM_SYSCHAR));
    DestroyWindow(empty);
}

}  // namespace
