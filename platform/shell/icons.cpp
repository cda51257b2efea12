#include "shell/icons.h"

#include <cstdint>
#include <iterator>
#include <mutex>
#include <string_view>

#include "base/immortal.h"
#include "comctl/imagelist.h"
#include "gdi/bitmap/bitmaps.h"

namespace platform::shell {
namespace {

constexpr int kSize = 16;
constexpr int kCount = static_cast<int>(Picture::Count);
using Drawing = const char* [kSize];

// One letter a pixel: k black, w white, s silver, g grey, y yellow, o olive, c cyan, t teal, b blue, n navy, d green;
// a dot lets the ground through.
constexpr Drawing kDrawings[kCount] = {
    {
        "................",
        "..ggggggggg.....",
        "..gwwwwwwwkk....",
        "..gwwwwwwwksk...",
        "..gwwwwwwwkssk..",
        "..gwwwwwwwkkkk..",
        "..gwggggwwwwwk..",
        "..gwwwwwwwwwwk..",
        "..gwggggggggwk..",
        "..gwwwwwwwwwwk..",
        "..gwggggggggwk..",
        "..gwwwwwwwwwwk..",
        "..gwgggggwwwwk..",
        "..gwwwwwwwwwwk..",
        "..kkkkkkkkkkkk..",
        "................",
    },
    {
        "................",
        "................",
        "..ooooo.........",
        ".oyyyyyo........",
        ".oyyyyyyooooooo.",
        ".owwwwwwwwwwwwok",
        ".owyyyyyyyyyyyok",
        ".owyyyyyyyyyyyok",
        ".owyyyyyyyyyyyok",
        ".owyyyyyyyyyyyok",
        ".owyyyyyyyyyyyok",
        ".owyyyyyyyyyyyok",
        ".oyyyyyyyyyyyyok",
        ".ooooooooooooook",
        "..kkkkkkkkkkkkkk",
        "................",
    },
    {
        "................",
        "..ooooo.........",
        ".oyyyyyo........",
        ".oyyyyyyooooo...",
        ".owwwwwwwwwwok..",
        ".owyyyyyyyyyok..",
        ".owyyyyyyyyyok..",
        ".owyooooooooooo.",
        ".owyowwwwwwwwyok",
        ".owowyyyyyyyyok.",
        ".owowyyyyyyyyok.",
        ".ooowyyyyyyyok..",
        ".oowyyyyyyyyok..",
        ".oooooooooook...",
        "..kkkkkkkkkk....",
        "................",
    },
    {
        "................",
        "................",
        "................",
        "................",
        "..ggggggggggggg.",
        ".gwwwwwwwwwwwwgk",
        ".gwsssssssssssgk",
        ".gwssssssssssdgk",
        ".gwsssssssssssgk",
        ".gwkkkkkkkkkksgk",
        ".gwsssssssssssgk",
        ".gggggggggggggkk",
        "..kkkkkkkkkkkkk.",
        "................",
        "................",
        "................",
    },
    {
        "................",
        "....nnnnnnnnnn..",
        "....nbwwwwwwbn..",
        "....nbwggggwbn..",
        "....nbwwwwwwbn..",
        "....nbwggggwbn..",
        "....nbbbbbbbbn..",
        "..ggggggggggggg.",
        ".gwwwwwwwwwwwwgk",
        ".gwskkkkkkkkksgk",
        ".gwsssssssssssgk",
        ".gwssssssssssdgk",
        ".gggggggggggggkk",
        "..kkkkkkkkkkkkk.",
        "................",
        "................",
    },
    {
        "................",
        "...ggggggggggg..",
        "..gwwwwwwwwwwsk.",
        "..gwkkkkkkkkgsk.",
        "..gwktttttttwsk.",
        "..gwktctttttwsk.",
        "..gwktttttttwsk.",
        "..gwktttttttwsk.",
        "..gwgwwwwwwwwsk.",
        "..gssssssssssdk.",
        "...kkkkkkkkkkk..",
        ".ggggggggggggggk",
        ".gwwwwwwwwwwwwsk",
        ".gwsksksksskkssk",
        ".kkkkkkkkkkkkkkk",
        "................",
    },
    {
        "................",
        "..tttttttttttt..",
        "..tccccccccccn..",
        "..tcttttttttcn..",
        "..tctwwwwwttcn..",
        "..tctwggwwkkcn..",
        "..tctwwwwwkkcn..",
        "..tctwgggwttcn..",
        "..tctwwwwwttcn..",
        "..tcttkkkkttcn..",
        "..tcttttttttcn..",
        "..tccccccccccn..",
        "..nnnnnnnnnnnn..",
        "....ggggggg.....",
        "..kkkkkkkkkkkk..",
        "................",
    },
    {
        "................",
        "................",
        "..ooooo.........",
        ".oyyyyyo........",
        ".oyyyyyyooooooo.",
        ".owwwwwwwwwwwwok",
        ".owyyyykyyyyyyok",
        ".owyyykkkyyyyyok",
        ".owyykkkkkyyyyok",
        ".owyyyykyyyyyyok",
        ".owyyyykyyyyyyok",
        ".owyyyykkkkkkyok",
        ".oyyyyyyyyyyyyok",
        ".ooooooooooooook",
        "..kkkkkkkkkkkkkk",
        "................",
    },
};

std::uint32_t ColourOf(char letter) {
    constexpr std::string_view kLetters = "kwsgyoctbnd";
    constexpr std::uint32_t kColours[] = {0x000000, 0xFFFFFF, 0xC0C0C0, 0x808080, 0xFFFF80, 0x808000,
                                          0x80FFFF, 0x008080, 0x0000FF, 0x000080, 0x00C000};
    static_assert(kLetters.size() == std::size(kColours));
    return kColours[kLetters.find(letter)];
}

/// All drawings side by side. mask: white where the ground shows, black elsewhere.
HBITMAP MakeStrip(HDC screen, bool mask) {
    std::uint32_t pixels[kSize][kCount * kSize];
    for (int picture = 0; picture < kCount; ++picture) {
        for (int y = 0; y < kSize; ++y) {
            for (int x = 0; x < kSize; ++x) {
                const char letter = kDrawings[picture][y][x];
                const bool through = letter == '.';
                pixels[y][picture * kSize + x] = mask ? (through ? 0xFFFFFF : 0) : through ? 0 : ColourOf(letter);
            }
        }
    }
    const HBITMAP bitmap = mask ? CreateBitmap(kCount * kSize, kSize, 1, 1, nullptr)
                                : CreateCompatibleBitmap(screen, kCount * kSize, kSize);
    const gdi::MemoryContext memory(bitmap);
    if (memory) {
        gdi::StretchBits(memory, {0, 0, kCount * kSize, kSize}, pixels[0], {kCount * kSize, kSize}, SRCCOPY);
    }
    return bitmap;
}

HIMAGELIST Make() {
    const HDC screen = GetDC(nullptr);
    const HBITMAP colours = MakeStrip(screen, false);
    const HBITMAP masks = MakeStrip(screen, true);
    const HIMAGELIST list = comctl::MakeImageList(kSize, colours, masks, CLR_NONE);
    DeleteObject(colours);
    DeleteObject(masks);
    ReleaseDC(nullptr, screen);
    return list;
}

}  // namespace

Picture PictureOf(const Place& place, bool open) {
    switch (place.kind) {
        case PlaceKind::Desktop:
            return Picture::Desktop;
        case PlaceKind::Computer:
            return Picture::Computer;
        case PlaceKind::Drive:
            return IsRemovable(place.path[0]) ? Picture::Removable : Picture::HardDisk;
        case PlaceKind::Folder:
            return open ? Picture::OpenFolder : Picture::Folder;
        case PlaceKind::File:
            break;
    }
    return Picture::File;
}

HIMAGELIST SmallIcons() {
    static platform::base::Immortal<std::mutex> lock;
    static HIMAGELIST list = nullptr;
    const std::lock_guard guard(*lock);
    if (!list) {
        list = Make();
    }
    return list;
}

}  // namespace platform::shell
