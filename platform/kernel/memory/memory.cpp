// Global memory. A block is one allocation: a record, and the bytes behind it. Movable blocks are known by their
// handle, fixed ones by their address; both have a handle in the record, and an address is believed only when the
// handle table leads from that handle back to the record. (Handles lie below 2 GiB, where the host's heap does not.)
#include <cvplatform.h>
#include <windows.h>

#include <malloc.h>

#include <atomic>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "base/fail.h"
#include "base/failure_order.h"
#include "base/handle.h"
#include "kernel/memory/probe.h"

namespace base = platform::base;

namespace {

using platform::base::HandleKind;

struct alignas(16) Block {
    std::size_t size = 0;
    std::uint32_t handle = 0;
    std::atomic<std::uint32_t> locks{0};
    bool movable = false;
    bool discarded = false;

    char* bytes() {
        return reinterpret_cast<char*>(this + 1);
    }
};
static_assert(sizeof(Block) == 32);

constexpr std::uint32_t kMostLocks = 0xFF;
constexpr std::size_t kMostBlockBytes = std::size_t{1} << 39;

base::FailureOrder failure;

HGLOBAL ToGlobal(Block* block) {
    return block->movable ? platform::base::ToHandle<HGLOBAL>(block->handle) : static_cast<HGLOBAL>(block->bytes());
}

// The address may be anything, so the record in front of it is read past the sanitizer's eyes.
__attribute__((no_sanitize("address", "undefined"))) std::uint32_t HandleInFront(std::uintptr_t address) {
    return reinterpret_cast<const Block*>(address - sizeof(Block))->handle;
}

Block* BlockAt(LPCVOID address) {
    const auto at = reinterpret_cast<std::uintptr_t>(address);
    const std::uintptr_t record = at - sizeof(Block);
    if (at % alignof(Block) != 0 || at < sizeof(Block) ||
        !platform::kernel::IsReadable(reinterpret_cast<const void*>(record), sizeof(Block))) {
        return nullptr;
    }
    void* block = platform::base::FindHandle(HandleInFront(at), HandleKind::GlobalBlock);
    return block == reinterpret_cast<void*>(record) ? static_cast<Block*>(block) : nullptr;
}

Block* FindMovable(HGLOBAL memory) {
    auto* block = platform::base::Find<Block>(memory, HandleKind::GlobalBlock);
    return block && block->movable ? block : nullptr;
}

// A block by its handle or, when it is fixed or locked, by its address.
Block* FindBlock(HGLOBAL memory) {
    Block* block = FindMovable(memory);
    if (!block) {
        block = BlockAt(memory);
    }
    return block ? block : base::Fail<Block*>(ERROR_INVALID_HANDLE, nullptr);
}

// Gives a block another size. @returns its new place, or null with the block as it was.
Block* Resize(Block* block, std::size_t size, bool zero, bool mayMove) {
    if (size > kMostBlockBytes || failure.MeansThis()) {
        return nullptr;
    }
    const std::size_t old = block->discarded ? 0 : block->size;
    const std::size_t total = size + sizeof(Block);
    if (!mayMove) {
        if (total > malloc_usable_size(block)) {
            return nullptr;
        }
    } else {
        const std::uint32_t handle = block->handle;
        const auto former = reinterpret_cast<std::uintptr_t>(block);
        auto* moved = static_cast<Block*>(std::realloc(static_cast<void*>(block), total));
        if (!moved) {
            return nullptr;
        }
        if (reinterpret_cast<std::uintptr_t>(moved) != former) {
            platform::base::ReplaceHandle(handle, HandleKind::GlobalBlock, former, moved);
        }
        block = moved;
    }
    block->size = size;
    block->discarded = block->movable && size == 0;
    if (zero && size > old) {
        std::memset(block->bytes() + old, 0, size - old);
    }
    return block;
}

// Small blocks are cleared here: calloc passes the cache of small blocks by, and takes several times as long for them.
void* NewMemory(std::size_t size, bool zero) {
    constexpr std::size_t kSmall = 1024;
    if (zero && size > kSmall) {
        return std::calloc(1, size);
    }
    void* memory = std::malloc(size);
    if (memory && zero) {
        std::memset(memory, 0, size);
    }
    return memory;
}

}  // namespace

