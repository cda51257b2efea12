// The list box: a thousand items scrolled from end to end line by line, each line painted, beside the drawing of the line that
// each step uncovers; and 60,000 items added, beside a vector of strings.
#include <windows.h>

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

namespace {

constexpr int kItems = 1000;

LRESULT CALLBACK Owner(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_DRAWITEM) {
        return DefWindowProcA(window, message, wParam, lParam);
    }
    auto const& item = *reinterpret_cast<DRAWITEMSTRUCT const*>(lParam);
    char text[64] = "";
    SendMessageA(item.hwndItem, LB_GETTEXT, item.itemID, reinterpret_cast<LPARAM>(text));
    RECT rect = item.rcItem;
    FillRect(item.hDC, &rect, GetSysColorBrush(COLOR_WINDOW));
    rect.left += 20;
    DrawTextA(item.hDC, text, -1, &rect, DT_SINGLELINE | DT_VCENTER);
    return TRUE;
}

HWND CreateHost() {
    static ATOM const atom = [] {
        WNDCLASSA record = {};
        record.lpfnWndProc = Owner;
        record.hInstance = GetModuleHandleA(nullptr);
        record.lpszClassName = "CvBenchListOwner";
        return RegisterClassA(&record);
    }();
    static_cast<void>(atom);
    return CreateWindowExA(0, "CvBenchListOwner", "", WS_POPUP | WS_VISIBLE, 50, 50, 300, 200, nullptr, nullptr,
                           GetModuleHandleA(nullptr), nullptr);
}

HWND CreateList(HWND host, DWORD style) {
    return CreateWindowExA(0, "listbox", "", WS_CHILD | WS_VISIBLE | WS_VSCROLL | style, 10, 10, 200, 150, host,
                           nullptr, GetModuleHandleA(nullptr), nullptr);
}

std::string TextOf(int index) {
    return "item number " + std::to_string(index);
}

void Scroll(benchmark::State& state, DWORD style) {
    HWND const host = CreateHost();
    HWND const list = CreateList(host, style);
    for (int i = 0; i < kItems; ++i) {
        SendMessageA(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(TextOf(i).c_str()));
    }
    UpdateWindow(list);
    std::int64_t steps = 0;
    for (auto _ : state) {
        SendMessageA(list, WM_VSCROLL, SB_TOP, 0);
        for (LRESULT top = -1; top != SendMessageA(list, LB_GETTOPINDEX, 0, 0); ++steps) {
            top = SendMessageA(list, LB_GETTOPINDEX, 0, 0);
            SendMessageA(list, WM_VSCROLL, SB_LINEDOWN, 0);
        }
    }
    state.SetItemsProcessed(steps);
    DestroyWindow(host);
}

void ScrollTexts(benchmark::State& state) {
    Scroll(state, 0);
}

void ScrollOwnerDrawn(benchmark::State& state) {
    Scroll(state, LBS_OWNERDRAWFIXED | LBS_HASSTRINGS);
}

/// The least that a step could do: one line of text.
void DrawLinesOnly(benchmark::State& state) {
    HWND const host = CreateHost();
    HDC const context = GetDC(host);
    std::int64_t steps = 0;
    for (auto _ : state) {
        for (int i = 0; i < kItems; ++i, ++steps) {
            std::string const text = TextOf(i);
            RECT const rect{10, 100, 200, 116};
            ExtTextOutA(context, 12, 100, ETO_OPAQUE | ETO_CLIPPED, &rect, text.c_str(), static_cast<UINT>(text.size()),
                        nullptr);
        }
    }
    state.SetItemsProcessed(steps);
    ReleaseDC(host, context);
    DestroyWindow(host);
}

void AddSixtyThousand(benchmark::State& state) {
    HWND const host = CreateHost();
    HWND const list = CreateList(host, static_cast<DWORD>(state.range(0)));
    for (auto _ : state) {
        SendMessageA(list, WM_SETREDRAW, FALSE, 0);
        for (int i = 0; i < 60000; ++i) {
            // An order that is none, for the sorted list.
            SendMessageA(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(TextOf(i * 7919 % 60000).c_str()));
        }
        SendMessageA(list, WM_SETREDRAW, TRUE, 0);
        SendMessageA(list, LB_RESETCONTENT, 0, 0);
    }
    state.SetItemsProcessed(state.iterations() * 60000);
    DestroyWindow(host);
}

void AddSixtyThousandToVector(benchmark::State& state) {
    for (auto _ : state) {
        std::vector<std::string> texts;
        for (int i = 0; i < 60000; ++i) {
            texts.push_back(TextOf(i * 7919 % 60000));
        }
        benchmark::DoNotOptimize(texts.data());
    }
    state.SetItemsProcessed(state.iterations() * 60000);
}

BENCHMARK(ScrollTexts)->Unit(benchmark::kMillisecond);
BENCHMARK(ScrollOwnerDrawn)->Unit(benchmark::kMillisecond);
BENCHMARK(DrawLinesOnly)->Unit(benchmark::kMillisecond);
BENCHMARK(AddSixtyThousand)->Arg(0)->Arg(LBS_SORT)->Unit(benchmark::kMillisecond);
BENCHMARK(AddSixtyThousandToVector)->Unit(benchmark::kMillisecond);

}  // namespace
