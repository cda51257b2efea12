/// @file chance.h
/// Where all decisions of a storm come from: numbers that follow from the seed alone.
#pragma once

#include <cstddef>
#include <cstdint>

namespace storm {

class Chance {
  public:
    constexpr explicit Chance(std::uint64_t seed) : state_(seed) {}

    std::uint64_t Next() {
        state_ += 0x9E3779B97F4A7C15;
        std::uint64_t mixed = state_;
        mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9;
        mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EB;
        return mixed ^ (mixed >> 31);
    }

    /// A number from 0, below @p count.
    int Below(int count) {
        return static_cast<int>(Next() % static_cast<unsigned>(count));
    }

    /// A number from @p low to @p high.
    int From(int low, int high) {
        return low + Below(high - low + 1);
    }

    /// Once in so many times; never for 0.
    bool OneIn(int times) {
        return times > 0 && Below(times) == 0;
    }

    template <class Item, std::size_t count>
    Item const& Of(Item const (&items)[count]) {
        return items[Next() % count];
    }

  private:
    std::uint64_t state_;
};

}  // namespace storm
