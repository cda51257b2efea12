/// @file datetime_page.h
/// Time fields with both kinds of bar, the switch between the clocks, and a form of a date, a time and a number.
#pragma once

#include "gallery/page.h"

namespace gallery {

const Page& DateTimePage();

}  // namespace gallery
