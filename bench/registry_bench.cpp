// The registry: reads and writes of one value, by a key that stays open and as applications do it, with a list of names
// beside them.
#include <windows.h>

#include <benchmark/benchmark.h>

#include <string>

namespace {

constexpr char kSection[] = "Software\\Calverin\\Velmora\\Benchmark";

/// The benchmark's own key, empty at the beginning and gone at the end.
class Key {
  public:
    Key() {
        RegDeleteKeyA(HKEY_CURRENT_USER, kSection);
        RegCreateKeyExA(HKEY_CURRENT_USER, kSection, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key_, nullptr);
    }
    ~Key() {
        RegCloseKey(key_);
        RegDeleteKeyA(HKEY_CURRENT_USER, kSection);
    }
    Key(Key const&) = delete;
    Key& operator=(Key const&) = delete;

    operator HKEY() const {
        return key_;
    }

    LONG Write(char const* name, DWORD value) const {
        return RegSetValueExA(key_, name, 0, REG_DWORD, reinterpret_cast<BYTE const*>(&value), sizeof value);
    }

  private:
    HKEY key_ = nullptr;
};

LONG Read(HKEY key, char const* name, DWORD* value) {
    DWORD size = sizeof *value;
    DWORD type = REG_NONE;
    return RegQueryValueExA(key, name, nullptr, &type, reinterpret_cast<BYTE*>(value), &size);
}

void ReadOpenKey(benchmark::State& state) {
    Key const key;
    key.Write("Width", 640);
    DWORD value = 0;
    for (auto _ : state) {
        if (Read(key, "Width", &value) != ERROR_SUCCESS) {
            state.SkipWithError("not read");
        }
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(ReadOpenKey);

/// Opens the section, reads and closes it, as the profile functions of the library do.
void OpenReadClose(benchmark::State& state) {
    Key const key;
    key.Write("Width", 640);
    DWORD value = 0;
    for (auto _ : state) {
        HKEY opened = nullptr;
        RegCreateKeyExA(HKEY_CURRENT_USER, kSection, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &opened, nullptr);
        if (Read(opened, "Width", &value) != ERROR_SUCCESS) {
            state.SkipWithError("not read");
        }
        RegCloseKey(opened);
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(OpenReadClose);

void ReadOneOfMany(benchmark::State& state) {
    Key const key;
    for (int i = 0; i < 1000; ++i) {
        key.Write(("Value" + std::to_string(i)).c_str(), static_cast<DWORD>(i));
    }
    DWORD value = 0;
    int i = 0;
    for (auto _ : state) {
        i = (i + 7) % 1000;
        char name[16];
        wsprintfA(name, "Value%d", i);
        if (Read(key, name, &value) != ERROR_SUCCESS) {
            state.SkipWithError("not read");
        }
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(ReadOneOfMany);

void WriteOneValue(benchmark::State& state) {
    Key const key;
    DWORD value = 0;
    for (auto _ : state) {
        if (key.Write("Width", ++value) != ERROR_SUCCESS) {
            state.SkipWithError("not written");
        }
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(WriteOneValue);

void WriteThenReadAnother(benchmark::State& state) {
    Key const key;
    key.Write("Height", 480);
    DWORD value = 0;
    DWORD height = 0;
    for (auto _ : state) {
        if (key.Write("Width", ++value) != ERROR_SUCCESS || Read(key, "Height", &height) != ERROR_SUCCESS) {
            state.SkipWithError("not written");
        }
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(WriteThenReadAnother);

void ListNames(benchmark::State& state) {
    Key const key;
    for (int i = 0; i < 100; ++i) {
        key.Write(("Value" + std::to_string(i)).c_str(), static_cast<DWORD>(i));
    }
    for (auto _ : state) {
        char name[64];
        for (DWORD i = 0;; ++i) {
            DWORD size = sizeof name;
            if (RegEnumValueA(key, i, name, &size, nullptr, nullptr, nullptr, nullptr) != ERROR_SUCCESS) {
                break;
            }
        }
        benchmark::DoNotOptimize(name);
    }
    state.SetItemsProcessed(state.iterations() * 100);
}
BENCHMARK(ListNames);

}  // namespace
