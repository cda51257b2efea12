// IsBadWritePtr, which stands at the head of every member call of the classes, beside touching the memory without a
// guard.
#include <windows.h>

#include <benchmark/benchmark.h>

#include <memory>

namespace {

void ProbeGoodMemory(benchmark::State& state) {
    alignas(64) static char memory[4096];
    auto const size = static_cast<UINT_PTR>(state.range(0));
    for (auto _ : state) {
        benchmark::DoNotOptimize(IsBadWritePtr(memory, size));
    }
}

void ProbeStack(benchmark::State& state) {
    char memory[64];
    for (auto _ : state) {
        benchmark::DoNotOptimize(IsBadWritePtr(memory, sizeof memory));
    }
}

void ProbeHeap(benchmark::State& state) {
    auto const memory = std::make_unique<char[]>(64);
    for (auto _ : state) {
        benchmark::DoNotOptimize(IsBadWritePtr(memory.get(), 64));
    }
}

// Memory of nobody's: touched, with a locked instruction.
void ProbeMapped(benchmark::State& state) {
    void* const memory = VirtualAlloc(nullptr, 4096, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
    for (auto _ : state) {
        benchmark::DoNotOptimize(IsBadWritePtr(memory, 64));
    }
    VirtualFree(memory, 0, MEM_RELEASE);
}

void TouchUnguarded(benchmark::State& state) {
    alignas(64) static volatile char memory[4096];
    auto const size = static_cast<std::size_t>(state.range(0));
    for (auto _ : state) {
        memory[0] = memory[0];
        memory[size - 1] = memory[size - 1];
    }
}

void ProbeBadMemory(benchmark::State& state) {
    for (auto _ : state) {
        benchmark::DoNotOptimize(IsBadWritePtr(reinterpret_cast<void*>(static_cast<UINT_PTR>(16)), 8));
    }
}

BENCHMARK(ProbeGoodMemory)->Arg(8)->Arg(40)->Arg(4096);
BENCHMARK(ProbeStack);
BENCHMARK(ProbeHeap);
BENCHMARK(ProbeMapped);
BENCHMARK(TouchUnguarded)->Arg(8)->Arg(40);
BENCHMARK(ProbeBadMemory);

}  // namespace
