// Loading: the module instance, the classes that exist from then on, and the order of registration.
#include <cvutil32.h>

#include "core/globalblock.h"
#include "core/registration.h"
#include "tests/support/leaks.h"

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(Library, KnowsItsOwnInstance) {
    HINSTANCE const library = UTIL_GetModuleInstance();
    ASSERT_NE(nullptr, library);
    EXPECT_NE(GetModuleHandleA(nullptr), library);

    HINSTANCE const other = GetModuleHandleA(nullptr);
    UTIL_SetModuleInstance(other);
    EXPECT_EQ(other, UTIL_GetModuleInstance());
    UTIL_SetModuleInstance(library);
    EXPECT_EQ(library, UTIL_GetModuleInstance());
}

TEST(Library, IsKnownByItsModuleName) {
    HINSTANCE const library = UTIL_GetModuleInstance();
    for (char const* name : {"CVUTIL32", "CvUtil32.dll"}) {
        EXPECT_EQ(library, LoadLibraryA(name)) << name;
        EXPECT_TRUE(FreeLibrary(library));
        EXPECT_EQ(library, GetModuleHandleA(name)) << "it stays: the program itself uses it";
    }
}

struct ControlClass {
    char const* name;
    char const* base;      ///< the class that it is made of, if any
    UINT style;            ///< without a base its own, else what it lacks of that of its base
    std::size_t ownWords;  ///< words of data of its own
    BOOL(WINAPI* registerAgain)(HINSTANCE);
};

TEST(Library, ClassesAreThereForEveryModuleAndStayAsTheyAre) {
    constexpr UINT kRedraw = CS_HREDRAW | CS_VREDRAW;
    ControlClass const classes[] = {
        {"Calverin_DateControl", nullptr, kRedraw, 0, DATECTRL_RegisterClass},
        {"Calverin_TimeControl", nullptr, kRedraw, 0, TIMECTRL_RegisterClass},
        {"KVS_MicroScrollbar", nullptr, CS_DBLCLKS | kRedraw, 1, SCROLL_RegisterClass},
        {"Calverin_BuddyFrame", nullptr, 0, 0, BUDDYFR_RegisterClass},
        {ANIMATE_CLASSNAME, nullptr, 0, 3, ANIMATE_RegisterClass},
        {TREELIST_CLASSNAME, nullptr, 0, 3, TREELIST_RegisterClass},
        {NUMFLD_CLASSNAME, "edit", 0, 1, NUMFLD_RegisterClass},
        {"Calverin_GraphicButton", "button", 0, 1, GRBUTTON_RegisterClass},
        {"Calverin_CheckList1", "listbox", CS_DBLCLKS, 0, nullptr},
    };
    for (ControlClass const& each : classes) {
        SCOPED_TRACE(each.name);
        WNDCLASSA base = {};
        ASSERT_TRUE(!each.base || GetClassInfoA(nullptr, each.base, &base));
        UINT const style = each.base ? base.style & ~each.style : each.style;
        EXPECT_TRUE(!each.registerAgain || !each.registerAgain(nullptr));
        EXPECT_TRUE(!each.registerAgain || each.registerAgain(UTIL_GetModuleInstance()));
        for (HINSTANCE instance : {UTIL_GetModuleInstance(), GetModuleHandleA(nullptr)}) {
            WNDCLASSA record = {};
            EXPECT_TRUE(GetClassInfoA(instance, each.name, &record));
            EXPECT_EQ(style | CS_GLOBALCLASS, record.style);
            EXPECT_EQ(base.cbWndExtra + static_cast<int>(each.ownWords * sizeof(LONG_PTR)), record.cbWndExtra);
            EXPECT_TRUE(each.base || record.cbClsExtra == 0);
            EXPECT_NE(base.lpfnWndProc, record.lpfnWndProc);
        }
    }
    WNDCLASSA record = {};
    ASSERT_TRUE(GetClassInfoA(UTIL_GetModuleInstance(), DATECTRL_CLASSNAME, &record));
    EXPECT_EQ(&datectrl_EditDateWndProc, record.lpfnWndProc);
}

std::string g_calls;

BOOL WINAPI First(HINSTANCE) {
    g_calls += '1';
    return 5;
}
BOOL WINAPI Fails(HINSTANCE) {
    g_calls += 'f';
    return 0;
}
BOOL WINAPI Last(HINSTANCE) {
    g_calls += '3';
    return 1;
}

TEST(Registration, StopsAtTheFirstFailure) {
    registration::Function const good[] = {First, Last};
    registration::Function const bad[] = {First, Fails, Last};
    g_calls.clear();
    EXPECT_EQ(TRUE, registration::RegisterInOrder(good, UTIL_GetModuleInstance()));
    EXPECT_EQ("13", g_calls);
    g_calls.clear();
    EXPECT_EQ(FALSE, registration::RegisterInOrder(bad, UTIL_GetModuleInstance()));
    EXPECT_EQ("1f", g_calls);
}

TEST(GlobalBlock, IsZeroFilledAndKeepsItsBytesWhenItGrows) {
    testing_support::LeakCheck const leaks;
    auto* block = static_cast<unsigned char*>(globalblock::Allocate(100));
    ASSERT_NE(nullptr, block);
    for (int i = 0; i < 100; ++i) {
        ASSERT_EQ(0, block[i]);
        block[i] = static_cast<unsigned char>(i);
    }
    block = static_cast<unsigned char*>(globalblock::Resize(block, 100000));
    ASSERT_NE(nullptr, block);
    for (int i = 0; i < 100000; ++i) {
        ASSERT_EQ(i < 100 ? i : 0, block[i]);
    }
    globalblock::Release(block);
    globalblock::Release(nullptr);
}

}  // namespace
