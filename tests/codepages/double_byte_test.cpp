// Texts of double-byte code pages. The second bytes are chosen to look like letters, which is where code that takes
// bytes for characters goes wrong.
#include <cvutil32/cdatastr.h>
#include <cvutil32/cstring.h>

#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace {

using std::string;

constexpr unsigned int kAll = 0xFFFFFFFF;

struct Page {
    UINT number;
    char const* capital;    ///< a character whose second byte is "A"
    char const* small;      ///< the one whose second byte is "a", in the same row
    char const* backslash;  ///< one whose second byte is a backslash, if the page has any
    char const* wideCapital;
    char const* wideSmall;  ///< the full-width letter A in both cases
    WCHAR character;        ///< what `capital` means
};

constexpr Page kPages[] = {
    {932, "\x83\x41", "\x83\x61", "\x83\x5C", "\x82\x60", "\x82\x81", 0x30A2},
    {936, "\x81\x41", "\x81\x61", "\x81\x5C", "\xA3\xC1", "\xA3\xE1", 0x4E04},
    {949, "\x81\x41", "\x81\x61", nullptr, "\xA3\xC1", "\xA3\xE1", 0xAC02},
    {950, "\xA4\x41", "\xA4\x61", "\xA5\x5C", "\xA2\xCF", "\xA2\xE9", 0x4E59},
};

class DoubleByte : public ::testing::Test {
  protected:
    void SetUp() override {
        for (Page const& page : kPages) {
            if (page.number == GetACP()) {
                page_ = &page;
            }
        }
        ASSERT_TRUE(page_) << "not a double-byte code page: " << GetACP();
        capital = page_->capital;
        small = page_->small;
    }

    Page const* page_ = nullptr;
    string capital, small;
};

// An assignment stops at the first double-byte character; what a window writes into the buffer holds them.
void Write(CSTRING& to, string const& text) {
    std::memcpy(to.BufferLock(0), text.c_str(), text.size() + 1);
    to.BufferUnlock();
}

char const* Text(CSTRING const& string) {
    return string;
}

TEST_F(DoubleByte, StepsOverWholeCharacters) {
    string const text = "x" + capital + small + "y";
    char const* const start = text.c_str();
    char const* const places[] = {start, start + 1, start + 3, start + 5, start + 6};
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(CharNextA(places[i]), places[i + 1]) << i;
        EXPECT_EQ(CharPrevA(start, places[i + 1]), places[i]) << i;
    }
    string const half = capital.substr(0, 1);
    EXPECT_EQ(CharNextA(half.c_str()), half.c_str() + 1) << "never past the end";
    EXPECT_TRUE(IsDBCSLeadByte(static_cast<BYTE>(capital[0])));
    EXPECT_FALSE(IsDBCSLeadByte('A'));
}

TEST_F(DoubleByte, CaseIsThatOfTheCharacterNotOfItsBytes) {
    CSTRING text;
    Write(text, "a" + small + "a" + page_->wideSmall);
    text.MakeUpper();
    EXPECT_EQ(Text(text), "A" + small + "A" + page_->wideCapital);
    Write(text, "A" + capital + "A" + page_->wideCapital);
    text.MakeLower();
    EXPECT_EQ(Text(text), "a" + capital + "a" + page_->wideSmall);
    string half = "a" + small.substr(0, 1);
    CharUpperBuffA(half.data(), 2);
    EXPECT_EQ(half, "A" + small.substr(0, 1)) << "half a character is left alone";
    EXPECT_FALSE(IsCharAlphaA(small[0]));
}

TEST_F(DoubleByte, ComparisonTakesCharacters) {
    CSTRING text;
    Write(text, "x" + capital);
    EXPECT_EQ(text.Compare(("x" + capital).c_str()), 0);
    EXPECT_NE(text.CompareNoCase(("x" + small).c_str()), 0) << "no letters that differ in case";
    EXPECT_EQ(text.Compare(("x" + small).c_str()), -lstrcmpA(("x" + small).c_str(), Text(text)));
    string const wide = page_->wideSmall;
    EXPECT_EQ(lstrcmpiA(wide.c_str(), page_->wideCapital), 0);
    EXPECT_EQ(CompareStringA(LOCALE_SYSTEM_DEFAULT, NORM_IGNOREWIDTH, wide.c_str(), 2, "a", 1), CSTR_EQUAL);
    EXPECT_NE(lstrcmpA(wide.c_str(), "a"), 0);
    // A size that cuts a character in two compares the half as something of its own.
    EXPECT_NE(CompareStringA(LOCALE_SYSTEM_DEFAULT, 0, capital.c_str(), 1, capital.c_str(), 2), CSTR_EQUAL);
}

