/// @file halving.h
/// The binary search of both lists once more, as it is told.
#pragma once

#include <cstddef>

namespace fuzz {

struct Halved {
    bool found;
    std::size_t index;  ///< the match, or where the key would stand
};

/// @param order  tells how the key stands to the item of an index: below 0, 0 or above 0.
template <class Order>
Halved Halve(std::size_t count, Order order) {
    std::size_t low = 0;
    std::size_t high = count;
    while (low < high) {
        std::size_t const middle = (low + high) / 2;
        if (order(middle) == 0) {
            return {true, middle};
        }
        if (order(middle) > 0) {
            low = middle + 1;
        } else {
            high = middle;
        }
    }
    return {false, high};
}

}  // namespace fuzz
