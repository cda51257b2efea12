#include <gtest/gtest.h>
#include <windows.h>

#include <cstring>
#include <string>
#include <utility>
#include <vector>

namespace {

std::string Format(const char* format, ...) {
    char buffer[1025];
    va_list arguments;
    va_start(arguments, format);
    const int length = wvsprintfA(buffer, format, arguments);
    va_end(arguments);
    EXPECT_EQ(static_cast<std::size_t>(length), std::strlen(buffer));
    return buffer;
}

TEST(Format, EveryConversion) {
    EXPECT_EQ(Format("%d %i %u", -5, 7, 0xFFFFFFFFu), "-5 7 4294967295");
    EXPECT_EQ(Format("%ld %lu %hd", -1L, 3UL, 7), "-1 3 7");
    EXPECT_EQ(Format("%x %X %#x %#X", 0xab, 0xab, 0xab, 0xab), "ab AB 0xab 0XAB");
    EXPECT_EQ(Format("%c%c %s %S", 'a', 'b', "text", u"wide"), "ab text wide");
    EXPECT_EQ(Format("%02d/%02d/%02d", 5, 12, 95), "05/12/95");
    EXPECT_EQ(Format("[%5d] [%-5d] [%05d] [%.3d]", 42, 42, -42, 7), "[   42] [42   ] [-0042] [007]");
    EXPECT_EQ(Format("[%5s] [%-5s] [%.2s]", "ab", "ab", "abc"), "[   ab] [ab   ] [ab]");
    EXPECT_EQ(Format("100%%"), "100%");
    EXPECT_EQ(Format("%q"), "q") << "a conversion that does not exist prints its character";
}

TEST(Format, NeverPasses1024Bytes) {
    const std::string text(3000, 'x');
    char buffer[1100];
    std::memset(buffer, '#', sizeof buffer);
    const int length = wsprintfA(buffer, "%s", text.c_str());
    EXPECT_LE(length, 1024);
    EXPECT_EQ(buffer[1024], '#');
    EXPECT_EQ(length < 1024 ? buffer[length] : '\0', '\0');
}

TEST(Strings, NullAndLimits) {
    char buffer[8] = "old";
    EXPECT_EQ(lstrlenA(nullptr), 0);
    EXPECT_EQ(lstrcpynA(buffer, "abcdef", 4), buffer);
    EXPECT_STREQ(buffer, "abc");
    EXPECT_STREQ(lstrcatA(buffer, "de"), "abcde");
    EXPECT_EQ(MulDiv(10, 3, 4), 8);
    EXPECT_EQ(MulDiv(-10, 3, 4), -8);
    EXPECT_EQ(MulDiv(1, 1, 0), -1);
    EXPECT_EQ(MulDiv(0x7FFFFFFF, 2, 1), -1);
}

TEST(Characters, StepAndChangeCase) {
    const char text[] = "a\xE9z";
    EXPECT_EQ(CharNextA(text), text + 1);
    EXPECT_EQ(CharNextA(text + 1), text + 2);
    EXPECT_EQ(CharNextA(text + 3), text + 3) << "stays at the end";
    EXPECT_EQ(CharPrevA(text, text + 2), text + 1);
    EXPECT_EQ(CharPrevA(text, text), text);
    char word[] =
        "stra\xDF"
        "e \xE9\xFF";
    CharUpperBuffA(word, static_cast<DWORD>(std::strlen(word)));
    EXPECT_STREQ(word,
                 "STRA\xDF"
                 "E \xC9\x9F");
    EXPECT_EQ(CharLowerA(reinterpret_cast<LPSTR>(ULONG_PTR{'Q'})), reinterpret_cast<LPSTR>(ULONG_PTR{'q'}));
    EXPECT_TRUE(IsCharAlphaA('\xE9'));
    EXPECT_FALSE(IsCharAlphaA('1'));
    EXPECT_TRUE(IsCharAlphaNumericA('1'));
}

TEST(WordOrder, LettersThenAccentsThenCaseThenHyphens) {
    struct {
        const char* first;
        const char* second;
        int order;        // of lstrcmpA
        int orderNoCase;  // of lstrcmpiA
    } const pairs[] = {
        {"", "", 0, 0},
        {"a", "A", -1, 0},
        {"B", "a", 1, 1},
        {"9", "10", 1, 1},
        {"can't", "canu", -1, -1},
        {"\xE9z", "f", -1, -1},
        {"\xE9", "\xC9", -1, 0},
        {"Ab", "aC", -1, -1},
        {"aB", "Ab", -1, 0},
        {"resum\xE9", "resume", 1, 1},
    };
    const auto sign = [](int value) { return (value > 0) - (value < 0); };
    for (const auto& pair : pairs) {
        EXPECT_EQ(sign(lstrcmpA(pair.first, pair.second)), pair.order) << pair.first << " " << pair.second;
        EXPECT_EQ(sign(lstrcmpA(pair.second, pair.first)), -pair.order) << pair.second << " " << pair.first;
        EXPECT_EQ(sign(lstrcmpiA(pair.first, pair.second)), pair.orderNoCase) << pair.first << " " << pair.second;
    }
}

// Each text comes before all that follow it: symbols, digits, letters; of equal letters those without accents, then small
// ones, and at last those without hyphens and apostrophes.
TEST(WordOrder, ListsOfTextsInOrder) {
    const std::vector<std::vector<const char*>> lists = {
        {"",  "'",    "-",    "\x96", " ", "\t",   "!",    "_", "~",    "\xBF", "\x93", "\xA3", "\x80", "+",
         "=", "\xD7", "\xA7", "\xB0", "0", "\xBD", "\xBE", "1", "\xB2", "9",    "a",    "z",    "\x9E"},
        {"a", "A", "\xAA", "\xE1", "\xC1", "\xE0", "\xE2", "\xE4", "\xE3", "\xE5", "ae", "b"},
        {"cote", "Cote", "cot\xE9", "c\xF4te", "C\xF4te", "c\xF4t\xE9", "coted"},
        {"coop", "co'op", "co-op", "co\x96op", "Coop", "Co-op", "coops", "co-ops", "corp"},
        {"strase", "strasse",
         "Stra\xDF"
         "e",
         "stra\xDF"
         "en"},
        {"a b2", "a.b", "a_b", "a1", "ab", "a-b", "aB",
         "\xE1"
         "b",
         "abc"},
        {"d", "D", "\xF0", "\xD0", "e"},
        {"o", "\xBA", "\xF3", "\xF2", "\xF4", "\xF6", "\xF5", "\xF8", "oe", "\x8C", "p"},
        {"it", "its", "it's", "itself"},
    };
    for (const auto& list : lists) {
        for (std::size_t i = 0; i < list.size(); ++i) {
            for (std::size_t j = 0; j < list.size(); ++j) {
                const int expected = i < j ? CSTR_LESS_THAN : i > j ? CSTR_GREATER_THAN : CSTR_EQUAL;
                EXPECT_EQ(CompareStringA(LOCALE_SYSTEM_DEFAULT, 0, list[i], -1, list[j], -1), expected)
                    << list[i] << " " << list[j];
            }
        }
    }
    for (const auto& pair : {std::pair("ae", "\xE6"), {"ss", "\xDF"}, {"OE", "\x8C"}, {"th", "\xFE"}}) {
        EXPECT_EQ(lstrcmpA(pair.first, pair.second), 0) << pair.first << ": a letter that counts as two";
    }
}

TEST(CompareString, FlagsLengthsAndErrors) {
    const LCID locale = LOCALE_SYSTEM_DEFAULT;
    EXPECT_EQ(CompareStringA(locale, 0, "abcX", 3, "abcY", 3), CSTR_EQUAL);
    EXPECT_EQ(CompareStringA(locale, NORM_IGNORECASE, "ABC", -1, "abc", -1), CSTR_EQUAL);
    EXPECT_EQ(CompareStringA(locale, 0, "abc", 3, "abcd", 4), CSTR_LESS_THAN);
    SetLastError(0);
    EXPECT_EQ(CompareStringA(locale, 0x80, "a", 1, "b", 1), 0);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INVALID_FLAGS));
    EXPECT_EQ(CompareStringA(locale, 0, nullptr, 1, "b", 1), 0);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INVALID_PARAMETER));
    EXPECT_EQ(CompareStringA(locale, 0, "a", -5, "a", -1), CSTR_EQUAL) << "any negative size";
    EXPECT_EQ(CompareStringA(locale, 0, "a", 0, "b", 1), CSTR_LESS_THAN);
    EXPECT_EQ(lstrcmpA(nullptr, nullptr), 0);
    EXPECT_LT(lstrcmpA(nullptr, ""), 0);
    EXPECT_GT(lstrcmpiA("", nullptr), 0);
}

