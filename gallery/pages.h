/// @file pages.h
/// The pages, in the order of the list.
#pragma once

#include "gallery/page.h"

#include <span>

namespace gallery {

std::span<const Page> Pages();

/// The place of the page whose date the gallery prints.
constexpr int kDatesPage = 0;

}  // namespace gallery
