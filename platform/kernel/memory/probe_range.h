/// @file probe_range.h
/// What both makings of the probe do with a touch of one byte: a page is probed once.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "kernel/memory/probe.h"

namespace platform::kernel {

/// Touches one byte on each page of a range that is not empty.
template <bool (*CanTouch)(std::uintptr_t)>
bool RangeIsGood(std::uintptr_t first, std::uintptr_t size, std::uintptr_t page) {
    const std::uintptr_t last = first + size - 1;
    if (last < first) {
        return false;
    }
    for (std::uintptr_t at = first;; at = (at | (page - 1)) + 1) {
        if (!CanTouch(at)) {
            return false;
        }
        if ((at ^ last) < page) {
            return true;
        }
    }
}

/// ProbeLength: each page is searched with the host's own fast search.
template <bool (*CanRead)(std::uintptr_t)>
std::size_t LengthOf(const char* text, std::size_t most, std::uintptr_t page) {
    for (std::size_t done = 0; done < most;) {
        const auto at = reinterpret_cast<std::uintptr_t>(text) + done;
        if (!CanRead(at)) {
            return kBadText;
        }
        const std::size_t size = std::min<std::size_t>(page - at % page, most - done);
        if (const void* end = std::memchr(text + done, 0, size)) {
            return static_cast<std::size_t>(static_cast<const char*>(end) - text);
        }
        done += size;
    }
    return most;
}

}  // namespace platform::kernel
