#include <cvutil32/clist.h>
#include <cvutil32/cdatastr.h>

#include "tests/classes/strings.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace {

using Texts = std::vector<std::string>;

Texts Items(const CDATASTR& list, char delimiter) {
    Texts items;
    CSTRING item;
    for (unsigned int position = 0; list.EnumDataItems(&position, &item, delimiter);) {
        items.push_back(Text(item));
    }
    EXPECT_EQ(Text(item), "");
    return items;
}

Texts Specifications(const CDATASTR& list) {
    Texts found;
    CSTRING item;
    int quoted = -1;
    for (unsigned int position = 0; list.EnumFileSpecs(&position, &item, &quoted);) {
        found.push_back((quoted ? "Q:" : "U:") + Text(item));
    }
    return found;
}

template <class Edit>
std::string EditedList(const char* text, Edit edit) {
    CDATASTR list(text);
    edit(list);
    return Text(list);
}

TEST(DataString, DelimitersAreCollapsedTrimmedAndMapped) {
    const auto clean = [](CDATASTR& list) { list.CleanDelimiters(';'); };
    EXPECT_EQ(EditedList(";;a;;;b;", clean), "a;b");
    EXPECT_EQ(EditedList(";", clean), "");
    EXPECT_EQ(EditedList("", clean), "");
    EXPECT_EQ(EditedList(";;;;;;;", clean), "");
    EXPECT_EQ(EditedList("a b", clean), "a b");
    EXPECT_EQ(EditedList("a,b;c\r\nd", [](CDATASTR& list) { list.NormalizeDelimiters(' ', DATASTR_DELIMITERS); }),
              "a b c  d");
    EXPECT_EQ(EditedList("a,b", [](CDATASTR& list) { list.NormalizeDelimiters(',', nullptr); }), "a,b");
    const auto unescape = [](CDATASTR& list) { list.RemoveBackslashes(';'); };
    EXPECT_EQ(EditedList("a\\;b", unescape), "a;b");
    EXPECT_EQ(EditedList("a\\\\;b\\c", unescape), "a\\;b\\c");
}

TEST(DataString, DuplicatesGoWhereverTheirTextStands) {
    const auto unique = [](CDATASTR& list) { list.RemoveDuplicates(';'); };
    EXPECT_EQ(EditedList("a;b;A", unique), "a;b;");
    EXPECT_EQ(EditedList("a;ba", unique), "a;b");
    EXPECT_EQ(EditedList("a;;a;", unique), "a;;;");
    EXPECT_EQ(EditedList("x", unique), "x");
}

TEST(DataString, ItemsAndPositions) {
    EXPECT_EQ(Items(CDATASTR("x;;y"), ';'), (Texts{"x", "", "y"}));
    EXPECT_EQ(Items(CDATASTR("x;"), ';'), (Texts{"x"}));
    EXPECT_EQ(Items(CDATASTR(""), ';'), Texts{});
    const CDATASTR list("x;;y");
    CSTRING item;
    unsigned int position = 0;
    std::vector<unsigned int> positions;
    while (list.EnumDataItems(&position, &item, ';')) {
        positions.push_back(position);
    }
    EXPECT_EQ(positions, (std::vector<unsigned int>{2, 3, 5}));
    EXPECT_EQ(list.EnumDataItems(nullptr, &item, ';'), 0);
    EXPECT_EQ(list.EnumDataItems(&position, static_cast<CSTRING*>(nullptr), ';'), 0);
}

TEST(DataString, NumbersAreReadAsFarAsTheyFit) {
    struct {
        const char* item;
        int result;
        unsigned int value;
    } const cases[] = {{"12", 1, 12}, {"  +7x", 1, 7}, {"-3", 1, 0xFFFFFFFD},        {"abc", 0, 0},
                       {"-", 0, 0},   {" \t", 1, 77},  {"2147483647", 1, 2147483647}};
    for (const auto& c : cases) {
        const CDATASTR list(c.item);
        unsigned int position = 0;
        unsigned int value = 77;
        EXPECT_EQ(list.EnumDataItems(&position, &value, ';'), c.result) << c.item;
        EXPECT_EQ(value, c.value) << c.item;
    }
    const CDATASTR list("12;abc;7");
    unsigned int position = 3;
    unsigned int value = 77;
    EXPECT_EQ(list.EnumDataItems(&position, &value, ';'), 0);
    EXPECT_EQ(position, 7u) << "it has moved past the item";
    EXPECT_EQ(list.EnumDataItems(&position, &value, ';'), 1);
    EXPECT_EQ(value, 7u);
    EXPECT_EQ(list.EnumDataItems(&position, static_cast<unsigned int*>(nullptr), ';'), 0);
}

