#pragma once

/// The order of lists of numbers.
inline int CompareInts(void* first, void* second) {
    const int a = *static_cast<int*>(first);
    const int b = *static_cast<int*>(second);
    return (a > b) - (a < b);
}
