#include <cvutil32/cstring.h>

#include "tests/classes/strings.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace {

// --- construction

TEST(CString, BlocksComeInTwoKindsOfGranules) {
    CSTRING empty;
    EXPECT_EQ(0u, empty.GetBufLen(0));
    EXPECT_STREQ("", Characters(empty));

    CSTRING sized(16);
    EXPECT_EQ(32u, sized.GetBufLen(0));
    EXPECT_EQ(16u, empty.GetBufLen(16));
    EXPECT_EQ(32u, empty.GetBufLen(17));

    EXPECT_EQ(0u, CSTRING(0u).GetBufLen(0));
    EXPECT_EQ(16u, CSTRING(1).GetBufLen(0));
    EXPECT_EQ(16u, CSTRING(15).GetBufLen(0));
    EXPECT_EQ(32u, CSTRING(17).GetBufLen(0));
    EXPECT_EQ(32u, CSTRING("123456789012345").GetBufLen(0)) << "15 characters and the NUL ask for 16";
    EXPECT_EQ(16u, CSTRING("12345678901234").GetBufLen(0));
}

TEST(CString, NullTextGivesAnEmptyObject) {
    CSTRING text(static_cast<char const*>(nullptr));
    EXPECT_EQ(1, text.IsValid());
    EXPECT_EQ(0u, text.GetBufLen(0));
    text = "kept";
    text = static_cast<char const*>(nullptr);
    EXPECT_STREQ("kept", Characters(text));
    text += static_cast<char const*>(nullptr);
    EXPECT_STREQ("kept", Characters(text));
}

TEST(CString, SizesBeyondMemoryLeaveTheTextAlone) {
    CSTRING huge(kAll);
    EXPECT_EQ(0u, huge.GetBufLen(0));
    CSTRING text("kept");
    EXPECT_EQ(16u, text.GetBufLen(0xFFFFFFF8));
    EXPECT_EQ(nullptr, text.BufferLock(kAll));
    EXPECT_STREQ("kept", Characters(text));
}

TEST(CString, CopyConstructorTakesTheCachedBytes) {
    CSTRING source("hello");
    char* const raw = source;
    std::strcpy(raw, "replaced");
    CSTRING const copy(source);
    EXPECT_STREQ("repla", Characters(copy));

    CSTRING assigned;
    std::strcpy(static_cast<char*>(source), "replaced");
    assigned = source;
    EXPECT_STREQ("replaced", Characters(assigned));
}

// --- validity

struct Storage {
    Storage() {
        std::memset(bytes, 0, sizeof bytes);
    }
    CSTRING& Object() {
        return *reinterpret_cast<CSTRING*>(bytes);
    }
    alignas(CSTRING) unsigned char bytes[sizeof(CSTRING)];
};

TEST(CString, InvalidObjectsDoNothing) {
    Storage storage;
    CSTRING& broken = storage.Object();
    EXPECT_EQ(0, broken.IsValid());
    EXPECT_EQ(0u, broken.GetStrLen());
    EXPECT_EQ(0u, broken.GetByteCount());
    EXPECT_EQ(nullptr, broken.BufferLock(10));
    EXPECT_EQ(0u, broken.BufferUnlock());
    EXPECT_EQ(nullptr, static_cast<char*>(broken));
    EXPECT_EQ(nullptr, Characters(broken));
    EXPECT_EQ('\0', broken.GetChar(0));
    EXPECT_EQ('\0', broken.GetRef(3));
    EXPECT_EQ(&broken, &(broken = "text"));
    EXPECT_EQ(&broken, &broken.Append('x'));
    EXPECT_EQ(&broken, &broken.SetChar(0, 'x'));
    EXPECT_EQ(1, broken == "anything") << "an invalid object equals every text";
    EXPECT_EQ(0, broken != "anything");
    EXPECT_EQ(1, broken == 0);
    for (unsigned char byte : storage.bytes) {
        EXPECT_EQ(0, byte);
    }

    CSTRING text("kept");
    text = broken;
    EXPECT_STREQ("kept", Characters(text));
    text += broken;
    EXPECT_STREQ("kept", Characters(text));
    EXPECT_STREQ("", Characters(text + broken));
    EXPECT_STREQ("", Characters(broken + "text"));
    EXPECT_STREQ("", Characters(broken + 'c'));
}

TEST(CString, StrayPointersDoNothing) {
    for (INT_PTR address : {INT_PTR{0}, INT_PTR{16}}) {
        auto* const stray = reinterpret_cast<CSTRING*>(address);
        EXPECT_EQ(0, stray->IsValid());
        EXPECT_EQ(0u, stray->GetStrLen());
        EXPECT_EQ(stray, &stray->Append("x"));
    }
}