TEST(DataString, FileSpecifications) {
    EXPECT_EQ(Specifications(CDATASTR("a.txt,b.txt;c.txt")), (Texts{"U:a.txt", "U:b.txt", "U:c.txt"}));
    EXPECT_EQ(Specifications(CDATASTR("\"my file.txt\" b.txt")), (Texts{"Q:my file.txt", "U:b.txt"}));
    // A space before the next quote: the rest is split at its spaces, without quotes.
    EXPECT_EQ(Specifications(CDATASTR("a \"b c\"")), (Texts{"U:a", "U:b", "U:c"}));
    // The position is counted in the cleaned list, so a run of delimiters makes a later item start with a tail.
    EXPECT_EQ(Specifications(CDATASTR(",,ab,c")), (Texts{"U:ab", "U:b", "U:c"}));
    EXPECT_EQ(Specifications(CDATASTR("")), Texts{});
    CSTRING item("kept");
    int quoted = 5;
    unsigned int position = 0;
    EXPECT_EQ(CDATASTR("").EnumFileSpecs(&position, &item, &quoted), 0);
    EXPECT_EQ(Text(item), "");
    EXPECT_EQ(quoted, 5);
    EXPECT_EQ(CDATASTR("a").EnumFileSpecs(&position, &item, nullptr), 1);
}

// What a window wrote into the buffer may hold bytes that the character walk stops at.
void Write(CDATASTR& list, const char* text) {
    lstrcpyA(list.BufferLock(0), text);
    list.BufferUnlock();
}

TEST(DataString, EveryWalkEndsAlsoBehindTheEndOfTheCharacterWalk) {
    CDATASTR list;
    Write(list, "\"C:\\M\xFCller\" \"b\"");
    EXPECT_EQ(Specifications(list), (Texts{"Q:C:\\M", "Q:C:\\M"}));
    list.NormalizeFileSpecs();
    EXPECT_LT(list.GetStrLen(), 40u);
    Write(list, "one;M\xFCller;three");
    EXPECT_EQ(Items(list, ';'), (Texts{"one", "M"}));
    Write(list, "a.txt M\xFCller.txt c.txt");
    list.NormalizeFileSpecs();
    EXPECT_EQ(Text(list), "a.txt M");
    Write(list, "\xE9;;;;\xE9;;");
    list.CleanDelimiters(';');
    Write(list, "a;b\xE9\x61\x61\x61");
    list.RemoveDuplicates(';');
    EXPECT_TRUE(list.IsValid());
}

TEST(DataString, ATextUnderALockIsNotWalkedForEver) {
    CDATASTR list("ab");
    lstrcpyA(list.BufferLock(0), "  aXbbaX; ;; ");
    list.NormalizeFileSpecs();
    list.CleanDelimiters(';');
    list.RemoveDuplicates(';');
    list.BufferUnlock();
    EXPECT_EQ(Text(list).substr(0, 2), "aX") << "deleting works in place, as far as the length that was counted";
}

TEST(DataString, NormalizedFileSpecifications) {
    const auto normalize = [](CDATASTR& list) { list.NormalizeFileSpecs(); };
    EXPECT_EQ(EditedList(" a.txt,b.txt; ", normalize), "a.txt b.txt");
    EXPECT_EQ(EditedList("\"my file.txt\"", normalize), "\"my file.txt\"");
    EXPECT_EQ(EditedList("  ", normalize), "");
    EXPECT_EQ(EditedList("", normalize), "");
    CDATASTR list("a,b");
    list.NormalizeFileSpecs();
    EXPECT_TRUE(list.IsValid()) << "it goes on working";
    list.NormalizeFileSpecs();
    EXPECT_EQ(Text(list), "a b");
}

TEST(DataString, CopiesShareAMarkerThatOutlivesEachOfThem) {
    auto first = std::make_unique<CDATASTR>("a;b");
    auto second = std::make_unique<CDATASTR>(*first);
    CDATASTR third("c");
    third = *second;
    first.reset();
    EXPECT_TRUE(second->IsValid());
    EXPECT_EQ(Items(*second, ';'), (Texts{"a", "b"}));
    second.reset();
    EXPECT_TRUE(third.IsValid());
    CDATASTR& same = third;
    third = same;
    EXPECT_EQ(Items(third, ';'), (Texts{"a", "b"}));
}

TEST(DataString, APlainStringIsNone) {
    const CDATASTR prototype("a;b");
    CLIST list(prototype, 1);
    auto* element = static_cast<CSTRING*>(list.New());
    ASSERT_NE(element, nullptr);
    EXPECT_EQ(prototype.vGetSize(), sizeof(CSTRING));
    EXPECT_EQ(Text(*element), "a;b");
}

TEST(DataString, OverwrittenObjectsDoNothing) {
    alignas(CDATASTR) char raw[sizeof(CDATASTR)];
    auto* list = new (raw) CDATASTR("a;;b");
    const std::string saved(raw, sizeof raw);
    raw[sizeof(void*)] ^= 1;
    EXPECT_FALSE(list->IsValid());
    list->CleanDelimiters(';');
    list->NormalizeFileSpecs();
    CSTRING item("kept");
    unsigned int position = 0;
    EXPECT_EQ(list->EnumDataItems(&position, &item, ';'), 0);
    EXPECT_EQ(Text(item), "kept");
    std::copy(saved.begin(), saved.end(), raw);
    EXPECT_EQ(Text(*list), "a;;b");
    list->~CDATASTR();
    EXPECT_FALSE(list->IsValid());
}

}  // namespace
