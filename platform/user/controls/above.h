/// @file above.h
/// What controls ask of the room above them, which implements it.
#pragma once

#include <string>

namespace platform::user {

// --- desktop: the primary selection, which on some hosts holds the text that a person has selected last in any program. It has
// nothing to do with the clipboard. Lock not held.

/// @returns whether there is a text. May take a moment.
bool ReadPrimarySelection(std::string* text);
/// Says what has been selected here.
void OfferPrimarySelection(const std::string& text);

}  // namespace platform::user
