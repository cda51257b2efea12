/// @file above.h
/// What the model asks of the rooms above it, which implement it.
#pragma once

#include "gdi/surface/region.h"
#include "user/model/thread.h"

namespace platform::user {

/// painting: fills an area of the desktop, in screen coordinates, with its colour.
void PaintDesktop(const gdi::Region& area);

/// message: answers everything that waits for a thread that ends. Lock held.
void AbandonSent(ThreadState* thread);

}  // namespace platform::user
