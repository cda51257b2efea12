#include "tests/storm/memory.h"

#include "tests/storm/chance.h"

#include <cvplatform.h>

#include <cstdlib>
#include <new>

namespace {

int g_times = 0;
unsigned long g_failed = 0;
constinit storm::Chance g_chance(0);

void* Allocate(std::size_t size) {
    if (g_times && g_chance.OneIn(g_times)) {
        ++g_failed;
        return nullptr;
    }
    return std::malloc(size ? size : 1);
}

void* AllocateOrThrow(std::size_t size) {
    if (void* const block = Allocate(size)) {
        return block;
    }
    throw std::bad_alloc();
}

}  // namespace

void* operator new(std::size_t size) {
    return AllocateOrThrow(size);
}

void* operator new[](std::size_t size) {
    return AllocateOrThrow(size);
}

void* operator new(std::size_t size, std::nothrow_t const&) noexcept {
    return Allocate(size);
}

void* operator new[](std::size_t size, std::nothrow_t const&) noexcept {
    return Allocate(size);
}

void operator delete(void* block) noexcept {
    std::free(block);
}

void operator delete[](void* block) noexcept {
    std::free(block);
}

void operator delete(void* block, std::size_t) noexcept {
    std::free(block);
}

void operator delete[](void* block, std::size_t) noexcept {
    std::free(block);
}

namespace storm {

void FailAllocations(int times, unsigned long long seed) {
    g_times = times;
    g_chance = Chance(seed);
}

Plenty::Plenty() : former_(g_times) {
    g_times = 0;
}

Plenty::~Plenty() {
    g_times = former_;
}

unsigned long FailedAllocations() {
    return g_failed;
}

void RollGlobalMemory() {
    if (g_times) {
        CvPlatformFailAllocation(g_chance.OneIn(40) ? static_cast<unsigned>(g_chance.From(1, 3)) : 0);
    }
}

}  // namespace storm
