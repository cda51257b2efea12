/// @file failure_order.h
/// A test's order that one of the calls to come is to fail.
#pragma once

#include <atomic>

namespace platform::base {

class FailureOrder {
  public:
    /// 1 means the next call, 0 none. @returns what was left of the order before.
    unsigned Give(unsigned count) {
        return left_.exchange(count, std::memory_order_relaxed);
    }

    /// Counts a call. @returns whether it is the one.
    bool MeansThis() {
        unsigned left = left_.load(std::memory_order_relaxed);
        while (left != 0) {
            if (left_.compare_exchange_weak(left, left - 1, std::memory_order_relaxed)) {
                return left == 1;
            }
        }
        return false;
    }

  private:
    std::atomic<unsigned> left_{0};
};

}  // namespace platform::base
