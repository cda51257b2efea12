// Windows: a message sent on one thread beside a plain call of the window procedure, a repaint of a date field, and a
// dialog of 25 controls from opening to closing.
#include <cvutil32/datectrl.h>
#include <cvutil32/scroll.h>

#include <benchmark/benchmark.h>

#include <cstdint>
#include <vector>

namespace {

LRESULT CALLBACK Count(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return message == WM_USER ? static_cast<LRESULT>(wParam + 1) : DefWindowProcA(window, message, wParam, lParam);
}

HWND CreateHost() {
    static ATOM const atom = [] {
        WNDCLASSA record = {};
        record.lpfnWndProc = Count;
        record.hInstance = GetModuleHandleA(nullptr);
        record.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
        record.lpszClassName = "CvBenchHost";
        return RegisterClassA(&record);
    }();
    static_cast<void>(atom);
    return CreateWindowExA(0, "CvBenchHost", "", WS_POPUP | WS_VISIBLE, 50, 50, 300, 200, nullptr, nullptr,
                           GetModuleHandleA(nullptr), nullptr);
}

void PumpMessages() {
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
        DispatchMessageA(&message);
    }
}

void SendToSameThread(benchmark::State& state) {
    HWND const host = CreateHost();
    for (auto _ : state) {
        benchmark::DoNotOptimize(SendMessageA(host, WM_USER, 1, 0));
    }
    state.SetItemsProcessed(state.iterations());
    DestroyWindow(host);
}

void CallProcedureDirectly(benchmark::State& state) {
    HWND const host = CreateHost();
    WNDPROC volatile procedure = Count;
    for (auto _ : state) {
        benchmark::DoNotOptimize(procedure(host, WM_USER, 1, 0));
    }
    state.SetItemsProcessed(state.iterations());
    DestroyWindow(host);
}

void RepaintDateField(benchmark::State& state) {
    HWND const host = CreateHost();
    HWND const field = CreateWindowExA(0, DATECTRL_CLASSNAME, "", WS_CHILD | WS_VISIBLE, 10, 10, 100, 22, host, nullptr,
                                       GetModuleHandleA(nullptr), nullptr);
    DATECTRL_SetDate(field, nullptr, TRUE);
    PumpMessages();
    for (auto _ : state) {
        InvalidateRect(field, nullptr, FALSE);
        UpdateWindow(field);
    }
    DestroyWindow(host);
}

/// A dialog template in memory.
class Template {
  public:
    explicit Template(WORD items) {
        Put32(WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_VISIBLE | DS_SETFONT);
        Put32(0);
        Put16({items, 10, 10, 240, 200, 0, 0});
        PutText("Benchmark");
        Put16({8});
        PutText("MS Sans Serif");
    }

    void Add(DWORD style, short x, short y, short cx, short cy, WORD id, char const* className, char const* title) {
        if (words_.size() % 2) {
            words_.push_back(0);
        }
        Put32(style | WS_CHILD | WS_VISIBLE);
        Put32(0);
        Put16({static_cast<WORD>(x), static_cast<WORD>(y), static_cast<WORD>(cx), static_cast<WORD>(cy), id});
        PutText(className);
        PutText(title);
        Put16({0});
    }

    DLGTEMPLATE const* Get() const {
        return reinterpret_cast<DLGTEMPLATE const*>(words_.data());
    }

  private:
    void Put16(std::initializer_list<WORD> words) {
        words_.insert(words_.end(), words);
    }
    void Put32(DWORD value) {
        Put16({LOWORD(value), HIWORD(value)});
    }
    void PutText(char const* text) {
        do {
            words_.push_back(static_cast<unsigned char>(*text));
        } while (*text++);
    }

    std::vector<WORD> words_;
};

INT_PTR CALLBACK Dialog(HWND, UINT message, WPARAM, LPARAM) {
    return message == WM_INITDIALOG;
}

void OpenPaintCloseDialog(benchmark::State& state) {
    constexpr WORD kItems = 25;
    Template dialog(kItems);
    for (WORD i = 0; i < kItems; ++i) {
        short const x = static_cast<short>(5 + i % 5 * 46);
        short const y = static_cast<short>(5 + i / 5 * 18);
        switch (i % 5) {
            case 0:
                dialog.Add(WS_BORDER, x, y, 44, 12, i, DATECTRL_CLASSNAME, "");
                break;
            case 1:
                dialog.Add(SCROLL_VERTICAL | SCROLL_PREVSIBLING, x, y, 10, 12, i, SCROLL_CLASSNAME, "");
                break;
            case 2:
                dialog.Add(WS_TABSTOP, x, y, 44, 12, i, "button", "&Push");
                break;
            case 3:
                dialog.Add(BS_AUTOCHECKBOX | WS_TABSTOP, x, y, 44, 12, i, "button", "&Check");
                break;
            default:
                dialog.Add(SS_LEFT, x, y, 44, 12, i, "static", "Label");
                break;
        }
    }
    for (auto _ : state) {
        HWND const window = CreateDialogIndirectParamA(GetModuleHandleA(nullptr), dialog.Get(), nullptr, Dialog, 0);
        if (!window) {
            state.SkipWithError("the dialog could not be created");
            break;
        }
        UpdateWindow(window);
        PumpMessages();
        DestroyWindow(window);
    }
    state.SetItemsProcessed(state.iterations());
}

BENCHMARK(SendToSameThread);
BENCHMARK(CallProcedureDirectly);
BENCHMARK(RepaintDateField);
BENCHMARK(OpenPaintCloseDialog)->Unit(benchmark::kMicrosecond);

}  // namespace
