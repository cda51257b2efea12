// Memory probes for processors without a file of their own beside this one: the host's kernel touches the bytes,
// which costs a system call a page. A touch for writing adds nothing to the word that holds the byte, atomically, so
// that no other thread's write is ever lost.
#include <windows.h>

#include <linux/futex.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <unistd.h>

#include <cstdint>

#include "kernel/memory/pages.h"
#include "kernel/memory/probe_range.h"

namespace {

bool CanRead(std::uintptr_t address) {
    char byte;
    const iovec here{&byte, 1};
    const iovec there{reinterpret_cast<void*>(address), 1};
    return process_vm_readv(getpid(), &here, 1, &there, 1, 0) == 1;
}

// The call wakes waiters of a futex at the address, if there are any, and those expect to be woken for nothing.
bool CanWrite(std::uintptr_t address) {
    auto* word = reinterpret_cast<std::uint32_t*>(address & ~std::uintptr_t{3});
    static std::uint32_t unused = 0;
    constexpr int kAddNothing = FUTEX_OP(FUTEX_OP_ADD, 0, FUTEX_OP_CMP_NE, 0);
    return syscall(SYS_futex, &unused, FUTEX_WAKE_OP_PRIVATE, 0, nullptr, word, kAddNothing) >= 0;
}

}  // namespace

namespace platform::kernel {

bool IsReadable(const void* memory, std::size_t size) {
    return size == 0 || RangeIsGood<CanRead>(reinterpret_cast<std::uintptr_t>(memory), size, PageSize());
}

std::size_t ProbeLength(const char* text, std::size_t most) {
    return LengthOf<CanRead>(text, most, PageSize());
}

}  // namespace platform::kernel

BOOL WINAPI IsBadWritePtr(LPVOID address, UINT_PTR size) {
    using namespace platform::kernel;
    return size != 0 && !RangeIsGood<CanWrite>(reinterpret_cast<std::uintptr_t>(address), size, PageSize());
}
