/// @file failing_memory.h
/// Memory that runs out at a chosen allocation. The test program's operator new serves the library as well, and the
/// platform layer lets one of its global blocks fail.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>

namespace testing_support {

enum class Memory {
    FreeStore,  ///< allocations that report a failure: the library's own
    Global,
    Any,  ///< all of this thread, those of the platform layer and of the test too
};

/// Between On() and Off() one allocation fails: the first, the second, and so on as told. The others succeed.
class FailingAllocation {
  public:
    FailingAllocation(Memory memory, unsigned which) : memory_(memory), which_(which) {}
    ~FailingAllocation() {
        Off();
    }
    FailingAllocation(FailingAllocation const&) = delete;
    FailingAllocation& operator=(FailingAllocation const&) = delete;

    void On();
    void Off();

    /// Whether there were enough allocations for one to fail; known after Off().
    bool failed() const {
        return failed_;
    }

  private:
    unsigned& Countdown() const;

    Memory memory_;
    unsigned which_;
    bool on_ = false;
    bool failed_ = false;
};

/// Every allocation from the free store fails as long as it lives.
class NoMemory {
  public:
    NoMemory();
    ~NoMemory();
};

/// Nothing at all comes from the free store for this thread as long as it lives: neither for the library nor for the
/// platform layer, which has to get along by what it holds already.
class NoFreeStore {
  public:
    NoFreeStore();
    ~NoFreeStore();
};

struct LiveBlocks {
    std::size_t freeStore;
    std::size_t global;
    bool operator==(LiveBlocks const&) const = default;

    static LiveBlocks Now();
};

/// Runs a piece of a test once for each allocation that it makes while the memory is on, with that one failing, and at
/// last with none; looks for blocks that nobody released after each run.
template <class Test>
void WithEachFailure(Test test) {
    {
        FailingAllocation none(Memory::FreeStore, 0);
        test(none);  // tables that are filled once and kept are there from now on
    }
    for (Memory const memory : {Memory::FreeStore, Memory::Global}) {
        for (unsigned which = 1;; ++which) {
            SCOPED_TRACE(::testing::Message() << (memory == Memory::Global ? "global block " : "new ") << which);
            LiveBlocks const before = LiveBlocks::Now();
            FailingAllocation failing(memory, which);
            test(failing);
            failing.Off();
            ASSERT_TRUE(LiveBlocks::Now() == before || ::testing::Test::HasFailure()) << "memory leaked";
            if (!failing.failed()) {
                break;
            }
            ASSERT_LT(which, 500u) << "it never stops allocating";
        }
    }
}

}  // namespace testing_support
