// The binary search of both kinds of lists.
#pragma once

#include <cstddef>
#include <cstdint>

namespace halving {

struct Place {
    std::uint32_t index;  ///< of the match or, without one, where it would be inserted
    bool isMatch;
};

/// Searches @p count slots of @p size bytes in ascending order. The next half is chosen by masks, without a branch, which no
/// processor could foresee; that a slot matches is foreseen until it does. The middle one is (low + high) / 2 throughout, which
/// decides among equal elements.
/// @param order  called with a slot: above 0 if the key comes behind it, 0 for a match, else below 0
template <class Order>
Place Search(const char* slot, std::size_t size, std::uint32_t count, Order order) {
    std::uint32_t low = 0;  // the index of `slot`
    while (count) {
        const std::uint32_t below = count / 2;
        const auto sign = order(slot + below * size);
        if (sign == 0) {
            return {low + below, true};
        }
        // All bits, or none.
        const std::size_t isBehind = std::size_t{0} - static_cast<std::size_t>(sign > 0);
        slot += (below * size + size) & isBehind;
        low += (below + 1) & static_cast<std::uint32_t>(isBehind);
        count = below ^ ((below ^ (count - below - 1)) & static_cast<std::uint32_t>(isBehind));
    }
    return {low, false};
}

}  // namespace halving
