// CSTRING beside std::string: make, append and free texts of 24 to 64 characters.
#include <cvutil32/cstring.h>

#include <benchmark/benchmark.h>

#include <string>

namespace {

/// Makes a text of range(0) characters, appends range(1) more and frees it.
template <class String>
void MakeAppendFree(benchmark::State& state) {
    std::string const head(static_cast<std::size_t>(state.range(0)), 'a');
    std::string const tail(static_cast<std::size_t>(state.range(1)), 'b');
    char const* const first = head.c_str();
    char const* const second = tail.c_str();
    for (auto _ : state) {
        String text(first);
        text += second;
        benchmark::DoNotOptimize(text);
    }
    state.SetItemsProcessed(state.iterations());
}

template <class String>
void Sum(benchmark::State& state) {
    String const head("C:\\PROGRAM FILES\\CALVERIN");
    for (auto _ : state) {
        String text = head + "\\VELMORA.EXE";
        benchmark::DoNotOptimize(text);
    }
}

BENCHMARK(MakeAppendFree<CSTRING>)->ArgsProduct({{24, 32, 48, 64}, {8, 24}});
BENCHMARK(MakeAppendFree<std::string>)->ArgsProduct({{24, 32, 48, 64}, {8, 24}});
BENCHMARK(Sum<CSTRING>);
BENCHMARK(Sum<std::string>);

}  // namespace
