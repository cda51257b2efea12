// Loading: the module instance, the classes that exist from then on, and the order of registration.
#include <cvutil32.h>

#include "core/globalblock.h"
#include "core/registration.h"
#include "tests/support/leaks.h"
#include "tests/support/window.h"

#include <gtest/gtest.h>

#include <cstring>
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
    for (char const* name : {"CVUTIL32", "cvutil32", "CvUtil32.dll", "CVUTIL32.DLL"}) {
        EXPECT_EQ(library, GetModuleHandleA(name)) << name;
        EXPECT_EQ(library, LoadLibraryA(name)) << name;
        EXPECT_TRUE(FreeLibrary(library));
        EXPECT_EQ(library, GetModuleHandleA(name)) << "it stays: the program itself uses it";
    }
    char path[MAX_PATH] = {};
    ASSERT_NE(0U, GetModuleFileNameA(library, path, sizeof path));
    EXPECT_EQ(library, GetModuleHandleA(path));
    EXPECT_EQ(nullptr, GetModuleHandleA("CVUTIL"));
    EXPECT_EQ(nullptr, GetModuleHandleA("CVUTIL32.EXE"));
}

TEST(Library, ClassesAreThereForEveryModule) {
    struct Expected {
        char const* name;
        UINT style;
        int extra;
    };
    for (Expected const& expected :
         {Expected{"Calverin_DateControl", CS_GLOBALCLASS | CS_HREDRAW | CS_VREDRAW, 0},
          Expected{"Calverin_TimeControl", CS_GLOBALCLASS | CS_HREDRAW | CS_VREDRAW, 0},
          Expected{"KVS_MicroScrollbar", CS_GLOBALCLASS | CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW,
                   static_cast<int>(sizeof(LONG_PTR))}}) {
        for (HINSTANCE instance : {UTIL_GetModuleInstance(), GetModuleHandleA(nullptr)}) {
            WNDCLASSA record = {};
            EXPECT_TRUE(GetClassInfoA(instance, expected.name, &record)) << expected.name;
            EXPECT_EQ(expected.style, record.style) << expected.name;
            EXPECT_EQ(expected.extra, record.cbWndExtra) << expected.name;
            EXPECT_EQ(0, record.cbClsExtra) << expected.name;
        }
    }
}

TEST(Library, NumericFieldIsAnEditFieldWithRoomForItsData) {
    WNDCLASSA edit = {};
    WNDCLASSA field = {};
    ASSERT_TRUE(GetClassInfoA(nullptr, "edit", &edit));
    ASSERT_TRUE(GetClassInfoA(GetModuleHandleA(nullptr), NUMFLD_CLASSNAME, &field));
    EXPECT_EQ(edit.style | CS_GLOBALCLASS, field.style | CS_GLOBALCLASS);
    EXPECT_EQ(edit.cbWndExtra + static_cast<int>(sizeof(LONG_PTR)), field.cbWndExtra);
    EXPECT_EQ(edit.hCursor, field.hCursor);
    EXPECT_NE(edit.lpfnWndProc, field.lpfnWndProc);
}

TEST(Library, RegisteringAgainChangesNothing) {
    EXPECT_FALSE(DATECTRL_RegisterClass(nullptr));
    EXPECT_FALSE(SCROLL_RegisterClass(nullptr));
    EXPECT_TRUE(DATECTRL_RegisterClass(UTIL_GetModuleInstance()));
    EXPECT_TRUE(SCROLL_RegisterClass(UTIL_GetModuleInstance()));
    EXPECT_FALSE(TIMECTRL_RegisterClass(nullptr));
    EXPECT_TRUE(TIMECTRL_RegisterClass(UTIL_GetModuleInstance()));
    EXPECT_FALSE(NUMFLD_RegisterClass(nullptr));
    EXPECT_TRUE(NUMFLD_RegisterClass(UTIL_GetModuleInstance()));
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