TEST(CodePages, SizesAndArguments) {
    WCHAR wide[4] = {};
    char narrow[4] = {};
    EXPECT_EQ(MultiByteToWideChar(1252, 0, "abc", -1, nullptr, 0), 4) << "with the NUL";
    EXPECT_EQ(MultiByteToWideChar(1252, 0, "abc", -2, wide, 4), 4);
    EXPECT_EQ(MultiByteToWideChar(1252, 0, "abc", 3, wide, 3), 3) << "without";
    EXPECT_EQ(WideCharToMultiByte(1252, 0, wide, 3, nullptr, 0, nullptr, nullptr), 3);
    EXPECT_EQ(WideCharToMultiByte(1252, 0, wide, -1, narrow, 4, nullptr, nullptr), 4);
    EXPECT_STREQ(narrow, "abc");
    const auto fails = [](int result, DWORD error) {
        const DWORD last = GetLastError();
        EXPECT_EQ(result, 0);
        EXPECT_EQ(last, error);
    };
    fails(MultiByteToWideChar(1252, 0, "abc", 0, wide, 4), ERROR_INVALID_PARAMETER);
    fails(MultiByteToWideChar(1252, 0, "abc", 3, wide, -1), ERROR_INVALID_PARAMETER);
    fails(MultiByteToWideChar(1252, 0, "abc", 3, nullptr, 3), ERROR_INVALID_PARAMETER);
    fails(MultiByteToWideChar(1252, 0x100, "abc", 3, wide, 3), ERROR_INVALID_FLAGS);
    fails(MultiByteToWideChar(1252, 0, "abc", 3, wide, 2), ERROR_INSUFFICIENT_BUFFER);
    fails(MultiByteToWideChar(12345, 0, "a", 1, wide, 2), ERROR_INVALID_PARAMETER);
    fails(MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, "a\xC0\x80", 3, wide, 4), ERROR_NO_UNICODE_TRANSLATION);
    fails(WideCharToMultiByte(1252, 0, wide, 0, narrow, 4, nullptr, nullptr), ERROR_INVALID_PARAMETER);
    fails(WideCharToMultiByte(1252, 0, wide, 3, narrow, 2, nullptr, nullptr), ERROR_INSUFFICIENT_BUFFER);
    const WCHAR kana = 0x3042;
    fails(WideCharToMultiByte(932, 0, &kana, 1, narrow, 1, nullptr, nullptr), ERROR_INSUFFICIENT_BUFFER);
    const WCHAR others[] = {0x0100, 0xFF21, 0x2260};
    EXPECT_EQ(WideCharToMultiByte(1252, 0, others, 3, narrow, 4, nullptr, nullptr), 3);
    EXPECT_EQ(std::string(narrow, 3), "AA?") << "a letter without its accent, but not a symbol without its stroke";
}

TEST(CodePages, WesternAndDoubleByte) {
    WCHAR wide[8] = {};
    EXPECT_EQ(MultiByteToWideChar(1252, 0, "\x80\xE9", 2, wide, 8), 2);
    EXPECT_EQ(wide[0], 0x20AC);
    EXPECT_EQ(wide[1], 0xE9);
    char narrow[8] = {};
    EXPECT_EQ(WideCharToMultiByte(1252, 0, wide, 2, narrow, 8, nullptr, nullptr), 2);
    EXPECT_STREQ(narrow, "\x80\xE9");
    EXPECT_EQ(MultiByteToWideChar(932, 0, "\x82\xA0z", 3, wide, 8), 2);
    EXPECT_EQ(wide[0], 0x3042);
    EXPECT_EQ(MultiByteToWideChar(CP_UTF8, 0, "\xE2\x82\xAC", 3, wide, 8), 1);
    EXPECT_EQ(wide[0], 0x20AC);
}

}  // namespace
