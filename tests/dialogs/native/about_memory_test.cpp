// The About box when memory runs out.
#include <cvutil32/about.h>

#include "tests/dialogs/registration.h"
#include "tests/support/modal.h"
#include "tests/support/native/failing_memory.h"

#include <cvplatform.h>
#include <windows.h>

#include <gtest/gtest.h>

namespace {

// Neither asks for memory: the box is ended as soon as it stands.
void CALLBACK EndBox(HWND, UINT, UINT_PTR, DWORD) {
    HWND const dialog = GetActiveWindow();
    if (dialog && GetDlgItem(dialog, IDOK)) {
        PostMessageA(dialog, WM_COMMAND, IDOK, 0);
    }
}

TEST(AboutMemory, LeavesNothingOpenWhateverFails) {
    testing_support::OpenFirstDialog();
    // A registered user, as the box reads the values one after the other.
    Registration const user("RegisteredOwner", "Ellinor Fairweather");
    Registration const organization("RegisteredOrganization", "Calverin");
    unsigned shown = 0;
    unsigned refused = 0;
    for (bool failed = true; failed;) {
        testing_support::FailingAllocation failing(testing_support::Memory::Any, shown + refused + 1);
        auto const handles = CvPlatformCount(CV_PLATFORM_OTHER_HANDLES);
        UINT_PTR const timer = SetTimer(nullptr, 0, 1, EndBox);
        failing.On();
        int const result = ABOUT_DisplayAboutBox(nullptr, nullptr, "About", "Product", "1.0", "Notice", nullptr);
        failing.Off();
        KillTimer(nullptr, timer);
        ++(result == 0 ? shown : refused);
        ASSERT_EQ(handles, CvPlatformCount(CV_PLATFORM_OTHER_HANDLES))
            << "a key is left open at allocation " << shown + refused;
        failed = failing.failed();
    }
    EXPECT_GT(shown, 2u);
    EXPECT_GT(refused, 2u);
}

}  // namespace