TEST_F(DoubleByte, FindsWholeCharactersAndCountsThemAsOne) {
    CSTRING text;
    Write(text, "x" + capital + "A" + small + "a");
    EXPECT_EQ(text.GetStrLen(), 7u);
    EXPECT_EQ(text.Find('A', 0), 2u);
    EXPECT_EQ(text.Find('a', 0), 4u);
    EXPECT_EQ(text.FindNoCase('a', 0), 2u);
    EXPECT_EQ(text.Find(small.c_str(), 0), 3u);
    EXPECT_EQ(text.Find("Aa", 0), kAll);
    Write(text, "aA" + capital + small);
    EXPECT_EQ(text.Find('A', kAll), 1u) << "the second bytes are no letters";
    EXPECT_EQ(text.FindNoCase('A', kAll), 1u);
    EXPECT_EQ(text.Find(capital.c_str(), kAll), 2u);
    if (page_->backslash) {
        Write(text, string("C:\\") + page_->backslash + "\\x");
        EXPECT_EQ(text.Find('\\', 3), 4u);
        Write(text, string("C:\\") + page_->backslash);
        EXPECT_EQ(text.Find('\\', kAll), 2u);
    }
}

TEST_F(DoubleByte, PositionsNeverLeadIntoACharacter) {
    string const all = "ab" + capital + "c";
    for (unsigned int count : {2u, 3u, 4u, 5u, kAll}) {
        CSTRING text;
        Write(text, all);
        EXPECT_STREQ(Text(text.Left(count)), "ab") << count;
        EXPECT_EQ(text.GetChar(count), capital[0]) << count;
        text.Delete(count, 1);
        EXPECT_EQ(Text(text), all) << count;
        text.Insert(small.c_str(), 1, kAll);
        EXPECT_EQ(Text(text), all) << "whole or not at all";
    }
    CSTRING assigned(all.c_str());
    EXPECT_STREQ(Text(assigned), "ab");
    assigned += capital.c_str();
    EXPECT_STREQ(Text(assigned), "ab");
    assigned += capital[0];
    EXPECT_EQ(assigned.GetStrLen(), 3u) << "a first byte alone is one character, not one and the NUL behind it";
    EXPECT_EQ(assigned.GetByteCount(), 3u);
}

TEST_F(DoubleByte, ItemsOfAListAreNotCutInsideACharacter) {
    if (!page_->backslash) {
        return;
    }
    CDATASTR list;
    Write(list, string(page_->backslash) + "\\\\x");
    list.CleanDelimiters('\\');
    EXPECT_EQ(string(Text(list)).substr(0, 2), page_->backslash);
    list.RemoveBackslashes(';');
    EXPECT_EQ(string(Text(list)).substr(0, 2), page_->backslash);
}

TEST_F(DoubleByte, ConvertsWholeCharactersAndRefusesHalves) {
    WCHAR wide[8] = {};
    string const text = "x" + capital + "A";
    EXPECT_EQ(MultiByteToWideChar(CP_ACP, MB_ERR_INVALID_CHARS, text.c_str(), -1, wide, 8), 4);
    EXPECT_EQ(wide[1], page_->character);
    EXPECT_EQ(wide[2], L'A');
    char narrow[8] = {};
    EXPECT_EQ(WideCharToMultiByte(CP_ACP, 0, wide, -1, narrow, 8, nullptr, nullptr), 5);
    EXPECT_EQ(narrow, text);
    EXPECT_EQ(MultiByteToWideChar(CP_ACP, MB_ERR_INVALID_CHARS, text.c_str(), 2, wide, 8), 0);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_NO_UNICODE_TRANSLATION));
    CPINFO info{};
    EXPECT_TRUE(GetCPInfo(CP_ACP, &info));
    EXPECT_EQ(info.MaxCharSize, 2u);
    EXPECT_EQ(GetOEMCP(), page_->number);
}

}  // namespace
