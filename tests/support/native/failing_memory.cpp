#include "tests/support/native/failing_memory.h"

#include <cvplatform.h>
#include <windows.h>

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

constexpr unsigned kNever = 0;

bool g_exhausted = false;
unsigned g_countdown = kNever;               // of the allocations that report a failure; the others are the tests' own
thread_local unsigned t_countdown = kNever;  // of all of the thread
thread_local bool t_nothing = false;
std::atomic<std::size_t> g_blocks{0};

void* Allocate(std::size_t size) {
    bool const fails = t_nothing || t_countdown == 1;
    t_countdown -= t_countdown != kNever ? 1 : 0;
    void* const block = fails ? nullptr : std::malloc(size ? size : 1);
    g_blocks += block ? 1 : 0;
    return block;
}

}  // namespace

void* operator new(std::size_t size, std::nothrow_t const&) noexcept {
    bool const fails = g_exhausted || g_countdown == 1;
    g_countdown -= g_countdown != kNever ? 1 : 0;
    return fails ? nullptr : Allocate(size);
}

void* operator new(std::size_t size) {
    if (void* const block = Allocate(size)) {
        return block;
    }
    throw std::bad_alloc();
}

void operator delete(void* block) noexcept {
    g_blocks -= block ? 1 : 0;
    std::free(block);
}

void operator delete(void* block, std::size_t) noexcept {
    operator delete(block);
}

namespace testing_support {

unsigned& FailingAllocation::Countdown() const {
    return memory_ == Memory::Any ? t_countdown : g_countdown;
}

void FailingAllocation::On() {
    on_ = true;
    if (memory_ == Memory::Global) {
        CvPlatformFailAllocation(which_);
    } else {
        Countdown() = which_;
    }
}

void FailingAllocation::Off() {
    if (!on_) {
        return;
    }
    on_ = false;
    if (memory_ != Memory::Global) {
        failed_ = which_ != 0 && Countdown() == kNever;
        Countdown() = kNever;
        return;
    }
    // An order that still stands fails one of the next blocks.
    failed_ = true;
    for (unsigned i = 0; i < which_ && failed_; ++i) {
        HGLOBAL const block = GlobalAlloc(GMEM_FIXED, 1);
        failed_ = block != nullptr;
        GlobalFree(block);
    }
    CvPlatformFailAllocation(0);
}

NoMemory::NoMemory() {
    g_exhausted = true;
}

NoMemory::~NoMemory() {
    g_exhausted = false;
}

NoFreeStore::NoFreeStore() {
    t_nothing = true;
}

NoFreeStore::~NoFreeStore() {
    t_nothing = false;
}

LiveBlocks LiveBlocks::Now() {
    return {g_blocks, CvPlatformCount(CV_PLATFORM_GLOBAL_BLOCKS)};
}

}  // namespace testing_support
