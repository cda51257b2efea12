#include <cvutil32/clist.h>
#include <cvutil32/cstring.h>

#include "tests/classes/compare_ints.h"

#include <gtest/gtest.h>

#include <cstring>
#include <new>
#include <vector>

namespace {

std::vector<int> Values(const CLIST& list) {
    std::vector<int> values;
    for (unsigned int i = 0; i < list.GetCount(); ++i) {
        const auto* item = static_cast<int*>(list.GetItem(i));
        values.push_back(item ? *item : -1);
    }
    return values;
}

void Fill(CLIST& list, std::initializer_list<int> values) {
    for (int value : values) {
        ASSERT_NE(list.Append(&value), nullptr);
    }
}

using Ints = std::vector<int>;

// A class of an application's own, which counts its lives.
class TOKEN : public CBASE {
  public:
    TOKEN() {
        ++alive;
    }
    explicit TOKEN(int v) : value(v) {
        ++alive;
    }
    TOKEN(const TOKEN& other) : CBASE(other), value(other.value) {
        ++alive;
    }
    TOKEN& operator=(const TOKEN&) = default;
    ~TOKEN() override {
        --alive;
    }
    void vCallConstructor(CBASE* place) const override {
        new (static_cast<void*>(place)) TOKEN;
    }
    void vCallDestructor() override {
        ++destroyed;
        this->~TOKEN();
    }
    void vCopy(const CBASE& source) override {
        value = static_cast<const TOKEN&>(source).value;
    }
    unsigned int vGetSize() const override {
        return sizeof(TOKEN);
    }

