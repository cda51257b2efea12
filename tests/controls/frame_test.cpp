// What all controls share, shown by two small kinds of the tests' own: a superclass of the button with a data block and
// a validity property, and a parent subclass that answers one message of the parent.
#include <cvutil32.h>

#include "controls/frame/classes.h"
#include "controls/frame/parentsubclass.h"
#include "controls/frame/validity.h"
#include "controls/frame/windowdata.h"
#include "tests/support/leaks.h"
#include "tests/support/window.h"

#include <gtest/gtest.h>

namespace {

using namespace testing_support;

constexpr char kSuperclass[] = "CvTestSuperclass";
constexpr UINT kQuestion = WM_USER + 77;
constexpr LRESULT kAnswer = 4711;

struct Record {
    int presses;
};

frame::BaseClass g_base;
constexpr frame::ValidityProperty kValid("CvTest_IsValid");

LRESULT CALLBACK ParentProcedure(HWND parent, UINT message, WPARAM wParam, LPARAM lParam);
constexpr frame::ParentSubclass kParents("CvTest_ParentWndProc", ParentProcedure);

LRESULT CALLBACK ParentProcedure(HWND parent, UINT message, WPARAM wParam, LPARAM lParam) {
    return message == kQuestion ? kAnswer : kParents.Forward(parent, message, wParam, lParam);
}

LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    frame::DataSlot<Record> const slot(g_base.extraBytes);
    switch (message) {
        case WM_NCCREATE:
            slot.Put(window, globalblock::Make<Record>());
            kValid.Set(window);
            kParents.Install(window);
            break;
        case WM_NCDESTROY:
            kValid.Remove(window);
            slot.Take(window);
            break;
        case BM_CLICK:
            ++slot.Get(window)->presses;
            break;
        default:
            break;
    }
    return g_base.Call(window, message, wParam, lParam);
}

HWND CreateSample(HWND parent) {
    EXPECT_TRUE(frame::RegisterSuperclass(GetModuleHandleA(nullptr), kSuperclass, "button", Procedure, g_base));
    return MakeChild(parent, kSuperclass);
}

WNDPROC ProcedureOf(HWND window) {
    return reinterpret_cast<WNDPROC>(GetWindowLongPtrA(window, GWLP_WNDPROC));
}

TEST(Frame, AClassThatIsThereAlreadyTellsOfItsBase) {
    TestWindow const parent;
    CreateSample(parent);
    // What a second load of the library begins with.
    frame::BaseClass fresh = {};
    EXPECT_TRUE(frame::RegisterSuperclass(GetModuleHandleA(nullptr), kSuperclass, "button", DefWindowProcA, fresh));
    EXPECT_EQ(g_base.procedure, fresh.procedure);
    EXPECT_EQ(g_base.extraBytes, fresh.extraBytes);
    WNDCLASSA super = {};
    ASSERT_TRUE(GetClassInfoA(GetModuleHandleA(nullptr), kSuperclass, &super));
    EXPECT_EQ(&Procedure, super.lpfnWndProc) << "the class itself stays as it is";
    frame::BaseClass known = {DefWindowProcA, 3};
    EXPECT_TRUE(frame::RegisterSuperclass(GetModuleHandleA(nullptr), kSuperclass, "button", Procedure, known));
    EXPECT_EQ(3, known.extraBytes) << "what is known stays";
    EXPECT_FALSE(frame::RegisterSuperclass(nullptr, kSuperclass, "button", Procedure, g_base));
    frame::BaseClass untouched = {};
    EXPECT_FALSE(
        frame::RegisterSuperclass(GetModuleHandleA(nullptr), "CvTestNoSuch", "CvTestNoBase", Procedure, untouched));
    EXPECT_EQ(nullptr, untouched.procedure);
}

TEST(Frame, SuperclassedWindowWorksAsItsBaseAndHasItsData) {
    TestWindow parent;
    HWND const sample = CreateSample(parent);
    EXPECT_TRUE(kValid.IsSet(sample));
    EXPECT_FALSE(kValid.IsSet(parent));
    parent.Forget();
    SendMessageA(sample, BM_CLICK, 0, 0);
    ASSERT_EQ(1u, parent.Received(WM_COMMAND).size()) << "the base class's own behaviour";
    EXPECT_EQ(1, frame::DataSlot<Record>(g_base.extraBytes).Get(sample)->presses);
    testing_support::LeakCheck const leaks;
    DestroyWindow(CreateSample(parent));
}

