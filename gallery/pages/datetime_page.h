/// @file datetime_page.h
/// Time fields with both kinds of bar, the switch between the clocks, and a date with a time read into one record.
#pragma once

#include "gallery/page.h"

namespace gallery {

const Page& DateTimePage();

}  // namespace gallery
