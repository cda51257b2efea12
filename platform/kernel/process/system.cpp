// Facts about the machine and the system. The layer is of the 4.0 family, and so are the answers that name a version or
// a processor.
#include <windows.h>

#include <sys/sysinfo.h>
#include <sys/utsname.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <string>
#include <thread>

namespace {

constexpr DWORD kMajor = 4;
constexpr DWORD kMinor = 0;
constexpr DWORD kBuild = 1381;

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

DWORD WINAPI GetVersion(void) {
    return kBuild << 16 | kMinor << 8 | kMajor;
}

BOOL WINAPI GetVersionExA(LPOSVERSIONINFOA information) {
    if (!information || information->dwOSVersionInfoSize < sizeof(OSVERSIONINFOA)) {
        SetLastError(ERROR_INSUFFICIENT_BUFFER);
        return FALSE;
    }
    information->dwMajorVersion = kMajor;
    information->dwMinorVersion = kMinor;
    information->dwBuildNumber = kBuild;
    information->dwPlatformId = VER_PLATFORM_WIN32_NT;
    information->szCSDVersion[0] = '\0';
    return TRUE;
}

void WINAPI GetSystemInfo(LPSYSTEM_INFO information) {
    *information = SYSTEM_INFO{};
    const unsigned processors = std::max(1u, std::thread::hardware_concurrency());
    information->dwPageSize = static_cast<DWORD>(sysconf(_SC_PAGESIZE));
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

BOOL WINAPI GetComputerNameA(LPSTR buffer, LPDWORD size) {
    utsname host{};
    if (!buffer || !size || uname(&host) != 0) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return FALSE;
    }
    std::size_t length = std::min<std::size_t>(std::strcspn(host.nodename, "."), MAX_COMPUTERNAME_LENGTH);
    if (length >= *size) {
        *size = static_cast<DWORD>(length + 1);
        SetLastError(ERROR_BUFFER_OVERFLOW);
        return FALSE;
    }
    std::memcpy(buffer, host.nodename, length);
    buffer[length] = '\0';
    CharUpperBuffA(buffer, static_cast<DWORD>(length));
    *size = static_cast<DWORD>(length);
    return TRUE;
}