// --- the character walk

TEST(CString, TextsEndAtTheFirstByteAbove7F) {
    CSTRING text(
        "ab\xE9"
        "cd");
    EXPECT_STREQ("ab", Characters(text));
    EXPECT_EQ(2u, text.GetByteCount());

    for (unsigned int at = 0; at < 40; ++at) {
        std::string long_(40, 'x');
        long_[at] = '\x80';
        CSTRING cut(long_.c_str());
        EXPECT_EQ(at, cut.GetByteCount());
        EXPECT_EQ(at, cut.GetStrLen());
    }
}

TEST(CString, AppendWritesOverBytesBehindTheWalk) {
    CSTRING text;
    std::strcpy(text.BufferLock(0),
                "ab\xE9"
                "cd");
    EXPECT_EQ(5u, text.GetStrLen());
    EXPECT_EQ(2u, text.GetByteCount());
    EXPECT_EQ(0u, text.BufferUnlock());
    text += 'x';
    EXPECT_STREQ("abxcd", Characters(text));
    EXPECT_EQ(5u, text.GetStrLen());
    EXPECT_EQ(3u, text.GetByteCount());
    // Positions stop there as well; a reference does not reach what lies behind.
    text[2] = '\xE9';
    EXPECT_EQ('\xE9', text.GetChar(4));
}

TEST(CString, GrowthLosesWhatLiesBehindTheWalk) {
    CSTRING text;
    std::strcpy(text.BufferLock(0),
                "ab\xE9"
                "cd");
    text.BufferUnlock();
    EXPECT_EQ(1040u, text.GetBufLen(1025));
    EXPECT_STREQ("ab\xE9", Characters(text));
}

TEST(CString, SingleCharactersOfAnyValueAreOneByte) {
    CSTRING text;
    text = '\xE9';
    EXPECT_STREQ("\xE9", Characters(text));
    EXPECT_EQ(1u, text.GetByteCount());
    text = '\0';
    EXPECT_STREQ("", Characters(text));
    EXPECT_EQ(1u, text.GetByteCount());
    EXPECT_EQ(0u, text.GetStrLen());

    CSTRING sum = CSTRING("ab") + '\0';
    EXPECT_EQ(2u, sum.GetStrLen());
    EXPECT_EQ(3u, sum.GetByteCount());
}

// --- assignment and concatenation

TEST(CString, AssigningTheOwnTailLeavesOneStaleCharacter) {
    CSTRING text("hello");
    text = Characters(text) + 2;
    EXPECT_STREQ("llol", Characters(text));
    EXPECT_EQ(4u, text.GetStrLen());
    EXPECT_EQ(3u, text.GetByteCount());

    CSTRING same("unchanged");
    CSTRING const& alias = same;
    same = alias;
    EXPECT_STREQ("unchanged", Characters(same));
}

TEST(CString, SelfAssignmentAfterAHiddenCutStaysInsideTheBlock) {
    CSTRING text("0123456789012345678901234567890123456789");
    text[3] = '\0';
    CSTRING const& alias = text;
    text = alias;
    EXPECT_STREQ("012", Characters(text));
}

TEST(CString, AppendsGrowAndKeepTheText) {
    CSTRING text;
    std::string expected;
    for (int i = 0; i < 300; ++i) {
        text += "abc";
        text += 'd';
        expected += "abcd";
        ASSERT_EQ(expected.size(), text.GetStrLen());
    }
    EXPECT_EQ(expected, Characters(text));
    text.Append(CSTRING("!"));
    EXPECT_EQ(expected + "!", Characters(text));
    text += text;
    EXPECT_EQ(expected + "!" + expected + "!", Characters(text));
}

TEST(CString, SumsAreNewObjects) {
    CSTRING a("left");
    CSTRING b("right");
    EXPECT_STREQ("leftright", Characters(a + b));
    EXPECT_STREQ("left...", Characters(a + "..."));
    EXPECT_STREQ("left", Characters(a + static_cast<char const*>(nullptr)));
    EXPECT_STREQ("left!", Characters(a + '!'));
    EXPECT_STREQ("left", Characters(a));
    EXPECT_EQ(16u, (CSTRING() + CSTRING()).GetBufLen(0)) << "results own a block even when they are empty";
    EXPECT_STREQ("left+right", Characters(a + "+" + b));
}

// --- locking

