// CSTRING and CDATASTR when the heap is exhausted.
#include <cvutil32/cdatastr.h>

#include <gtest/gtest.h>

#include <cstring>
#include <set>
#include <string>

#include "tests/support/native/failing_memory.h"

#include "tests/classes/strings.h"

namespace {

using std::string;
using namespace testing_support;

TEST(CStringMemory, FailedGrowthEmptiesOnAssignmentAndKeepsOnAppend) {
    CSTRING text("0123456789");
    char longer[200];
    std::memset(longer, 'x', sizeof longer - 1);
    longer[sizeof longer - 1] = '\0';
    {
        NoMemory const now;
        text += longer;
        EXPECT_STREQ("0123456789", Characters(text));
        EXPECT_EQ(10u, text.GetStrLen());
        EXPECT_EQ(nullptr, text.BufferLock(10));
        EXPECT_EQ(nullptr, static_cast<char*>(text));
        text += "ok";
        EXPECT_STREQ("0123456789ok", Characters(text)) << "what fits needs no memory";
        text = longer;
        EXPECT_STREQ("", Characters(text));
        EXPECT_EQ(0u, text.GetStrLen());
        CSTRING const none("text");
        EXPECT_EQ(1, none.IsValid());
        EXPECT_STREQ("", Characters(none));
    }
    text = "again";
    EXPECT_STREQ("again", Characters(text));
}

// Runs one member on a text; afterwards the text, which works on, is one of those that are allowed.
template <class Member>
void Drive(char const* text, std::set<string> const& allowed, Member member) {
    WithEachFailure([&](FailingAllocation& failing) {
        CSTRING object(text);
        failing.On();
        member(object);
        failing.Off();
        EXPECT_TRUE(object.IsValid());
        EXPECT_EQ(object.GetStrLen(), std::strlen(Characters(object)));
        string const left = Characters(object);
        EXPECT_EQ(allowed.count(left), 1u) << left;
        EXPECT_TRUE(failing.failed() || left == *allowed.rbegin()) << left;
        object = "and on it goes";
        EXPECT_STREQ(Characters(object), "and on it goes");
    });
}

string const kLong(70, 'z');  // does not fit into any first block, and comes last in the sets of results

TEST(CStringMemory, EveryFailureOfAnEditingMemberLeavesTheTextOrEmptiesIt) {
    Drive("abc", {"", kLong}, [](CSTRING& s) { s = kLong.c_str(); });
    Drive("abc", {"", kLong}, [](CSTRING& s) { s = CSTRING(kLong.c_str()); });
    Drive("", {"", "x"}, [](CSTRING& s) { s = 'x'; });
    Drive("abc", {"abc", "abc" + kLong}, [](CSTRING& s) { s.Append(kLong.c_str()); });
    Drive("abc", {"abc", "abc" + kLong}, [](CSTRING& s) { s += s.Left(0) + kLong.c_str(); });
    Drive("abc", {"abc", "a" + kLong + "bc"}, [](CSTRING& s) { s.Insert(kLong.c_str(), 1, 0xFFFFFFFF); });
    Drive("0123456789abcdefghijklmnopqrstu", {"0123456789abcdefghijklmnopqrstu", "0123456789abcdefghijklmnopqrstuv"},
          [](CSTRING& s) { s.Insert('v', 31); });
    Drive("abc", {"abc", "bcabc"}, [](CSTRING& s) { s.Insert(Characters(s) + 1, 0, 0xFFFFFFFF); });
    // What is replaced is taken out first.
    Drive("a-c", {"ac", "a" + kLong + "c"}, [](CSTRING& s) { s.Replace("-", kLong.c_str(), 1); });
    Drive("abcd", {"abcd", "axyd"}, [](CSTRING& s) { s.Replace("xy", 1, 5); });
}

TEST(CStringMemory, EveryFailureOfADirectWriteIsSeenByTheCaller) {
    Drive("abc", {"abc", "xyz"}, [](CSTRING& s) {
        char* const buffer = s.BufferLock(2000);
        if (buffer) {
            std::strcpy(buffer, "xyz");
            EXPECT_EQ(s.BufferUnlock(), 0u);
        }
    });
    Drive("abc", {"abc", "xyz"}, [](CSTRING& s) {
        if (char* const buffer = s) {
            std::strcpy(buffer, "xyz");
        }
    });
    Drive("abc", {"abc"}, [](CSTRING& s) { EXPECT_GE(s.GetBufLen(500), 16u); });
    Drive("0123456789abcde", {"0123456789abcde", "0123456789abcdef"}, [](CSTRING& s) {
        if (s.GetBufLen(17) >= 17) {
            s.GetRef(15) = 'f';
        }
    });
}

TEST(CStringMemory, EveryFailureOfAnExtractedTextGivesLessOfIt) {
    auto const extracted = [](std::set<string> const& allowed, auto make) {
        WithEachFailure([&](FailingAllocation& failing) {
            CSTRING const source("abcdef");
            failing.On();
            CSTRING const part = make(source);
            failing.Off();
            EXPECT_TRUE(part.IsValid());
            EXPECT_EQ(allowed.count(Characters(part)), 1u) << Characters(part);
            EXPECT_STREQ(Characters(source), "abcdef");
        });
    };
    extracted({"", "ab"}, [](CSTRING const& s) { return s.Left(2); });
    extracted({"", "cd"}, [](CSTRING const& s) { return s.Mid(2, 2); });
    extracted({"", "ef"}, [](CSTRING const& s) { return s.Right(2); });
    extracted({"", "abcdef"}, [](CSTRING const& s) { return CSTRING(s); });
    // A sum lacks the part that there was no memory for.
    extracted({"", "abcdef", kLong, "abcdef" + kLong}, [](CSTRING const& s) { return s + kLong.c_str(); });
    extracted({"", "abcdef", "x", "abcdefx"}, [](CSTRING const& s) { return s + 'x'; });
}

TEST(DataStringMemory, WithoutAMarkerItIsAStringThatDoesNothing) {
    WithEachFailure([](FailingAllocation& failing) {
        failing.On();
        CDATASTR list(";;a;");
        failing.Off();
        list.CleanDelimiters(';');
        string const text = Characters(list);
        EXPECT_TRUE(list.IsValid() ? text == "a" || text.empty() : text == ";;a;") << text;
        CDATASTR const copy(list);
        EXPECT_EQ(copy.IsValid(), list.IsValid());
    });
}

TEST(DataStringMemory, EveryMemberSurvivesEveryFailure) {
    auto const drive = [](auto member) {
        WithEachFailure([&](FailingAllocation& failing) {
            CDATASTR list("\"a b\" ;;c\\;d;A,12");
            failing.On();
            member(list);
            failing.Off();
            EXPECT_TRUE(list.IsValid());
            list = "x;y";
            CSTRING item;
            unsigned int position = 2;
            EXPECT_EQ(list.EnumDataItems(&position, &item, ';'), 1);
            EXPECT_STREQ(Characters(item), "y");
        });
    };
    drive([](CDATASTR& list) { list.CleanDelimiters(';'); });
    drive([](CDATASTR& list) { list.NormalizeDelimiters(' ', DATASTR_DELIMITERS); });
    drive([](CDATASTR& list) { list.RemoveBackslashes(';'); });
    drive([](CDATASTR& list) { list.RemoveDuplicates(';'); });
    drive([](CDATASTR& list) { list.NormalizeFileSpecs(); });
    drive([](CDATASTR& list) { list = CDATASTR(kLong.c_str()); });
    drive([](CDATASTR& list) {
        CSTRING item;
        unsigned int position = 0;
        unsigned int value = 0;
        int quoted = 0;
        while (list.EnumDataItems(&position, &item, ';')) {
        }
        position = 0;
        list.EnumDataItems(&position, &value, ',');
        position = 0;
        while (list.EnumFileSpecs(&position, &item, &quoted)) {
        }
        EXPECT_TRUE(item.IsValid());
    });
}

}  // namespace
