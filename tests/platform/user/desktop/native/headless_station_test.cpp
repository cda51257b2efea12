#include <gtest/gtest.h>

#include <windows.h>

// Tests run without a display: an application must be able to tell that nobody sees its windows.
TEST(HeadlessStation, IsNotVisible) {
    HWND window =
        CreateWindowExA(0, "STATIC", "", WS_POPUP | WS_VISIBLE, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
    ASSERT_NE(nullptr, window);
    USEROBJECTFLAGS flags{FALSE, FALSE, ~DWORD{0}};
    ASSERT_TRUE(GetUserObjectInformationA(GetProcessWindowStation(), UOI_FLAGS, &flags, sizeof flags, nullptr));
    EXPECT_EQ(0u, flags.dwFlags & WSF_VISIBLE);
    DestroyWindow(window);
}
