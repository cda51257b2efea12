// Files by Windows paths on a host whose names have a case, and the rules of wildcards as they are documented.
#include <gtest/gtest.h>
#include <windows.h>

#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "tests/support/temp_folder.h"

namespace {

using testing_support::HostPathOf;
using testing_support::TempFolder;

DWORD AttributesOf(const std::string& path) {
    WIN32_FIND_DATAA found;
    const HANDLE search = FindFirstFileA(path.c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) {
        return INVALID_FILE_ATTRIBUTES;
    }
    FindClose(search);
    return found.dwFileAttributes;
}

TEST(HostFiles, QuestionMarksAlsoMatchNothingBeforeADotAndAtTheEnd) {
    const TempFolder folder;
    folder.MakeFile("a.txt");
    for (const char* fits : {"a?.txt", "a??.txt", "a.txt?", "A.*", "a.t?t", "*.?x?", "*t"}) {
        EXPECT_NE(AttributesOf(folder.Path(fits)), INVALID_FILE_ATTRIBUTES) << fits;
    }
    for (const char* not_ : {"?a.txt", "?", "a?txt", "a", "*.tx"}) {
        EXPECT_EQ(AttributesOf(folder.Path(not_)), INVALID_FILE_ATTRIBUTES) << not_;
    }
    const std::string stars = folder.Path(std::string(100, '*') + "b");
    EXPECT_EQ(AttributesOf(stars), INVALID_FILE_ATTRIBUTES) << "many stars take no time";
}

TEST(HostFiles, CaseMattersOnlyWhereTwoNamesDifferInIt) {
    const TempFolder folder;
    folder.MakeFile("Folder\\One.txt");
    folder.MakeFile("name");
    folder.MakeFolder("NAME");
    EXPECT_NE(AttributesOf(folder.Path("FOLDER\\one.TXT")), INVALID_FILE_ATTRIBUTES);
    EXPECT_FALSE(AttributesOf(folder.Path("name")) & FILE_ATTRIBUTE_DIRECTORY);
    EXPECT_TRUE(AttributesOf(folder.Path("NAME")) & FILE_ATTRIBUTE_DIRECTORY);
    EXPECT_NE(AttributesOf(folder.Path("folder/one.txt")), INVALID_FILE_ATTRIBUTES) << "a slash separates too";
}

TEST(HostFiles, ANameThatEndsInADotOnTheHostCanBeReached) {
    const TempFolder folder;
    std::ofstream(HostPathOf(folder.Path()) / "odd.") << "four";
    WIN32_FIND_DATAA found;
    for (const char* name : {"odd.", "ODD."}) {
        const HANDLE search = FindFirstFileA(folder.Path(name).c_str(), &found);
        ASSERT_NE(search, INVALID_HANDLE_VALUE) << name;
        EXPECT_STREQ(found.cFileName, "odd.");
        FindClose(search);
    }
    EXPECT_EQ(AttributesOf(folder.Path("odd")), INVALID_FILE_ATTRIBUTES);
}

// The current folder lies on a drive of the state folder: what names no drive is meant there.
TEST(HostFiles, PathsFromTheCurrentFolderOfADrive) {
    const std::filesystem::path before = std::filesystem::current_path();
    ASSERT_NE(AttributesOf("C:\\WINDOWS\\SYSTEM"), INVALID_FILE_ATTRIBUTES);
    std::filesystem::current_path(std::filesystem::path(std::getenv("CVUTIL32_HOME")) / "drive_c" / "WINDOWS");
    for (const char* name : {"\\WINDOWS", "system", "C:system", "C:\\windows", "..\\..\\..\\WINDOWS", "C:..\\WINDOWS",
                             "C:.\\SYSTEM.", "/windows/system"}) {
        EXPECT_NE(AttributesOf(name), INVALID_FILE_ATTRIBUTES) << name;
    }
    for (const char* name : {"\\etc", "C:WINDOWS", "Z:WINDOWS", "WINDOWS", " ", "1:\\WINDOWS", "\\\\WINDOWS"}) {
        EXPECT_EQ(AttributesOf(name), INVALID_FILE_ATTRIBUTES) << name;
    }
    EXPECT_NE(AttributesOf("Z:etc"), INVALID_FILE_ATTRIBUTES) << "the root, where one has not been";
    EXPECT_EQ(GetDriveTypeA("C:"), static_cast<UINT>(DRIVE_FIXED));
    EXPECT_EQ(GetDriveTypeA(".\\"), static_cast<UINT>(DRIVE_NO_ROOT_DIR));
    std::filesystem::current_path(before);
}

TEST(HostFiles, Attributes) {
    const TempFolder folder;
    const std::string hidden = folder.MakeFile(".hidden");
    const std::string locked = folder.MakeFile("locked");
    chmod(HostPathOf(locked).c_str(), 0444);
    EXPECT_EQ(AttributesOf(hidden), static_cast<DWORD>(FILE_ATTRIBUTE_HIDDEN));
    EXPECT_EQ(AttributesOf(locked), static_cast<DWORD>(FILE_ATTRIBUTE_READONLY));
    std::filesystem::create_symlink("nowhere", HostPathOf(folder.Path("broken")));
    std::filesystem::create_directory_symlink(".", HostPathOf(folder.Path("around")));
    EXPECT_EQ(AttributesOf(folder.Path("broken")), static_cast<DWORD>(FILE_ATTRIBUTE_NORMAL));
    EXPECT_EQ(AttributesOf(folder.Path("around")), static_cast<DWORD>(FILE_ATTRIBUTE_DIRECTORY));
}

TEST(HostFiles, AnEndedSearchIsFoundOut) {
    WIN32_FIND_DATAA found;
    const HANDLE search = FindFirstFileA("C:\\*", &found);
    ASSERT_NE(search, INVALID_HANDLE_VALUE);
    EXPECT_TRUE(FindClose(search));
    EXPECT_FALSE(FindClose(search));
    EXPECT_FALSE(FindNextFileA(search, &found));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INVALID_HANDLE));
}

TEST(HostFiles, LengthsOfPaths) {
    const TempFolder folder;
    const std::string base = folder.Path() + "\\";
    const std::string longest = base + std::string(259 - base.size(), 'n');
    folder.MakeFile(longest.substr(base.size()));
    EXPECT_NE(AttributesOf(longest), INVALID_FILE_ATTRIBUTES) << "259 characters";
    EXPECT_EQ(AttributesOf(longest + "n"), INVALID_FILE_ATTRIBUTES);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_FILENAME_EXCED_RANGE));
    EXPECT_EQ(AttributesOf("\\\\server\\share\\x"), INVALID_FILE_ATTRIBUTES);
}

}  // namespace
