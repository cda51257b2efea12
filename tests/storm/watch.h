/// @file watch.h
/// What a run of the storm leaves behind for whoever watches it: how far it came, and its last events. It lies in memory that
/// outlives the process.
#pragma once

#include <atomic>
#include <cstddef>

namespace storm {

struct Record {
    static constexpr std::size_t kLines = 48;
    static constexpr std::size_t kLength = 128;

    std::atomic<unsigned long> events;
    std::atomic<unsigned long> dialogs;
    std::atomic<unsigned long> failed;  ///< allocations that were made to fail
    char lines[kLines][kLength];        ///< a ring: that of event n is at n modulo kLines
};

/// The calling process's record: shared with whoever started it, else its own.
Record& Ours();

/// Uses the memory behind a file descriptor of a process that watches.
void Share(int descriptor);

/// Begins an event: whatever happens from now on is its doing.
void BeginEvent(char const* name);

/// Adds to the last event's line.
[[gnu::format(printf, 1, 2)]] void Note(char const* format, ...);

/// Writes that something does not hold and the last events, and ends the process.
[[noreturn, gnu::format(printf, 1, 2)]] void Fail(char const* format, ...);

struct Run {
    unsigned long events;
    unsigned long long seed;
    char const* const* modes;  ///< further arguments, ended by a null
};

/// Runs the storm in a process of its own, in a state folder of its own. What goes wrong is told on standard output.
/// @return whether all was well.
bool Watch(char const* program, Run const& run);

}  // namespace storm
