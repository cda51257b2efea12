// Global memory. A movable block is known by a handle, a fixed one by its address. A header in front of either leads from the
// address back to the handle, and is trusted only when handle and block confirm it.
#include <cvplatform.h>
#include <windows.h>

#include <malloc.h>

#include <atomic>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <new>

#include "base/handle.h"

namespace {

using platform::base::HandleKind;

constexpr std::uint32_t kMovableMagic = 0x4D4C4247;
constexpr std::uint32_t kFixedMagic = 0x46584247;

struct alignas(16) Header {
    std::uint32_t magic;
    std::uint32_t handle;
    std::size_t size;
};

struct Block {
    Header* header;  ///< null while the block is discarded (size 0)
    std::uint32_t locks;
    bool discardable;
};

std::atomic<UINT> failCountdown{0};
std::atomic<std::size_t> fixedBlocks{0};

bool MustFail() {
    if (failCountdown.load(std::memory_order_relaxed) == 0) [[likely]] {
        return false;
    }
    return failCountdown.fetch_sub(1, std::memory_order_relaxed) == 1;
}

constexpr std::size_t kMostBytes = SIZE_MAX / 2;

Header* AllocateBytes(std::size_t bytes, bool zero, std::uint32_t magic) {
    if (bytes > kMostBytes || MustFail()) {
        return nullptr;
    }
    const std::size_t total = bytes + sizeof(Header);
    auto* header = static_cast<Header*>(zero ? std::calloc(1, total) : std::malloc(total));
    if (header) {
        *header = {magic, 0, bytes};
    }
    return header;
}

Header* ResizeBytes(Header* header, std::size_t bytes, bool zero, bool mayMove) {
    if (bytes > kMostBytes || MustFail()) {
        return nullptr;
    }
    const std::size_t old = header->size;
    if (!mayMove) {
        if (bytes + sizeof(Header) > malloc_usable_size(header)) {
            return nullptr;
        }
    } else {
        auto* moved = static_cast<Header*>(std::realloc(header, bytes + sizeof(Header)));
        if (!moved) {
            return nullptr;
        }
        header = moved;
    }
    header->size = bytes;
    if (zero && bytes > old) {
        std::memset(reinterpret_cast<char*>(header + 1) + old, 0, bytes - old);
    }
    return header;
}

Block* FindBlock(HGLOBAL memory) {
    return platform::base::Find<Block>(memory, HandleKind::GlobalBlock);
}

// The header of an address that may be anything. It is read past the sanitizer's eyes: what lies in front of a foreign address
// is none of its business.
__attribute__((no_sanitize("address"))) Header* HeaderOf(LPCVOID address) {
    const auto at = reinterpret_cast<std::uintptr_t>(address);
    if (at % alignof(Header) != 0 || at < sizeof(Header)) {
        return nullptr;
    }
    auto* header = reinterpret_cast<Header*>(at - sizeof(Header));
    if (IsBadReadPtr(header, sizeof(Header)) || (header->magic != kMovableMagic && header->magic != kFixedMagic)) {
        return nullptr;
    }
    if (header->magic == kMovableMagic) {
        const Block* block = static_cast<Block*>(platform::base::FindHandle(header->handle, HandleKind::GlobalBlock));
        return block && block->header == header ? header : nullptr;
    }
    return header;
}

Header* FixedHeader(HGLOBAL memory) {
    Header* header = HeaderOf(memory);
    return header && header->magic == kFixedMagic ? header : nullptr;
}

template <class Result>
Result Fail(DWORD error, Result result) {
    SetLastError(error);
    return result;
}

}  // namespace

HGLOBAL WINAPI GlobalAlloc(UINT flags, SIZE_T bytes) {
    const bool zero = flags & GMEM_ZEROINIT;
    if (!(flags & GMEM_MOVEABLE)) {
        Header* header = AllocateBytes(bytes, zero, kFixedMagic);
        if (!header) {
            return Fail<HGLOBAL>(ERROR_NOT_ENOUGH_MEMORY, nullptr);
        }
        fixedBlocks.fetch_add(1, std::memory_order_relaxed);
        return header + 1;
    }
    Header* header = bytes ? AllocateBytes(bytes, zero, kMovableMagic) : nullptr;
    auto* block = header || bytes == 0 ? new (std::nothrow) Block{header, 0, (flags & GMEM_DISCARDABLE) != 0} : nullptr;
    const std::uint32_t handle = block ? platform::base::InsertHandle(HandleKind::GlobalBlock, block) : 0;
    if (!handle) {
        delete block;
        std::free(header);
        return Fail<HGLOBAL>(ERROR_NOT_ENOUGH_MEMORY, nullptr);
    }
    if (header) {
        header->handle = handle;
    }
    return platform::base::ToHandle<HGLOBAL>(handle);
}

