// Looking files up beside stat(), listing a folder beside readdir() with stat(), and reading profile files.
#include <windows.h>

#include <benchmark/benchmark.h>

#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace {

/// A folder with a number of files, by its path on the host and its Windows path.
class Folder {
  public:
    explicit Folder(int files) {
        char name[] = "/tmp/cvutil32-bench-XXXXXX";
        host = mkdtemp(name);
        path = "Z:" + host;
        for (char& character : path) {
            character = character == '/' ? '\\' : character;
        }
        for (int i = 0; i < files; ++i) {
            std::ofstream(host + "/File" + std::to_string(i) + ".txt") << "x";
        }
    }
    ~Folder() {
        std::filesystem::remove_all(host);
    }
    Folder(Folder const&) = delete;
    Folder& operator=(Folder const&) = delete;

    std::string host;
    std::string path;
};

void FindFile(benchmark::State& state, char const* name) {
    Folder const folder(100);
    std::string const file = folder.path + "\\" + name;
    WIN32_FIND_DATAA found;
    for (auto _ : state) {
        HANDLE const search = FindFirstFileA(file.c_str(), &found);
        if (search == INVALID_HANDLE_VALUE) {
            state.SkipWithError("not found");
        }
        FindClose(search);
    }
}
BENCHMARK_CAPTURE(FindFile, AsWritten, "File50.txt");
BENCHMARK_CAPTURE(FindFile, InAnotherCase, "FILE50.TXT");

void PeerStat(benchmark::State& state) {
    Folder const folder(100);
    std::string const file = folder.host + "/File50.txt";
    for (auto _ : state) {
        struct stat status;
        benchmark::DoNotOptimize(stat(file.c_str(), &status));
    }
}
BENCHMARK(PeerStat);

void ListFolder(benchmark::State& state) {
    Folder const folder(1000);
    std::string const pattern = folder.path + "\\*.txt";
    WIN32_FIND_DATAA found;
    for (auto _ : state) {
        int count = 0;
        HANDLE const search = FindFirstFileA(pattern.c_str(), &found);
        do {
            ++count;
        } while (FindNextFileA(search, &found));
        FindClose(search);
        if (count != 1000) {
            state.SkipWithError("not all found");
        }
    }
}
BENCHMARK(ListFolder);

void PeerReaddirAndStat(benchmark::State& state) {
    Folder const folder(1000);
    for (auto _ : state) {
        DIR* const listing = opendir(folder.host.c_str());
        while (dirent const* entry = readdir(listing)) {
            struct stat status;
            benchmark::DoNotOptimize(stat((folder.host + '/' + entry->d_name).c_str(), &status));
        }
        closedir(listing);
    }
}
BENCHMARK(PeerReaddirAndStat);

void ReadProfile(benchmark::State& state) {
    Folder const folder(0);
    std::string const file = folder.path + "\\test.ini";
    {
        std::ofstream text(folder.host + "/test.ini");
        for (int section = 0; section < 10; ++section) {
            text << "[Section" << section << "]\n";
            for (int key = 0; key < 20; ++key) {
                text << "Key" << key << "=value " << key << '\n';
            }
        }
    }
    for (auto _ : state) {
        char buffer[64];
        benchmark::DoNotOptimize(
            GetPrivateProfileStringA("Section7", "Key15", "", buffer, sizeof buffer, file.c_str()));
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(ReadProfile);

void ReadWinIni(benchmark::State& state) {
    WriteProfileStringA("benchmark", "Key", "value");
    for (auto _ : state) {
        char buffer[64];
        benchmark::DoNotOptimize(GetProfileStringA("benchmark", "Key", "", buffer, sizeof buffer));
    }
    WriteProfileStringA("benchmark", nullptr, nullptr);
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(ReadWinIni);

}  // namespace
