#include "tests/storm/watch.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <string>
#include <vector>

namespace storm {

namespace {

constexpr int kPatience = 120;  // seconds without an event; the machine may be busy, and sanitizers are slow

Record own{};
Record* record = &own;

char* Line(unsigned long event) {
    return record->lines[event % Record::kLines];
}

void Write(Record const& of) {
    unsigned long const events = of.events;
    for (unsigned long event = events - std::min<unsigned long>(events, Record::kLines - 1); event <= events; ++event) {
        std::printf("  %lu %.*s\n", event, static_cast<int>(Record::kLength), of.lines[event % Record::kLines]);
    }
    std::fflush(stdout);
}

/// A folder that is there as long as the object, with the files that the storm's dialogs show.
class StateFolder {
  public:
    StateFolder() {
        char name[] = "/tmp/cvutil32-storm-XXXXXX";
        path_ = mkdtemp(name);
        std::filesystem::path const drive = path_ / "drive_c";
        for (char const* folder : {"alpha/one/deep", "alpha/two", "beta", "gamma/x"}) {
            std::filesystem::create_directories(drive / folder);
        }
        for (char const* file : {"a.txt", "b;c.txt", "alpha/long name of a file.txt", "storm.txt"}) {
            if (std::FILE* const out = std::fopen((drive / file).c_str(), "w")) {
                std::fputs("[1001]\nA topic.\n\n[1002]\nAnother one, of several\nlines.\n", out);
                std::fclose(out);
            }
        }
    }
    ~StateFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    StateFolder(StateFolder const&) = delete;
    StateFolder& operator=(StateFolder const&) = delete;

    std::filesystem::path const& path() const {
        return path_;
    }

  private:
    std::filesystem::path path_;
};

[[noreturn]] void Become(char const* program, Run const& run, int descriptor, StateFolder const& folder) {
    std::string const events = std::to_string(run.events);
    std::string const seed = std::to_string(run.seed);
    std::string const shared = "--watched=" + std::to_string(descriptor);
    std::vector<char const*> arguments = {program, events.c_str(), seed.c_str(), shared.c_str()};
    for (char const* const* mode = run.modes; *mode; ++mode) {
        arguments.push_back(*mode);
    }
    arguments.push_back(nullptr);
    setenv("CVUTIL32_HOME", folder.path().c_str(), 1);
    setenv("CVUTIL32_DISPLAY", "none", 1);
    setenv("TZ", "UTC", 1);
    // A process that stands still is stopped by this signal, and tells where it was.
    setenv("ASAN_OPTIONS", "handle_abort=1:print_legend=0", 0);
    if (chdir((folder.path() / "drive_c").c_str()) == 0) {
        execv("/proc/self/exe", const_cast<char**>(arguments.data()));
    }
    _exit(127);
}

/// Waits for the end of a process. @return its status; one that stands still is ended.
int WaitFor(pid_t process, Record const& of) {
    unsigned long events = of.events;
    int status = 0;
    for (int still = 0; waitpid(process, &status, WNOHANG) == 0;) {
        usleep(100000);
        unsigned long const now = of.events;
        still = now == events ? still + 1 : 0;
        events = now;
        if (still == kPatience * 10) {
            std::printf("it stands still\n");
            kill(process, SIGABRT);
        } else if (still == kPatience * 10 + 100) {
            kill(process, SIGKILL);
        }
    }
    return status;
}

}  // namespace

Record& Ours() {
    return *record;
}

void Share(int descriptor) {
    void* const memory = mmap(nullptr, sizeof(Record), PROT_READ | PROT_WRITE, MAP_SHARED, descriptor, 0);
    if (memory != MAP_FAILED) {
        record = static_cast<Record*>(memory);
    }
}

void BeginEvent(char const* name) {
    unsigned long const event = record->events + 1;
    char* const line = Line(event);
    std::strncpy(line, name, Record::kLength - 1);
    line[Record::kLength - 1] = '\0';
    record->events = event;
}

void Note(char const* format, ...) {
    char* const line = Line(record->events);
    std::size_t const length = strnlen(line, Record::kLength - 1);
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(line + length, Record::kLength - length, format, arguments);
    va_end(arguments);
}

void Fail(char const* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    std::vprintf(format, arguments);
    va_end(arguments);
    std::printf("\n");
    std::fflush(stdout);
    _exit(1);
}

bool Watch(char const* program, Run const& run) {
    StateFolder const folder;
    int const descriptor = memfd_create("storm", 0);
    void* memory = MAP_FAILED;
    if (descriptor >= 0 && ftruncate(descriptor, sizeof(Record)) == 0) {
        memory = mmap(nullptr, sizeof(Record), PROT_READ | PROT_WRITE, MAP_SHARED, descriptor, 0);
    }
    if (memory == MAP_FAILED) {
        std::printf("no memory to watch a storm by\n");
        return false;
    }
    auto* const shared = static_cast<Record*>(memory);
    std::fflush(stdout);
    pid_t const process = fork();
    if (process == 0) {
        Become(program, run, descriptor, folder);
    }
    int const status = WaitFor(process, *shared);
    bool const good = WIFEXITED(status) && WEXITSTATUS(status) == 0;
    if (good) {
        std::printf("seed %llu: %lu events in %lu dialogs, %lu failed allocations\n", run.seed, shared->events.load(),
                    shared->dialogs.load(), shared->failed.load());
        std::fflush(stdout);
    } else {
        std::printf("seed %llu: %s %d in event %lu, dialog %lu. The last events:\n", run.seed,
                    WIFSIGNALED(status) ? "ended by signal" : "ended with",
                    WIFSIGNALED(status) ? WTERMSIG(status) : WEXITSTATUS(status), shared->events.load(),
                    shared->dialogs.load());
        Write(*shared);
        std::printf("Again: tools/storm.sh %lu %llu", run.events, run.seed);
        for (char const* const* mode = run.modes; *mode; ++mode) {
            std::printf(" %s", *mode);
        }
        std::printf("\n");
    }
    munmap(memory, sizeof(Record));
    close(descriptor);
    return good;
}

}  // namespace storm
