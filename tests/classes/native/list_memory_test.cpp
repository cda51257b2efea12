// CLIST and LIST_ when memory runs out at any one allocation.
#include <cvutil32/clist.h>
#include <cvutil32/cstring.h>
#include <cvutil32/list.h>

#include <gtest/gtest.h>

#include <cstdint>

#include "tests/support/native/failing_memory.h"

#include "tests/classes/compare_ints.h"

namespace {

using namespace testing_support;

int At(const CLIST& list, unsigned int index) {
    const auto* item = static_cast<int*>(list.GetItem(index));
    return item ? *item : -1;
}

class ListMemory : public ::testing::TestWithParam<CLISTTYPE> {};
INSTANTIATE_TEST_SUITE_P(BothLayouts, ListMemory, ::testing::Values(CLISTTYPE_POINTER, CLISTTYPE_INLINE));

TEST_P(ListMemory, ConstructionLeavesAListThatKnowsWhatItLacks) {
    WithEachFailure([](FailingAllocation& failing) {
        int value = 5;
        failing.On();
        CLIST list(sizeof value, 4, GetParam());
        failing.Off();
        EXPECT_EQ(list.Append(&value) != nullptr, !failing.failed());
        EXPECT_EQ(list.GetCount(), failing.failed() ? 0u : 1u);
        if (list.IsValid() && failing.failed()) {
            EXPECT_TRUE(list.Init(sizeof value, 1, GetParam())) << "it can be had later";
            EXPECT_NE(list.Append(&value), nullptr);
        }
    });
}

TEST_P(ListMemory, ObjectsThatCannotBeMadeAreNoTrouble) {
    WithEachFailure([](FailingAllocation& failing) {
        CSTRING const pattern("a pattern that needs a block of its own");
        CSTRING item("an item that needs a block of its own");
        failing.On();
        CLIST list(pattern, 1, GetParam());
        failing.Off();
        if (!list.IsValid()) {
            return;
        }
        failing.On();
        list.Append(&item);
        list.New();
        list.SetItem(&item, CLIST_LAST);
        CLIST copy(list);
        copy = list;
        list.Delete(0);
        failing.Off();
        EXPECT_TRUE(list.IsValid());
        EXPECT_LE(list.GetCount(), 1u);
    });
}

TEST_P(ListMemory, InsertFailsWithoutChangeWhereTheArrayCannotGrow) {
    WithEachFailure([](FailingAllocation& failing) {
        CLIST list(sizeof(int), 1, GetParam());
        int value = 1;
        list.Append(&value);
        value = 2;
        failing.On();
        void* const element = list.Insert(&value, 0);
        failing.Off();
        EXPECT_EQ(element != nullptr, !failing.failed());
        if (!failing.failed()) {
            EXPECT_EQ(At(list, 0), 2);
        } else if (list.GetCount() == 2) {
            EXPECT_EQ(GetParam(), CLISTTYPE_POINTER) << "the slot of an element that could not be had";
            EXPECT_EQ(list.GetItem(0), nullptr);
            EXPECT_EQ(list.SetItem(&value, 0), nullptr);
            EXPECT_EQ(list.Delete(0), 1u);
        }
        EXPECT_EQ(At(list, CLIST_LAST), 1);
        value = 3;
        EXPECT_NE(list.Append(&value), nullptr);
    });
}

TEST_P(ListMemory, SortLeavesTheOrderWithoutItsScratchBlock) {
    WithEachFailure([](FailingAllocation& failing) {
        CLIST list(sizeof(int), 1, GetParam());
        for (int value : {3, 1, 2}) {
            list.Append(&value);
        }
        failing.On();
        list.Sort(CompareInts);
        failing.Off();
        EXPECT_EQ(At(list, 0), failing.failed() ? 3 : 1);
        EXPECT_EQ(At(list, 2), failing.failed() ? 2 : 3);
    });
}

TEST_P(ListMemory, WholeListsAreCopiedAsFarAsMemoryGoes) {
    WithEachFailure([](FailingAllocation& failing) {
        CLIST source(sizeof(int), 1, GetParam());
        CLIST target(sizeof(int), 1, GetParam());
        for (int value : {1, 2, 3, 4}) {
            source.Append(&value);
            target.Append(&value);
            target.Append(&value);
        }
        failing.On();
        CLIST copy(source);
        target = source;
        copy += source;
        failing.Off();
        for (const CLIST* list : {&copy, &target}) {
            // Each element that is counted can be looked at.
            for (unsigned int i = 0; i < list->GetCount(); ++i) {
                At(*list, i);
            }
        }
        EXPECT_EQ(At(source, CLIST_LAST), 4);
        if (!failing.failed()) {
            EXPECT_EQ(copy.GetCount(), 8u);
            EXPECT_EQ(target.GetCount(), 12u);
        }
    });
}

TEST(HandleListMemory, EveryFailureGivesItsResultAndKeepsTheList) {
    WithEachFailure([](FailingAllocation& failing) {
        failing.On();
        LPVOID list = LIST_Malloc(1, sizeof(int));
        failing.Off();
        if (failing.failed()) {
            EXPECT_EQ(list, reinterpret_cast<LPVOID>(std::uintptr_t{24}));
            return;
        }
        LIST_Free(list);
    });
    WithEachFailure([](FailingAllocation& failing) {
        LPVOID list = LIST_Malloc(1, sizeof(int));
        int value = 7;
        LIST_Append(&list, &value);
        LPVOID const before = list;
        failing.On();
        DWORD const index = LIST_Append(&list, &value);
        LPVOID const fresh = LIST_New(&list);
        LPVOID const moved = LIST_Realloc(list, 100);
        failing.Off();
        DWORD const failures = (index == 0xFFFFFFFF) + !fresh + !moved;
        EXPECT_EQ(failures, failing.failed() ? 1u : 0u);
        EXPECT_TRUE(index != 0xFFFFFFFF || fresh || list == before);
        list = moved ? moved : list;
        EXPECT_EQ(LIST_GetCount(list), 1u + (index != 0xFFFFFFFF) + (fresh != nullptr));
        EXPECT_EQ(*static_cast<int*>(LIST_GetFirstItem(list)), 7);
        EXPECT_TRUE(LIST_Free(list));
    });
}

}  // namespace
