// Critical sections: the structure of the API holds a mutex of the host.
#include <windows.h>

#include <mutex>
#include <new>

namespace {

std::recursive_mutex* MutexOf(LPCRITICAL_SECTION section) {
    static_assert(sizeof(std::recursive_mutex) <= sizeof(CRITICAL_SECTION));
    return reinterpret_cast<std::recursive_mutex*>(section);
}

}  // namespace

void WINAPI InitializeCriticalSection(LPCRITICAL_SECTION section) {
    new (section) std::recursive_mutex;
}

void WINAPI EnterCriticalSection(LPCRITICAL_SECTION section) {
    MutexOf(section)->lock();
}

BOOL WINAPI TryEnterCriticalSection(LPCRITICAL_SECTION section) {
    return MutexOf(section)->try_lock();
}

void WINAPI LeaveCriticalSection(LPCRITICAL_SECTION section) {
    MutexOf(section)->unlock();
}

void WINAPI DeleteCriticalSection(LPCRITICAL_SECTION section) {
    using Mutex = std::recursive_mutex;
    MutexOf(section)->~Mutex();
}
