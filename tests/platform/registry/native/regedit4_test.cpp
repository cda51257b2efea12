// The REGEDIT4 format and its way through the registry.
#include <gtest/gtest.h>
#include <windows.h>

#include <string>

#include "tools/cvreg/regedit4.h"
#include "tools/cvreg/tree.h"

namespace {

using cvreg::Entry;

TEST(Regedit4, EveryKindOfLine) {
    const std::string text =
        "REGEDIT4\r\n\r\n; a remark\r\n[HKEY_CURRENT_USER\\Soft]ware\\]\r\n@=\"un\\\"named\\\\\"\r\n"
        "\"a=b\" = dword:0000001F\n\"bytes\"=hex:01,fF,\\\r\n  "
        "3\r\n\"list\"=hex(7):61,00,00\n\"none\"=hex:\n\"old\"=-\n"
        "[-HKLM\\Gone]";
    std::vector<Entry> entries;
    std::string error;
    ASSERT_TRUE(cvreg::Parse(text, &entries, &error)) << error;
    ASSERT_EQ(entries.size(), 8u);
    EXPECT_EQ(entries[0].kind, Entry::Key);
    EXPECT_EQ(entries[0].key, "HKEY_CURRENT_USER\\Soft]ware\\");
    EXPECT_EQ(entries[1].data, std::string("un\"named\\") + '\0');
    EXPECT_EQ(entries[1].name, "");
    EXPECT_EQ(entries[2].name, "a=b");
    EXPECT_EQ(entries[2].data, std::string("\x1F\0\0\0", 4));
    EXPECT_EQ(entries[3].data, "\x01\xFF\x03");
    EXPECT_EQ(entries[3].type, static_cast<DWORD>(REG_BINARY));
    EXPECT_EQ(entries[4].type, static_cast<DWORD>(REG_MULTI_SZ));
    EXPECT_EQ(entries[4].data, std::string("a\0\0", 3));
    EXPECT_EQ(entries[5].data, "");
    EXPECT_EQ(entries[6].kind, Entry::DeletedValue);
    EXPECT_EQ(entries[7].kind, Entry::DeletedKey);
    EXPECT_EQ(entries[7].key, "HKLM\\Gone");
}

TEST(Regedit4, WhatPeopleWrite) {
    const std::string text =
        "\r\nREGEDIT4 ; made by hand\r\n[HKCU\\Soft] ; why\r\n\"number\"=DWORD:1F ; why\r\n\"text\"=\"a;b\" ;c "
        "\"d\"\r\n"
        "\"bytes\"=HEX(2):01,\\ ; goes on\r\n  02, ; ends\r\n\"path\" = \"C:\\new\\table\\\\\"\r\n"
        "\"lines\"=\"one\r\ntwo\"\r\n\"old\"=- ; why\r\n[-HKCU\\Gone];why";
    std::vector<Entry> entries;
    std::string error;
    ASSERT_TRUE(cvreg::Parse(text, &entries, &error)) << error;
    ASSERT_EQ(entries.size(), 8u);
    EXPECT_EQ(entries[0].key, "HKCU\\Soft");
    EXPECT_EQ(entries[1].data, std::string("\x1F\0\0\0", 4));
    EXPECT_EQ(entries[2].data, std::string("a;b") + '\0');
    EXPECT_EQ(entries[3].type, static_cast<DWORD>(REG_EXPAND_SZ));
    EXPECT_EQ(entries[3].data, "\x01\x02");
    EXPECT_EQ(entries[4].data, std::string("C:\\new\\table\\") + '\0');
    EXPECT_EQ(entries[5].data, std::string("one\r\ntwo") + '\0');
    EXPECT_EQ(entries[6].kind, Entry::DeletedValue);
    EXPECT_EQ(entries[6].line, 11) << "behind a text of two lines";
    EXPECT_EQ(entries[7].key, "HKCU\\Gone");
}

TEST(Regedit4, NamesTheLineThatItCannotUnderstand) {
    struct {
        const char* text;
        const char* line;
    } const cases[] = {{"", "line 1: the file is empty"},
                       {"\n\n", "line 3: the file is empty"},
                       {"\xFF\xFEW", "line 1: this is a file of a later format"},
                       {"\xEF\xBB\xBFREGEDIT4\n", "line 1: this is UTF-8"},
                       {"Windows Registry\n", "line 1"},
                       {"REGEDIT45\n", "line 1"},
                       {"REGEDIT4\n\"a\"=\"b\"\n", "line 2"},
                       {"REGEDIT4\n[k]\n\"a\"=\"b\n\n", "line 3: the text in quotes has no end"},
                       {"REGEDIT4\n[k]\n\"a\"=\"b\"x\n", "line 3"},
                       {"REGEDIT4\n[k]\n\"a\"=\"b\n\"c\"=\"d\"\n", "line 4: something follows"},
                       {"REGEDIT4\n[k]\n\"a\"=\n", "line 3"},
                       {"REGEDIT4\n[k]\n\"a\"=dword:123456789\n", "line 3"},
                       {"REGEDIT4\n[k]\n\"a\"=hex:123\n", "line 3"},
                       {"REGEDIT4\n[k]\n\"a\"=hex:1,\\\n,2\n", "line 4"},
                       {"REGEDIT4\n[k]\n\"a\"=hex:1,\\", "line 3"},
                       {"REGEDIT4\n[k]\n\"a\"=hex(:1\n", "line 3"},
                       {"REGEDIT4\n[k\n", "line 2"},
                       {"REGEDIT4\n[k] x\n", "line 2"},
                       {"REGEDIT4\n[\"k\n", "line 2"},
                       {"REGEDIT4\n[]\n", "line 2"},
                       {"REGEDIT4\n[-k]\n\"a\"=\"b\"\n", "line 3"},
                       {"REGEDIT4\n[k]\na=b\n", "line 3"},
                       {"REGEDIT4\n[k]\n\"a\\", "line 3"}};
    for (const auto& c : cases) {
        std::vector<Entry> entries;
        std::string error;
        EXPECT_FALSE(cvreg::Parse(c.text, &entries, &error)) << c.text;
        EXPECT_TRUE(error.starts_with(c.line)) << c.text << ": " << error;
        EXPECT_TRUE(entries.empty());
    }
}

// What can never be done is found before anything is.
TEST(Regedit4, AFileWithAnErrorChangesNothing) {
    const std::string base = "HKCU\\Software\\Calverin\\cvreg none";
    const std::string begin = "REGEDIT4\n[" + base + "]\n\"a\"=\"b\"\n";
    cvreg::DeleteTree(base);
    struct {
        std::string text;
        const char* says;
    } const cases[] = {{"\"a\"=dword:x\n", "line 4: a dword"},
                       {"[HKEY_NOWHERE\\x]\n", "line 4: HKEY_NOWHERE\\x does not begin with a root"},
                       {"\n[HKCU\\x\\" + std::string(256, 'k') + "]\n", "line 5: the name of a key is too long"},
                       {"\"" + std::string(16384, 'v') + "\"=-\n", "line 4: the name of the value is too long"},
                       {std::string("\"a\0b\"=-\n", 9), "line 4: a name with a zero byte"},
                       {"[-HKCU]\n", "line 4: HKCU cannot be deleted"},
                       {"[-HKLM\\software\\CLASSES]\n", "line 4: HKLM\\software\\CLASSES cannot be deleted"}};
    for (const auto& c : cases) {
        std::string error;
        EXPECT_FALSE(cvreg::Import(begin + c.text, &error)) << c.says;
        EXPECT_TRUE(error.starts_with(c.says)) << error;
        cvreg::OpenKey key;
        EXPECT_EQ(key.Open(base), ERROR_FILE_NOT_FOUND) << c.says;
    }
    EXPECT_EQ(cvreg::DeleteTree("HKLM"), ERROR_ACCESS_DENIED);
    cvreg::OpenKey kept;
    EXPECT_EQ(kept.Open("HKLM\\SOFTWARE\\Microsoft\\Windows"), ERROR_SUCCESS) << "nothing below a root goes either";
}

TEST(Regedit4, WhatIsExportedComesBackTheSame) {
    const std::string base = "HKEY_CURRENT_USER\\Software\\Calverin\\cvreg test";
    const std::string other = "HKEY_CURRENT_USER\\Software\\Calverin\\cvreg copy";
    cvreg::DeleteTree(base);
    cvreg::DeleteTree(other);
    std::string bytes;
    for (int i = 0; i < 256; ++i) {
        bytes += static_cast<char>(i);
    }
    const cvreg::NamedValue values[] = {{"", REG_SZ, std::string("plain \"\\\xE9") + '\0'},
                                        {"two lines", REG_SZ, std::string("a\r\nb") + '\0'},
                                        {"name \"\\]=", REG_DWORD, std::string("\x80\0\0\xFF", 4)},
                                        {"short", REG_DWORD, "\x80"},
                                        {"bytes", REG_BINARY, bytes},
                                        {"empty", REG_BINARY, ""},
                                        {"none", REG_NONE, "x"},
                                        {"nothing", REG_SZ, ""},
                                        {"list", REG_MULTI_SZ, std::string("a\0b\0\0", 5)},
                                        {"no end", REG_SZ, "text"},
                                        {"\n\"name\r\nof\\ lines\n", REG_SZ, std::string("C:\\new\\") + '\0'},
                                        {"[x]\n;", REG_DWORD, std::string("\1\0\0\0", 4)}};
    for (const char* sub : {"Sub key\\Deep", "a\nb", "]", "x] ; y", "] ", "\r\n]\n[\"z", " blanks ", "a\"b\\c\n"}) {
        cvreg::OpenKey key;
        ASSERT_EQ(key.Create(base + '\\' + sub), ERROR_SUCCESS);
        for (const auto& value : values) {
            ASSERT_EQ(cvreg::WriteValue(key, value), ERROR_SUCCESS);
        }
    }
    std::string first = cvreg::kHeading;
    ASSERT_EQ(cvreg::Export(base, &first), ERROR_SUCCESS);
    std::string text = first;
    for (std::size_t at = 0; (at = text.find("cvreg test", at)) != std::string::npos;) {
        text.replace(at, 10, "cvreg copy");
    }
    std::string error;
    ASSERT_TRUE(cvreg::Import(text, &error)) << error;
    std::string second = cvreg::kHeading;
    ASSERT_EQ(cvreg::Export(other, &second), ERROR_SUCCESS);
    EXPECT_EQ(second, text);
    ASSERT_TRUE(cvreg::Import("REGEDIT4\n[-" + other + "]\n", &error)) << error;
    cvreg::OpenKey gone;
    EXPECT_EQ(gone.Open(other), ERROR_FILE_NOT_FOUND);
    cvreg::DeleteTree(base);
}

}  // namespace
