/// @file lists_page.h
/// The page of the check list and of fields that are framed with their buttons.
#pragma once

#include "gallery/page.h"

namespace gallery {

Page const& ListsPage();

}  // namespace gallery
