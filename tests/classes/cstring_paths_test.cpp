#include <cvutil32/cstring.h>

#include "tests/classes/strings.h"

#include <gtest/gtest.h>

#include <string>

namespace {

std::string Joined(char const* path, char const* part) {
    CSTRING string(path);
    EXPECT_EQ(&string, &string.AppendSubdir(part));
    CSTRING other(path);
    other.AppendFile(part);
    EXPECT_EQ(Text(string), Text(other));
    return Text(string);
}

std::string Made(char const* drive, char const* dir, char const* name, char const* ext) {
    CSTRING string("before");
    return Text(string.MakePath(drive, dir, name, ext));
}

/// The four parts, with bars between them.
std::string Split(char const* path) {
    CSTRING const string(path);
    CSTRING drive("1"), dir("2"), name("3"), ext("4");
    string.SplitPath(&drive, &dir, &name, &ext);
    EXPECT_EQ(std::string(path), Text(string));
    return Text(drive) + "|" + Text(dir) + "|" + Text(name) + "|" + Text(ext);
}

TEST(CStringPaths, JoinsWithOneLookAtEachSide) {
    EXPECT_EQ("C:\\a\\b", Joined("C:\\a", "b"));
    EXPECT_EQ("C:\\a\\b", Joined("C:\\a\\", "b"));
    EXPECT_EQ("C:\\a\\b", Joined("C:\\a", "\\b"));
    EXPECT_EQ("C:\\a\\\\b", Joined("C:\\a\\", "\\b"));
    EXPECT_EQ("\\b", Joined("", "b"));
    EXPECT_EQ("a\\", Joined("a", ""));
    EXPECT_EQ("a", Joined("a", nullptr));
    CSTRING self("abcdefghijklmno");
    EXPECT_EQ("abcdefghijklmno\\abcdefghijklmno", Text(self.AppendSubdir(static_cast<CSTRING const&>(self))));
}

TEST(CStringPaths, MakesAPathOfParts) {
    EXPECT_EQ("X:dir\\file.txt", Made("X", "dir", "file", "txt"));
    EXPECT_EQ("X:\\file", Made("X:\\long", "\\", "file", nullptr)) << "one character of the drive";
    EXPECT_EQ("file..txt", Made(nullptr, nullptr, "file", ".txt"));
    EXPECT_EQ(".filetxt", Made(nullptr, nullptr, ".file", "txt")) << "the look is at the text";
    EXPECT_EQ("\\d\\", Made(nullptr, "\\d\\", nullptr, nullptr));
    EXPECT_EQ("file.", Made("", "", "file", ""));
    EXPECT_EQ("", Made(nullptr, nullptr, nullptr, nullptr));
    CSTRING own("name");
    char const* const text = static_cast<CSTRING const&>(own);
    EXPECT_EQ("n:name\\name.name", Text(own.MakePath(text, text, text, text)));
}

TEST(CStringPaths, TakesPathsApart) {
    EXPECT_EQ("X:|\\dir\\|file|.txt", Split("X:\\dir\\file.txt"));
    EXPECT_EQ("X:|\\dir.x\\|file|", Split("X:\\dir.x\\file"));
    EXPECT_EQ("X:|\"\\a b\\\"|c|.d", Split("X:\\\"a b\"\\c.d"));
    EXPECT_EQ("X:|\"\\Program Files\\App\\\"|\"my file\"|.txt", Split("X:\\Program Files\\App\\my file.txt"));
    EXPECT_EQ("X:||a|.b", Split("X:a.b"));
    EXPECT_EQ("X:|||", Split("X:"));
    EXPECT_EQ("||a.b|.c", Split("a.b.c"));
    EXPECT_EQ("|d\\||.hidden", Split("d\\.hidden"));
    EXPECT_EQ("|||", Split(""));
    EXPECT_EQ("|\\d\\|\"a;b\"|\".x;y\"", Split("\\d\\a;b.x;y"));
    EXPECT_EQ("a/b:|\\|c|", Split("a/b:\\c")) << "a slash means nothing";
    EXPECT_EQ("\\a.b:||c|", Split("\\a.b:c")) << "what stands before the colon is the drive's";
}

TEST(CStringPaths, SkipsOutputsThatAreNotWanted) {
    CSTRING const path("X:\\d\\n.e");
    alignas(CSTRING) char raw[sizeof(CSTRING)] = {};
    CSTRING name;
    path.SplitPath(nullptr, reinterpret_cast<CSTRING*>(raw), &name, nullptr);
    EXPECT_EQ("n", Text(name));
    CSTRING self("X:\\d\\n.e");
    self.SplitPath(&self, nullptr, nullptr, nullptr);
    EXPECT_EQ("X:", Text(self));
}

TEST(CStringPaths, NameAndFolderOfAPath) {
    CSTRING string("before");
    EXPECT_EQ("\"my file\".txt", Text(string.GetFileName("X:\\Program Files\\my file.txt")));
    EXPECT_EQ("X:\"\\Program Files\\\"", Text(string.GetFilePath("X:\\Program Files\\my file.txt")));
    EXPECT_EQ("file.txt", Text(string.GetFileName("file.txt")));
    EXPECT_EQ("", Text(string.GetFilePath("file.txt")));
    string = "C:\\own\\text.x";
    EXPECT_EQ("text.x", Text(string.GetFileName(static_cast<CSTRING const&>(string))));
    std::string const longest = "C:\\" + std::string(256, 'n');
    EXPECT_EQ(std::string(256, 'n'), Text(string.GetFileName(longest.c_str())));
}

}  // namespace
