#include <gtest/gtest.h>
#include <windows.h>

#include <set>
#include <string>

#include "tests/support/temp_folder.h"

namespace {

using testing_support::TempFolder;

std::string NamesFound(const std::string& pattern) {
    std::string names;
    WIN32_FIND_DATAA found;
    const HANDLE search = FindFirstFileA(pattern.c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) {
        return "error " + std::to_string(GetLastError());
    }
    std::set<std::string> sorted;
    do {
        sorted.insert(found.cFileName);
    } while (FindNextFileA(search, &found));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_NO_MORE_FILES));
    EXPECT_TRUE(FindClose(search));
    for (const std::string& name : sorted) {
        names += name + " ";
    }
    return names;
}

TEST(Files, WildcardsAndCase) {
    const TempFolder folder;
    for (const char* name : {"a.txt", "B.TXT", "ab.txt", "noending", "two.dots.doc"}) {
        folder.MakeFile(name);
    }
    folder.MakeFolder("Sub.dir");
    const auto names = [&](const char* pattern) { return NamesFound(folder.Path(pattern)); };
    EXPECT_EQ(names("*"), ". .. B.TXT Sub.dir a.txt ab.txt noending two.dots.doc ");
    EXPECT_EQ(names("*.*"), names("*"));
    EXPECT_EQ(names("*.txt"), "B.TXT a.txt ab.txt ");
    EXPECT_EQ(names("?.txt"), "B.TXT a.txt ");
    EXPECT_EQ(names("noending.*"), "noending ");
    EXPECT_EQ(names("*.d*"), "Sub.dir two.dots.doc ");
    EXPECT_EQ(names("b.txt"), "B.TXT ");
    EXPECT_EQ(names("sub.DIR\\*"), ". .. ");
    EXPECT_EQ(names("none*"), "error 2");
    EXPECT_EQ(names("none"), "error 2");
    EXPECT_EQ(names("none\\x"), "error 3");
    EXPECT_EQ(names("none\\*"), "error 3");
    EXPECT_EQ(names("Sub.dir\\"), "error 2") << "a backslash at the end names nothing";
}

TEST(Files, DotsAndBlanksAtTheEndOfANameDoNotCount) {
    const TempFolder folder;
    folder.MakeFile("Sub\\file.txt");
    const auto names = [&](const char* pattern) { return NamesFound(folder.Path(pattern)); };
    for (const char* name :
         {"Sub\\file.txt.", "Sub\\file.txt ", "Sub\\file.txt. . .", "Sub.\\file.txt", "sub\\FILE.txt.."}) {
        EXPECT_EQ(names(name), "file.txt ") << name;
        EXPECT_EQ(GetFileAttributesA(folder.Path(name).c_str()) & FILE_ATTRIBUTE_DIRECTORY, 0u) << name;
    }
    EXPECT_EQ(names("Sub."), "Sub ");
    EXPECT_EQ(names("Sub.\\*.txt"), "file.txt ");
    EXPECT_EQ(names("none\\..\\Sub"), "Sub ") << "what does not stay need not be there";
    EXPECT_EQ(names("Sub\\.\\..\\sub\\file.txt"), "file.txt ");
    EXPECT_EQ(names("Sub\\file .txt"), "error 2") << "blanks inside a name count";
    EXPECT_EQ(names("Sub\\ file.txt"), "error 2");
}

TEST(Files, RootsOfDrives) {
    for (const std::string root : {"\\", "C:\\"}) {
        EXPECT_NE(GetFileAttributesA(root.c_str()), INVALID_FILE_ATTRIBUTES);
        EXPECT_TRUE(GetFileAttributesA(root.c_str()) & FILE_ATTRIBUTE_DIRECTORY);
        EXPECT_EQ(GetDriveTypeA(root.c_str()), static_cast<UINT>(DRIVE_FIXED));
        EXPECT_EQ(NamesFound(root), "error 2") << "a root is no entry of anything";
        const std::string names = NamesFound(root + "*");
        EXPECT_FALSE(names.starts_with(". ") || names.starts_with("error ")) << "a root has no dots";
    }
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        const char root[] = {letter, ':', '\\', '\0'};
        if (GetDriveTypeA(root) == DRIVE_NO_ROOT_DIR) {
            EXPECT_EQ(NamesFound(root + std::string("*")), "error 3") << root;
        }
    }
    EXPECT_EQ(GetDriveTypeA("C:\\no such folder\\"), static_cast<UINT>(DRIVE_NO_ROOT_DIR));
    EXPECT_TRUE(GetFileAttributesA("/") & FILE_ATTRIBUTE_DIRECTORY);
    EXPECT_TRUE(GetFileAttributesA("C:\\WINDOWS.") & FILE_ATTRIBUTE_DIRECTORY);
    EXPECT_NE(GetFileAttributesA("C:\\..\\windows\\..\\..\\WINDOWS. "), INVALID_FILE_ATTRIBUTES)
        << "nothing lies above a root";
}

TEST(Files, WhatAnEntryTells) {
    const TempFolder folder;
    const std::string file = folder.MakeFile("file", std::string(1234, 'x'));
    WIN32_FIND_DATAA found = {};
    HANDLE search = FindFirstFileA(file.c_str(), &found);
    ASSERT_NE(search, INVALID_HANDLE_VALUE);
    EXPECT_EQ(found.nFileSizeLow, 1234u);
    EXPECT_EQ(found.nFileSizeHigh, 0u);
    // A file time counts 100 nanoseconds since 1601 began.
    const auto written = static_cast<double>(found.ftLastWriteTime.dwHighDateTime) * 4294967296.0;
    SYSTEMTIME now = {};
    GetSystemTime(&now);
    EXPECT_NEAR(1601 + written / (365.2425 * 86400e7), now.wYear, 1.1);
    EXPECT_FALSE(FindNextFileA(search, &found)) << "one name, one entry";
    EXPECT_TRUE(FindClose(search));
    EXPECT_EQ(GetFileAttributesA(file.c_str()) & FILE_ATTRIBUTE_DIRECTORY, 0u);
    EXPECT_NE(GetFileAttributesA(folder.Path().c_str()) & FILE_ATTRIBUTE_DIRECTORY, 0u);
    EXPECT_EQ(GetFileAttributesA(folder.Path("none").c_str()), INVALID_FILE_ATTRIBUTES);
    EXPECT_EQ(FindFirstFileA(std::string(400, 'x').c_str(), &found), INVALID_HANDLE_VALUE);
    EXPECT_EQ(FindFirstFileA("", &found), INVALID_HANDLE_VALUE);
}

}  // namespace
