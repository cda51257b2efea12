// Pages of memory with a protection of their own.
#include <windows.h>

#include <sys/mman.h>

#include <cstdint>
#include <map>
#include <mutex>
#include <new>

#include "base/fail.h"
#include "base/immortal.h"
#include "kernel/memory/pages.h"

namespace base = platform::base;

namespace {

struct Area {
    std::size_t size;
    bool writable;
};

// Areas by address. Never destroyed: memory may be released while the process ends.
std::mutex& AreasLock() {
    static base::Immortal<std::mutex> lock;
    return *lock;
}

std::map<std::uintptr_t, Area>& Areas() {
    static base::Immortal<std::map<std::uintptr_t, Area>> areas;
    return *areas;
}

/// @returns the host's protection, or -1 for one that does not exist.
int HostProtection(DWORD protection) {
    switch (protection) {
        case PAGE_NOACCESS:
            return PROT_NONE;
        case PAGE_READONLY:
            return PROT_READ;
        case PAGE_READWRITE:
            return PROT_READ | PROT_WRITE;
        default:
            return -1;
    }
}

/// @returns the area around an address, or the end. Lock held.
std::map<std::uintptr_t, Area>::iterator AreaAround(std::uintptr_t address) {
    auto found = Areas().upper_bound(address);
    if (found == Areas().begin()) {
        return Areas().end();
    }
    --found;
    return address - found->first < found->second.size ? found : Areas().end();
}

}  // namespace

namespace platform::kernel {

PageRun WritablePages(std::uintptr_t address) {
    // A probe never waits: it may come from a signal's handler.
    const std::unique_lock guard(AreasLock(), std::try_to_lock);
    if (!guard) {
        return {};
    }
    const auto found = AreaAround(address);
    if (found == Areas().end() || !found->second.writable) {
        return {};
    }
    return {found->first, found->second.size, g_pagesAge.load()};
}

}  // namespace platform::kernel

// Reserving and committing are one step here, at an address that the host chooses.
LPVOID WINAPI VirtualAlloc(LPVOID address, SIZE_T size, DWORD type, DWORD protection) {
    const int host = HostProtection(protection);
    if (address || size == 0 || size > SIZE_MAX / 2 || host < 0 || !(type & MEM_COMMIT) ||
        (type & ~DWORD{MEM_COMMIT | MEM_RESERVE})) {
        return base::Fail<LPVOID>(ERROR_INVALID_PARAMETER, nullptr);
    }
    const std::uintptr_t page = platform::kernel::PageSize();
    const std::size_t rounded = (size + page - 1) & ~(page - 1);
    void* memory = mmap(nullptr, rounded, host, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED) {
        return base::Fail<LPVOID>(ERROR_NOT_ENOUGH_MEMORY, nullptr);
    }
    try {
        const std::lock_guard guard(AreasLock());
        Areas()[reinterpret_cast<std::uintptr_t>(memory)] = Area{rounded, (host & PROT_WRITE) != 0};
    } catch (const std::bad_alloc&) {
        munmap(memory, rounded);
        return base::Fail<LPVOID>(ERROR_NOT_ENOUGH_MEMORY, nullptr);
    }
    return memory;
}

BOOL WINAPI VirtualFree(LPVOID address, SIZE_T size, DWORD type) {
    if (size != 0 || type != MEM_RELEASE) {
        return base::Fail(ERROR_INVALID_PARAMETER, FALSE);
    }
    const std::lock_guard guard(AreasLock());
    const auto area = Areas().find(reinterpret_cast<std::uintptr_t>(address));
    if (area == Areas().end()) {
        return base::Fail(ERROR_INVALID_ADDRESS, FALSE);
    }
    platform::kernel::g_pagesAge.fetch_add(1);
    munmap(address, area->second.size);
    Areas().erase(area);
    return TRUE;
}
