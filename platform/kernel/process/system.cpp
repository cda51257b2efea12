// Facts about the machine.
#include <windows.h>

#include <sys/sysinfo.h>

#include <algorithm>
#include <cstdio>
#include <thread>

#include "kernel/memory/pages.h"

namespace {

// "MemAvailable" counts what caches would give back; sysinfo knows nothing of it.
SIZE_T AvailableMemory(SIZE_T otherwise) {
    FILE* file = std::fopen("/proc/meminfo", "re");
    if (!file) {
        return otherwise;
    }
    char line[128];
    unsigned long kilobytes = 0;
    while (std::fgets(line, sizeof line, file) && std::sscanf(line, "MemAvailable: %lu", &kilobytes) != 1) {
    }
    std::fclose(file);
    return kilobytes ? SIZE_T{kilobytes} * 1024 : otherwise;
}

}  // namespace

void WINAPI GetSystemInfo(LPSYSTEM_INFO information) {
    *information = SYSTEM_INFO{};
    const unsigned processors = std::max(1u, std::thread::hardware_concurrency());
    information->dwPageSize = static_cast<DWORD>(platform::kernel::PageSize());
    information->lpMinimumApplicationAddress = reinterpret_cast<LPVOID>(ULONG_PTR{0x10000});
    information->lpMaximumApplicationAddress = reinterpret_cast<LPVOID>(ULONG_PTR{0x7FFFFFFEFFFF});
    information->dwNumberOfProcessors = processors;
    information->dwActiveProcessorMask =
        processors >= sizeof(DWORD_PTR) * 8 ? ~DWORD_PTR{0} : (DWORD_PTR{1} << processors) - 1;
    information->dwAllocationGranularity = 0x10000;
    // The latest processor that programs of this family know by name.
    information->wProcessorArchitecture = PROCESSOR_ARCHITECTURE_INTEL;
    information->dwProcessorType = PROCESSOR_INTEL_PENTIUM;
    information->wProcessorLevel = 5;
}

void WINAPI GlobalMemoryStatus(LPMEMORYSTATUS status) {
    struct sysinfo info {};
    sysinfo(&info);
    const SIZE_T unit = info.mem_unit;
    *status = MEMORYSTATUS{};
    status->dwLength = sizeof(MEMORYSTATUS);
    status->dwTotalPhys = info.totalram * unit;
    status->dwAvailPhys = std::min(AvailableMemory(info.freeram * unit), status->dwTotalPhys);
    status->dwTotalPageFile = status->dwTotalPhys + info.totalswap * unit;
    status->dwAvailPageFile = status->dwAvailPhys + info.freeswap * unit;
    status->dwTotalVirtual = SIZE_T{1} << 47;
    status->dwAvailVirtual = status->dwTotalVirtual;
    if (status->dwTotalPhys) {
        status->dwMemoryLoad = static_cast<DWORD>(100 - status->dwAvailPhys * 100 / status->dwTotalPhys);
    }
}
