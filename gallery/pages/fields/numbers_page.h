/// @file numbers_page.h
/// Numeric fields with both kinds of bar, and the limits between which they step.
#pragma once

#include "gallery/page.h"

namespace gallery {

const Page& NumbersPage();

}  // namespace gallery
