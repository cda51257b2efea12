#include <gtest/gtest.h>
#include <windows.h>

#include <cstring>

namespace {

TEST(LocaleInfo, SizesAndErrors) {
    char buffer[16] = {};
    EXPECT_EQ(GetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_ITIME, nullptr, 0), 2);
    SetLastError(0);
    EXPECT_EQ(GetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_ITIME, buffer, 1), 0);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INSUFFICIENT_BUFFER));
    EXPECT_EQ(GetLocaleInfoA(LOCALE_USER_DEFAULT, 0x0000FFF0, buffer, sizeof buffer), 0);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INVALID_FLAGS));
    EXPECT_EQ(GetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_ITIME, nullptr, 8), 0);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INVALID_PARAMETER));
    EXPECT_EQ(GetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_ITIME, buffer, 2), 2);
    EXPECT_TRUE(buffer[0] == '0' || buffer[0] == '1');
    EXPECT_FALSE(SetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_STIME, nullptr));
}

TEST(CodePageInfo, SizesAndLeadBytes) {
    CPINFO info{};
    ASSERT_TRUE(GetCPInfo(1252, &info));
    EXPECT_EQ(info.MaxCharSize, 1u);
    ASSERT_TRUE(GetCPInfo(932, &info));
    EXPECT_EQ(info.MaxCharSize, 2u);
    EXPECT_EQ(std::memcmp(info.LeadByte, "\x81\x9F\xE0\xFC\0", 5), 0);
    EXPECT_FALSE(GetCPInfo(4711, &info));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INVALID_PARAMETER));
    EXPECT_TRUE(GetCPInfo(GetACP(), &info));
}

}  // namespace
