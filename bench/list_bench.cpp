// Both lists beside std::vector: appending records of 16 bytes, and searching by halving beside std::lower_bound.
#include <cvutil32/clist.h>
#include <cvutil32/list.h>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdint>
#include <vector>

namespace {

struct Record {
    std::int32_t key;
    std::int32_t rest[3];
};

int CompareKeys(void* key, void* element) {
    std::int32_t const a = *static_cast<std::int32_t*>(key);
    std::int32_t const b = static_cast<Record*>(element)->key;
    return (a > b) - (a < b);
}

std::int32_t KeyOf(std::int64_t i) {
    return static_cast<std::int32_t>(i * 3);
}

// Keys that the processor cannot foresee, half of them in the list: so many, as it remembers a thousand.
std::vector<std::int32_t> Keys(std::int64_t count) {
    std::vector<std::int32_t> keys(1 << 17);
    std::uint32_t state = 12345;
    for (std::int32_t& key : keys) {
        state = state * 1664525 + 1013904223;
        key = KeyOf((state >> 8) % count) + static_cast<std::int32_t>(state >> 31);
    }
    return keys;
}

void AppendVector(benchmark::State& state) {
    Record record{};
    for (auto _ : state) {
        std::vector<Record> list;
        for (std::int64_t i = 0; i < state.range(0); ++i) {
            record.key = KeyOf(i);
            list.push_back(record);
            benchmark::DoNotOptimize(list.data());
        }
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void AppendCLIST(benchmark::State& state) {
    Record record{};
    for (auto _ : state) {
        CLIST list(sizeof record);
        for (std::int64_t i = 0; i < state.range(0); ++i) {
            record.key = KeyOf(i);
            benchmark::DoNotOptimize(list.Append(&record));
        }
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void AppendLIST(benchmark::State& state) {
    Record record{};
    for (auto _ : state) {
        LPVOID list = LIST_Malloc(64, sizeof record);
        for (std::int64_t i = 0; i < state.range(0); ++i) {
            record.key = KeyOf(i);
            benchmark::DoNotOptimize(LIST_Append(&list, &record));
        }
        LIST_Free(list);
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

/// Calls @p find for one key after the other.
template <class Find>
void Search(benchmark::State& state, Find find) {
    std::vector<std::int32_t> keys = Keys(state.range(0));
    std::size_t at = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(find(keys[at++ % keys.size()]));
    }
    state.SetItemsProcessed(state.iterations());
}

std::vector<Record> Records(std::int64_t count) {
    std::vector<Record> records(static_cast<std::size_t>(count));
    for (std::int64_t i = 0; i < count; ++i) {
        records[static_cast<std::size_t>(i)].key = KeyOf(i);
    }
    return records;
}

void SearchLowerBound(benchmark::State& state) {
    std::vector<Record> const records = Records(state.range(0));
    Search(state, [&](std::int32_t key) {
        auto const place = std::lower_bound(records.begin(), records.end(), key,
                                            [](Record const& record, std::int32_t k) { return record.key < k; });
        return place != records.end() && place->key == key ? &*place : nullptr;
    });
}

// The caller's comparison is called, as the list calls it.
void SearchLowerBoundByFunction(benchmark::State& state) {
    std::vector<Record> records = Records(state.range(0));
    CLISTCOMPARE compare = CompareKeys;
    benchmark::DoNotOptimize(compare);
    Search(state, [&](std::int32_t key) {
        auto const place = std::lower_bound(records.begin(), records.end(), key,
                                            [&](Record& record, std::int32_t k) { return compare(&k, &record) > 0; });
        return place != records.end() && compare(&key, &*place) == 0 ? &*place : nullptr;
    });
}

void SearchCLIST(benchmark::State& state) {
    CLIST list(sizeof(Record));
    for (Record& record : Records(state.range(0))) {
        list.Append(&record);
    }
    Search(state, [&](std::int32_t key) {
        unsigned int index;
        return list.FindBinary(&key, CompareKeys, &index);
    });
}

void SearchLIST(benchmark::State& state) {
    LPVOID list = LIST_Malloc(64, sizeof(Record));
    for (Record& record : Records(state.range(0))) {
        LIST_Append(&list, &record);
    }
    Search(state, [&](std::int32_t key) {
        DWORD index;
        return LIST_BFind(list, LIST_TYPE_LONG, 0, &key, &index);
    });
    LIST_Free(list);
}

BENCHMARK(AppendVector)->Arg(100)->Arg(10000);
BENCHMARK(AppendCLIST)->Arg(100)->Arg(10000);
BENCHMARK(AppendLIST)->Arg(100)->Arg(10000);
BENCHMARK(SearchLowerBound)->Arg(100)->Arg(10000);
BENCHMARK(SearchLIST)->Arg(100)->Arg(10000);
BENCHMARK(SearchLowerBoundByFunction)->Arg(100)->Arg(10000);
BENCHMARK(SearchCLIST)->Arg(100)->Arg(10000);

}  // namespace
