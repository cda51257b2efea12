// What the manual warns of: expressions that the compiler refuses, and those that it cannot.
#include <cvutil32.h>

#include <gtest/gtest.h>

#include <cstddef>
#include <new>
#include <string>
#include <type_traits>

#include "tests/support/leaks.h"

#include "tests/classes/strings.h"

namespace {

template <class Left, class Right>
concept Equals = requires(Left left, Right right) {
    left == right;
};
template <class Left, class Right>
concept Differs = requires(Left left, Right right) {
    left != right;
};
template <class Left, class Right>
concept Precedes = requires(Left left, Right right) {
    left < right;
};
template <class Left, class Right>
concept Follows = requires(Left left, Right right) {
    left > right;
};
template <class Left, class Right>
concept Adds = requires(Left left, Right right) {
    left + right;
};
template <class Index>
concept Indexes = requires(CSTRING string, Index index) {
    string[index];
};
template <class Value>
concept Assigns = requires(CSTRING string, Value value) {
    string = value;
};
template <class... Arguments>
concept Formats = requires(CSTRING string, Arguments... arguments) {
    string.wsprintfA("", arguments...);
    string.IDsprintf(nullptr, 1, arguments...);
};
template <class Item>
concept Appends = requires(CLIST list, Item item) {
    list.Append(item);
    list.Insert(item, 0);
    list.SetItem(item, 0);
    list += item;
};

// Texts are compared where the members are there for it, and addresses nowhere.
static_assert(Equals<CSTRING&, char const*> && Differs<CSTRING&, char const*>);
static_assert(Equals<CSTRING&, int> && Equals<CSTRING&, unsigned long> && Equals<CSTRING&, char>);
static_assert(!Equals<CSTRING const&, char const*> && !Differs<CSTRING const&, char const*>);
static_assert(!Equals<CSTRING const&, CSTRING const&> && !Differs<CSTRING const&, CSTRING const&>);
static_assert(!Equals<decltype(std::declval<CSTRING&>() = "abc"), char const*>);
static_assert(!Equals<CSTRING const&, std::nullptr_t> && !Equals<CDATASTR const&, char const*>);
static_assert(!Equals<char const*, CSTRING const&> && !Equals<char const*, CSTRING&>);
static_assert(Precedes<CSTRING&, int> && Precedes<CSTRING&, short> && Follows<CSTRING&, unsigned>);
static_assert(!Precedes<CSTRING const&, CSTRING const&> && !Follows<CSTRING const&, CSTRING const&>);
static_assert(!Precedes<CSTRING&, CSTRING&> && !Precedes<CSTRING&, char const*> && !Follows<CSTRING&, char const*>);

static_assert(Adds<CSTRING&, char const*> && Adds<CSTRING const&, CSTRING&> && Adds<CSTRING const&, char>);
static_assert(!Adds<char const*, CSTRING&> && !Adds<char const*, CSTRING const&>);

// A size is a number, and a character is none; a number is a character where a text is assigned.
static_assert(std::is_constructible_v<CSTRING, int> && std::is_constructible_v<CSTRING, std::size_t>);
static_assert(std::is_constructible_v<CSTRING, char const*> && !std::is_constructible_v<CSTRING, char>);
static_assert(Assigns<int> && Assigns<char>);

// Only the host's `unsigned long` is an index: a size_t is one on Linux and on 32-bit Windows.
static_assert(Indexes<unsigned> && Indexes<int>);
static_assert(Indexes<std::size_t> == (sizeof(std::size_t) <= sizeof(unsigned long)));
static_assert(Equals<CSTRING&, std::size_t> == (sizeof(std::size_t) <= sizeof(unsigned long)));

// Objects are neither texts of a format nor addresses of items.
static_assert(Formats<> && Formats<char const*, int> && Formats<char*, unsigned long>);
static_assert(!Formats<CSTRING> && !Formats<int, CSTRING const&, int> && !Formats<CDATASTR>);
static_assert(Appends<CSTRING*> && Appends<void*> && !Appends<CSTRING&>);

constexpr char kName[] = "M\xFCller";

// A string with any bytes, through its block.
void Fill(CSTRING* string, char const* text) {
    char* const block = string->BufferLock(static_cast<unsigned>(lstrlenA(text)) + 1);
    ASSERT_NE(nullptr, block);
    lstrcpyA(block, text);
    string->BufferUnlock();
}

TEST(Traps, NumbersAreSizesOrCharacters) {
    CSTRING const size(65);
    EXPECT_EQ("", Text(size));
    CSTRING string("x");
    EXPECT_EQ("A", Text(string = 65));
    EXPECT_EQ("AB", Text(string += 66));
}

TEST(Traps, ReadingAnObjectThatIsNotConstantMakesALargeBlock) {
    CSTRING string("abc");
    CSTRING const& constant = string;
    char const* text = constant;
    CSTRING other("abc");
    EXPECT_EQ(0, other.Compare(constant));
    EXPECT_EQ(16U, string.GetBufLen(0));
    EXPECT_EQ(0, other.Compare(string));
    EXPECT_EQ(1024U, string.GetBufLen(0));
    text = other;
    EXPECT_EQ(1024U, other.GetBufLen(0));
    EXPECT_STREQ("abc", text);
}

TEST(Traps, WhatDeleteLeavesIsGoneFromACopy) {
    CSTRING string("abcdef");
    string.Delete(1, 2);
    string = CSTRING(string);
    EXPECT_EQ("adefx", Text(string += 'x'));
}

TEST(Traps, HighBytesEndWhatIsTakenOver) {
    EXPECT_EQ("M", Text(CSTRING(kName)));
    CSTRING string("Muller");
    string.Replace("u", "\xFC", 1);
    EXPECT_EQ("Mller", Text(string));
    EXPECT_EQ("M", Text(string.wsprintfA("%s!", kName)));
    EXPECT_EQ("C:dir\\M.txt", Text(string.MakePath("C", "dir", kName, "txt")));
    EXPECT_EQ("M", Text(string.GetFileName("C:\\dir\\M\xFCller.txt")));
    EXPECT_EQ("C:\\", Text(string.GetFilePath("C:\\M\xFCller\\a.txt")));
    EXPECT_EQ("M", Text(string.GetProfileStringA("none.ini", "a", "b", kName)));
    // Character by character they go in.
    string = "";
    for (char const* letter = kName; *letter; ++letter) {
        string += *letter;
    }
    EXPECT_EQ(kName, Text(CSTRING(string)));
}

TEST(Traps, ABlockHoldsHighBytesAndCopiesDoNot) {
    CSTRING string;
    Fill(&string, kName);
    EXPECT_EQ(kName, Text(string));
    EXPECT_TRUE(string == kName);
    EXPECT_EQ(2U, string.Find("ll", 0));
    EXPECT_LT(string.GetByteCount(), string.GetStrLen());

    EXPECT_EQ("M", Text(CSTRING(string)));
    EXPECT_EQ("M", Text(string + ""));
    EXPECT_EQ("M", Text(string.Left(3)));
    EXPECT_EQ("", Text(string.Mid(2, 2)));
    CSTRING name;
    CSTRING path;
    Fill(&path, "C:\\dir\\M\xFCller.txt");
    path.SplitPath(nullptr, nullptr, &name, nullptr);
    EXPECT_EQ("M", Text(name));
}

TEST(Traps, TheSystemWritesHighBytesIntoTheBlock) {
    HWND const window = CreateWindowExA(0, "static", kName, WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
    CSTRING string;
    EXPECT_EQ(kName, Text(string.GetWindowTextA(window)));
    DestroyWindow(window);
    Reg_WriteProfileString(HKEY_CURRENT_USER, "TrapsTest", "Name", kName);
    HKEY const key = Reg_OpenBaseUserKey("TrapsTest");
    EXPECT_EQ(kName, Text(string.RegQueryValueA(key, "Name")));
    Reg_CloseKey(key);
}

TEST(Traps, AListIsNotAssignedToItself) {
    testing_support::LeakCheck const leaks;
    CSTRING const prototype;
    CLIST names(prototype);
    CSTRING name("Ada");
    names.Append(&name);
    CLIST const& sameNames = names;
    names = sameNames;
    EXPECT_EQ(2U, names.GetCount());
    EXPECT_FALSE(static_cast<CSTRING*>(names.GetItem(1))->IsValid());
}

// An object that knows where it is.
class Placed : public CBASE {
  public:
    void vCallConstructor(CBASE* place) const override {
        new (static_cast<void*>(place)) Placed;
    }
    void vCallDestructor() override {
        this->~Placed();
    }
    void vCopy(CBASE const&) override {}
    unsigned int vGetSize() const override {
        return sizeof(Placed);
    }
    Placed const* place = this;
};

TEST(Traps, InlineObjectsAreMovedAsBytes) {
    Placed const prototype;
    CLIST pointers(prototype, 1, CLISTTYPE_POINTER);
    CLIST inlined(prototype, 1);
    int moved = 0;
    for (unsigned int i = 0; i < 64; ++i) {
        inlined.Insert(nullptr, 0);
        pointers.Insert(nullptr, 0);
    }
    for (unsigned int i = 0; i < 64; ++i) {
        auto const* const element = static_cast<Placed*>(inlined.GetItem(i));
        moved += element->place != element ? 1 : 0;
        EXPECT_EQ(pointers.GetItem(i), static_cast<Placed*>(pointers.GetItem(i))->place);
    }
    EXPECT_GE(moved, 63);
}

TEST(Traps, AnObjectIsNotPutIntoItsOwnPlace) {
    CSTRING const prototype;
    CLIST names(prototype);
    CSTRING name("Ada");
    names.Append(&name);
    names.SetItem(names.GetItem(0), 0);
    EXPECT_EQ("", Text(*static_cast<CSTRING*>(names.GetItem(0))));
}

}  // namespace
