#include <gtest/gtest.h>
#include <windows.h>

#include <cstring>
#include <string>

namespace {

constexpr LCID kAmerican = MAKELCID(MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US), SORT_DEFAULT);
constexpr LCID kGerman = MAKELCID(MAKELANGID(LANG_GERMAN, SUBLANG_DEFAULT), SORT_DEFAULT);

std::string Info(LCID locale, LCTYPE type) {
    char buffer[128] = {};
    const int size = GetLocaleInfoA(locale, type | LOCALE_NOUSEROVERRIDE, buffer, sizeof buffer);
    EXPECT_EQ(size, static_cast<int>(std::strlen(buffer)) + 1) << std::hex << type;
    return buffer;
}

TEST(LocaleInfo, AmericanAndGerman) {
    struct {
        LCTYPE type;
        const char* american;
        const char* german;
    } const cases[] = {
        {LOCALE_SDECIMAL, ".", ","},        {LOCALE_STHOUSAND, ",", "."},  {LOCALE_SDATE, "/", "."},
        {LOCALE_STIME, ":", ":"},           {LOCALE_IDATE, "0", "1"},      {LOCALE_ITIME, "0", "1"},
        {LOCALE_ITLZERO, "0", "1"},         {LOCALE_S1159, "AM", nullptr}, {LOCALE_S2359, "PM", nullptr},
        {LOCALE_ILANGUAGE, "0409", "0407"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(Info(kAmerican, c.type), c.american) << std::hex << c.type;
        if (c.german) {
            EXPECT_EQ(Info(kGerman, c.type), c.german) << std::hex << c.type;
        }
    }
}

TEST(LocaleInfo, SizesAndErrors) {
    char buffer[16] = {};
    EXPECT_EQ(GetLocaleInfoA(kAmerican, LOCALE_ILANGUAGE, nullptr, 0), 5);
    SetLastError(0);
    EXPECT_EQ(GetLocaleInfoA(kAmerican, LOCALE_ILANGUAGE, buffer, 4), 0);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INSUFFICIENT_BUFFER));
    EXPECT_EQ(GetLocaleInfoA(kAmerican, LOCALE_ILANGUAGE, buffer, 5), 5);
    EXPECT_STREQ(buffer, "0409");
    EXPECT_EQ(GetLocaleInfoA(kAmerican, 0x0000FFF0, buffer, sizeof buffer), 0);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INVALID_FLAGS));
    EXPECT_EQ(GetLocaleInfoA(kAmerican, LOCALE_ILANGUAGE, nullptr, 8), 0);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INVALID_PARAMETER));
    EXPECT_EQ(GetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_ITIME, buffer, 2), 2);
    EXPECT_TRUE(buffer[0] == '0' || buffer[0] == '1');
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
    EXPECT_TRUE(GetCPInfo(GetOEMCP(), &info));
}

TEST(CodePages, CharactersThatAPageLacks) {
    char narrow[8] = {};
    BOOL used = FALSE;
    const WCHAR full[] = {0xFF21, 0x4E00, 0};
    EXPECT_EQ(WideCharToMultiByte(1252, 0, full, -1, narrow, 8, "*", &used), 3);
    EXPECT_STREQ(narrow, "A*") << "the nearest letter, or the caller's character";
    EXPECT_TRUE(used);
    EXPECT_EQ(WideCharToMultiByte(1252, WC_NO_BEST_FIT_CHARS, full, 1, narrow, 8, nullptr, &used), 1);
    EXPECT_EQ(narrow[0], '?');
    WCHAR wide[4];
    SetLastError(0);
    EXPECT_EQ(MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, "a\xC0\x80", 3, wide, 4), 0);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_NO_UNICODE_TRANSLATION));
}

}  // namespace
