// Profile files as files, and settings that a process reads once: each of those runs in a process of its own.
#include <gtest/gtest.h>
#include <windows.h>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "tests/support/native/state_folder.h"

namespace {

namespace fs = std::filesystem;

class Settings : public testing_support::StateFolder {
  protected:
    Settings() : StateFolder("win.ini") {}

    static std::string Read(const char* section, const char* key) {
        char buffer[256] = {};
        GetProfileStringA(section, key, "default", buffer, sizeof buffer);
        return buffer;
    }
};

TEST_F(Settings, NothingIsWrittenByReading) {
    EXPECT_EQ(Read("Intl", "sDate"), "/");
    EXPECT_EQ(GetProfileIntA("Intl", "iDate", 13), 0u);
    EXPECT_FALSE(fs::exists(File()));
}

TEST_F(Settings, TheFileOfAPersonKeepsItsLook) {
    Put("; kept\r\n[Intl]\r\n sDate = - ; not a comment\r\n\r\n[Other]\r\nKey='x'\r\nBroken line\r\n");
    EXPECT_EQ(Read("intl", "SDATE"), "- ; not a comment");
    EXPECT_EQ(Read("OTHER", "key"), "x");
    ASSERT_TRUE(WriteProfileStringA("intl", "sTime", "."));
    ASSERT_TRUE(WriteProfileStringA("Other", "Key", nullptr));
    EXPECT_EQ(Text(), "; kept\r\n[Intl]\r\n sDate = - ; not a comment\r\nsTime=.\r\n\r\n[Other]\r\nBroken line\r\n");
}

TEST_F(Settings, AChangeFromOutsideIsSeen) {
    Put("[a]\nkey=1\n");
    EXPECT_EQ(Read("a", "key"), "1");
    Put("[a]\nkey=22\n");
    EXPECT_EQ(Read("a", "key"), "22");
    fs::remove(File());
    EXPECT_EQ(Read("a", "key"), "default");
}

TEST_F(Settings, BinaryRubbishDoesNoHarmAndIsNotLost) {
    std::string rubbish;
    for (int i = 0; i < 5000; ++i) {
        rubbish += static_cast<char>(i * 7919 >> 3);
    }
    Put(rubbish);
    EXPECT_EQ(Read("a", "key"), "default");
    ASSERT_TRUE(WriteProfileStringA("a", "key", "value"));
    EXPECT_EQ(Read("a", "key"), "value");
    EXPECT_TRUE(Text().starts_with(rubbish));
}

TEST_F(Settings, WhatIsNoFileGivesDefaultsAndStays) {
    fs::create_directory(File());
    EXPECT_EQ(Read("a", "key"), "default");
    SetLastError(0);
    EXPECT_FALSE(WriteProfileStringA("a", "key", "value"));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_ACCESS_DENIED));
    EXPECT_TRUE(fs::is_directory(File()));
}

TEST_F(Settings, ALinkStaysALink) {
    std::ofstream(folder_ / "real.ini") << "[a]\n";
    fs::create_symlink("real.ini", File());
    ASSERT_TRUE(WriteProfileStringA("a", "key", "value"));
    EXPECT_TRUE(fs::is_symlink(File()));
    EXPECT_EQ(Read("a", "key"), "value");
}

TEST_F(Settings, PrivateFilesByNameAndByPath) {
    const auto read = [](const char* file) { return GetPrivateProfileIntA("a", "key", 0, file); };
    ASSERT_TRUE(WritePrivateProfileStringA("a", "key", "7", "App.ini"));
    EXPECT_TRUE(fs::exists(folder_ / "App.ini"));
    for (const char* file : {"App.ini", "APP.ini.", "C:\\WINDOWS\\app.ini", "c:/windows/./App.ini. "}) {
        EXPECT_EQ(read(file), 7u) << file;
    }
    ASSERT_TRUE(WritePrivateProfileStringA("a", "key", "8", "app.INI"));
    EXPECT_EQ(read("App.ini"), 8u) << "not a second file";
    fs::create_directories(folder_ / "drive_c" / "Data");
    ASSERT_TRUE(WritePrivateProfileStringA("a", "key", "9", "C:\\DATA\\app.ini"));
    EXPECT_TRUE(fs::exists(folder_ / "drive_c" / "Data" / "app.ini"));
    EXPECT_EQ(read("c:\\data\\APP.ini"), 9u);
    SetLastError(0);
    EXPECT_FALSE(WritePrivateProfileStringA("a", "key", "9", "C:\\None\\app.ini"));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_PATH_NOT_FOUND));
    EXPECT_EQ(GetPrivateProfileIntA("a", "key", 5, "Q:\\app.ini"), 5u);
}

