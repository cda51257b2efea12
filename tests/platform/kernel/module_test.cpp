// Modules and their resources.
#include <gtest/gtest.h>
#include <windows.h>

#include <cstring>
#include <string>

namespace {

TEST(Modules, TheApplicationIsTheNullModule) {
    HMODULE application = GetModuleHandleA(nullptr);
    ASSERT_NE(application, nullptr);
    char path[MAX_PATH] = {};
    const DWORD length = GetModuleFileNameA(nullptr, path, sizeof path);
    ASSERT_EQ(length, std::strlen(path));
    EXPECT_EQ(path[1], ':');
    char same[MAX_PATH] = {};
    GetModuleFileNameA(application, same, sizeof same);
    EXPECT_STREQ(path, same);
    EXPECT_EQ(GetModuleHandleA(std::strrchr(path, '\\') + 1), application);
    EXPECT_EQ(GetModuleHandleA(path), application);
    EXPECT_EQ(GetModuleHandleA((std::string("C:\\no\\such\\folder") + std::strrchr(path, '\\')).c_str()), nullptr);
    char cut[8];
    std::memset(cut, '#', sizeof cut);
    EXPECT_EQ(GetModuleFileNameA(nullptr, cut, 6), 6u);
    EXPECT_EQ(cut[6], '#') << "nothing behind the buffer is touched";
}

TEST(Modules, AMissingLibraryIsNotFound) {
    SetLastError(0);
    EXPECT_EQ(LoadLibraryA("NoSuchLibraryAnywhere.dll"), nullptr);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_MOD_NOT_FOUND));
    EXPECT_EQ(GetModuleHandleA("NoSuchLibraryAnywhere"), nullptr);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_MOD_NOT_FOUND));
}

TEST(Resources, ByNumberByNameAndByNumberInAName) {
    HINSTANCE application = GetModuleHandleA(nullptr);
    EXPECT_NE(LoadIconA(application, "SmallIcon"), nullptr);
    EXPECT_EQ(LoadIconA(application, "SMALLICON"), LoadIconA(application, "SmallIcon"));
    for (LPCSTR const name : {static_cast<LPCSTR>(MAKEINTRESOURCEA(3100)), static_cast<LPCSTR>("#3100")}) {
        const HBITMAP bitmap = LoadBitmapA(application, name);
        EXPECT_NE(bitmap, nullptr);
        DeleteObject(bitmap);
    }
    SetLastError(0);
    EXPECT_EQ(LoadBitmapA(application, "Absent"), nullptr);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_RESOURCE_NAME_NOT_FOUND));
}

TEST(Resources, StringsAreCutAtTheBuffer) {
    char buffer[64] = "old";
    HINSTANCE application = GetModuleHandleA(nullptr);
    EXPECT_EQ(LoadStringA(application, 1000, buffer, sizeof buffer), 12);
    EXPECT_STREQ(buffer, "first string");
    EXPECT_EQ(LoadStringA(application, 1015, buffer, sizeof buffer), 11);
    EXPECT_STREQ(buffer,
                 "\xC4"
                 "nd \x80 \xA9 end");
    EXPECT_EQ(LoadStringA(application, 1000, buffer, 6), 5);
    EXPECT_STREQ(buffer, "first");
    EXPECT_EQ(LoadStringA(application, 1001, buffer, sizeof buffer), 0) << "in the block, but empty";
    EXPECT_EQ(LoadStringA(application, 9999, buffer, sizeof buffer), 0);
}

}  // namespace
