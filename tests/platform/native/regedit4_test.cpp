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

TEST(Regedit4, NamesTheLineThatItCannotUnderstand) {
    struct {
        const char* text;
        const char* line;
    } const cases[] = {{"", "line 0"},
                       {"Windows Registry\n", "line 1"},
                       {"REGEDIT4\n\"a\"=\"b\"\n", "line 2"},
                       {"REGEDIT4\n[k]\n\"a\"=\"b\n", "line 3"},
                       {"REGEDIT4\n[k]\n\"a\"=\"b\"x\n", "line 3"},
                       {"REGEDIT4\n[k]\n\"a\"=dword:123456789\n", "line 3"},
                       {"REGEDIT4\n[k]\n\"a\"=hex:123\n", "line 3"},
                       {"REGEDIT4\n[k]\n\"a\"=hex(:1\n", "line 3"},
                       {"REGEDIT4\n[k\n", "line 2"},
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
                                        {"list", REG_MULTI_SZ, std::string("a\0b\0\0", 5)}};
    {
        cvreg::OpenKey key;
        ASSERT_EQ(key.Create(base + "\\Sub key\\Deep"), ERROR_SUCCESS);
        for (const auto& value : values) {
            ASSERT_EQ(
                RegSetValueExA(key, value.name.c_str(), 0, value.type, reinterpret_cast<const BYTE*>(value.data.data()),
                               static_cast<DWORD>(value.data.size())),
                ERROR_SUCCESS);
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
    EXPECT_FALSE(cvreg::Import("REGEDIT4\n[" + other + "]\n\"a\"=dword:x\n", &error));
    EXPECT_EQ(gone.Open(other), ERROR_FILE_NOT_FOUND) << "a file that is wrong anywhere changes nothing";
    EXPECT_FALSE(cvreg::Import("REGEDIT4\n[HKEY_NOWHERE\\x]\n", &error));
    cvreg::DeleteTree(base);
}

}  // namespace
