// Reg_: settings, in a section of the test's own that goes at the end.
#include <cvutil32/reg.h>

#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace {

constexpr char kSection[] = "cvutil32 test";
constexpr char kSubkey[] = "Software\\Calverin\\Velmora\\cvutil32 test";
HKEY const kRoot = HKEY_CURRENT_USER;

std::string Read(char const* name, char const* fallback, DWORD size = 64) {
    char buffer[256];
    std::memset(buffer, '#', sizeof buffer);
    DWORD const length = Reg_GetProfileString(kRoot, kSection, name, fallback, buffer, size);
    EXPECT_EQ(std::strlen(buffer), length);
    EXPECT_EQ('#', buffer[size]) << "written behind the buffer";
    return buffer;
}

class RegTest : public ::testing::Test {
  protected:
    RegTest() {
        RegDeleteKeyA(kRoot, kSubkey);
    }
    ~RegTest() override {
        RegDeleteKeyA(kRoot, kSubkey);
    }
};

TEST_F(RegTest, NumbersAndTextsComeBack) {
    EXPECT_EQ(7u, Reg_GetProfileInt(kRoot, kSection, "Number", 7));
    ASSERT_TRUE(Reg_WriteProfileInt(kRoot, kSection, "Number", 0xFFFFFFFE));
    EXPECT_EQ(0xFFFFFFFEu, Reg_GetProfileInt(kRoot, kSection, "nUMBER", 7));
    EXPECT_EQ("nothing", Read("Text", "nothing"));
    ASSERT_TRUE(Reg_WriteProfileString(kRoot, kSection, "Text", "C:\\My files"));
    EXPECT_EQ("C:\\My files", Read("Text", "nothing"));
    ASSERT_TRUE(Reg_WriteProfileString(kRoot, kSection, "Text", ""));
    EXPECT_EQ("", Read("Text", "nothing")) << "an empty text is one";
}

TEST_F(RegTest, AWrongTypeGivesTheDefault) {
    Reg_WriteProfileString(kRoot, kSection, "Value", "12");
    EXPECT_EQ(7u, Reg_GetProfileInt(kRoot, kSection, "Value", 7));
    Reg_WriteProfileInt(kRoot, kSection, "Value", 12);
    EXPECT_EQ("nothing", Read("Value", "nothing"));
    HKEY const key = Reg_OpenBaseUserKey(kSection);
    BYTE const bytes[8] = {1};
    RegSetValueExA(key, "Value", 0, REG_DWORD, bytes, sizeof bytes);
    EXPECT_EQ(7u, Reg_GetProfileInt(kRoot, kSection, "Value", 7)) << "a number that is too large";
    EXPECT_EQ(ERROR_SUCCESS, Reg_CloseKey(key));
}

TEST_F(RegTest, ATextThatDoesNotFitGivesTheDefaultCutToTheBuffer) {
    Reg_WriteProfileString(kRoot, kSection, "Text", "abcdef");
    EXPECT_EQ("abcdef", Read("Text", "default", 7));
    EXPECT_EQ("defau", Read("Text", "default", 6)) << "the NUL needs room too";
    EXPECT_EQ("", Read("Text", nullptr, 6));
    EXPECT_EQ("", Read("Text", "default", 1));
    EXPECT_EQ("", Read("Missing", nullptr));
}

TEST_F(RegTest, NamesAreListedAsFarAsTheyFit) {
    char buffer[16];
    std::memset(buffer, '#', sizeof buffer);
    EXPECT_EQ(7u, Reg_GetProfileString(kRoot, kSection, nullptr, "default", buffer, 8)) << "no names";
    EXPECT_STREQ("default", buffer);
    for (char const* name : {"A", "Bb", "Ccc"}) {
        Reg_WriteProfileInt(kRoot, kSection, name, 1);
    }
    std::memset(buffer, '#', sizeof buffer);
    EXPECT_EQ(1u, Reg_GetProfileString(kRoot, kSection, nullptr, "default", buffer, 8));
    EXPECT_EQ(0, std::memcmp(buffer, "A\0Bb\0\0##", 8));
    EXPECT_EQ(1u, Reg_GetProfileString(kRoot, kSection, nullptr, "default", buffer, 11));
    EXPECT_EQ(0, std::memcmp(buffer, "A\0Bb\0Ccc\0\0", 10)) << "5 bytes are less than 6 that are left";
    EXPECT_EQ(0u, Reg_GetProfileString(kRoot, kSection, nullptr, nullptr, buffer, 3)) << "no room for any";
}

TEST_F(RegTest, ALongNameDoesNotHideTheOthers) {
    Reg_WriteProfileInt(kRoot, kSection, std::string(200, 'x').c_str(), 1);
    Reg_WriteProfileInt(kRoot, kSection, "Short", 1);
    EXPECT_EQ("Short", Read(nullptr, "default"));
}

