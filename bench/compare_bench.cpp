// Comparison in word order beside the plain one of the C library, and searching 64 KiB for a text that stands at its end.
#include <cvutil32/cstring.h>

#include <benchmark/benchmark.h>

#include <cstring>
#include <string>

namespace {

void CompareIgnoringCase(benchmark::State& state) {
    auto const size = static_cast<int>(state.range(0));
    std::string const first(static_cast<std::size_t>(size), 'a');
    std::string second(static_cast<std::size_t>(size), 'A');
    for (auto _ : state) {
        benchmark::DoNotOptimize(
            CompareStringA(LOCALE_SYSTEM_DEFAULT, NORM_IGNORECASE, first.data(), size, second.data(), size));
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations());
}

void CompareCaseless(benchmark::State& state) {
    std::string const first(static_cast<std::size_t>(state.range(0)), 'a');
    std::string const second(static_cast<std::size_t>(state.range(0)), 'A');
    for (auto _ : state) {
        benchmark::DoNotOptimize(strncasecmp(first.data(), second.data(), first.size()));
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations());
}

std::string Haystack() {
    std::string text;
    while (text.size() < 65536 - 32) {
        text += "the quick brown fox, jumps over the lazy dog - ";
    }
    return text + "Needle";
}

void FindIgnoringCase(benchmark::State& state) {
    std::string const haystack = Haystack();
    CSTRING text(haystack.c_str());
    for (auto _ : state) {
        benchmark::DoNotOptimize(text.FindNoCase("nEEDLE", 0));
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(haystack.size()));
}

void FindAsWritten(benchmark::State& state) {
    std::string const haystack = Haystack();
    CSTRING text(haystack.c_str());
    for (auto _ : state) {
        benchmark::DoNotOptimize(text.Find("Needle", 0));
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(haystack.size()));
}

void FindByStrcasestr(benchmark::State& state) {
    std::string const haystack = Haystack();
    for (auto _ : state) {
        benchmark::DoNotOptimize(strcasestr(haystack.c_str(), "nEEDLE"));
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(haystack.size()));
}

BENCHMARK(CompareIgnoringCase)->Arg(8)->Arg(64);
BENCHMARK(CompareCaseless)->Arg(8)->Arg(64);
BENCHMARK(FindIgnoringCase);
BENCHMARK(FindAsWritten);
BENCHMARK(FindByStrcasestr);

}  // namespace
