// IsBadWritePtr, which stands at the head of every member call of the classes, beside touching the memory without a
// guard.
#include <windows.h>

#include <benchmark/benchmark.h>

namespace {

void ProbeGoodMemory(benchmark::State& state) {
    alignas(64) static char memory[4096];
    auto const size = static_cast<UINT_PTR>(state.range(0));
    for (auto _ : state) {
        benchmark::DoNotOptimize(IsBadWritePtr(memory, size));
    }
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
BENCHMARK(TouchUnguarded)->Arg(8)->Arg(40);
BENCHMARK(ProbeBadMemory);

}  // namespace