TEST(CString, LocksGiveAtLeast1024Bytes) {
    CSTRING text("start");
    char* const buffer = text.BufferLock(10);
    ASSERT_NE(nullptr, buffer);
    EXPECT_EQ(1024u, text.GetBufLen(0));
    EXPECT_EQ(buffer, text.BufferLock(5000)) << "a locked block cannot grow, but is handed out";
    EXPECT_EQ(1024u, text.GetBufLen(0));
    EXPECT_EQ(1024u, text.GetBufLen(2000));
    text = "refused";
    text += "refused";
    EXPECT_STREQ("start", Characters(text));
    std::strcpy(buffer, "direct");
    EXPECT_EQ(6u, text.GetStrLen());
    EXPECT_EQ(0u, text.BufferUnlock()) << "the second lock did not count";
    EXPECT_EQ(0u, text.BufferUnlock());
    text += "!";
    EXPECT_STREQ("direct!", Characters(text));
}

TEST(CString, IncrementLocksAndDecrementUnlocks) {
    CSTRING text;
    std::strcpy(++text, "one");
    EXPECT_NE(nullptr, ++text);
    EXPECT_EQ(nullptr, text--);
    text = "still locked";
    EXPECT_EQ(nullptr, text--);
    EXPECT_STREQ("one", Characters(text));
    EXPECT_EQ(3u, text.GetStrLen());
}

TEST(CString, WritablePointerIsTakenInAtTheNextUse) {
    CSTRING text;
    char* const raw = text;
    ASSERT_NE(nullptr, raw);
    EXPECT_EQ(1024u, text.GetBufLen(0));
    std::strcpy(raw, "filled");
    EXPECT_EQ(6u, text.GetStrLen());
    EXPECT_EQ(6u, text.GetByteCount());
}

// --- characters

TEST(CString, IndexMinusOneIsTheLastCharacter) {
    CSTRING text("abc");
    EXPECT_EQ('c', text[-1]);
    EXPECT_EQ('c', text[static_cast<short>(-1)]);
    EXPECT_EQ('c', text[-1L]);
    EXPECT_EQ('c', text.GetChar(kAll));
    EXPECT_EQ('\0', text[static_cast<unsigned short>(-1)]) << "zero-extended: far behind the end";
    EXPECT_EQ('a', text[0UL]);
    EXPECT_EQ('b', text[1u]);
    CSTRING empty;
    EXPECT_EQ('\0', empty[-1]);
    EXPECT_EQ('\0', empty.GetChar(kAll));
}

TEST(CString, ReferencesAtTheEndMakeRoom) {
    CSTRING empty;
    empty.GetRef(0) = 'x';
    EXPECT_EQ(16u, empty.GetBufLen(0));
    EXPECT_EQ(1u, empty.GetStrLen()) << "the write is taken in at the next use";

    CSTRING text("123456789012345");
    ASSERT_EQ(32u, text.GetBufLen(0));
    for (unsigned int i = 15; i < 80; ++i) {
        text[i] = 'x';
        ASSERT_EQ(i + 1, text.GetStrLen());
        ASSERT_GT(text.GetBufLen(0), text.GetStrLen());
    }
}

TEST(CString, WritesInsideTheTextAreNotNoticed) {
    CSTRING text("abcdef");
    text[3] = '\0';
    EXPECT_EQ(6u, text.GetStrLen());
    text.SetChar(1, 'X');
    text.SetChar(6, 'X');
    text.SetChar(kAll, 'X');
    EXPECT_STREQ("aXc", Characters(text));
    text.SetChar(0, '\0');
    EXPECT_EQ(6u, text.GetStrLen());
}

// --- numbers are lengths

TEST(CString, NumbersAreComparedWithTheLength) {
    CSTRING text("12345");
    EXPECT_EQ(1, text == 5);
    EXPECT_EQ(1, text == 5L);
    EXPECT_EQ(0, text == 12345);
    EXPECT_EQ(1, text != 4u);
    EXPECT_EQ(1, text < 6);
    EXPECT_EQ(1, text >= 5UL);
    EXPECT_EQ(0, text > -1) << "compared without sign";
    EXPECT_EQ(1, text <= -1);
    EXPECT_EQ(5, static_cast<int>(text));
    EXPECT_EQ(5u, static_cast<unsigned int>(text));
    EXPECT_EQ(5L, static_cast<long>(text));
    EXPECT_EQ(5UL, static_cast<unsigned long>(text));
    EXPECT_EQ(1, CSTRING() == 0);
}

TEST(CString, TextsAreComparedInWordOrder) {
    CSTRING text("beta");
    EXPECT_EQ(1, text == "beta");
    EXPECT_EQ(0, text == "Beta");
    EXPECT_EQ(1, text != "alpha");
    EXPECT_GT(text.Compare("Alpha"), 0);
    EXPECT_LT(text.Compare("Gamma"), 0) << "letters first, then case";
}

}  // namespace