    int value = 0;
    static inline int alive = 0;
    static inline int destroyed = 0;
};

class ListLayouts : public ::testing::TestWithParam<CLISTTYPE> {};
INSTANTIATE_TEST_SUITE_P(BothLayouts, ListLayouts, ::testing::Values(CLISTTYPE_POINTER, CLISTTYPE_INLINE));

TEST_P(ListLayouts, InsertsReplacesAndDeletes) {
    CLIST list(sizeof(int), 1, GetParam());
    Fill(list, {1, 2, 3});
    int value = 9;
    void* const inserted = list.Insert(&value, 0);
    EXPECT_EQ(inserted, list.GetItem(0));
    value = 8;
    EXPECT_NE(list.Insert(&value, 2), nullptr);
    EXPECT_EQ(Values(list), (Ints{9, 1, 8, 2, 3}));
    EXPECT_EQ(list.Insert(&value, 6), nullptr);
    EXPECT_EQ(list.Insert(&value, CLIST_LAST), nullptr);
    value = 7;
    void* const replaced = list.SetItem(&value, CLIST_LAST);
    EXPECT_EQ(replaced, list.GetItem(4));
    EXPECT_EQ(list.SetItem(nullptr, 0), nullptr);
    EXPECT_EQ(list.SetItem(&value, 5), nullptr);
    EXPECT_EQ(list.Delete(1), 4u);
    EXPECT_EQ(list.Delete(CLIST_LAST), 3u);
    EXPECT_EQ(list.Delete(3), 0u) << "fails as it does for the last element";
    EXPECT_EQ(Values(list), (Ints{9, 8, 2}));
    EXPECT_EQ(*static_cast<int*>(list.New()), 0);
}

TEST_P(ListLayouts, SortsStablyAndFinds) {
    struct Entry {
        int key;
        int order;
    };
    CLIST list(sizeof(Entry), 0, GetParam());
    int order = 0;
    for (int key : {30, 10, 20, 10, 30, 10}) {
        Entry entry{key, order++};
        list.Append(&entry);
    }
    list.Sort(CompareInts);
    int last = -1;
    for (unsigned int i = 0; i + 1 < list.GetCount(); ++i) {
        const auto* a = static_cast<Entry*>(list.GetItem(i));
        const auto* b = static_cast<Entry*>(list.GetItem(i + 1));
        EXPECT_TRUE(a->key < b->key || (a->key == b->key && a->order < b->order));
        last = b->key;
    }
    EXPECT_EQ(last, 30);
    unsigned int index = 0;
    int key = 30;
    EXPECT_EQ(list.FindLinear(&key, CompareInts, &index), list.GetItem(4));
    EXPECT_EQ(index, 4u);
    ++index;
    EXPECT_EQ(list.FindLinear(&key, CompareInts, &index), list.GetItem(5));
    index = 6;
    EXPECT_EQ(list.FindLinear(&key, CompareInts, &index), nullptr);
    EXPECT_EQ(index, CLIST_NOINDEX);
    EXPECT_EQ(list.FindLinear(&key, CompareInts, nullptr), list.GetItem(4));
}

TEST_P(ListLayouts, BinarySearchTellsThePlaceOfWhatIsMissing) {
    CLIST list(sizeof(int), 0, GetParam());
    unsigned int index = 5;
    int key = 1;
    EXPECT_EQ(list.FindBinary(&key, CompareInts, &index), nullptr);
    EXPECT_EQ(index, 0u);
    Fill(list, {10, 20, 30});
    struct {
        int key;
        int item;
        unsigned int index;
    } const cases[] = {{5, -1, 0}, {10, 0, 0}, {25, -1, 2}, {30, 2, 2}, {35, -1, 3}};
    for (const auto& c : cases) {
        key = c.key;
        EXPECT_EQ(list.FindBinary(&key, CompareInts, &index), c.item < 0 ? nullptr : list.GetItem(c.item)) << c.key;
        EXPECT_EQ(index, c.index) << c.key;
    }
    EXPECT_EQ(list.FindBinary(&key, nullptr, &index), nullptr);
    EXPECT_EQ(index, CLIST_NOINDEX);
    list.Sort(nullptr);
    EXPECT_EQ(Values(list), (Ints{10, 20, 30}));
}

TEST_P(ListLayouts, CopiesAndTheGapOfAnAssignment) {
    CLIST source(sizeof(int), 0, GetParam());
    Fill(source, {1, 2});
    const CLIST copy(source);
    EXPECT_EQ(Values(copy), (Ints{1, 2}));
    CLIST target(sizeof(int), 0, GetParam());
    Fill(target, {7, 8, 9});
    target = source;
    const int empty = GetParam() == CLISTTYPE_POINTER ? -1 : 0;
    EXPECT_EQ(Values(target), (Ints{empty, empty, empty, 1, 2}));
    target = CLIST(sizeof(int), 0, GetParam());
    EXPECT_EQ(target.GetCount(), 5u) << "an empty source leaves as many empty slots";
    EXPECT_EQ(Values(target), (Ints{empty, empty, empty, empty, empty}));
    CLIST& self = target;
    target = self;
    EXPECT_EQ(target.GetCount(), 10u) << "of itself nothing is left to copy, but its count";
    source += copy;
    EXPECT_EQ(Values(source), (Ints{1, 2, 1, 2}));
    CLIST other(sizeof(short));
    source += other;
    EXPECT_EQ(source.GetCount(), 4u);
}

TEST_P(ListLayouts, ObjectsAreMadeCopiedAndEndedOnceEach) {
    TOKEN::destroyed = 0;
    const int before = TOKEN::alive;
    {
        const TOKEN pattern(5);
        CLIST list(pattern, 1, GetParam());
        TOKEN item(7);
        EXPECT_NE(list.Append(&item), nullptr);
        EXPECT_EQ(static_cast<TOKEN*>(list.New())->value, 5) << "a copy of the prototype";
        char foreign[sizeof(TOKEN)] = {};
        EXPECT_EQ(list.Append(foreign), nullptr);
        EXPECT_EQ(list.SetItem(foreign, 0), nullptr);
        EXPECT_EQ(static_cast<TOKEN*>(list.SetItem(&item, 1))->value, 7);
        EXPECT_EQ(TOKEN::destroyed, 1) << "SetItem ends what it replaces";
        EXPECT_EQ(list.Delete(0), 1u);
        EXPECT_EQ(TOKEN::destroyed, 2);
        const CLIST copy(list);
        EXPECT_EQ(copy.GetCount(), 1u);
        TOKEN::destroyed = 0;
    }
    EXPECT_EQ(TOKEN::destroyed, 4) << "an element and a prototype in each list";
    EXPECT_EQ(TOKEN::alive, before);
}

TEST(List, AnItemOfItsOwnSurvivesTheMoveOfTheArray) {
    CLIST list(sizeof(int), 1);
    Fill(list, {1});
    EXPECT_NE(list.Append(list.GetItem(0)), nullptr);
    EXPECT_NE(list.Insert(list.GetItem(1), 0), nullptr);
    Fill(list, {4});
    EXPECT_NE(list.Insert(list.GetItem(3), 1), nullptr);
    EXPECT_EQ(Values(list), (Ints{1, 4, 1, 1, 4}));
}

TEST(List, WithoutStorageItAnswersAndInitMakesItUsable) {
    CLIST list;
    int value = 1;
    EXPECT_TRUE(list.IsValid());
    EXPECT_EQ(list.GetCount(), 0u);
    EXPECT_EQ(list.Append(&value), nullptr);
    EXPECT_EQ(list.GetItem(CLIST_LAST), nullptr);
    EXPECT_FALSE(list.Init(0, 4, CLISTTYPE_INLINE));
    EXPECT_TRUE(list.Init(sizeof(int), 100000, CLISTTYPE_INLINE));
    EXPECT_NE(list.Append(&value), nullptr);
}

TEST(List, IsFullAt65535) {
    CLIST list(1, 65535);
    char byte = 'x';
    for (int i = 0; i < 65535; ++i) {
        ASSERT_NE(list.Append(&byte), nullptr);
    }
    EXPECT_EQ(list.Append(&byte), nullptr);
    EXPECT_EQ(list.GetCount(), 65535u);
    list += list;
    EXPECT_EQ(list.GetCount(), 65535u);
}

TEST(List, ReadOnlyItemsAreRefused) {
    static const int constant = 3;
    CLIST list(sizeof(int));
    EXPECT_EQ(list.Append(const_cast<int*>(&constant)), nullptr);
    EXPECT_EQ(list.GetCount(), 0u);
}

TEST(List, OverwrittenListsDoNothing) {
    alignas(CLIST) char raw[sizeof(CLIST)];
    auto* list = new (raw) CLIST(sizeof(int));
    char saved[sizeof raw];
    std::memcpy(saved, raw, sizeof raw);
    std::memset(raw + sizeof(void*), 0xEE, sizeof raw - sizeof(void*));
    int value = 1;
    EXPECT_FALSE(list->IsValid());
    EXPECT_EQ(list->Append(&value), nullptr);
    EXPECT_EQ(list->GetCount(), 0u);
    EXPECT_EQ(list->Delete(0), 0u);
    unsigned int index = 3;
    EXPECT_EQ(list->FindLinear(&value, CompareInts, &index), nullptr);
    EXPECT_EQ(index, CLIST_NOINDEX);
    std::memcpy(raw, saved, sizeof raw);
    list->~CLIST();
    EXPECT_FALSE(list->IsValid());
}

}  // namespace
