// CSTRING: texts of the system, and which members keep the text when there is none and which make it empty.
#include <cvutil32/cstring.h>

#include "tests/resource_ids.h"
#include "tests/support/temp_folder.h"
#include "tests/support/window.h"

#include "tests/classes/strings.h"

#include <gtest/gtest.h>

#include <cstdarg>
#include <string>
#include <type_traits>

using namespace testing_support;

namespace {

HINSTANCE Program() {
    return GetModuleHandleA(nullptr);
}

TEST(CStringSystem, WindowsAndTheirClasses) {
    TestWindow window;
    CSTRING string("before");
    EXPECT_EQ("before", Text(string.GetWindowTextA(window))) << "an empty text changes nothing";
    EXPECT_EQ("before", Text(string.GetWindowTextA(nullptr)));
    EXPECT_EQ("before", Text(string.GetClassNameA(nullptr)));
    EXPECT_EQ("before", Text(string.GetDlgItemTextA(window, 7)));
    std::string const longText(3000, 'w');
    SetWindowTextA(window, longText.c_str());
    EXPECT_EQ(longText, Text(string.GetWindowTextA(window)));
    EXPECT_EQ(3000u, string.GetStrLen());
    EXPECT_EQ(3000u, string.GetByteCount());
    EXPECT_EQ("CvTestWindow", Text(string.GetClassNameA(window)));
    HWND const child = MakeChild(window, "static", 0, {0, 0, 10, 10}, 7, "child");
    EXPECT_EQ("child", Text(string.GetDlgItemTextA(window, 7)));
    DestroyWindow(child);
}

TEST(CStringSystem, ModulesAndFolders) {
    char expected[MAX_PATH] = {};
    GetModuleFileNameA(nullptr, expected, sizeof expected);
    CSTRING string("before");
    EXPECT_EQ(std::string(expected), Text(string.GetModuleFileNameA(nullptr)));
    EXPECT_EQ(std::string(expected), Text(string.GetModuleFileNameA(Program())));
    string = "before";
    EXPECT_EQ("before", Text(string.GetModuleFileNameA(reinterpret_cast<HINSTANCE>(INT_PTR{0x123450}))));
    GetWindowsDirectoryA(expected, sizeof expected);
    EXPECT_EQ(std::string(expected), Text(string.GetWindowsDirectoryA()));
}

TEST(CStringSystem, ProfileFiles) {
    TempFolder const folder;
    std::string const file =
        folder.MakeFile("test.ini", "[Section]\r\nKey=value\r\nEmpty=\r\nLong=" + std::string(300, 'l') + "\r\n");
    CSTRING string("before");
    EXPECT_EQ("value", Text(string.GetProfileStringA(file.c_str(), "section", "key", "fallback")));
    EXPECT_EQ("fallback", Text(string.GetProfileStringA(file.c_str(), "Section", "Missing", "fallback")));
    EXPECT_EQ("fallback", Text(string.GetProfileStringA(file.c_str(), "Section", "Empty", "x")));
    EXPECT_EQ("fallback", Text(string.GetProfileStringA(file.c_str(), "Section", "Missing", "")));
    EXPECT_EQ(std::string(255, 'l'), Text(string.GetProfileStringA(file.c_str(), "Section", "Long", "")));
}

TEST(CStringSystem, StringsOfResources) {
    CSTRING string("before");
    EXPECT_EQ("before", Text(string.LoadStringA(Program(), IDS_TEST_MISSING)));
    EXPECT_EQ("before", Text(string.LoadStringA(nullptr, IDS_TEST_PLAIN)));
    EXPECT_EQ("A plain text", Text(string.LoadStringA(Program(), IDS_TEST_PLAIN)));
    EXPECT_EQ("12 files in C:\\DATA", Text(string.IDsprintf(Program(), IDS_TEST_FORMAT, 12, "C:\\DATA")));
    EXPECT_EQ("12 files in C:\\DATA", Text(string.IDsprintf(Program(), IDS_TEST_MISSING, 1)));
    EXPECT_EQ("12 files in C:\\DATA", Text(string.IDsprintf(nullptr, IDS_TEST_FORMAT, 1, "x")));
}

// Lists are pointers on one host and arrays on another.
template <class List>
void* AsArgument(List& list) {
    if constexpr (std::is_pointer_v<List>) {
        return list;
    } else {
        return &list;
    }
}

void FormatInto(CSTRING& string, char const* format, ...) {
    std::va_list list;
    va_start(list, format);
    string.wvsprintfA(format, AsArgument(list));
    va_end(list);
}

TEST(CStringSystem, FormattedText) {
    CSTRING string("before");
    EXPECT_EQ("007-FF-text-x-%", Text(string.wsprintfA("%03d-%X-%s-%c-%%", 7, 255, "text", 'x')));
    FormatInto(string, "%s %d %lu %s", "list", -5, 4000000000u, "end");
    EXPECT_EQ("list -5 4000000000 end", Text(string));
    EXPECT_EQ("list -5 4000000000 end", Text(string.wsprintfA("%s", ""))) << "nothing changes nothing";
    EXPECT_EQ("list -5 4000000000 end", Text(string.wsprintfA(nullptr)));
    EXPECT_EQ("list -5 4000000000 end", Text(string.wvsprintfA("%d", nullptr)));
    EXPECT_EQ(std::string(1000, 'a'), Text(string.wsprintfA("%s", std::string(1000, 'a').c_str())));
}

class CStringRegistry : public ::testing::Test {
  protected:
    static constexpr char kSubkey[] = "Software\\Calverin\\cvutil32 string test";
    CStringRegistry() {
        RegCreateKeyExA(HKEY_CURRENT_USER, kSubkey, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key_, nullptr);
    }
    ~CStringRegistry() override {
        RegDeleteKeyA(key_, "Sub");
        RegCloseKey(key_);
        RegDeleteKeyA(HKEY_CURRENT_USER, kSubkey);
    }
    void Set(char const* name, DWORD type, std::string const& data) const {
        RegSetValueExA(key_, name, 0, type, reinterpret_cast<BYTE const*>(data.data()),
                       static_cast<DWORD>(data.size()));
    }
    HKEY key_ = nullptr;
};

TEST_F(CStringRegistry, DataOfAValue) {
    Set("Text", REG_SZ, std::string("words") + '\0');
    Set("Bytes", REG_BINARY, "bytes");
    Set("Block", REG_BINARY, std::string(32, 'b'));
    Set("", REG_SZ, std::string("unnamed") + '\0');
    CSTRING string("before");
    EXPECT_EQ("words", Text(string.RegQueryValueA(key_, "Text")));
    EXPECT_EQ(5u, string.GetStrLen());
    EXPECT_EQ("bytes", Text(string.RegQueryValueA(key_, "Bytes"))) << "whatever its type";
    EXPECT_EQ(std::string(32, 'b'), Text(string.RegQueryValueA(key_, "Block"))) << "a whole block without a NUL";
    EXPECT_EQ("unnamed", Text(string.RegQueryValueA(key_, nullptr)));
    EXPECT_EQ("", Text(string.RegQueryValueA(key_, "Missing")));
    EXPECT_EQ(0u, string.GetByteCount());
    string = "before";
    EXPECT_EQ("", Text(string.RegQueryValueA(nullptr, "Text")));
}

TEST_F(CStringRegistry, NamesByIndex) {
    Set("Name", REG_SZ, std::string("data") + '\0');
    HKEY sub = nullptr;
    RegCreateKeyExA(key_, "Sub", 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &sub, nullptr);
    RegCloseKey(sub);
    CSTRING string("before");
    CSTRING data("former data, longer");
    EXPECT_EQ("Name", Text(string.RegEnumValueA(key_, 0, &data)));
    EXPECT_EQ("data", Text(data));
    EXPECT_EQ(4u, data.GetStrLen());
    EXPECT_EQ("", Text(string.RegEnumValueA(key_, 1, nullptr)));
    EXPECT_EQ("Name", Text(string.RegEnumValueA(key_, 0, nullptr)));
    Set("Name", REG_BINARY, std::string(5000, 'x'));
    EXPECT_EQ("", Text(string.RegEnumValueA(key_, 0, &data))) << "data that does not fit";
    EXPECT_EQ("Sub", Text(string.RegEnumKeyA(key_, 0)));
    EXPECT_EQ("", Text(string.RegEnumKeyA(key_, 1)));
    string = "before";
    EXPECT_EQ("", Text(string.RegEnumKeyA(nullptr, 0)));
    alignas(CSTRING) char raw[sizeof(CSTRING)] = {};
    EXPECT_EQ("", Text(string.RegEnumValueA(key_, 0, reinterpret_cast<CSTRING*>(raw))));
    data.BufferUnlock();
    EXPECT_TRUE(data.Append("!").IsValid()) << "unlocked again";
}

TEST(CStringSystem, AnInvalidObjectIsLeftAlone) {
    alignas(CSTRING) char raw[sizeof(CSTRING)] = {};
    auto& string = *reinterpret_cast<CSTRING*>(raw);
    string.wsprintfA("%d", 1);
    string.GetModuleFileNameA(nullptr);
    string.GetWindowsDirectoryA();
    string.RegEnumKeyA(nullptr, 0);
    string.AppendSubdir("x");
    string.MakePath("C", "d", "n", "e");
    string.GetFileName("x");
    for (char const byte : raw) {
        ASSERT_EQ(0, byte);
    }
}

}  // namespace
