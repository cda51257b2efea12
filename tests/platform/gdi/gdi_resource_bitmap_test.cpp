// Bitmaps from resources, and the raster operations that have names.
#include "tests/platform/support/gdi_canvas.h"

#include <functional>

namespace {

constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kGreen = RGB(0, 255, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);

HBITMAP Load(int id) {
    return LoadBitmapA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(id));
}

TEST(GdiResourceBitmaps, EveryDepthShowsItsColours) {
    for (const int id : {3100, 3101, 3102, 3103}) {
        const HBITMAP bitmap = Load(id);
        ASSERT_NE(nullptr, bitmap) << id;
        BITMAP info{};
        GetObjectA(bitmap, sizeof info, &info);
        EXPECT_EQ(2, info.bmWidth);
        EXPECT_EQ(2, info.bmHeight);
        const HDC memory = CreateCompatibleDC(nullptr);
        const HGDIOBJ previous = SelectObject(memory, bitmap);
        EXPECT_EQ(kBlue, GetPixel(memory, 0, 0)) << id;
        EXPECT_EQ(id == 3100 ? kRed : kGreen, GetPixel(memory, 1, 0)) << id;
        EXPECT_EQ(kRed, GetPixel(memory, 0, 1)) << id;
        EXPECT_EQ(kBlue, GetPixel(memory, 1, 1)) << id;
        SelectObject(memory, previous);
        DeleteDC(memory);
        EXPECT_TRUE(DeleteObject(bitmap));
    }
    EXPECT_EQ(nullptr, Load(3199)) << "there is none";
}

TEST(GdiResourceBitmaps, LoadImageStretches) {
    const HANDLE image =
        LoadImageA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(3102), IMAGE_BITMAP, 4, 6, LR_DEFAULTCOLOR);
    ASSERT_NE(nullptr, image);
    BITMAP size{};
    ASSERT_EQ(static_cast<int>(sizeof size), GetObjectA(image, sizeof size, &size));
    EXPECT_EQ(4, size.bmWidth);
    EXPECT_EQ(6, size.bmHeight);
    const HDC memory = CreateCompatibleDC(nullptr);
    const HGDIOBJ previous = SelectObject(memory, image);
    EXPECT_EQ(kBlue, GetPixel(memory, 0, 0));
    EXPECT_EQ(kGreen, GetPixel(memory, 2, 0));
    EXPECT_EQ(kRed, GetPixel(memory, 0, 3));
    SelectObject(memory, previous);
    DeleteDC(memory);
    DeleteObject(image);
}

/// Operations with their published codes, and what each means for a bit.
struct Named {
    DWORD code;
    std::function<std::uint32_t(std::uint32_t p, std::uint32_t s, std::uint32_t d)> meaning;
};

TEST(GdiResourceBitmaps, NamedOperationsDoWhatTheySayStretchedOrNot) {
    using Word = std::uint32_t;
    const Named named[] = {
        {SRCCOPY, [](Word, Word s, Word) { return s; }},
        {SRCPAINT, [](Word, Word s, Word d) { return s | d; }},
        {SRCAND, [](Word, Word s, Word d) { return s & d; }},
        {SRCINVERT, [](Word, Word s, Word d) { return s ^ d; }},
        {MERGECOPY, [](Word p, Word s, Word) { return p & s; }},
        {PATCOPY, [](Word p, Word, Word) { return p; }},
        {PATINVERT, [](Word p, Word, Word d) { return p ^ d; }},
        {DSTINVERT, [](Word, Word, Word d) { return ~d; }},
        {BLACKNESS, [](Word, Word, Word) { return Word{0}; }},
        {WHITENESS, [](Word, Word, Word) { return Word{0xFFFFFF}; }},
    };
    constexpr Word p = 0x0F35F0;
    constexpr Word s = 0x5569AA;
    constexpr Word d = 0x33A5C3;
    Canvas to(8, 8);
    Canvas from(4, 4);
    const HBRUSH brush = CreateSolidBrush(RGB(0x0F, 0x35, 0xF0));
    const HGDIOBJ previous = SelectObject(to, brush);
    for (const Named& operation : named) {
        const Word expected = operation.meaning(p, s, d) & 0xFFFFFF;
        from.Clear(s);
        to.Clear(d);
        ASSERT_TRUE(BitBlt(to, 1, 1, 3, 3, from, 0, 0, operation.code));
        EXPECT_EQ(9, to.Count(to.All(), expected)) << std::hex << operation.code;
        to.Clear(d);
        ASSERT_TRUE(StretchBlt(to, 1, 1, 6, 5, from, 0, 0, 3, 4, operation.code));
        EXPECT_EQ(30, to.Count(to.All(), expected)) << std::hex << operation.code;
    }
    SelectObject(to, previous);
    DeleteObject(brush);
}

}  // namespace
