/// @file buttons_page.h
/// The page of graphic buttons and the animation.
#pragma once

#include "gallery/page.h"

namespace gallery {

Page const& ButtonsPage();

}  // namespace gallery
