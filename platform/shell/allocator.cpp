// The shell's allocator. There is one, which lives as long as the process.
#include <shlobj.h>

#include <cstdlib>

#include "shell/items.h"
#include "shell/live.h"

namespace platform::shell {

void* AllocateBlock(std::size_t size) {
    void* const block = FailsNow() ? nullptr : std::malloc(size);
    base::g_shellBlocks += block ? 1 : 0;
    return block;
}

void FreeBlock(void* block) {
    std::free(block);
    base::g_shellBlocks -= block ? 1 : 0;
}

namespace {

class Allocator final : public IMalloc {
  public:
    virtual ~Allocator() = default;

    // The process owns it.
    STDMETHODIMP_(ULONG) AddRef() override {
        return 2;
    }
    STDMETHODIMP_(ULONG) Release() override {
        return 1;
    }
    STDMETHODIMP_(void*) Alloc(SIZE_T size) override {
        return AllocateBlock(size);
    }
    STDMETHODIMP_(void) Free(void* block) override {
        FreeBlock(block);
    }
};

}  // namespace
}  // namespace platform::shell

HRESULT WINAPI SHGetMalloc(LPMALLOC* allocator) {
    static platform::shell::Allocator& one = *new platform::shell::Allocator;
    return platform::shell::HandOut(allocator, [&] {
        *allocator = &one;
        return S_OK;
    });
}