TEST_F(RegTest, DeletingWorksOnce) {
    Reg_WriteProfileString(kRoot, kSection, "Text", "x");
    EXPECT_TRUE(Reg_WriteProfileString(kRoot, kSection, "Text", nullptr));
    EXPECT_EQ("nothing", Read("Text", "nothing"));
    EXPECT_FALSE(Reg_WriteProfileString(kRoot, kSection, "Text", nullptr));
}

TEST_F(RegTest, ReadingMakesTheKeyAndBothBasesAreTheUsers) {
    HKEY key = nullptr;
    ASSERT_EQ(ERROR_FILE_NOT_FOUND, RegOpenKeyExA(kRoot, kSubkey, 0, KEY_READ, &key));
    Reg_GetProfileInt(kRoot, kSection, "Missing", 0);
    EXPECT_EQ(ERROR_SUCCESS, RegOpenKeyExA(kRoot, kSubkey, 0, KEY_READ, &key));
    RegCloseKey(key);

    HKEY const user = Reg_OpenBaseUserKey(kSection);
    HKEY const machine = Reg_OpenBaseMachineKey(kSection);
    DWORD const written = 4711;
    RegSetValueExA(machine, "Number", 0, REG_DWORD, reinterpret_cast<BYTE const*>(&written), sizeof written);
    DWORD read = 0;
    DWORD size = sizeof read;
    EXPECT_EQ(ERROR_SUCCESS, RegQueryValueExA(user, "Number", nullptr, nullptr, reinterpret_cast<BYTE*>(&read), &size));
    EXPECT_EQ(written, read);
    EXPECT_EQ(ERROR_SUCCESS, Reg_CloseKey(user));
    EXPECT_EQ(ERROR_SUCCESS, Reg_CloseKey(machine));
    HKEY const base = Reg_OpenBaseUserKey(nullptr);
    EXPECT_EQ(ERROR_SUCCESS, RegOpenKeyExA(base, kSection, 0, KEY_READ, &key)) << "null is the base key";
    Reg_CloseKey(key);
    Reg_CloseKey(base);
}

TEST_F(RegTest, KeysThatCannotBeOpened) {
    std::string const longest(255 - std::strlen(REG_BASEPATH), 's');
    HKEY const key = Reg_OpenBaseUserKey(longest.c_str());
    EXPECT_NE(nullptr, key) << "255 characters with the base path";
    Reg_CloseKey(key);
    RegDeleteKeyA(kRoot, (REG_BASEPATH + longest).c_str());
    std::string const tooLong = longest + 's';
    EXPECT_EQ(nullptr, Reg_OpenBaseUserKey(tooLong.c_str()));
    EXPECT_EQ(7u, Reg_GetProfileInt(kRoot, tooLong.c_str(), "Number", 7));
    EXPECT_FALSE(Reg_WriteProfileInt(kRoot, tooLong.c_str(), "Number", 7));

    HKEY const closed = Reg_OpenBaseUserKey(kSection);
    Reg_CloseKey(closed);
    char buffer[8] = "#######";
    EXPECT_EQ(1u, Reg_GetProfileString(nullptr, kSection, "Text", "d", buffer, sizeof buffer));
    EXPECT_FALSE(Reg_WriteProfileString(nullptr, kSection, "Text", "x"));
    EXPECT_NE(ERROR_SUCCESS, Reg_CloseKey(nullptr));
}

TEST_F(RegTest, KeysAndTextsAnywhere) {
    HKEY base = nullptr;
    ASSERT_TRUE(Reg_CreateKey(kRoot, kSubkey, &base));
    EXPECT_FALSE(Reg_CreateKey(kRoot, nullptr, &base));
    EXPECT_TRUE(Reg_WriteString(base, "Sub\\Deep", "Name", "text"));
    EXPECT_TRUE(Reg_WriteString(base, "Sub\\Deep", nullptr, "unnamed"));
    char text[16] = {};
    DWORD size = sizeof text;
    HKEY deep = nullptr;
    ASSERT_EQ(ERROR_SUCCESS, RegOpenKeyExA(base, "Sub\\Deep", 0, KEY_READ, &deep));
    EXPECT_EQ(ERROR_SUCCESS, RegQueryValueExA(deep, "", nullptr, nullptr, reinterpret_cast<BYTE*>(text), &size));
    EXPECT_STREQ("unnamed", text);
    EXPECT_TRUE(Reg_WriteString(base, "Sub\\Deep", "Name", nullptr));
    EXPECT_FALSE(Reg_WriteString(base, "Sub\\Deep", "Name", nullptr));
    EXPECT_FALSE(Reg_WriteString(base, nullptr, "Name", "text"));
    RegCloseKey(deep);
    RegDeleteKeyA(base, "Sub\\Deep");
    RegDeleteKeyA(base, "Sub");
    Reg_CloseKey(base);
}

}  // namespace
