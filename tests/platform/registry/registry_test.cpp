#include <gtest/gtest.h>
#include <windows.h>

#include <cstring>
#include <string>
#include <vector>

namespace {

class RegistryTest : public ::testing::Test {
  protected:
    static constexpr char kPath[] = "Software\\Calverin\\cvutil32 platform test";

    RegistryTest() {
        Clear();
        RegCreateKeyExA(HKEY_CURRENT_USER, kPath, 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_ALL_ACCESS, nullptr, &key_,
                        nullptr);
    }
    ~RegistryTest() override {
        RegCloseKey(key_);
        Clear();
    }
    // Whatever a run that was ended left there goes too.
    static void Clear() {
        DeleteTree(kPath);
    }
    static void DeleteTree(const std::string& path) {
        HKEY key = nullptr;
        if (RegOpenKeyExA(HKEY_CURRENT_USER, path.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS) {
            return;
        }
        std::vector<std::string> names;
        char name[512];
        for (DWORD i = 0; RegEnumKeyA(key, i, name, sizeof name) == ERROR_SUCCESS; ++i) {
            names.emplace_back(name);
        }
        RegCloseKey(key);
        for (const std::string& sub : names) {
            DeleteTree(path + "\\" + sub);
        }
        RegDeleteKeyA(HKEY_CURRENT_USER, path.c_str());
    }
    HKEY Make(const char* path) const {
        HKEY key = nullptr;
        EXPECT_EQ(RegCreateKeyExA(key_, path, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key, nullptr), ERROR_SUCCESS);
        return key;
    }
    LONG Set(const char* name, DWORD type, const void* data, std::size_t size) const {
        return RegSetValueExA(key_, name, 0, type, static_cast<const BYTE*>(data), static_cast<DWORD>(size));
    }
    HKEY key_ = nullptr;
};

TEST_F(RegistryTest, KeysAreMadeWithTheirParentsAndFoundInAnyCase) {
    HKEY key = nullptr;
    DWORD disposition = 0;
    ASSERT_EQ(RegCreateKeyExA(key_, "b\\c\\d\\", 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key, &disposition),
              ERROR_SUCCESS);
    EXPECT_EQ(disposition, static_cast<DWORD>(REG_CREATED_NEW_KEY));
    RegCloseKey(key);
    ASSERT_EQ(RegCreateKeyExA(key_, "B\\C\\D", 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key, &disposition),
              ERROR_SUCCESS);
    EXPECT_EQ(disposition, static_cast<DWORD>(REG_OPENED_EXISTING_KEY));
    RegCloseKey(key);
    EXPECT_EQ(RegOpenKeyExA(key_, "b\\x", 0, KEY_READ, &key), ERROR_FILE_NOT_FOUND);
    EXPECT_EQ(RegOpenKeyExA(key_, nullptr, 0, KEY_READ, &key), ERROR_SUCCESS) << "the key itself";
    EXPECT_EQ(RegCloseKey(key), ERROR_SUCCESS);
    EXPECT_EQ(RegCloseKey(key), ERROR_INVALID_HANDLE);
    EXPECT_EQ(RegOpenKeyExA(key, "b", 0, KEY_READ, &key), ERROR_INVALID_HANDLE);
    EXPECT_EQ(RegCloseKey(HKEY_CURRENT_USER), ERROR_SUCCESS) << "a root needs no closing";
}

TEST_F(RegistryTest, KeysAreListedByNameAndDeletedFromTheLeaves) {
    for (const char* name : {"z", "A", "b\\c"}) {
        RegCloseKey(Make(name));
    }
    std::string names;
    char name[8];
    for (DWORD i = 0; RegEnumKeyA(key_, i, name, sizeof name) == ERROR_SUCCESS; ++i) {
        names += name;
    }
    EXPECT_EQ(names, "Abz");
    EXPECT_EQ(RegEnumKeyA(key_, 3, name, sizeof name), ERROR_NO_MORE_ITEMS);
    EXPECT_EQ(RegEnumKeyA(key_, 0, name, 1), ERROR_MORE_DATA);
    EXPECT_EQ(RegDeleteKeyA(key_, "b"), ERROR_ACCESS_DENIED);
    EXPECT_EQ(RegDeleteKeyA(key_, "b\\c"), ERROR_SUCCESS);
    EXPECT_EQ(RegDeleteKeyA(key_, "b"), ERROR_SUCCESS);
    EXPECT_EQ(RegDeleteKeyA(key_, "b"), ERROR_FILE_NOT_FOUND);
}

TEST_F(RegistryTest, AnOpenKeyThatIsDeletedSaysSo) {
    const HKEY key = Make("A");
    ASSERT_EQ(RegDeleteKeyA(key_, "A"), ERROR_SUCCESS);
    DWORD size = 0;
    HKEY other = nullptr;
    EXPECT_EQ(RegQueryValueExA(key, "x", nullptr, nullptr, nullptr, &size), ERROR_KEY_DELETED);
    EXPECT_EQ(RegSetValueExA(key, "x", 0, REG_BINARY, reinterpret_cast<const BYTE*>("x"), 1), ERROR_KEY_DELETED);
    EXPECT_EQ(RegCreateKeyExA(key, "b", 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &other, nullptr), ERROR_KEY_DELETED);
    EXPECT_EQ(RegCloseKey(key), ERROR_SUCCESS);
    const HKEY again = Make("A");
    EXPECT_EQ(RegQueryValueExA(again, "x", nullptr, nullptr, nullptr, &size), ERROR_FILE_NOT_FOUND);
    RegCloseKey(again);
}

// Where a NUL follows what was counted, it was forgotten; a text that has none is kept as it is.
TEST_F(RegistryTest, ATextWithoutItsEndFitsIntoItsOwnSize) {
    const char whole[] = "abcd";
    char data[8] = "#######";
    for (const DWORD type : {REG_SZ, REG_EXPAND_SZ, REG_MULTI_SZ}) {
        ASSERT_EQ(Set("Text", type, whole, 2), ERROR_SUCCESS);
        std::memset(data, '#', sizeof data);
        DWORD size = 2;
        EXPECT_EQ(RegQueryValueExA(key_, "Text", nullptr, nullptr, reinterpret_cast<BYTE*>(data), &size),
                  ERROR_SUCCESS);
        EXPECT_EQ(size, 2u);
        EXPECT_EQ(std::string(data, 3), "ab#");
        size = 3;
        EXPECT_EQ(RegQueryValueExA(key_, "Text", nullptr, nullptr, reinterpret_cast<BYTE*>(data), &size),
                  ERROR_SUCCESS);
        EXPECT_EQ(size, 2u);
        EXPECT_STREQ(data, "ab") << "an end is added where there is room";
        size = 1;
        EXPECT_EQ(RegQueryValueExA(key_, "Text", nullptr, nullptr, reinterpret_cast<BYTE*>(data), &size),
                  ERROR_MORE_DATA);
        EXPECT_EQ(size, 2u) << "what it needs";
        char name[8];
        DWORD nameSize = sizeof name;
        size = 2;
        std::memset(data, '#', sizeof data);
        EXPECT_EQ(RegEnumValueA(key_, 0, name, &nameSize, nullptr, nullptr, reinterpret_cast<BYTE*>(data), &size),
                  ERROR_SUCCESS);
        EXPECT_EQ(std::string(data, 3), "ab#");
    }
}

TEST_F(RegistryTest, AHandleDoesWhatItWasOpenedFor) {
    HKEY reader = nullptr;
    ASSERT_EQ(RegOpenKeyExA(HKEY_CURRENT_USER, kPath, 0, KEY_READ, &reader), ERROR_SUCCESS);
    EXPECT_EQ(RegSetValueExA(reader, "x", 0, REG_BINARY, reinterpret_cast<const BYTE*>("x"), 1), ERROR_ACCESS_DENIED);
    EXPECT_EQ(RegDeleteValueA(reader, "x"), ERROR_ACCESS_DENIED);
    DWORD size = 0;
    EXPECT_EQ(RegQueryValueExA(reader, "x", nullptr, nullptr, nullptr, &size), ERROR_FILE_NOT_FOUND);
    RegCloseKey(reader);
    HKEY writer = nullptr;
    ASSERT_EQ(RegOpenKeyExA(HKEY_CURRENT_USER, kPath, 0, KEY_SET_VALUE, &writer), ERROR_SUCCESS);
    EXPECT_EQ(RegQueryValueExA(writer, "x", nullptr, nullptr, nullptr, &size), ERROR_ACCESS_DENIED);
    RegCloseKey(writer);
}

TEST_F(RegistryTest, BadArguments) {
    HKEY key = nullptr;
    DWORD size = 1;
    BYTE byte = 0;
    EXPECT_EQ(RegQueryValueExA(key_, "x", nullptr, nullptr, &byte, nullptr), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(RegOpenKeyExA(nullptr, "x", 0, KEY_READ, &key), ERROR_INVALID_HANDLE);
    EXPECT_EQ(RegEnumValueA(key_, 0, nullptr, &size, nullptr, nullptr, nullptr, nullptr), ERROR_INVALID_PARAMETER);
    EXPECT_NE(RegSetValueExA(key_, "x", 0, REG_BINARY, nullptr, 1), ERROR_SUCCESS);
    EXPECT_EQ(RegCloseKey(reinterpret_cast<HKEY>(INT_PTR{0x7FFF1234})), ERROR_INVALID_HANDLE);
}

}  // namespace