HGLOBAL WINAPI GlobalAlloc(UINT flags, SIZE_T size) {
    if (flags & ~UINT{GMEM_VALID_FLAGS}) {
        return base::Fail<HGLOBAL>(ERROR_INVALID_PARAMETER, nullptr);
    }
    if (size > kMostBlockBytes || failure.MeansThis()) {
        return base::Fail<HGLOBAL>(ERROR_NOT_ENOUGH_MEMORY, nullptr);
    }
    const std::size_t total = size + sizeof(Block);
    void* memory = NewMemory(total, flags & GMEM_ZEROINIT);
    if (!memory) {
        return base::Fail<HGLOBAL>(ERROR_NOT_ENOUGH_MEMORY, nullptr);
    }
    auto* block = new (memory) Block;
    block->size = size;
    block->movable = (flags & GMEM_MOVEABLE) != 0;
    block->discarded = block->movable && size == 0;
    block->handle = platform::base::InsertHandle(HandleKind::GlobalBlock, block);
    if (!block->handle) {
        std::free(memory);
        return base::Fail<HGLOBAL>(ERROR_NOT_ENOUGH_MEMORY, nullptr);
    }
    return ToGlobal(block);
}

HGLOBAL WINAPI GlobalReAlloc(HGLOBAL memory, SIZE_T size, UINT flags) {
    Block* block = FindBlock(memory);
    if (!block) {
        return nullptr;
    }
    const bool mayMove = (block->movable && block->locks == 0) || (flags & GMEM_MOVEABLE);
    Block* resized = Resize(block, size, flags & GMEM_ZEROINIT, mayMove);
    return resized ? ToGlobal(resized) : base::Fail<HGLOBAL>(ERROR_NOT_ENOUGH_MEMORY, nullptr);
}

HGLOBAL WINAPI GlobalFree(HGLOBAL memory) {
    if (!memory) {
        return nullptr;
    }
    const Block* block = FindBlock(memory);
    // Of two threads that free one block, one takes it out of the table.
    void* removed = block ? platform::base::RemoveHandle(block->handle, HandleKind::GlobalBlock) : nullptr;
    if (!removed) {
        return base::Fail(ERROR_INVALID_HANDLE, memory);
    }
    std::free(removed);
    return nullptr;
}

LPVOID WINAPI GlobalLock(HGLOBAL memory) {
    Block* block = FindMovable(memory);
    if (!block) {
        return FindBlock(memory) ? memory : nullptr;
    }
    if (block->discarded) {
        return base::Fail<LPVOID>(ERROR_DISCARDED, nullptr);
    }
    std::uint32_t locks = block->locks.load(std::memory_order_relaxed);
    while (locks < kMostLocks && !block->locks.compare_exchange_weak(locks, locks + 1)) {
    }
    return block->bytes();
}

BOOL WINAPI GlobalUnlock(HGLOBAL memory) {
    Block* block = FindMovable(memory);
    if (!block) {
        return FindBlock(memory) != nullptr;
    }
    std::uint32_t locks = block->locks.load(std::memory_order_relaxed);
    do {
        if (locks == 0) {
            return base::Fail(ERROR_NOT_LOCKED, FALSE);
        }
    } while (!block->locks.compare_exchange_weak(locks, locks - 1));
    return locks == 1 ? base::Fail(NO_ERROR, FALSE) : TRUE;
}

HGLOBAL WINAPI GlobalHandle(LPCVOID address) {
    Block* block = BlockAt(address);
    return block ? ToGlobal(block) : base::Fail<HGLOBAL>(ERROR_INVALID_HANDLE, nullptr);
}

SIZE_T WINAPI GlobalSize(HGLOBAL memory) {
    const Block* block = FindBlock(memory);
    return block ? block->size : 0;
}

void CvPlatformFailAllocation(unsigned count) {
    failure.Give(count);
}
