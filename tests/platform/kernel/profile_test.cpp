#include <gtest/gtest.h>
#include <windows.h>

#include <string>

namespace {

// The user's profile, in a section of the test's own.
constexpr char kSection[] = "cvutil32 test";

class ProfileTest : public ::testing::Test {
  protected:
    ProfileTest() {
        WriteProfileStringA(kSection, nullptr, nullptr);
    }
    ~ProfileTest() override {
        WriteProfileStringA(kSection, nullptr, nullptr);
    }

    static std::string Read(const char* key, const char* otherwise = "default") {
        char buffer[128] = {};
        GetProfileStringA(kSection, key, otherwise, buffer, sizeof buffer);
        return buffer;
    }
};

TEST_F(ProfileTest, ValuesComeBackWithoutQuotesAndInAnyCaseOfTheKey) {
    EXPECT_EQ(Read("missing"), "default");
    EXPECT_EQ(Read("missing", "blanks go  "), "blanks go");
    ASSERT_TRUE(WriteProfileStringA(kSection, "Key", "value"));
    EXPECT_EQ(Read("kEY"), "value");
    ASSERT_TRUE(WriteProfileStringA(kSection, "Key", "\" quoted \""));
    EXPECT_EQ(Read("Key"), " quoted ");
    ASSERT_TRUE(WriteProfileStringA(kSection, "Key", ""));
    EXPECT_EQ(Read("Key"), "") << "present and empty is not missing";
    ASSERT_TRUE(WriteProfileStringA(kSection, "Key", nullptr));
    EXPECT_EQ(Read("Key"), "default");
}

TEST_F(ProfileTest, NumbersEndWhereTheyEnd) {
    struct {
        const char* text;
        int value;
    } const cases[] = {{"12", 12}, {"-3", -3}, {"7days", 7}, {"days", 0}, {"0x1F", 31}, {"", 99}};
    for (const auto& c : cases) {
        WriteProfileStringA(kSection, "Number", c.text);
        EXPECT_EQ(static_cast<int>(GetProfileIntA(kSection, "Number", 99)), c.value) << c.text;
    }
    EXPECT_EQ(static_cast<int>(GetProfileIntA(kSection, "Missing", -9)), -9);
}

}  // namespace
