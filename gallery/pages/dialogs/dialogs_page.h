/// @file dialogs_page.h
/// The page of the standard dialogs: message boxes, error reports and the About box.
#pragma once

#include "gallery/page.h"

namespace gallery {

Page const& DialogsPage();

}  // namespace gallery
