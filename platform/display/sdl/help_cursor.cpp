#include "display/sdl/help_cursor.h"

#include <array>
#include <string_view>

namespace platform::display {
namespace {

constexpr int kSize = 32;

// X is black and o is white.
constexpr std::array<std::string_view, 20> kPicture{"X                     ",  //
                                                    "XX         XXXXXX     ",  //
                                                    "XoX       XXooooXX    ",  //
                                                    "XooX     XXooooooXX   ",  //
                                                    "XoooX    XoooXXoooX   ",  //
                                                    "XooooX   XoooXXoooX   ",  //
                                                    "XoooooX  XXXXXXoooX   ",  //
                                                    "XooooooX     XoooXX   ",  //
                                                    "XoooooooX   XoooXX    ",  //
                                                    "XooooooooX  XooXX     ",  //
                                                    "XoooooXXXXX XooX      ",  //
                                                    "XooXooX     XXXX      ",  //
                                                    "XoX XooX    XooX      ",  //
                                                    "XX  XooX    XooX      ",  //
                                                    "X    XooX   XXXX      ",  //
                                                    "     XooX             ",  //
                                                    "      XooX            ",  //
                                                    "      XooX            ",  //
                                                    "       XX             ",  //
                                                    "                      "};

}  // namespace

SDL_Cursor* MakeHelpCursor() {
    // A bit of the mask makes a pixel opaque; there a bit of the data makes it black.
    std::array<Uint8, kSize * kSize / 8> data{};
    std::array<Uint8, kSize * kSize / 8> mask{};
    for (std::size_t row = 0; row < kPicture.size(); ++row) {
        for (std::size_t column = 0; column < kPicture[row].size(); ++column) {
            const char pixel = kPicture[row][column];
            const std::size_t at = row * (kSize / 8) + column / 8;
            const auto bit = static_cast<Uint8>(0x80 >> column % 8);
            data[at] = static_cast<Uint8>(data[at] | (pixel == 'X' ? bit : 0));
            mask[at] = static_cast<Uint8>(mask[at] | (pixel != ' ' ? bit : 0));
        }
    }
    return SDL_CreateCursor(data.data(), mask.data(), kSize, kSize, 0, 0);
}

}  // namespace platform::display
