/// @file live.h
/// Counts of live objects that have no handle.
#pragma once

#include <atomic>

namespace platform::base {

inline std::atomic<long> g_componentObjects{0};  ///< folders and enumerators of the shell
inline std::atomic<long> g_shellBlocks{0};       ///< blocks of the shell's allocator

}  // namespace platform::base
