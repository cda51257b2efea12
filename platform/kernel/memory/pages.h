/// @file pages.h
/// The pages that VirtualAlloc gave out and that may be written, for the memory probe: it need not touch what is known; and how
/// large a page is.
#pragma once

#include <unistd.h>

#include <atomic>
#include <cstdint>

namespace platform::kernel {

inline std::uintptr_t PageSize() {
    static const auto size = static_cast<std::uintptr_t>(sysconf(_SC_PAGESIZE));
    return size;
}

struct PageRun {
    std::uintptr_t begin = 0;
    std::uintptr_t size = 0;
    unsigned age = 0;  ///< of the knowledge, see g_pagesAge
};

/// Grows before pages are released: what was known until then no longer counts.
inline std::atomic<unsigned> g_pagesAge{0};

/// @returns the pages of one area around an address, where all of the area may be written; else an empty run.
PageRun WritablePages(std::uintptr_t address);

}  // namespace platform::kernel
