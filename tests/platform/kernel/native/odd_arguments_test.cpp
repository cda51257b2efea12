// Pointers that lead nowhere, handles that are none and huge sizes: each call answers with an error, and nothing falls.
#include <gtest/gtest.h>
#include <windows.h>

#include <sys/mman.h>
#include <unistd.h>

#include <cstring>

namespace {

// A pointer to no memory, one that cannot be a pointer, and a text that runs into memory that is none.
class OddArguments : public ::testing::Test {
  protected:
    OddArguments() {
        const auto page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
        pages_ =
            static_cast<char*>(mmap(nullptr, 2 * page, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
        mprotect(pages_ + page, page, PROT_NONE);
        std::memset(pages_, 'x', page);
        texts_[1] = pages_ + page;
        texts_[2] = pages_ + page - 4;
        size_ = 2 * page;
    }
    ~OddArguments() override {
        munmap(pages_, size_);
    }
    char* pages_ = nullptr;
    std::size_t size_ = 0;
    char* texts_[3] = {reinterpret_cast<char*>(INT_PTR{-1}), nullptr, nullptr};
};

template <class Type>
Type* At(char* text) {
    return reinterpret_cast<Type*>(text);
}

TEST_F(OddArguments, Registry) {
    HKEY key = nullptr;
    ASSERT_EQ(RegCreateKeyExA(HKEY_CURRENT_USER, "Software\\Calverin\\odd", 0, nullptr, 0, KEY_ALL_ACCESS, nullptr,
                              &key, nullptr),
              ERROR_SUCCESS);
    ASSERT_EQ(RegSetValueExA(key, "v", 0, REG_SZ, At<const BYTE>(texts_[2]), 4), ERROR_SUCCESS)
        << "nothing is read behind a text at the end of the memory";
    HKEY other = nullptr;
    for (char* bad : texts_) {
        DWORD size = 4;
        DWORD nameSize = 4;
        char name[4];
        EXPECT_EQ(RegOpenKeyExA(key, bad, 0, KEY_READ, &other), ERROR_NOACCESS);
        EXPECT_EQ(RegCreateKeyExA(key, bad, 0, nullptr, 0, KEY_READ, nullptr, &other, nullptr), ERROR_NOACCESS);
        EXPECT_EQ(RegDeleteKeyA(key, bad), ERROR_NOACCESS);
        EXPECT_EQ(RegDeleteValueA(key, bad), ERROR_NOACCESS);
        EXPECT_EQ(RegSetValueExA(key, bad, 0, REG_DWORD, At<const BYTE>(name), 4), ERROR_NOACCESS);
        EXPECT_EQ(RegQueryValueExA(key, bad, nullptr, nullptr, nullptr, &size), ERROR_NOACCESS);
        if (bad == texts_[2]) {
            break;  // four bytes of memory that serve for a result
        }
        EXPECT_EQ(RegOpenKeyExA(key, "", 0, KEY_READ, At<HKEY>(bad)), ERROR_NOACCESS);
        EXPECT_EQ(RegCreateKeyExA(key, "a", 0, nullptr, 0, KEY_READ, nullptr, &other, At<DWORD>(bad)), ERROR_NOACCESS);
        EXPECT_EQ(RegSetValueExA(key, "w", 0, REG_SZ, At<const BYTE>(bad), 4), ERROR_NOACCESS);
        EXPECT_EQ(RegQueryValueExA(key, "v", nullptr, At<DWORD>(bad), nullptr, nullptr), ERROR_NOACCESS);
        EXPECT_EQ(RegQueryValueExA(key, "v", nullptr, nullptr, nullptr, At<DWORD>(bad)), ERROR_NOACCESS);
        EXPECT_EQ(RegQueryValueExA(key, "v", nullptr, nullptr, At<BYTE>(bad), &size), ERROR_NOACCESS);
        EXPECT_EQ(RegEnumValueA(key, 0, bad, &nameSize, nullptr, nullptr, nullptr, nullptr), ERROR_NOACCESS);
        EXPECT_EQ(RegEnumValueA(key, 0, name, At<DWORD>(bad), nullptr, nullptr, nullptr, nullptr), ERROR_NOACCESS);
        EXPECT_EQ(RegEnumKeyExA(HKEY_CURRENT_USER, 0, bad, &(size = 255), nullptr, nullptr, nullptr, nullptr),
                  ERROR_NOACCESS);
    }
    for (const DWORD size : {0x7FFFFFFFu, 0x80000000u, 0xFFFFFFFFu}) {
        for (const DWORD type : {REG_SZ, REG_BINARY, REG_MULTI_SZ}) {
            EXPECT_NE(RegSetValueExA(key, "w", 0, type, At<const BYTE>(pages_), size), ERROR_SUCCESS);
        }
    }
    EXPECT_EQ(RegEnumValueA(key, 0xFFFFFFFF, pages_, At<DWORD>(pages_ + 64), nullptr, nullptr, nullptr, nullptr),
              ERROR_NO_MORE_ITEMS);
    for (const INT_PTR stale : {INT_PTR{-1}, INT_PTR{1}, INT_PTR{0x7FFFFFFF}}) {
        const auto none = reinterpret_cast<HKEY>(stale);
        EXPECT_EQ(RegCloseKey(none), ERROR_INVALID_HANDLE);
        EXPECT_EQ(RegDeleteKeyA(none, "a"), ERROR_INVALID_HANDLE);
        EXPECT_EQ(RegOpenKeyExA(none, "a", 0, KEY_READ, &other), ERROR_INVALID_HANDLE);
    }
    RegCloseKey(key);
    RegDeleteKeyA(HKEY_CURRENT_USER, "Software\\Calverin\\odd");
}

TEST_F(OddArguments, FilesAndModules) {
    WIN32_FIND_DATAA found;
    for (char* bad : texts_) {
        EXPECT_EQ(GetFileAttributesA(bad), INVALID_FILE_ATTRIBUTES);
        EXPECT_EQ(FindFirstFileA(bad, &found), INVALID_HANDLE_VALUE);
        EXPECT_EQ(GetDriveTypeA(bad), static_cast<UINT>(DRIVE_NO_ROOT_DIR));
        EXPECT_EQ(GetModuleHandleA(bad), nullptr);
        EXPECT_EQ(LoadLibraryA(bad), nullptr);
        EXPECT_EQ(GetProcAddress(GetModuleHandleA(nullptr), bad), nullptr);
        EXPECT_EQ(FindFirstFileA("C:\\*", At<WIN32_FIND_DATAA>(bad)), INVALID_HANDLE_VALUE);
        EXPECT_EQ(GetModuleFileNameA(nullptr, bad, 0xFFFFFFFF), 0u);
    }
    const HANDLE search = FindFirstFileA("C:\\*", &found);
    ASSERT_NE(search, INVALID_HANDLE_VALUE);
    EXPECT_FALSE(FindNextFileA(search, At<WIN32_FIND_DATAA>(texts_[0])));
    EXPECT_FALSE(FindNextFileA(search, nullptr));
    EXPECT_TRUE(FindClose(search));
    EXPECT_FALSE(FindClose(INVALID_HANDLE_VALUE));
    EXPECT_FALSE(FreeLibrary(reinterpret_cast<HMODULE>(INT_PTR{-1})));
    EXPECT_EQ(GetDriveTypeA(""), static_cast<UINT>(DRIVE_NO_ROOT_DIR));
    EXPECT_EQ(GetFileAttributesA("..."), GetFileAttributesA("."));
    EXPECT_EQ(GetFileAttributesA(":"), INVALID_FILE_ATTRIBUTES);
    EXPECT_EQ(GetFileAttributesA("\\\\.\\"), INVALID_FILE_ATTRIBUTES);
}

}  // namespace
