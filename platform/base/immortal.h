/// @file immortal.h
/// Objects that are there whenever somebody asks.
#pragma once

#include <cstddef>
#include <new>

namespace platform::base {

/// An object that is made without memory from the free store and never destroyed, for function-local statics: nobody can be
/// without a lock because memory has run out, and threads may still use it while the process ends.
template <class Object>
class Immortal {
  public:
    Immortal() {
        new (place_) Object;
    }
    Immortal(const Immortal&) = delete;
    Immortal& operator=(const Immortal&) = delete;

    Object& operator*() {
        return *std::launder(reinterpret_cast<Object*>(place_));
    }

  private:
    alignas(Object) std::byte place_[sizeof(Object)];
};

}  // namespace platform::base
