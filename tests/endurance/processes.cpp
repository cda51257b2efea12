// Many processes on one registry: writers, each with settings of its own and one that all write, and readers.
#include "tests/endurance/endurance.h"

#include <cvutil32/reg.h>

#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <thread>
#include <vector>

namespace endurance {

namespace {

constexpr int kSettings = 20;  // a writer
constexpr int kLooks = 100;    // a reader
constexpr char kCommon[] = "Endurance";
constexpr int kGate = 100;  // descriptor of the processes that says, by its end, when they begin

std::string SectionOf(int writer) {
    return "Endurance\\" + std::to_string(writer);
}

// Long enough to be torn, if anything were.
std::string CommonText(int writer) {
    std::string text;
    for (int i = 0; i < 200; ++i) {
        text += std::to_string(writer) + ' ';
    }
    return text;
}

bool IsCommonText(char const* text) {
    return CommonText(std::atoi(text)) == text;
}

void WaitForTheOthers() {
    char byte;
    while (read(kGate, &byte, 1) > 0) {
    }
}

pid_t Start(char const* program, char const* what, int number, int const (&gate)[2]) {
    pid_t const process = fork();
    if (process == 0) {
        std::string const text = std::to_string(number);
        // The other end is its parent's alone, so that closing it opens the gate.
        dup2(gate[0], kGate);
        for (int const end : gate) {
            if (end != kGate) {
                close(end);
            }
        }
        execl("/proc/self/exe", program, what, text.c_str(), nullptr);
        _exit(127);
    }
    return process;
}

bool AllIsThere(int writers) {
    int missing = 0;
    for (int writer = 0; writer < writers; ++writer) {
        std::string const section = SectionOf(writer);
        for (int i = 0; i < kSettings; ++i) {
            std::string const name = "Setting " + std::to_string(i);
            DWORD const wanted = static_cast<DWORD>(writer * kSettings + i);
            missing += Reg_GetProfileInt(HKEY_CURRENT_USER, section.c_str(), name.c_str(), 0xFFFFFFFF) != wanted;
        }
    }
    if (missing) {
        std::printf("%d of %d settings are lost\n", missing, writers * kSettings);
    }
    return missing == 0;
}

}  // namespace

int Write(int number) {
    WaitForTheOthers();
    std::string const section = SectionOf(number);
    std::string const common = CommonText(number);
    for (int i = 0; i < kSettings; ++i) {
        std::string const name = "Setting " + std::to_string(i);
        DWORD const value = static_cast<DWORD>(number * kSettings + i);
        if (!Reg_WriteProfileInt(HKEY_CURRENT_USER, section.c_str(), name.c_str(), value) ||
            Reg_GetProfileInt(HKEY_CURRENT_USER, section.c_str(), name.c_str(), 0xFFFFFFFF) != value) {
            return 1;
        }
        if (i % 5 == 0 && !Reg_WriteProfileString(HKEY_CURRENT_USER, kCommon, "Common", common.c_str())) {
            return 1;
        }
    }
    return 0;
}

int Read(int) {
    WaitForTheOthers();
    char text[2000];
    for (int i = 0; i < kLooks; ++i) {
        Reg_GetProfileString(HKEY_CURRENT_USER, kCommon, "Common", "", text, sizeof text);
        if (*text && !IsCommonText(text)) {
            return 1;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    return 0;
}

bool Processes(char const* program, int count) {
    char folder[] = "/tmp/cvutil32-endurance-XXXXXX";
    if (!mkdtemp(folder)) {
        return false;
    }
    setenv("CVUTIL32_HOME", folder, 1);
    int gate[2];
    if (pipe(gate) != 0) {
        return false;
    }
    // Three of four write.
    std::vector<pid_t> processes;
    int writers = 0;
    for (int i = 0; i < count; ++i) {
        bool const writes = i % 4 != 3;
        processes.push_back(Start(program, writes ? "write" : "read", writes ? writers++ : i, gate));
    }
    close(gate[0]);
    auto const start = std::chrono::steady_clock::now();
    close(gate[1]);
    int failed = 0;
    for (pid_t const process : processes) {
        int status = -1;
        waitpid(process, &status, 0);
        failed += status != 0;
    }
    std::chrono::duration<double> const took = std::chrono::steady_clock::now() - start;
    std::printf("%d writers and %d readers in %.1f s: %d failed\n", writers, count - writers, took.count(), failed);
    bool const good = AllIsThere(writers) && failed == 0;
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
    return good;
}

}  // namespace endurance
