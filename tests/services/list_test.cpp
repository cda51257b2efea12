#include <cvutil32/list.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <vector>

namespace {

struct Pair {
    std::int32_t id;
    std::uint32_t key;
};

class ListTest : public ::testing::Test {
  protected:
    ~ListTest() override {
        if (LIST_IsValid(list)) {
            LIST_Free(list);
        }
    }

    void Fill(std::initializer_list<Pair> pairs) {
        for (const Pair& pair : pairs) {
            LIST_Append(&list, &pair);
        }
    }

    Pair* Items() {
        return static_cast<Pair*>(list);
    }
    std::uint32_t Capacity() {
        std::uint32_t words[6];
        std::memcpy(words, static_cast<char*>(list) - sizeof words, sizeof words);
        return words[3];
    }

    LPVOID list = LIST_Malloc(4, sizeof(Pair));
};

TEST_F(ListTest, GrowsByItsFirstCapacityAndKeepsItems) {
    EXPECT_EQ(LIST_GetCount(list), 0u);
    EXPECT_EQ(Capacity(), 4u);
    for (std::int32_t i = 0; i < 9; ++i) {
        const Pair pair{i, static_cast<std::uint32_t>(i * 10)};
        EXPECT_EQ(LIST_Append(&list, &pair), static_cast<DWORD>(i));
    }
    EXPECT_EQ(Capacity(), 12u);
    for (std::int32_t i = 0; i < 9; ++i) {
        EXPECT_EQ(Items()[i].id, i);
    }
}

TEST_F(ListTest, InsertsWithinAndClipsAnIndexBeyondTheEnd) {
    Fill({{1, 0}, {2, 0}, {3, 0}});
    const Pair front{10, 0};
    const Pair last{20, 0};
    EXPECT_EQ(LIST_Insert(&list, &last, 10), 3u);
    EXPECT_EQ(LIST_Insert(&list, &front, 0), 0u);
    EXPECT_EQ(LIST_Insert(&list, nullptr, 2), 2u);
    const std::vector<int> expected{10, 1, 0, 2, 3, 20};
    ASSERT_EQ(LIST_GetCount(list), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(Items()[i].id, expected[i]) << i;
    }
}

TEST_F(ListTest, NewGivesZerosAlsoWhereADeletedItemLay) {
    Fill({{1, 1}, {2, 2}});
    EXPECT_TRUE(LIST_Delete(list, 1));
    auto* fresh = static_cast<Pair*>(LIST_New(&list));
    ASSERT_EQ(fresh, &Items()[1]);
    EXPECT_EQ(fresh->id, 0);
    EXPECT_EQ(fresh->key, 0u);
}

TEST_F(ListTest, CursorWalksStopsAndMayStandBehindTheEnd) {
    EXPECT_EQ(LIST_GetFirstItem(list), nullptr);
    EXPECT_EQ(LIST_GetCurrentItem(list), nullptr);
    EXPECT_EQ(LIST_GetNextItem(list), nullptr);
    Fill({{1, 0}, {2, 0}, {3, 0}});
    EXPECT_EQ(LIST_GetFirstItem(list), &Items()[0]);
    EXPECT_EQ(LIST_GetNextItem(list), &Items()[1]);
    EXPECT_EQ(LIST_GetNextItem(list), &Items()[2]);
    EXPECT_EQ(LIST_GetNextItem(list), nullptr);
    EXPECT_EQ(LIST_GetCurrentItem(list), &Items()[2]);
    EXPECT_EQ(LIST_SetCurrentItem(list, 3), nullptr);
    EXPECT_EQ(LIST_SetCurrentItem(list, 2), &Items()[2]);
    LIST_Delete(list, 0);
    LIST_Delete(list, 0);
    EXPECT_EQ(LIST_GetCurrentItem(list), &Items()[2]);
    EXPECT_EQ(LIST_GetNextItem(list), nullptr);
}

TEST_F(ListTest, LinearSearchFindsTheFirstAndReportsTheCount) {
    Fill({{0, 3}, {1, 7}, {2, 7}});
    DWORD index = 99;
    const std::int32_t seven = 7;
    const std::int32_t nine = 9;
    EXPECT_EQ(LIST_LFind(list, LIST_TYPE_LONG, 4, &seven, &index), &Items()[1]);
    EXPECT_EQ(index, 1u);
    EXPECT_EQ(LIST_LFind(list, LIST_TYPE_LONG, 4, &nine, &index), nullptr);
    EXPECT_EQ(index, 3u);
    EXPECT_EQ(LIST_LFind(nullptr, LIST_TYPE_LONG, 4, &nine, &index), nullptr);
    EXPECT_EQ(index, 0u);
}

TEST_F(ListTest, BinarySearchFindsOrTellsThePlace) {
    Fill({{0, 10}, {1, 20}, {2, 30}});
    struct {
        std::uint32_t key;
        int item;
        DWORD index;
    } const cases[] = {{5, -1, 0}, {10, 0, 0}, {15, -1, 1}, {20, 1, 1}, {25, -1, 2}, {30, 2, 2}, {0xFFFFFFFF, -1, 3}};
    for (const auto& c : cases) {
        for (const DWORD type : {LIST_TYPE_DWORD, 6, 7}) {
            DWORD index = 99;
            LPVOID item = LIST_BFind(list, type, 4, &c.key, &index);
            EXPECT_EQ(item, c.item < 0 ? nullptr : &Items()[c.item]) << c.key;
            EXPECT_EQ(index, c.index) << c.key;
        }
    }
}

TEST_F(ListTest, AmongEqualKeysTheHalvingDecides) {
    Fill({{0, 3}, {1, 7}, {2, 7}, {3, 7}, {4, 7}, {5, 7}, {6, 9}});
    const std::uint32_t seven = 7;
    DWORD index = 99;
    EXPECT_EQ(LIST_BFind(list, LIST_TYPE_DWORD, 4, &seven, &index), &Items()[3]);
    EXPECT_EQ(index, 3u);
    LIST_Delete(list, 6);
    LIST_Delete(list, 0);
    EXPECT_EQ(LIST_BFind(list, LIST_TYPE_DWORD, 4, &seven, &index), &Items()[2]);
}

TEST_F(ListTest, KeyTypesDifferInSign) {
    Fill({{0, 0xFFFF}, {1, 5}});
    const std::int16_t minusOne = -1;
    const std::uint32_t big = 0xFFFF;
    DWORD index = 99;
    EXPECT_EQ(LIST_LFind(list, LIST_TYPE_SHORT, 4, &minusOne, nullptr), &Items()[0]);
    EXPECT_EQ(LIST_BFind(list, LIST_TYPE_SHORT, 4, &minusOne, &index), &Items()[0]);
    EXPECT_EQ(index, 0u);
    EXPECT_EQ(LIST_LFind(list, LIST_TYPE_DWORD, 4, &big, nullptr), &Items()[0]);
    const std::uint16_t word = 65535;
    EXPECT_EQ(LIST_LFind(list, LIST_TYPE_WORD, 4, &word, nullptr), &Items()[0]);
}

TEST(ListTexts, KeysByPointerAndInPlaceCompareInWordOrder) {
    struct Named {
        const char* pointer;
        char text[8];
    };
    LPVOID list = LIST_Malloc(2, sizeof(Named));
    for (const char* name : {"apple", "berry", "cherry"}) {
        Named item{name, {}};
        std::strcpy(item.text, name);
        LIST_Append(&list, &item);
    }
    auto* items = static_cast<Named*>(list);
    DWORD index = 99;
    const LONG offset = offsetof(Named, text);
    EXPECT_EQ(LIST_BFind(list, LIST_TYPE_LPSTR, 0, "berry", &index), &items[1]);
    EXPECT_EQ(LIST_BFind(list, LIST_TYPE_STRING, offset, "cherry", &index), &items[2]);
    EXPECT_EQ(LIST_BFind(list, LIST_TYPE_STRING, offset, "banana", &index), nullptr);
    EXPECT_EQ(index, 1u);
    EXPECT_EQ(LIST_LFind(list, LIST_TYPE_STRING, offset, "Apple", &index), nullptr) << "capitals count";
    LIST_Free(list);
}

TEST_F(ListTest, UnsupportedKeyTypesLeaveTheIndexAlone) {
    Fill({{0, 0}});
    const std::uint32_t key = 0;
    for (const DWORD type : {3, 9, 1000}) {
        DWORD index = 77;
        EXPECT_EQ(LIST_LFind(list, type, 4, &key, &index), nullptr);
        EXPECT_EQ(LIST_BFind(list, type, 4, &key, &index), nullptr);
        EXPECT_EQ(index, 77u);
    }
}

TEST(ListFaults, BadHandlesAndSizesGetNeutralResults) {
    alignas(8) char foreign[64] = {};
    LPVOID handles[] = {nullptr, foreign + 32};
    for (LPVOID handle : handles) {
        LPVOID variable = handle;
        EXPECT_FALSE(LIST_IsValid(handle));
        EXPECT_FALSE(LIST_Free(handle));
        EXPECT_EQ(LIST_GetCount(handle), 0u);
        EXPECT_EQ(LIST_Realloc(handle, 8), nullptr);
        EXPECT_EQ(LIST_Append(&variable, nullptr), 0xFFFFFFFFu);
        EXPECT_EQ(LIST_New(&variable), nullptr);
        EXPECT_EQ(variable, handle);
        EXPECT_FALSE(LIST_Delete(handle, 0));
        EXPECT_EQ(LIST_GetFirstItem(handle), nullptr);
        EXPECT_EQ(LIST_GetNextItem(handle), nullptr);
        EXPECT_EQ(LIST_SetCurrentItem(handle, 0), nullptr);
    }
    EXPECT_EQ(LIST_Insert(nullptr, nullptr, 0), 0xFFFFFFFFu);
    EXPECT_EQ(LIST_Malloc(0xFFFFFFFF, 0xFFFFFFFF), reinterpret_cast<LPVOID>(std::uintptr_t{24}));
}

TEST(ListFaults, AListWithoutRoomNeverWritesBehindItsBlock) {
    LPVOID list = LIST_Malloc(0, sizeof(Pair));
    const Pair pair{1, 2};
    EXPECT_EQ(LIST_Append(&list, &pair), 0xFFFFFFFFu);
    list = LIST_Realloc(list, 1);
    EXPECT_EQ(LIST_Append(&list, &pair), 0u);
    EXPECT_EQ(LIST_Append(&list, &pair), 0xFFFFFFFFu);
    LIST_Free(list);
}

TEST_F(ListTest, ReallocBelowTheCountThenInsertIsRefused) {
    Fill({{1, 0}, {2, 0}, {3, 0}, {4, 0}, {5, 0}, {6, 0}});
    list = LIST_Realloc(list, 1);
    ASSERT_TRUE(LIST_IsValid(list));
    EXPECT_EQ(LIST_GetCount(list), 6u);
    const Pair pair{7, 0};
    EXPECT_EQ(LIST_Append(&list, &pair), 0xFFFFFFFFu);
    const std::int32_t last = 6;
    DWORD index = 99;
    EXPECT_EQ(LIST_LFind(list, LIST_TYPE_LONG, 0, &last, &index), nullptr) << "lost with its memory";
    EXPECT_EQ(index, 6u);
    EXPECT_EQ(LIST_BFind(list, LIST_TYPE_LONG, 0, &last, &index), nullptr);
    EXPECT_TRUE(LIST_Delete(list, 0));
    EXPECT_TRUE(LIST_Delete(list, 3));
    EXPECT_EQ(LIST_GetCount(list), 4u);
}

TEST_F(ListTest, AnItemOfItsOwnSurvivesTheMoveOfTheBlock) {
    Fill({{1, 0}, {2, 0}, {3, 0}, {4, 0}});
    EXPECT_EQ(LIST_Append(&list, &Items()[1]), 4u);
    EXPECT_EQ(LIST_Insert(&list, &Items()[3], 0), 0u);
    EXPECT_EQ(LIST_Insert(&list, &Items()[0], 3), 3u);
    const std::vector<int> expected{4, 1, 2, 4, 3, 4, 2};
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(Items()[i].id, expected[i]) << i;
    }
}

TEST_F(ListTest, ANumberThatIsNotThereIsNotFound) {
    Fill({{0, 0}});
    DWORD index = 77;
    EXPECT_EQ(LIST_LFind(list, LIST_TYPE_LONG, 0, nullptr, &index), nullptr);
    EXPECT_EQ(LIST_BFind(list, LIST_TYPE_WORD, 0, nullptr, &index), nullptr);
    EXPECT_EQ(index, 77u);
    const char* const text = "a";
    LPVOID texts = LIST_Malloc(1, sizeof text);
    LIST_Append(&texts, &text);
    EXPECT_EQ(LIST_BFind(texts, LIST_TYPE_LPSTR, 0, nullptr, &index), nullptr);
    EXPECT_EQ(index, 0u) << "no text comes before all others";
    LIST_Free(texts);
}

}  // namespace
