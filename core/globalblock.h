// Zero-filled global-memory blocks that are locked once, at allocation, and stay locked until they are released: the
// memory of per-window data, of lists and of their elements. A block is known by its address; its handle is recovered
// from it.
#pragma once

#include <windows.h>

#include <memory>
#include <type_traits>

namespace globalblock {

/// @return a locked block of @p size zero bytes; null when memory runs out.
void* Allocate(SIZE_T size);

/// Changes a block's size; bytes that are added are zero.
/// @return the block's new address; null when memory runs out, with the block as it was.
void* Resize(void* block, SIZE_T size);

/// Releases a block; null is nothing to release.
void Release(void* block);

struct Releaser {
    void operator()(void* block) const {
        Release(block);
    }
};

/// Owner of a block that holds one plain record.
template <class Record>
using Owner = std::unique_ptr<Record, Releaser>;

/// @return a record of zero bytes in a block of its own; empty when memory runs out.
template <class Record>
Owner<Record> Make() {
    static_assert(std::is_trivial_v<Record>, "the block is zero-filled, not constructed");
    return Owner<Record>(static_cast<Record*>(Allocate(sizeof(Record))));
}

}  // namespace globalblock
