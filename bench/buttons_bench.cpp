// Buttons and lists: a repaint of a graphic button beside one of a plain push button, a check list scrolled from end to
// end beside an ordinary list box, and a block of pixels copied beside a plain copy of memory.
#include <cvutil32/cklist.h>
#include <cvutil32/grbutton.h>

#include <benchmark/benchmark.h>

#include <cstring>
#include <vector>

namespace {

HWND CreateHost() {
    static ATOM const atom = [] {
        WNDCLASSA record = {};
        record.lpfnWndProc = DefWindowProcA;
        record.hInstance = GetModuleHandleA(nullptr);
        record.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
        record.lpszClassName = "CvBenchButtonsHost";
        return RegisterClassA(&record);
    }();
    static_cast<void>(atom);
    return CreateWindowExA(0, "CvBenchButtonsHost", "", WS_POPUP | WS_VISIBLE, 50, 50, 300, 300, nullptr, nullptr,
                           GetModuleHandleA(nullptr), nullptr);
}

void PumpMessages() {
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
        DispatchMessageA(&message);
    }
}

HWND CreateControl(HWND host, char const* name, DWORD style, int width, int height) {
    return CreateWindowExA(0, name, "Button", WS_CHILD | WS_VISIBLE | style, 10, 10, width, height, host,
                           reinterpret_cast<HMENU>(INT_PTR{1}), GetModuleHandleA(nullptr), nullptr);
}

void Repaint(benchmark::State& state, HWND control) {
    PumpMessages();
    for (auto _ : state) {
        InvalidateRect(control, nullptr, TRUE);
        UpdateWindow(control);
    }
    state.SetItemsProcessed(state.iterations());
}

HBITMAP Picture() {
    HDC const screen = GetDC(nullptr);
    HBITMAP const bitmap = CreateCompatibleBitmap(screen, 16, 16);
    ReleaseDC(nullptr, screen);
    return bitmap;
}

void RepaintGraphicButton(benchmark::State& state) {
    HWND const host = CreateHost();
    HWND const button = CreateControl(host, GRBUTTON_CLASSNAME, 0, 75, 23);
    GRBUTTON_SetHBitmaps(button, Picture(), CreateBitmap(16, 16, 1, 1, nullptr));
    Repaint(state, button);
    DestroyWindow(host);
}

void RepaintPushButton(benchmark::State& state) {
    HWND const host = CreateHost();
    Repaint(state, CreateControl(host, "button", BS_PUSHBUTTON, 75, 23));
    DestroyWindow(host);
}

/// One iteration goes through 1,000 items a page at a time, painting every page.
void Scroll(benchmark::State& state, char const* name, DWORD style) {
    constexpr int kItems = 1000;
    HWND const host = CreateHost();
    HWND const list = CreateControl(host, name, style | LBS_HASSTRINGS | LBS_MULTIPLESEL | WS_VSCROLL, 200, 200);
    for (int i = 0; i < kItems; ++i) {
        SendMessageA(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>("An item of the list"));
    }
    PumpMessages();
    int const page = 180 / static_cast<int>(SendMessageA(list, LB_GETITEMHEIGHT, 0, 0));
    for (auto _ : state) {
        for (int top = 0; top < kItems; top += page) {
            SendMessageA(list, LB_SETTOPINDEX, static_cast<WPARAM>(top), 0);
            UpdateWindow(list);
        }
    }
    state.SetItemsProcessed(state.iterations() * kItems);
    DestroyWindow(host);
}

void ScrollCheckList(benchmark::State& state) {
    Scroll(state, CKLIST_CLASSNAME, LBS_OWNERDRAWFIXED);
}

void ScrollListBox(benchmark::State& state) {
    Scroll(state, "listbox", 0);
}

constexpr int kSide = 512;

void CopyByBitBlt(benchmark::State& state) {
    HDC const screen = GetDC(nullptr);
    HDC const contexts[] = {CreateCompatibleDC(screen), CreateCompatibleDC(screen)};
    HBITMAP const bitmaps[] = {CreateCompatibleBitmap(screen, kSide, kSide),
                               CreateCompatibleBitmap(screen, kSide, kSide)};
    for (int i = 0; i < 2; ++i) {
        SelectObject(contexts[i], bitmaps[i]);
    }
    for (auto _ : state) {
        BitBlt(contexts[0], 0, 0, kSide, kSide, contexts[1], 0, 0, SRCCOPY);
        benchmark::ClobberMemory();
    }
    state.SetBytesProcessed(state.iterations() * kSide * kSide * 4);
    for (int i = 0; i < 2; ++i) {
        DeleteDC(contexts[i]);
        DeleteObject(bitmaps[i]);
    }
    ReleaseDC(nullptr, screen);
}

void CopyByMemcpy(benchmark::State& state) {
    std::vector<char> from(kSide * kSide * 4, 1);
    std::vector<char> to(from.size());
    for (auto _ : state) {
        std::memcpy(to.data(), from.data(), from.size());
        benchmark::DoNotOptimize(to.data());
        benchmark::ClobberMemory();
    }
    state.SetBytesProcessed(state.iterations() * kSide * kSide * 4);
}

BENCHMARK(RepaintGraphicButton);
BENCHMARK(RepaintPushButton);
BENCHMARK(ScrollCheckList)->Unit(benchmark::kMillisecond);
BENCHMARK(ScrollListBox)->Unit(benchmark::kMillisecond);
BENCHMARK(CopyByBitBlt);
BENCHMARK(CopyByMemcpy);

}  // namespace