HGLOBAL WINAPI GlobalReAlloc(HGLOBAL memory, SIZE_T bytes, UINT flags) {
    const bool zero = flags & GMEM_ZEROINIT;
    if (Block* block = FindBlock(memory)) {
        if (flags & GMEM_MODIFY) {
            block->discardable = flags & GMEM_DISCARDABLE;
            return memory;
        }
        if (bytes == 0) {
            if (block->locks) {
                return Fail<HGLOBAL>(ERROR_NOT_ENOUGH_MEMORY, nullptr);
            }
            std::free(block->header);
            block->header = nullptr;
            return memory;
        }
        const bool mayMove = block->locks == 0 || (flags & GMEM_MOVEABLE);
        Header* header = block->header ? ResizeBytes(block->header, bytes, zero, mayMove)
                                       : AllocateBytes(bytes, zero, kMovableMagic);
        if (!header) {
            return Fail<HGLOBAL>(ERROR_NOT_ENOUGH_MEMORY, nullptr);
        }
        header->handle = platform::base::ToNumber(memory);
        block->header = header;
        return memory;
    }
    Header* fixed = FixedHeader(memory);
    if (!fixed) {
        return Fail<HGLOBAL>(ERROR_INVALID_HANDLE, nullptr);
    }
    if (flags & GMEM_MODIFY) {
        return memory;
    }
    Header* header = ResizeBytes(fixed, bytes, zero, flags & GMEM_MOVEABLE);
    return header ? header + 1 : Fail<HGLOBAL>(ERROR_NOT_ENOUGH_MEMORY, nullptr);
}

HGLOBAL WINAPI GlobalFree(HGLOBAL memory) {
    if (!memory) {
        return nullptr;
    }
    if (auto* block = static_cast<Block*>(
            platform::base::RemoveHandle(platform::base::ToNumber(memory), HandleKind::GlobalBlock))) {
        if (block->header) {
            block->header->magic = 0;
            std::free(block->header);
        }
        delete block;
        return nullptr;
    }
    if (Header* fixed = FixedHeader(memory)) {
        fixed->magic = 0;
        std::free(fixed);
        fixedBlocks.fetch_sub(1, std::memory_order_relaxed);
        return nullptr;
    }
    return Fail(ERROR_INVALID_HANDLE, memory);
}

LPVOID WINAPI GlobalLock(HGLOBAL memory) {
    if (Block* block = FindBlock(memory)) {
        if (!block->header) {
            return Fail<LPVOID>(ERROR_DISCARDED, nullptr);
        }
        if (block->locks < GMEM_LOCKCOUNT) {
            ++block->locks;
        }
        return block->header + 1;
    }
    return FixedHeader(memory) ? memory : Fail<LPVOID>(ERROR_INVALID_HANDLE, nullptr);
}

BOOL WINAPI GlobalUnlock(HGLOBAL memory) {
    Block* block = FindBlock(memory);
    if (!block) {
        return FixedHeader(memory) ? TRUE : Fail(ERROR_INVALID_HANDLE, FALSE);
    }
    if (block->locks == 0) {
        return Fail(ERROR_NOT_LOCKED, FALSE);
    }
    if (--block->locks == 0) {
        return Fail(NO_ERROR, FALSE);
    }
    return TRUE;
}

HGLOBAL WINAPI GlobalHandle(LPCVOID address) {
    const Header* header = HeaderOf(address);
    if (!header) {
        return Fail<HGLOBAL>(ERROR_INVALID_HANDLE, nullptr);
    }
    return header->magic == kFixedMagic ? const_cast<HGLOBAL>(address) : platform::base::ToHandle<HGLOBAL>(header->handle);
}

SIZE_T WINAPI GlobalSize(HGLOBAL memory) {
    if (const Block* block = FindBlock(memory)) {
        return block->header ? block->header->size : 0;
    }
    const Header* fixed = FixedHeader(memory);
    return fixed ? fixed->size : Fail<SIZE_T>(ERROR_INVALID_HANDLE, 0);
}

UINT WINAPI GlobalFlags(HGLOBAL memory) {
    if (const Block* block = FindBlock(memory)) {
        return block->locks | (block->header ? 0 : GMEM_DISCARDED) | (block->discardable ? GMEM_DISCARDABLE : 0);
    }
    return FixedHeader(memory) ? 0 : Fail<UINT>(ERROR_INVALID_HANDLE, GMEM_INVALID_HANDLE);
}

void CvPlatformFailAllocation(UINT n) {
    failCountdown.store(n, std::memory_order_relaxed);
}

SIZE_T CvPlatformCount(CvPlatformKind kind) {
    using platform::base::CountHandles;
    switch (kind) {
        case CV_PLATFORM_GLOBAL_BLOCKS:
            return CountHandles(HandleKind::GlobalBlock) + fixedBlocks.load(std::memory_order_relaxed);
        case CV_PLATFORM_WINDOWS:
            return CountHandles(HandleKind::Window);
        case CV_PLATFORM_GDI_OBJECTS:
            return CountHandles(HandleKind::Pen) + CountHandles(HandleKind::Brush) + CountHandles(HandleKind::Font) +
                   CountHandles(HandleKind::Bitmap) + CountHandles(HandleKind::Region) +
                   CountHandles(HandleKind::DeviceContext);
        case CV_PLATFORM_OTHER_HANDLES:
            return CountHandles(HandleKind::Thread) + CountHandles(HandleKind::Event) + CountHandles(HandleKind::File) +
                   CountHandles(HandleKind::FindFile) + CountHandles(HandleKind::RegistryKey);
    }
    return 0;
}
