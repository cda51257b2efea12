/// @file browse_page.h
/// The page of the browse buttons and of the folder tree list.
#pragma once

#include "gallery/page.h"

namespace gallery {

Page const& BrowsePage();

}  // namespace gallery