TEST_F(Settings, SeveralWritersLoseNothing) {
    constexpr int kWriters = 4;
    constexpr int kKeys = 25;
    for (int writer = 0; writer < kWriters; ++writer) {
        if (fork() == 0) {
            bool good = true;
            for (int key = 0; key < kKeys; ++key) {
                const std::string name = "w" + std::to_string(writer) + "k" + std::to_string(key);
                good = good && WriteProfileStringA("shared", name.c_str(), name.c_str());
            }
            _exit(good ? 0 : 1);
        }
    }
    for (int writer = 0; writer < kWriters; ++writer) {
        int status = -1;
        wait(&status);
        EXPECT_EQ(status, 0);
    }
    for (int writer = 0; writer < kWriters; ++writer) {
        for (int key = 0; key < kKeys; ++key) {
            const std::string name = "w" + std::to_string(writer) + "k" + std::to_string(key);
            EXPECT_EQ(Read("shared", name.c_str()), name);
        }
    }
    EXPECT_EQ(std::distance(fs::directory_iterator(folder_), fs::directory_iterator()), 1)
        << "no temporary file is left";
}

// The process of such a test ends with 0 when the check holds.
class SettingsDeathTest : public Settings {
  protected:
    SettingsDeathTest() {
        GTEST_FLAG_SET(death_test_style, "threadsafe");
    }
};

TEST_F(SettingsDeathTest, TheHostsLocaleStandsInForMissingKeys) {
    EXPECT_EXIT(
        {
            setenv("LC_ALL", "de_DE.UTF-8", 1);
            std::ofstream(File()) << "[intl]\nsTime=-\n";
            char time[4] = {};
            GetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_STIME, time, 4);
            const bool good = GetProfileIntA("Intl", "iDate", 13) == 1 && Read("intl", "sDate") == "." &&
                              Read("Intl", "sThousand") == "." && Read("intl", "sTime") == "-" &&
                              std::string(time) == "-";
            exit(good ? 0 : 1);
        },
        ::testing::ExitedWithCode(0), "");
}

TEST_F(SettingsDeathTest, ADoubleByteCodePageFromWinIni) {
    EXPECT_EXIT(
        {
            unsetenv("CVUTIL32_CODEPAGE");
            std::ofstream(File()) << "[cvutil32]\ncodepage=932\n";
            bool good = GetACP() == 932 && GetOEMCP() == 932 && IsDBCSLeadByte(0x82);
            // Full-width "a", Hiragana a, half-width Katakana a, "b".
            char text[] =
                "\x82\x81\x82\xA0\xB1"
                "b";
            CharUpperBuffA(text, 6);
            good = good && std::string(text) ==
                               "\x82\x60\x82\xA0\xB1"
                               "B";
            good = good && lstrcmpA("\x88\x9F", "\x88\xA0") < 0 && lstrcmpA("z", "\x88\x9F") < 0;
            good = good && lstrcmpA("\x82\xA9", "\x82\xAA") < 0 && lstrcmpA("\x82\xAA", "\x82\xAB") < 0;
            exit(good ? 0 : 1);
        },
        ::testing::ExitedWithCode(0), "");
}

TEST_F(SettingsDeathTest, AnUnknownCodePageIsSaidOnceAndLeavesTheWesternOne) {
    EXPECT_EXIT(
        {
            setenv("CVUTIL32_CODEPAGE", "4711", 1);
            exit(GetACP() == 1252 && CharNextA("\x82x")[0] == 'x' ? 0 : 1);
        },
        ::testing::ExitedWithCode(0), "code page 1252 is used");
}

}  // namespace
