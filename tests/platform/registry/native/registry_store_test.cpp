// The registry's file under faults: processes that are killed, that write at once, and files that are not what they
// should be. Each test has a state folder of its own.
#include <gtest/gtest.h>
#include <windows.h>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>

#include "tests/support/native/state_folder.h"

namespace {

namespace fs = std::filesystem;

constexpr char kPath[] = "Software\\Calverin\\Velmora\\Store test";

HKEY Open() {
    HKEY key = nullptr;
    RegCreateKeyExA(HKEY_CURRENT_USER, kPath, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key, nullptr);
    return key;
}

LONG Write(HKEY key, const std::string& name, DWORD value) {
    return RegSetValueExA(key, name.c_str(), 0, REG_DWORD, reinterpret_cast<const BYTE*>(&value), sizeof value);
}

/// A number that is never written stands for a missing value.
constexpr DWORD kMissing = 0xFFFFFFFF;

DWORD Read(HKEY key, const std::string& name) {
    DWORD value = 0;
    DWORD size = sizeof value;
    const LONG error = RegQueryValueExA(key, name.c_str(), nullptr, nullptr, reinterpret_cast<BYTE*>(&value), &size);
    return error == ERROR_SUCCESS ? value : kMissing;
}

/// @returns whether a process ends and says that all is well.
bool EndsWell(pid_t process) {
    int status = -1;
    waitpid(process, &status, 0);
    return status == 0;
}

class RegistryStore : public testing_support::StateFolder {
  protected:
    RegistryStore() : StateFolder("registry.db") {}
    ~RegistryStore() override {
        Leave();
        HKEY key = nullptr;
        RegOpenKeyExA(HKEY_CURRENT_USER, "", 0, KEY_READ, &key);  // leaves the test's file
        RegCloseKey(key);
    }

