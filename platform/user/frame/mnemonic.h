/// @file mnemonic.h
/// The underlined letters of labels and menu items.
#pragma once

#include <string_view>

namespace platform::user {

/// @returns a character as a capital.
char Capital(char character);

/// @returns the letter behind a single '&', as a capital; 0 for none. The last one counts, as it is the one underlined.
char MnemonicOf(std::string_view text);

}  // namespace platform::user
