#include <cvutil32/cstring.h>

#include "tests/classes/strings.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <utility>

namespace {

template <class Edit>
std::string Edited(const char* text, Edit edit) {
    CSTRING string(text);
    edit(string);
    return Text(string);
}

TEST(StringEdit, DeletesInsideAtTheEndAndNothingBeyond) {
    const auto deleted = [](unsigned int pos, unsigned int count) {
        return Edited("abcdef", [=](CSTRING& s) { s.Delete(pos, count); });
    };
    EXPECT_EQ(deleted(kAll, 3), "abc");
    EXPECT_EQ(deleted(kAll, 9), "");
    EXPECT_EQ(deleted(2, 100), "ab");
    EXPECT_EQ(deleted(6, 1), "abcdef");
    EXPECT_EQ(deleted(0, kAll), "");
    EXPECT_EQ(deleted(1, 2), "adef");
    EXPECT_EQ(deleted(3, 0), "abcdef");
}

TEST(StringEdit, WhatDeleteLeavesBehindComesBack) {
    CSTRING string("abcdef");
    string.Delete(1, 2);
    string.Append('x');
    EXPECT_EQ(Text(string), "adefxf");
    EXPECT_EQ(string.GetStrLen(), 6u);
    EXPECT_EQ(string.GetByteCount(), 5u);
}

TEST(StringEdit, InsertsWhatTheWalkSpans) {
    const auto inserted = [](const char* what, unsigned int pos, unsigned int count) {
        return Edited("ab", [=](CSTRING& s) { s.Insert(what, pos, count); });
    };
    EXPECT_EQ(inserted("xy", 0, kAll), "xyab");
    EXPECT_EQ(inserted("xy", 2, kAll), "abxy");
    EXPECT_EQ(inserted("xy", 3, kAll), "ab");
    EXPECT_EQ(inserted("xyz", 1, 2), "axyb");
    EXPECT_EQ(inserted(nullptr, 0, kAll), "ab");
    EXPECT_EQ(inserted("\xE9", 1, kAll), "ab") << "a byte of 0x80 or above ends the walk";
    EXPECT_EQ(Edited("ab", [](CSTRING& s) { s.Insert('x', 1).IsValid(); }), "axb");
    EXPECT_EQ(Edited("ab", [](CSTRING& s) { s.Insert('\0', 1); }), "ab");
    EXPECT_EQ(Edited("abc", [](CSTRING& s) { s.Insert(static_cast<const char*>(std::as_const(s)) + 1, 0, kAll); }),
              "bcabc");
    const std::string longText(5000, 'q');
    EXPECT_EQ(inserted(longText.c_str(), 1, kAll), "a" + longText + "b");
}

TEST(StringEdit, ExtractsAndEveryResultOwnsABlock) {
    const CSTRING string("abcdef");
    EXPECT_EQ(Text(string.Left(2)), "ab");
    EXPECT_EQ(Text(string.Left(kAll)), "abcdef");
    EXPECT_EQ(Text(string.Mid(2, 3)), "cde");
    EXPECT_EQ(Text(string.Mid(4, kAll)), "ef");
    EXPECT_EQ(Text(string.Mid(6, 1)), "");
    EXPECT_EQ(Text(string.Right(2)), "ef");
    EXPECT_EQ(Text(string.Right(99)), "abcdef");
    EXPECT_EQ(string.Left(0).GetBufLen(0), 16u);
    EXPECT_EQ(string.Right(0).GetBufLen(0), 16u);
}

TEST(StringEdit, ReplacesBytesAndKeepsTheLength) {
    const auto replaced = [](int all) { return Edited("a.b.c", [=](CSTRING& s) { s.Replace('.', '\\', all); }); };
    EXPECT_EQ(replaced(0), "a\\b.c");
    EXPECT_EQ(replaced(1), "a\\b\\c");
    CSTRING list("one|two|");
    list.Replace('|', '\0', 1);
    EXPECT_EQ(list.GetStrLen(), 8u) << "the length covers the whole list";
    EXPECT_EQ(std::memcmp(static_cast<const char*>(std::as_const(list)), "one\0two\0\0", 9), 0);
    list.Replace('\0', '+', 1);
    EXPECT_EQ(Text(list), "one+two");
    EXPECT_EQ(list.GetStrLen(), 7u);
}

TEST(StringEdit, AListThatCannotBeSteppedThroughEnds) {
    CSTRING list;
    std::memcpy(list.BufferLock(16), "a\0\xE9\xE9\0\0", 6);
    list.BufferUnlock();
    list.Replace('\0', '+', 1);
    EXPECT_TRUE(list.IsValid());
    CSTRING empty;
    empty.Replace('\0', '+', 1);
    EXPECT_EQ(Text(empty), "");
}

TEST(StringEdit, OverwritesAndCutsATail) {
    EXPECT_EQ(Edited("abcd", [](CSTRING& s) { s.Replace("xy", 1, 5); }), "axyd");
    EXPECT_EQ(Edited("abcd", [](CSTRING& s) { s.Replace("xyz", 2, 3); }), "abxy");
    EXPECT_EQ(Edited("abcd", [](CSTRING& s) { s.Replace("xy", kAll, 2); }), "ab");
    EXPECT_EQ(Edited("abcd", [](CSTRING& s) { s.Replace("xy", 4, 2); }), "abcd");
    EXPECT_EQ(Edited("abcd", [](CSTRING& s) { s.Replace(nullptr, 1, 2); }), "abcd");
}

TEST(StringEdit, ReplacesTextsWithoutLooping) {
    const auto replaced = [](const char* find, const char* with, int all) {
        return Edited("banana", [=](CSTRING& s) { s.Replace(find, with, all); });
    };
    EXPECT_EQ(replaced("an", "AN", 1), "bANANa");
    EXPECT_EQ(replaced("an", "AN", 0), "bANana");
    EXPECT_EQ(replaced("a", "aa", 1), "baanaanaa");
    EXPECT_EQ(replaced("an", "", 1), "ba");
    EXPECT_EQ(replaced("", "x", 1), "banana");
    EXPECT_EQ(replaced(nullptr, "x", 1), "banana");
    CSTRING string;
    std::memcpy(string.BufferLock(16), "ab\xE9", 4);
    string.BufferUnlock();
    string.Replace("\xE9", "x", 1);
    EXPECT_EQ(Text(string), "abx\xE9") << "behind the walk's end nothing is taken out, and it goes on once";
    std::memcpy(string.BufferLock(16),
                "ab\xE9"
                "cd",
                6);
    string.BufferUnlock();
    string.Replace("cd", "x", 1);
    EXPECT_EQ(Text(string),
              "abx\xE9"
              "d");
    EXPECT_EQ(string.GetByteCount(), 3u);
}

TEST(StringEdit, TheBlockEndsWithANulAlsoBehindAByteThatTheWalkStopsAt) {
    CSTRING string(16u);
    EXPECT_EQ(string.GetBufLen(0), 32u);
    char* const text = &string.GetRef(0);
    std::memset(text, 'a', 30);
    text[30] = '\xE9';
    string.Insert('b', 0);
    EXPECT_EQ(Text(string), "b" + std::string(30, 'a') + "\xE9");
    EXPECT_EQ(string.GetBufLen(0), 48u);
}

TEST(StringSearch, OneMemberServesBothDirections) {
    CSTRING string("banana");
    EXPECT_EQ(string.Find('a', kAll), 5u);
    EXPECT_EQ(string.Find('a', 0), 1u);
    EXPECT_EQ(string.Find('a', 2), 3u);
    EXPECT_EQ(string.Find('a', 6), kAll);
    EXPECT_EQ(string.Find("", 0), kAll);
    EXPECT_EQ(string.Find(static_cast<const char*>(nullptr), 0), kAll);
    EXPECT_EQ(string.Find("ana", kAll), 3u);
    EXPECT_EQ(string.Find("NA", 0), kAll);
    EXPECT_EQ(string.FindNoCase("NA", 0), 2u);
    EXPECT_EQ(string.FindNoCase('N', kAll), 4u);
    EXPECT_EQ(string.Find("bananas", 0), kAll);
}

TEST(StringSearch, ComparesAsTheLocaleDoes) {
    CSTRING string("Co-op");
    EXPECT_EQ(string.Compare("Co-op"), 0);
    EXPECT_NE(string.Compare("co-op"), 0);
    EXPECT_EQ(string.CompareNoCase("CO-OP"), 0);
    EXPECT_LT(CSTRING("a").CompareNoCase("B"), 0);
    EXPECT_LT(CSTRING("a").Compare("A"), 0) << "small letters come first";
    EXPECT_EQ(Edited("MiXed 1", [](CSTRING& s) { s.MakeUpper(); }), "MIXED 1");
    EXPECT_EQ(Edited("MiXed 1", [](CSTRING& s) { s.MakeLower(); }), "mixed 1");
}

TEST(StringEdit, InvalidObjectsDoNothing) {
    alignas(CSTRING) char raw[sizeof(CSTRING)];
    auto* string = new (raw) CSTRING("abc");
    raw[sizeof(void*)] ^= 1;
    string->Delete(0, 1);
    string->Insert("x", 0, kAll);
    string->Replace("a", "b", 1);
    string->MakeUpper();
    EXPECT_EQ(string->Find('c', 0), 0u) << "looks like a match at the start";
    EXPECT_EQ(string->FindNoCase("zzz", 0), 0u);
    EXPECT_EQ(string->Compare("other"), 0);
    EXPECT_EQ(Text(string->Left(2)), "");
    raw[sizeof(void*)] ^= 1;
    EXPECT_EQ(Text(*string), "abc");
    string->~CSTRING();
}

TEST(StringEdit, ALockedTextIsEditedWithinItsBlock) {
    CSTRING string("abc");
    string.BufferLock(0);
    string.Insert("xy", 1, kAll);
    EXPECT_EQ(Text(string), "axybc") << "the block is large enough";
    const std::string tooLong(2000, 'z');
    string.Insert(tooLong.c_str(), 1, kAll);
    EXPECT_EQ(Text(string), "axybc");
    string.Delete(0, 1);
    string.BufferUnlock();
    EXPECT_EQ(Text(string), "xybc");
}

}  // namespace
