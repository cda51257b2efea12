// Pages of memory with a protection of their own.
#include <windows.h>

#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>
#include <map>
#include <mutex>
#include <new>

#include "base/fail.h"
#include "kernel/memory/pages.h"

namespace base = platform::base;

namespace {

struct Area {
    std::size_t size;
    std::map<std::uintptr_t, DWORD> protection;  ///< by page, where it is not the first one
    DWORD initial;
    bool changed = false;  ///< some page has or had another protection
};

// Areas by address. Never destroyed: memory may be released while the process ends.
std::mutex& AreasLock() {
    static auto& lock = *new std::mutex;
    return lock;
}

std::map<std::uintptr_t, Area>& Areas() {
    static auto& areas = *new std::map<std::uintptr_t, Area>;
    return areas;
}

std::uintptr_t PageSize() {
    static const auto size = static_cast<std::uintptr_t>(sysconf(_SC_PAGESIZE));
    return size;
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
        case PAGE_EXECUTE:
            return PROT_EXEC;
        case PAGE_EXECUTE_READ:
            return PROT_READ | PROT_EXEC;
        case PAGE_EXECUTE_READWRITE:
            return PROT_READ | PROT_WRITE | PROT_EXEC;
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
    if (found == Areas().end() || found->second.changed || !(HostProtection(found->second.initial) & PROT_WRITE)) {
        return {};
    }
    return {found->first, found->first + found->second.size, g_pagesAge.load()};
}

}  // namespace platform::kernel

// Reserving and committing are one step here, at an address that the host chooses.
LPVOID WINAPI VirtualAlloc(LPVOID address, SIZE_T size, DWORD type, DWORD protection) {
    const int host = HostProtection(protection);
    if (address || size == 0 || size > SIZE_MAX / 2 || host < 0 || !(type & MEM_COMMIT) ||
        (type & ~DWORD{MEM_COMMIT | MEM_RESERVE})) {
        return base::Fail<LPVOID>(ERROR_INVALID_PARAMETER, nullptr);
    }
    const std::size_t rounded = (size + PageSize() - 1) & ~(PageSize() - 1);
    void* memory = mmap(nullptr, rounded, host, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED) {
        return base::Fail<LPVOID>(ERROR_NOT_ENOUGH_MEMORY, nullptr);
    }
    try {
        const std::lock_guard guard(AreasLock());
        Areas()[reinterpret_cast<std::uintptr_t>(memory)] = Area{rounded, {}, protection, false};
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

// Changes whole pages of one area; the former protection is that of the first page.
BOOL WINAPI VirtualProtect(LPVOID address, SIZE_T size, DWORD protection, PDWORD previous) {
    const int host = HostProtection(protection);
    if (host < 0 || size == 0) {
        return base::Fail(ERROR_INVALID_PARAMETER, FALSE);
    }
    if (!previous) {
        return base::Fail(ERROR_NOACCESS, FALSE);
    }
    const auto at = reinterpret_cast<std::uintptr_t>(address);
    const std::lock_guard guard(AreasLock());
    const auto found = AreaAround(at);
    if (found == Areas().end() || size > found->second.size - (at - found->first)) {
        return base::Fail(ERROR_INVALID_ADDRESS, FALSE);
    }
    Area& area = found->second;
    const std::uintptr_t first = at & ~(PageSize() - 1);
    const std::uintptr_t last = (at + size - 1) & ~(PageSize() - 1);
    area.changed = true;
    platform::kernel::g_pagesAge.fetch_add(1);
    if (mprotect(reinterpret_cast<void*>(first), last - first + PageSize(), host) != 0) {
        return base::Fail(ERROR_ACCESS_DENIED, FALSE);
    }
    const auto former = area.protection.find(first);
    *previous = former == area.protection.end() ? area.initial : former->second;
    try {
        for (std::uintptr_t page = first; page <= last; page += PageSize()) {
            area.protection[page] = protection;
        }
    } catch (const std::bad_alloc&) {
        // Only the report of a former protection suffers.
    }
    return TRUE;
}
