// BitBlt between pictures in memory beside memcpy of as many rows, and what the other operations cost.
#include <windows.h>

#include <benchmark/benchmark.h>

#include <cstdint>
#include <cstring>
#include <vector>

namespace {

constexpr int kWidth = 512;
constexpr int kHeight = 512;
constexpr std::int64_t kBytes = std::int64_t{kWidth} * kHeight * 4;

/// A picture of 32 bits with a context to draw on it.
struct Picture {
    HDC context = CreateCompatibleDC(nullptr);
    HBITMAP bitmap = nullptr;
    HGDIOBJ previous = nullptr;

    Picture() {
        BITMAPINFO info = {};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = kWidth;
        info.bmiHeader.biHeight = -kHeight;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        void* bits = nullptr;
        bitmap = CreateDIBSection(context, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        previous = SelectObject(context, bitmap);
    }
    ~Picture() {
        SelectObject(context, previous);
        DeleteDC(context);
        DeleteObject(bitmap);
    }
    Picture(Picture const&) = delete;
    Picture& operator=(Picture const&) = delete;
};

void Blit(benchmark::State& state) {
    Picture const from;
    Picture const to;
    DWORD const operation = static_cast<DWORD>(state.range(0));
    for (auto _ : state) {
        BitBlt(to.context, 0, 0, kWidth, kHeight, from.context, 0, 0, operation);
        GdiFlush();
    }
    state.SetBytesProcessed(state.iterations() * kBytes);
}

void CopyMemoryRows(benchmark::State& state) {
    std::vector<std::uint32_t> const from(kWidth * kHeight, 0x123456);
    std::vector<std::uint32_t> to(kWidth * kHeight);
    for (auto _ : state) {
        for (std::size_t row = 0; row < kHeight; ++row) {
            std::memcpy(to.data() + row * kWidth, from.data() + row * kWidth, kWidth * 4);
        }
        benchmark::DoNotOptimize(to.data());
        benchmark::ClobberMemory();
    }
    state.SetBytesProcessed(state.iterations() * kBytes);
}

void StretchTwice(benchmark::State& state) {
    Picture const from;
    Picture const to;
    for (auto _ : state) {
        StretchBlt(to.context, 0, 0, kWidth, kHeight, from.context, 0, 0, kWidth / 2, kHeight / 2, SRCCOPY);
        GdiFlush();
    }
    state.SetBytesProcessed(state.iterations() * kBytes);
}

BENCHMARK(Blit)->Arg(SRCCOPY)->Arg(SRCAND)->Arg(SRCINVERT)->Arg(MERGECOPY);
BENCHMARK(CopyMemoryRows);
BENCHMARK(StretchTwice);

}  // namespace
