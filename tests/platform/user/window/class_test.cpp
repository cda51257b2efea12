#include <gtest/gtest.h>

#include <windows.h>

#include <string>

#include "tests/platform/support/looking.h"

namespace {

LRESULT CALLBACK Plain(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return message == WM_USER ? 1 : DefWindowProcA(window, message, wParam, lParam);
}

// Modules of one's own are hard to come by in a test; classes only compare these values.
HINSTANCE const kProgram = GetModuleHandleA(nullptr);

class Classes : public ::testing::Test {
  protected:
    void TearDown() override {
        UnregisterClassA("TestClass", kProgram);
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
    const ATOM atom = RegisterClassA(&definition);
    ASSERT_GE(atom, 0xC000);
    for (LPCSTR name : {static_cast<LPCSTR>("TESTCLASS"), static_cast<LPCSTR>(MAKEINTATOM(atom))}) {
        WNDCLASSA found{};
        ASSERT_TRUE(GetClassInfoA(kProgram, name, &found));
        EXPECT_EQ(found.lpfnWndProc, Plain);
        EXPECT_EQ(found.cbWndExtra, 12);
        HWND window = Make(name);
        ASSERT_NE(window, nullptr);
        char text[20];
        EXPECT_EQ(GetClassNameA(window, text, 5), 4);
        EXPECT_STREQ(text, "Test");
        DestroyWindow(window);
    }
}

TEST_F(Classes, AnswerWithTheDocumentedErrors) {
    WNDCLASSA definition = Definition();
    ASSERT_NE(RegisterClassA(&definition), 0);
    EXPECT_EQ(DWORD{ERROR_CLASS_ALREADY_EXISTS}, tests::ErrorOf([&] { return RegisterClassA(&definition); }));

    HWND window = Make("TestClass");
    EXPECT_EQ(DWORD{ERROR_CLASS_HAS_WINDOWS}, tests::ErrorOf([&] { return UnregisterClassA("TestClass", kProgram); }));
    DestroyWindow(window);
    EXPECT_TRUE(UnregisterClassA("TestClass", kProgram));
    EXPECT_EQ(DWORD{ERROR_CLASS_DOES_NOT_EXIST},
              tests::ErrorOf([&] { return UnregisterClassA("TestClass", kProgram); }));
    WNDCLASSA found{};
    EXPECT_EQ(DWORD{ERROR_CLASS_DOES_NOT_EXIST},
              tests::ErrorOf([&] { return GetClassInfoA(kProgram, "TestClass", &found); }));
    EXPECT_EQ(Make("TestClass"), nullptr);
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
    EXPECT_FALSE(SetPropA(nullptr, "Test_A", Value(1)));
}

}  // namespace
