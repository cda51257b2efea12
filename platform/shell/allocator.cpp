// The shell's allocator. There is one, which lives as long as the process; a block begins with its size and a mark.
#include <shlobj.h>

#include <cstdlib>
#include <cstring>

#include "shell/items.h"
#include "shell/live.h"

namespace platform::shell {
namespace {

constexpr SIZE_T kMark = 0x6D656D53;

struct alignas(16) Head {
    SIZE_T size;
    SIZE_T mark;
};

Head* HeadOf(void* block) {
    return static_cast<Head*>(block) - 1;
}

class Allocator final : public IMalloc {
  public:
    virtual ~Allocator() = default;

    STDMETHODIMP QueryInterface(REFIID asked, void** object) override {
        if (!object) {
            return E_POINTER;
        }
        const bool known = asked == IID_IUnknown || asked == IID_IMalloc;
        *object = known ? this : nullptr;
        return known ? S_OK : E_NOINTERFACE;
    }
    // The process owns it.
    STDMETHODIMP_(ULONG) AddRef() override {
        return 2;
    }
    STDMETHODIMP_(ULONG) Release() override {
        return 1;
    }

    STDMETHODIMP_(void*) Alloc(SIZE_T size) override {
        return FailsNow() ? nullptr : Allocate(size);
    }
    STDMETHODIMP_(void*) Realloc(void* block, SIZE_T size) override {
        if (!block) {
            return Alloc(size);
        }
        if (size == 0) {
            Free(block);
            return nullptr;
        }
        if (FailsNow() || size > SIZE_MAX - sizeof(Head)) {
            return nullptr;
        }
        Head* const head = static_cast<Head*>(std::realloc(HeadOf(block), sizeof(Head) + size));
        if (!head) {
            return nullptr;
        }
        head->size = size;
        return head + 1;
    }
    STDMETHODIMP_(void) Free(void* block) override {
        Release(block);
    }
    STDMETHODIMP_(SIZE_T) GetSize(void* block) override {
        return block ? HeadOf(block)->size : static_cast<SIZE_T>(-1);
    }
    STDMETHODIMP_(int) DidAlloc(void* block) override {
        return block ? HeadOf(block)->mark == kMark : -1;
    }
    STDMETHODIMP_(void) HeapMinimize() override {}

    static void* Allocate(SIZE_T size) {
        if (size > SIZE_MAX - sizeof(Head)) {
            return nullptr;
        }
        Head* const head = static_cast<Head*>(std::malloc(sizeof(Head) + size));
        if (!head) {
            return nullptr;
        }
        *head = {size, kMark};
        CountBlock(1);
        return head + 1;
    }
    static void Release(void* block) {
        if (block) {
            HeadOf(block)->mark = 0;
            std::free(HeadOf(block));
            CountBlock(-1);
        }
    }
};

}  // namespace

void* AllocateBlock(std::size_t size) {
    return FailsNow() ? nullptr : Allocator::Allocate(size);
}

void FreeBlock(void* block) {
    Allocator::Release(block);
}

}  // namespace platform::shell

const IID IID_IUnknown = {0x00000000, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
const IID IID_IMalloc = {0x00000002, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};

HRESULT WINAPI SHGetMalloc(LPMALLOC* allocator) {
    static platform::shell::Allocator& one = *new platform::shell::Allocator;
    if (!allocator) {
        return E_INVALIDARG;
    }
    *allocator = nullptr;
    if (platform::shell::FailsNow()) {
        return E_FAIL;
    }
    *allocator = &one;
    return S_OK;
}
