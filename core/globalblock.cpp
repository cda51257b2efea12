#include "core/globalblock.h"

namespace globalblock {

void* Allocate(SIZE_T size) {
    HGLOBAL const handle = GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, size);
    if (!handle) {
        return nullptr;
    }
    void* const block = GlobalLock(handle);
    if (!block) {
        GlobalFree(handle);
    }
    return block;
}

void* Resize(void* block, SIZE_T size) {
    HGLOBAL const handle = GlobalHandle(block);
    if (!handle) {
        return nullptr;
    }
    // Unlocked, so that the block may move.
    GlobalUnlock(handle);
    HGLOBAL const resized = GlobalReAlloc(handle, size, GMEM_ZEROINIT);
    if (!resized) {
        GlobalLock(handle);
        return nullptr;
    }
    return GlobalLock(resized);
}

void Release(void* block) {
    if (HGLOBAL const handle = block ? GlobalHandle(block) : nullptr) {
        GlobalUnlock(handle);
        GlobalFree(handle);
    }
}

}  // namespace globalblock
