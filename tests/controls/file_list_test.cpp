// The text that several chosen files become, rule by rule.
#include "controls/browse/filelist.h"

#include <gtest/gtest.h>

#include <string>

namespace {

/// A list as the dialog hands it back: its NULs, two more and something behind that must stay as it is.
std::string Joined(std::string list) {
    std::string buffer = list + std::string("\0\0", 2) + "rest";
    std::size_t const size = buffer.size();
    browse::JoinFileList(buffer.data(), static_cast<UINT>(size));
    EXPECT_EQ("rest", buffer.substr(size - 4));
    return buffer.substr(0, list.size());
}

std::string const kNul(1, '\0');

TEST(FileList, PartsAreJoinedUpToTheDoubleNul) {
    EXPECT_EQ("C:\\dir;a.txt;b c.txt", Joined("C:\\dir" + kNul + "a.txt" + kNul + "b c.txt"));
    EXPECT_EQ("C:\\dir\\one.txt", Joined("C:\\dir\\one.txt"));
    EXPECT_EQ("", Joined(""));
}

TEST(FileList, ANameThatBeginsWithAHighByteEndsTheList) {
    EXPECT_EQ("C:\\d;a" + kNul + "\xE9t" + kNul + "b", Joined("C:\\d" + kNul + "a" + kNul + "\xE9t" + kNul + "b"));
}

TEST(FileList, AHighByteWithinANameIsPassed) {
    EXPECT_EQ("C:\\d;caf\xE9s;b", Joined("C:\\d" + kNul + "caf\xE9s" + kNul + "b"));
}

TEST(FileList, TheScanEndsWhereItCannotGoOn) {
    // A high byte at a name's end, two in a row: what is behind them stays as it was.
    EXPECT_EQ("C:\\d;caf\xE9" + kNul + "b", Joined("C:\\d" + kNul + "caf\xE9" + kNul + "b"));
    EXPECT_EQ("C:\\d;\x61\xE9\xE9z" + kNul + "b", Joined("C:\\d" + kNul + "\x61\xE9\xE9z" + kNul + "b"));
}

TEST(FileList, NothingIsTouchedBehindTheBuffer) {
    char list[] = {'a', '\0', 'b', 'c', 'd'};
    browse::JoinFileList(list, 3);
    EXPECT_EQ("a;bcd", std::string(list, 5));
    char one[] = {'a', '\0', 'b'};
    browse::JoinFileList(one, 1);
    EXPECT_EQ(std::string("a\0b", 3), std::string(one, 3));
}

}  // namespace