TEST(Frame, ParentIsSubclassedOnceAndRestored) {
    TestWindow parent;
    WNDPROC const own = ProcedureOf(parent);
    CreateSample(parent);
    EXPECT_EQ(ProcedureOf(parent), &ParentProcedure);
    HANDLE const saved = GetPropA(parent, "CvTest_ParentWndProc");
    CreateSample(parent);
    EXPECT_EQ(saved, GetPropA(parent, "CvTest_ParentWndProc")) << "one subclass for all controls of the kind";
    EXPECT_EQ(kAnswer, SendMessageA(parent, kQuestion, 0, 0));
    SendMessageA(parent, WM_USER + 1, 2, 3);
    ASSERT_EQ(1u, parent.Received(WM_USER + 1).size()) << "everything else is forwarded";

    WNDPROC during = nullptr;
    bool property = false;
    HWND const handle = parent;
    parent.answer = [&](Message const& message) -> std::optional<LRESULT> {
        if (message.id == WM_NCDESTROY) {
            during = ProcedureOf(handle);
            property = GetPropA(handle, "CvTest_ParentWndProc") != nullptr;
        }
        return std::nullopt;
    };
    parent.Destroy();
    EXPECT_EQ(&ParentProcedure, during) << "the message is forwarded before the subclass ends";
    EXPECT_TRUE(property);
    EXPECT_EQ(1u, parent.Received(WM_NCDESTROY).size());
    EXPECT_NE(own, &ParentProcedure);
}

TEST(Frame, ParentsEndIsPassedOnWithoutArgumentsAndUnhooks) {
    TestWindow parent;
    WNDPROC const own = ProcedureOf(parent);
    CreateSample(parent);
    parent.answer = [](Message const& message) -> std::optional<LRESULT> {
        return message.id == WM_NCDESTROY || message.id == WM_USER + 1 ? std::optional<LRESULT>(55) : std::nullopt;
    };
    HANDLE const former = RemovePropA(parent, "CvTest_ParentWndProc");
    EXPECT_EQ(0, SendMessageA(parent, WM_USER + 1, 0, 0)) << "without the property there is nobody to ask";
    SetPropA(parent, "CvTest_ParentWndProc", former);
    EXPECT_EQ(55, SendMessageA(parent, WM_USER + 1, 0, 0));

    EXPECT_EQ(0, SendMessageA(parent, WM_NCDESTROY, 5, 6));
    ASSERT_EQ(1u, parent.Received(WM_NCDESTROY).size());
    EXPECT_EQ(0u, parent.Received(WM_NCDESTROY)[0].wParam);
    EXPECT_EQ(0, parent.Received(WM_NCDESTROY)[0].lParam);
    EXPECT_EQ(own, ProcedureOf(parent));
    EXPECT_EQ(nullptr, GetPropA(parent, "CvTest_ParentWndProc"));
}

TEST(Frame, ControlsMarkThemselvesAndHookTheirParents) {
    struct {
        char const* name;
        char const* valid;
        char const* parents;
    } const controls[] = {
        {GRBUTTON_CLASSNAME, "GrButton_IsValid", "GrButton_ParentWndProc"},
        {BROWSE_CLASSNAME, "Browse_IsValid", "Browse_ParentWndProc"},
        {CKLIST_CLASSNAME, "CKLIST_IsValid", "CKLIST_ParentWndProc"},
        {NUMFLD_CLASSNAME, nullptr, "NumField_ParentWndProc"},
    };
    testing_support::LeakCheck const leaks;
    for (auto const& each : controls) {
        SCOPED_TRACE(each.name);
        TestWindow parent;
        HWND const control = MakeChild(parent, each.name);
        EXPECT_TRUE(!each.valid || GetPropA(control, each.valid) == reinterpret_cast<HANDLE>(INT_PTR{1}));
        HANDLE const former = GetPropA(parent, each.parents);
        EXPECT_NE(nullptr, former);
        DestroyWindow(control);
        EXPECT_EQ(former, GetPropA(parent, each.parents)) << "the hook outlives its controls";
        parent.Destroy();
        EXPECT_EQ(1u, parent.Received(WM_NCDESTROY).size());
    }
}

WNDPROC g_below;

LRESULT CALLBACK OnTop(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    LRESULT const result = CallWindowProcA(g_below, window, message, wParam, lParam);
    if (message == WM_NCDESTROY) {
        EXPECT_EQ(ProcedureOf(window), &OnTop) << "a later subclass is left in place";
        EXPECT_NE(nullptr, GetPropA(window, "CvTest_ParentWndProc"));
        RemovePropA(window, "CvTest_ParentWndProc");
    }
    return result;
}

TEST(Frame, LaterSubclassOfTheParentIsLeftInPlace) {
    TestWindow parent;
    CreateSample(parent);
    g_below = reinterpret_cast<WNDPROC>(SetWindowLongPtrA(parent, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(OnTop)));
    EXPECT_EQ(kAnswer, SendMessageA(parent, kQuestion, 0, 0));
    parent.Destroy();
    EXPECT_EQ(1u, parent.Received(WM_NCDESTROY).size());
}

}  // namespace
