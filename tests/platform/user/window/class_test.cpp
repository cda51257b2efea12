#include <gtest/gtest.h>

#include <windows.h>

#include <string>

namespace {

LRESULT CALLBACK Plain(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return message == WM_USER ? 1 : DefWindowProcA(window, message, wParam, lParam);
}

LRESULT CALLBACK Other(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return message == WM_USER ? 2 : DefWindowProcA(window, message, wParam, lParam);
}

WNDPROC baseProcedure = nullptr;
int heard = 0;

LRESULT CALLBACK CountAndPassOn(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    ++heard;
    return CallWindowProcA(baseProcedure, window, message, wParam, lParam);
}

struct TestProperties {
    HWND window;
    std::uintptr_t sum;
};

BOOL CALLBACK TakeTestProperty(HWND, LPSTR name, HANDLE data, ULONG_PTR parameter) {
    auto* all = reinterpret_cast<TestProperties*>(parameter);
    if (!IS_INTRESOURCE(name) && std::string(name).rfind("Test_", 0) == 0) {  // the system keeps properties too
        all->sum += reinterpret_cast<std::uintptr_t>(data);
        RemovePropA(all->window, name);
    }
    return TRUE;
}

// Modules of one's own are hard to come by in a test; classes only compare these values.
HINSTANCE const kProgram = GetModuleHandleA(nullptr);

class Classes : public ::testing::Test {
  protected:
    void TearDown() override {
        UnregisterClassA("TestClass", kProgram);
        UnregisterClassA("TestSuper", kProgram);
    }

    static WNDCLASSA Definition(const char* name = "TestClass") {
        WNDCLASSA definition{};
        definition.lpfnWndProc = Plain;
        definition.hInstance = kProgram;
        definition.lpszClassName = name;
        return definition;
    }

    static HWND Make(const char* name) {
        return CreateWindowExA(0, name, "", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, kProgram, nullptr);
    }
};

TEST_F(Classes, AreFoundByNameInEitherCaseAndByAtom) {
    WNDCLASSA definition = Definition();
    definition.cbWndExtra = 12;
    definition.style = CS_HREDRAW;
    const ATOM atom = RegisterClassA(&definition);
    ASSERT_GE(atom, 0xC000);
    for (LPCSTR name : {static_cast<LPCSTR>("TESTCLASS"), static_cast<LPCSTR>(MAKEINTATOM(atom))}) {
        WNDCLASSA found{};
        ASSERT_TRUE(GetClassInfoA(kProgram, name, &found));
        EXPECT_EQ(found.lpfnWndProc, Plain);
        EXPECT_EQ(found.cbWndExtra, 12);
        EXPECT_EQ(found.style, static_cast<UINT>(CS_HREDRAW));
        EXPECT_EQ(found.hInstance, kProgram);
        HWND window = Make(name);
        ASSERT_NE(window, nullptr);
        char text[20];
        EXPECT_EQ(GetClassNameA(window, text, sizeof text), 9);
        EXPECT_STREQ(text, "TestClass");
        EXPECT_EQ(GetClassNameA(window, text, 5), 4);
        EXPECT_STREQ(text, "Test");
        EXPECT_EQ(GetClassLongA(window, GCW_ATOM), atom);
        DestroyWindow(window);
    }
}

TEST_F(Classes, AnswerWithTheDocumentedErrors) {
    WNDCLASSA definition = Definition();
    ASSERT_NE(RegisterClassA(&definition), 0);
    SetLastError(0);
    EXPECT_EQ(RegisterClassA(&definition), 0);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_CLASS_ALREADY_EXISTS));

    HWND window = Make("TestClass");
    SetLastError(0);
    EXPECT_FALSE(UnregisterClassA("TestClass", kProgram));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_CLASS_HAS_WINDOWS));
    DestroyWindow(window);
    EXPECT_TRUE(UnregisterClassA("TestClass", kProgram));
    SetLastError(0);
    EXPECT_FALSE(UnregisterClassA("TestClass", kProgram));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_CLASS_DOES_NOT_EXIST));
    WNDCLASSA found{};
    SetLastError(0);
    EXPECT_FALSE(GetClassInfoA(kProgram, "TestClass", &found));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_CLASS_DOES_NOT_EXIST));
    EXPECT_EQ(Make("TestClass"), nullptr);
}

TEST_F(Classes, ABaseClassCanBeBuiltUpon) {
    WNDCLASSA base{};
    ASSERT_TRUE(GetClassInfoA(nullptr, "button", &base));
    ASSERT_NE(base.lpfnWndProc, nullptr);
    baseProcedure = base.lpfnWndProc;
    heard = 0;
    base.lpfnWndProc = CountAndPassOn;
    const int slot = base.cbWndExtra;
    base.cbWndExtra += static_cast<int>(sizeof(LONG_PTR));
    base.style |= CS_GLOBALCLASS;
    base.hInstance = kProgram;
    base.lpszClassName = "TestSuper";
    ASSERT_NE(RegisterClassA(&base), 0);
    HWND window = CreateWindowExA(0, "TestSuper", "Text", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, kProgram, nullptr);
    ASSERT_NE(window, nullptr);
    EXPECT_GT(heard, 0);
    EXPECT_EQ(SetWindowLongPtrA(window, slot, 0x1234567), 0);
    EXPECT_EQ(GetWindowLongPtrA(window, slot), 0x1234567);
    EXPECT_EQ(GetWindowTextLengthA(window), 4);
    SetLastError(0);
    EXPECT_EQ(SetWindowLongPtrA(window, slot + 1, 1), 0);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INVALID_INDEX));
    DestroyWindow(window);
}

