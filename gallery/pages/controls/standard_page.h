/// @file standard_page.h
/// The page of the controls that are Windows' own: lists, combo boxes, buttons and scroll bars.
#pragma once

#include "gallery/page.h"

namespace gallery {

Page const& StandardPage();

}  // namespace gallery
