/// @file dates_page.h
/// A date field with a vertical bar, one with a horizontal bar, and the date that they show.
#pragma once

#include "gallery/page.h"

#include <string>

namespace gallery {

const Page& DatesPage();

/// @returns the chosen date as YYYY-MM-DD; empty while none is chosen, or when `page` is not such a page.
std::string ChosenIsoDate(HWND page);

}  // namespace gallery