TEST_F(Classes, OfAModuleHideThoseOfTheSystem) {
    WNDCLASSA definition = Definition("Static");
    ASSERT_NE(RegisterClassA(&definition), 0);
    HWND window = Make("static");
    EXPECT_EQ(SendMessageA(window, WM_USER, 0, 0), 1);
    DestroyWindow(window);
    EXPECT_TRUE(UnregisterClassA("Static", kProgram));
    window = Make("static");
    EXPECT_EQ(SendMessageA(window, WM_USER, 0, 0), 0);
    DestroyWindow(window);
}

TEST_F(Classes, ChangesReachOnlyLaterWindows) {
    WNDCLASSA definition = Definition();
    ASSERT_NE(RegisterClassA(&definition), 0);
    HWND first = Make("TestClass");
    EXPECT_EQ(SetClassLongPtrA(first, GCLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Other)),
              reinterpret_cast<ULONG_PTR>(&Plain));
    HWND second = Make("TestClass");
    EXPECT_EQ(SendMessageA(first, WM_USER, 0, 0), 1);
    EXPECT_EQ(SendMessageA(second, WM_USER, 0, 0), 2);
    DestroyWindow(first);
    DestroyWindow(second);
}

TEST(Atoms, AreCountedAndIgnoreCase) {
    const ATOM atom = GlobalAddAtomA("Test Atom Of Ours");
    ASSERT_GE(atom, 0xC000);
    EXPECT_EQ(GlobalAddAtomA("TEST ATOM of ours"), atom);
    char name[30];
    EXPECT_EQ(GlobalGetAtomNameA(atom, name, sizeof name), 17U);
    EXPECT_STREQ(name, "Test Atom Of Ours");
    EXPECT_EQ(GlobalDeleteAtom(atom), 0);
    EXPECT_EQ(GlobalFindAtomA("test atom of ours"), atom);
    EXPECT_EQ(GlobalDeleteAtom(atom), 0);
    EXPECT_EQ(GlobalFindAtomA("test atom of ours"), 0);
}

TEST(Atoms, NumbersStandForThemselves) {
    EXPECT_EQ(GlobalAddAtomA("#123"), 123);
    EXPECT_EQ(GlobalFindAtomA(MAKEINTATOM(123)), 123);
    char name[10];
    EXPECT_EQ(GlobalGetAtomNameA(123, name, sizeof name), 4U);
    EXPECT_STREQ(name, "#123");
}

class Properties : public ::testing::Test {
  protected:
    HWND window = CreateWindowExA(0, "static", "", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, kProgram, nullptr);
    ~Properties() override {
        DestroyWindow(window);
    }
    static HANDLE Value(std::uintptr_t number) {
        return reinterpret_cast<HANDLE>(number);
    }
};

TEST_F(Properties, AreKeptByNameWithoutRegardToCase) {
    EXPECT_EQ(GetPropA(window, "Test_IsValid"), nullptr);
    EXPECT_TRUE(SetPropA(window, "Test_IsValid", Value(1)));
    EXPECT_TRUE(SetPropA(window, "Test_Other", Value(2)));
    EXPECT_EQ(GetPropA(window, "TEST_isvalid"), Value(1));
    EXPECT_TRUE(SetPropA(window, "test_ISVALID", Value(3)));
    EXPECT_EQ(GetPropA(window, "Test_IsValid"), Value(3));
    EXPECT_EQ(RemovePropA(window, "Test_IsValid"), Value(3));
    EXPECT_EQ(GetPropA(window, "Test_IsValid"), nullptr);
    EXPECT_EQ(RemovePropA(window, "Test_IsValid"), nullptr);
    EXPECT_EQ(RemovePropA(window, "Test_Other"), Value(2));
}

TEST_F(Properties, AnAtomIsItsName) {
    const ATOM atom = GlobalAddAtomA("Test_ByAtom");
    EXPECT_TRUE(SetPropA(window, MAKEINTATOM(atom), Value(7)));
    EXPECT_EQ(GetPropA(window, "test_byatom"), Value(7));
    EXPECT_EQ(RemovePropA(window, "Test_ByAtom"), Value(7));
    EXPECT_EQ(GetPropA(window, MAKEINTATOM(atom)), nullptr);
    GlobalDeleteAtom(atom);
}

TEST_F(Properties, CanBeListedAndRemovedMeanwhile) {
    SetPropA(window, "Test_A", Value(1));
    SetPropA(window, "Test_B", Value(2));
    TestProperties list{window, 0};
    EnumPropsExA(window, TakeTestProperty, reinterpret_cast<LPARAM>(&list));
    EXPECT_EQ(list.sum, 3U);
    EXPECT_EQ(GetPropA(window, "Test_A"), nullptr);
    EXPECT_FALSE(SetPropA(nullptr, "Test_A", Value(1)));
}

}  // namespace
