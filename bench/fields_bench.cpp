// The fields that dialogs are filled with: a repaint, and a key press from the input queue until its picture stands on the
// screen.
#include <cvutil32.h>

#include <benchmark/benchmark.h>

namespace {

constexpr int kWidth = 100;
constexpr int kHeight = 22;

/// A field with the focus in a window of its own.
class Field {
  public:
    Field(LPCSTR name, DWORD style) {
        host_ = CreateWindowExA(0, "static", "", WS_POPUP | WS_VISIBLE, 50, 50, 300, 200, nullptr, nullptr,
                                GetModuleHandleA(nullptr), nullptr);
        field_ = CreateWindowExA(0, name, "", WS_CHILD | WS_VISIBLE | style, 10, 10, kWidth, kHeight, host_, nullptr,
                                 GetModuleHandleA(nullptr), nullptr);
        SetForegroundWindow(host_);
        SetFocus(field_);
        Pump();
    }
    ~Field() {
        DestroyWindow(host_);
    }
    Field(Field const&) = delete;
    Field& operator=(Field const&) = delete;

    operator HWND() const {
        return field_;
    }

    static void Pump() {
        MSG message;
        while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
            TranslateMessage(&message);
            DispatchMessageA(&message);
        }
    }

    void Repaint() const {
        InvalidateRect(field_, nullptr, FALSE);
        UpdateWindow(field_);
    }

    static void Press(WORD key) {
        INPUT inputs[2] = {};
        for (INPUT& input : inputs) {
            input.type = INPUT_KEYBOARD;
            input.ki.wVk = key;
        }
        inputs[1].ki.dwFlags = KEYEVENTF_KEYUP;
        SendInput(2, inputs, sizeof inputs[0]);
        Pump();
    }

  private:
    HWND host_;
    HWND field_;
};

void RepaintTimeField(benchmark::State& state) {
    Field const field(TIMECTRL_CLASSNAME, 0);
    TIMECTRL_SetTime(field, nullptr, TRUE);
    for (auto _ : state) {
        field.Repaint();
    }
}

void RepaintNumericField(benchmark::State& state) {
    Field const field(NUMFLD_CLASSNAME, ES_AUTOHSCROLL);
    NUMFLD_SetValue(field, 12345);
    for (auto _ : state) {
        field.Repaint();
    }
}

// The digits 1 and 2 in turn on the units of the minute, so that every third press changes the picture; the others bring the
// caret back.
void PressInTimeField(benchmark::State& state) {
    Field const field(TIMECTRL_CLASSNAME, 0);
    TIMECTRL_SetTime(field, nullptr, TRUE);
    Field::Press(VK_HOME);
    for (int i = 0; i < 6; ++i) {
        Field::Press(VK_RIGHT);
    }
    WORD key = '1';
    for (auto _ : state) {
        Field::Press(VK_LEFT);
        Field::Press(VK_LEFT);
        Field::Press(key);
        key = key == '1' ? '2' : '1';
    }
    SYSTEMTIME after = {};
    TIMECTRL_GetTime(field, &after);
    if (after.wMinute % 10 != 1 && after.wMinute % 10 != 2) {
        state.SkipWithError("the keys do not reach the field");
    }
    state.SetItemsProcessed(state.iterations() * 3);
}

void PressInNumericField(benchmark::State& state) {
    Field const field(NUMFLD_CLASSNAME, ES_AUTOHSCROLL);
    NUMFLD_SetLimits(field, 0, 99999);
    WORD key = '1';
    Field::Press(key);
    if (NUMFLD_GetValue(field) != 1) {
        state.SkipWithError("the key does not reach the field");
    }
    for (auto _ : state) {
        key = key == '1' ? VK_BACK : '1';
        Field::Press(key);
    }
    state.SetItemsProcessed(state.iterations());
}

BENCHMARK(RepaintTimeField);
BENCHMARK(RepaintNumericField);
BENCHMARK(PressInTimeField);
BENCHMARK(PressInNumericField);

}  // namespace
