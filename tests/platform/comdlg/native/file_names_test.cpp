// What is typed in the open-file dialog, and what comes back, as text.
#include "comdlg/names.h"

#include <gtest/gtest.h>

using namespace platform::comdlg;

namespace {

using Names = std::vector<std::string>;

TEST(FileNames, FiltersArePairsUpToAnEmptyText) {
    const auto filters = ReadFilters("Texts\0*.txt;*.doc\0All\0*.*\0\0rest");
    ASSERT_EQ(2U, filters.size());
    EXPECT_EQ("Texts", filters[0].name);
    EXPECT_EQ("*.txt;*.doc", filters[0].patterns);
    EXPECT_TRUE(ReadFilters("\0").empty());
    EXPECT_TRUE(ReadFilters(nullptr).empty());
    EXPECT_TRUE(Matches("Notes.TXT", " *.doc ; *.txt"));
    EXPECT_FALSE(Matches("notes.txt.gz", "*.doc;*.txt"));
    EXPECT_TRUE(Matches("no extension", "*.*"));
    EXPECT_FALSE(Matches("x", ""));
}

TEST(FileNames, NamesAreReadAsPeopleTypeThem) {
    EXPECT_EQ(Names({"my file.txt"}), SplitNames("  my file.txt "));
    EXPECT_EQ(Names({"a b.txt", "c.txt"}), SplitNames("\"a b.txt\" \"c.txt\""));
    EXPECT_EQ(Names({"my file.txt"}), SplitNames("\"my file\".txt"));
    EXPECT_EQ(Names({"open end"}), SplitNames("\"open end"));
    EXPECT_TRUE(SplitNames(" \"\" ").empty());
    EXPECT_EQ("a.txt", JoinNames({"a.txt"}));
    EXPECT_EQ(Names({"a b", "c"}), SplitNames(JoinNames({"a b", "c"})));
}

TEST(FileNames, PathsAreCompleted) {
    EXPECT_EQ("C:\\dir\\a.txt", FullPath("C:\\dir", "a.txt"));
    EXPECT_EQ("C:\\a.txt", FullPath("C:\\", "a.txt"));
    EXPECT_EQ("C:\\top", FullPath("C:\\dir\\sub", "\\top"));
    EXPECT_EQ("C:\\dir", FullPath("C:\\dir\\sub", ".."));
    EXPECT_EQ("C:\\", FullPath("C:\\dir", "..\\..\\.."));
    EXPECT_EQ("D:\\x\\y", FullPath("C:\\dir", "d:/x//./y"));
}

}  // namespace
