/// @file memory.h
/// Memory that runs out now and then: the program's operator new serves the library and the layer too.
#pragma once

#include <cstddef>

namespace storm {

/// From now on one allocation in so many fails, from the free store and of global memory; 0 ends it. Which ones follows from
/// the seed.
void FailAllocations(int times, unsigned long long seed);

/// Nothing fails as long as it lives: the storm's own preparations.
class Plenty {
  public:
    Plenty();
    ~Plenty();
    Plenty(Plenty const&) = delete;
    Plenty& operator=(Plenty const&) = delete;

  private:
    int former_;
};

/// How many allocations have failed.
unsigned long FailedAllocations();

/// Orders the next block of global memory to fail, now and then. To be called before each event.
void RollGlobalMemory();

}  // namespace storm