    /// Runs a piece of code in a process of its own. @returns whether it says that all is well.
    template <class Piece>
    static bool InProcess(Piece piece) {
        const pid_t child = fork();
        if (child == 0) {
            std::exit(piece() ? 0 : 1);
        }
        return EndsWell(child);
    }
};

TEST_F(RegistryStore, WhatAnotherProcessWritesIsSeenAtOnce) {
    const HKEY key = Open();
    Write(key, "Number", 1);
    ASSERT_EQ(Read(key, "Number"), 1u);
    EXPECT_TRUE(InProcess([] {
        const HKEY own = Open();
        return Read(own, "Number") == 1 && Write(own, "Number", 2) == ERROR_SUCCESS &&
               Write(own, "New", 3) == ERROR_SUCCESS;
    }));
    EXPECT_EQ(Read(key, "Number"), 2u);
    EXPECT_EQ(Read(key, "New"), 3u);
    EXPECT_TRUE(InProcess([] { return RegDeleteKeyA(HKEY_CURRENT_USER, kPath) == ERROR_SUCCESS; }));
    DWORD size = 0;
    EXPECT_EQ(RegQueryValueExA(key, "Number", nullptr, nullptr, nullptr, &size), ERROR_KEY_DELETED);
    RegCloseKey(key);
}

TEST_F(RegistryStore, TwoWritersLoseNothing) {
    constexpr DWORD kWrites = 10000;
    constexpr DWORD kNames = 50;
    pid_t writers[2];
    for (int writer = 0; writer < 2; ++writer) {
        writers[writer] = fork();
        if (writers[writer] == 0) {
            const HKEY key = Open();
            bool good = true;
            for (DWORD i = 0; i < kWrites && good; ++i) {
                // What this process wrote before must still be there, whatever the other one does.
                const std::string name = (writer ? "b" : "a") + std::to_string(i % kNames);
                good = (i < kNames || Read(key, name) == i - kNames) && Write(key, name, i) == ERROR_SUCCESS;
            }
            std::exit(good ? 0 : 1);
        }
    }
    for (const pid_t writer : writers) {
        EXPECT_TRUE(EndsWell(writer));
    }
    const HKEY key = Open();
    for (DWORD i = kWrites - kNames; i < kWrites; ++i) {
        EXPECT_EQ(Read(key, "a" + std::to_string(i % kNames)), i);
        EXPECT_EQ(Read(key, "b" + std::to_string(i % kNames)), i);
    }
    RegCloseKey(key);
}

// Waits for something that another process is about to do. @returns false when that process has ended instead.
template <class Holds>
bool WaitFor(pid_t process, Holds holds) {
    while (!holds()) {
        siginfo_t ended{};
        if (waitid(P_PID, static_cast<id_t>(process), &ended, WEXITED | WNOHANG | WNOWAIT) != 0 || ended.si_pid) {
            return holds();
        }
        std::this_thread::yield();
    }
    return true;
}

// The child tells, in memory that it shares, what has been written; it is killed somewhere behind one of its first
// writes, two hundred times.
TEST_F(RegistryStore, WhatWasWrittenOutlivesAKilledProcess) {
    struct Shared {
        std::atomic<DWORD> written;
        std::atomic<DWORD> keys;
    };
    auto* shared =
        static_cast<Shared*>(mmap(nullptr, sizeof(Shared), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));
    ASSERT_NE(shared, MAP_FAILED);
    HKEY key = Open();
    ASSERT_EQ(Write(key, "Kept", 4711), ERROR_SUCCESS);
    RegCloseKey(key);
    unsigned seed = 12345;
    DWORD total = 0;
    for (int kill = 0; kill < 200; ++kill) {
        shared->written = shared->keys = 0;
        const DWORD first = total + 1;
        const pid_t child = fork();
        if (child == 0) {
            const HKEY own = Open();
            for (DWORD i = first;; ++i) {
                if (Write(own, "Number", i) != ERROR_SUCCESS || Write(own, "n" + std::to_string(i % 64), i)) {
                    _exit(1);
                }
                shared->written = i;
                HKEY sub = nullptr;
                const std::string name = "k" + std::to_string(i % 16);
                if (RegCreateKeyExA(own, name.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &sub, nullptr)) {
                    _exit(2);
                }
                RegCloseKey(sub);
                shared->keys = shared->keys | 1u << (i % 16);
            }
        }
        seed = seed * 1103515245 + 12345;
        ASSERT_TRUE(WaitFor(child, [&] { return shared->written >= first + (seed >> 16) % 30; })) << "kill " << kill;
        ::kill(child, SIGKILL);
        int status = 0;
        waitpid(child, &status, 0);
        ASSERT_TRUE(WIFSIGNALED(status)) << "the writer failed, kill " << kill;

        key = Open();
        ASSERT_NE(key, nullptr);
        ASSERT_EQ(Read(key, "Kept"), 4711u);
        const DWORD written = shared->written;
        const DWORD number = Read(key, "Number");
        ASSERT_TRUE(number == written || number == written + 1) << number << " after " << written;
        const DWORD spread = Read(key, "n" + std::to_string(written % 64));
        ASSERT_TRUE(spread == written || spread == written + 64);
        total = number;
        for (int i = 0; i < 16; ++i) {
            HKEY sub = nullptr;
            if (shared->keys & 1u << i) {
                ASSERT_EQ(RegOpenKeyExA(key, ("k" + std::to_string(i)).c_str(), 0, KEY_READ, &sub), ERROR_SUCCESS);
                RegCloseKey(sub);
            }
        }
        RegCloseKey(key);
    }
    munmap(shared, sizeof(Shared));
}

// Six processes that wait at a gate: each makes the store, or finds it half made by another one.
TEST_F(RegistryStore, ProgramsThatStartAtOnceAllWrite) {
    for (int round = 0; round < 20; ++round) {
        setenv("CVUTIL32_HOME", (folder_ / std::to_string(round)).c_str(), 1);
        int gate[2];
        ASSERT_EQ(pipe(gate), 0);
        pid_t starters[6];
        for (pid_t& starter : starters) {
            starter = fork();
            if (starter == 0) {
                char none;
                close(gate[1]);
                const bool open = read(gate[0], &none, 1) == 0;
                const HKEY key = Open();
                _exit(open && key && Write(key, std::to_string(&starter - starters), 7) == ERROR_SUCCESS ? 0 : 1);
            }
        }
        close(gate[0]);
        close(gate[1]);
        for (const pid_t starter : starters) {
            EXPECT_TRUE(EndsWell(starter)) << "round " << round;
        }
        const HKEY key = Open();
        for (int i = 0; i < 6; ++i) {
            EXPECT_EQ(Read(key, std::to_string(i)), 7u) << "round " << round;
        }
        RegCloseKey(key);
    }
    setenv("CVUTIL32_HOME", folder_.c_str(), 1);
}

// A process that is about to write to an empty store stands in the way of another one that makes it. The lock that it
// holds is a part of the file's format.
TEST_F(RegistryStore, AStoreIsMadeThoughSomebodyElseIsAboutTo) {
    Put("");
    int told[2];
    int asked[2];
    ASSERT_EQ(pipe(told), 0);
    ASSERT_EQ(pipe(asked), 0);
    const std::string file = File();
    const pid_t other = fork();
    if (other == 0) {
        const int descriptor = open(file.c_str(), O_RDWR);
        struct flock lock {};
        lock.l_type = F_WRLCK;
        lock.l_start = 0x40000001;
        lock.l_len = 1;
        char byte = fcntl(descriptor, F_SETLK, &lock) == 0;
        const bool done = write(told[1], &byte, 1) == 1 && read(asked[0], &byte, 1) == 1;
        // Time for the other process to run into the lock; however little it makes of it, it must come through.
        usleep(300000);
        _exit(done ? 0 : 1);
    }
    char locked = 0;
    ASSERT_EQ(read(told[0], &locked, 1), 1);
    ASSERT_EQ(locked, 1);
    ASSERT_EQ(write(asked[1], &locked, 1), 1);
    const HKEY key = Open();
    EXPECT_NE(key, nullptr);
    EXPECT_EQ(Write(key, "Number", 5), ERROR_SUCCESS);
    RegCloseKey(key);
    EXPECT_TRUE(EndsWell(other));
    for (const int end : {told[0], told[1], asked[0], asked[1]}) {
        close(end);
    }
}

TEST_F(RegistryStore, AProcessThatForksGoesOn) {
    const HKEY key = Open();
    Write(key, "Number", 1);
    EXPECT_TRUE(InProcess([key] { return Write(key, "Number", Read(key, "Number") + 1) == ERROR_SUCCESS; }));
    EXPECT_EQ(Read(key, "Number"), 2u) << "an open key serves both";
    RegCloseKey(key);
}

TEST_F(RegistryStore, ADamagedFileIsReportedAndLeftAlone) {
    std::string rubbish;
    for (int i = 0; i < 20000; ++i) {
        rubbish += static_cast<char>(i * 7919 >> 3);
    }
    Put(rubbish);
    ::testing::internal::CaptureStderr();
    HKEY key = nullptr;
    EXPECT_EQ(RegCreateKeyExA(HKEY_CURRENT_USER, kPath, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key, nullptr),
              ERROR_REGISTRY_CORRUPT);
    EXPECT_EQ(RegOpenKeyExA(HKEY_CURRENT_USER, kPath, 0, KEY_READ, &key), ERROR_REGISTRY_CORRUPT);
    const std::string said = ::testing::internal::GetCapturedStderr();
    EXPECT_NE(said.find("registry.db is damaged"), std::string::npos) << said;
    EXPECT_EQ(std::count(said.begin(), said.end(), '\n'), 1) << "one line";
    EXPECT_TRUE(Text() == rubbish);
}

TEST_F(RegistryStore, APageThatWasOverwritten) {
    HKEY key = Open();
    for (DWORD i = 0; i < 2000; ++i) {
        Write(key, "a long name of a value, number " + std::to_string(i), i);
    }
    RegCloseKey(key);
    EXPECT_TRUE(InProcess([] { return true; })) << "a fork closes the file";
    std::string text = Text();
    ASSERT_GT(text.size(), 65536u);
    // All but the first pages: the tables themselves.
    std::fill(text.begin() + 16384, text.end(), '\x5A');
    Put(text);
    ::testing::internal::CaptureStderr();
    key = Open();
    DWORD read = 0;
    for (DWORD i = 0; i < 2000; ++i) {
        read += Read(key, "a long name of a value, number " + std::to_string(i)) == i;
    }
    EXPECT_LT(read, 2000u);
    EXPECT_NE(Write(key, "a long name of a value, number 1000", 1), ERROR_SUCCESS);
    ::testing::internal::GetCapturedStderr();
    RegCloseKey(key);
}

TEST_F(RegistryStore, AFileOfAnotherKindIsLeftAlone) {
    RegCloseKey(Open());
    EXPECT_TRUE(InProcess([] { return true; })) << "a fork closes the file";
    // The number at 68 names the program that a database belongs to.
    std::string before = Text();
    before.replace(68, 4, "XYZ1");
    Put(before);
    ::testing::internal::CaptureStderr();
    EXPECT_EQ(Open(), nullptr);
    ::testing::internal::GetCapturedStderr();
    EXPECT_TRUE(Text() == before);
}

// As another user than root, whom permissions do not hold.
template <class Piece>
bool AsNobody(Piece piece) {
    const pid_t child = fork();
    if (child == 0) {
        if (geteuid() == 0 && (setgid(65534) != 0 || setuid(65534) != 0)) {
            _exit(3);
        }
        _exit(piece() ? 0 : 1);
    }
    return EndsWell(child);
}

TEST_F(RegistryStore, AFolderThatCannotBeWrittenCanBeRead) {
    HKEY key = Open();
    Write(key, "Number", 5);
    RegCloseKey(key);
    EXPECT_TRUE(InProcess([] { return true; })) << "a fork closes the file";
    fs::permissions(File(), fs::perms(0444));
    fs::permissions(folder_, fs::perms(0555));
    EXPECT_TRUE(AsNobody([] {
        HKEY own = nullptr;
        const LONG opened =
            RegCreateKeyExA(HKEY_CURRENT_USER, kPath, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &own, nullptr);
        HKEY other = nullptr;
        return opened == ERROR_SUCCESS && Read(own, "Number") == 5 && Write(own, "Number", 6) == ERROR_ACCESS_DENIED &&
               RegCreateKeyExA(own, "New", 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &other, nullptr) ==
                   ERROR_ACCESS_DENIED &&
               Read(own, "Number") == 5;
    }));
}

TEST_F(RegistryStore, AFolderThatCannotBeMade) {
    setenv("CVUTIL32_HOME", (folder_ / "file" / "state").c_str(), 1);
    std::ofstream(folder_ / "file") << "in the way";
    ::testing::internal::CaptureStderr();
    EXPECT_EQ(Open(), nullptr);
    EXPECT_EQ(Open(), nullptr);
    const std::string said = ::testing::internal::GetCapturedStderr();
    EXPECT_EQ(std::count(said.begin(), said.end(), '\n'), 1) << said;
    setenv("CVUTIL32_HOME", folder_.c_str(), 1);
}

// A limit on the size of files stands for a full disk.
TEST_F(RegistryStore, AFullDiskLosesNothing) {
    HKEY key = Open();
    Write(key, "Number", 5);
    EXPECT_TRUE(InProcess([key] {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{200000, 200000};
        setrlimit(RLIMIT_FSIZE, &limit);
        const std::string large(100000, 'x');
        LONG error = ERROR_SUCCESS;
        for (int i = 0; i < 100 && error == ERROR_SUCCESS; ++i) {
            error = RegSetValueExA(key, ("Large" + std::to_string(i)).c_str(), 0, REG_BINARY,
                                   reinterpret_cast<const BYTE*>(large.data()), static_cast<DWORD>(large.size()));
        }
        return error == ERROR_DISK_FULL && Read(key, "Number") == 5;
    }));
    EXPECT_EQ(Read(key, "Number"), 5u);
    EXPECT_EQ(Write(key, "Number", 6), ERROR_SUCCESS);
    RegCloseKey(key);
}

TEST_F(RegistryStore, NamesThatCannotBe) {
    const HKEY key = Open();
    HKEY sub = nullptr;
    const auto create = [&](const char* name) {
        return RegCreateKeyExA(key, name, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &sub, nullptr);
    };
    EXPECT_EQ(create(std::string(256, 'k').c_str()), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(create("\\a"), ERROR_BAD_PATHNAME);
    EXPECT_EQ(create(nullptr), ERROR_BADKEY);
    EXPECT_NE(Write(key, std::string(16384, 'v'), 1), ERROR_SUCCESS);
    EXPECT_EQ(Write(key, std::string(16383, 'v'), 1), ERROR_SUCCESS);
    EXPECT_EQ(Write(key, "\xE9t\xE9", 2), ERROR_SUCCESS);
    EXPECT_EQ(Read(key, "\xC9T\xC9"), 2u) << "accented letters have two cases too";
    EXPECT_EQ(RegDeleteKeyA(HKEY_LOCAL_MACHINE, ""), ERROR_ACCESS_DENIED);
    RegCloseKey(key);
}

TEST_F(RegistryStore, ThreadsWriteAtOnce) {
    std::atomic<int> failures{0};
    std::thread threads[4];
    for (int t = 0; t < 4; ++t) {
        threads[t] = std::thread([t, &failures] {
            const HKEY key = Open();
            for (DWORD i = 0; i < 200; ++i) {
                const std::string name = std::to_string(t) + "/" + std::to_string(i % 10);
                failures += Write(key, name, i) != ERROR_SUCCESS || Read(key, name) != i;
            }
            RegCloseKey(key);
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(failures, 0);
}

}  // namespace
