#include "tests/platform/support/dib_header.h"
#include "tests/platform/support/gdi_canvas.h"

#include <cstring>
#include <vector>

namespace {

TEST(GdiDib, SectionsOfEveryDepthKeepColours) {
    for (const int bits : {1, 4, 8, 24, 32}) {
        SCOPED_TRACE(bits);
        DibHeader header(5, 3, bits);
        header.colours[0] = {0, 0, 0, 0};
        header.colours[1] = {255, 255, 255, 0};
        header.colours[2] = {0, 0, 255, 0};
        void* memory = nullptr;
        const HDC dc = CreateCompatibleDC(nullptr);
        const HBITMAP bitmap = CreateDIBSection(dc, header.Info(), DIB_RGB_COLORS, &memory, nullptr, 0);
        ASSERT_NE(nullptr, bitmap);
        ASSERT_NE(nullptr, memory);
        const HGDIOBJ previous = SelectObject(dc, bitmap);
        SetPixel(dc, 3, 1, RGB(255, 255, 255));
        EXPECT_EQ(RGB(255, 255, 255), GetPixel(dc, 3, 1));
        EXPECT_EQ(RGB(0, 0, 0), GetPixel(dc, 2, 1));
        if (bits > 1) {
            SetPixel(dc, 4, 2, RGB(255, 0, 0));
            EXPECT_EQ(RGB(255, 0, 0), GetPixel(dc, 4, 2));
        }
        // Rows are multiples of four bytes, the bottom one first.
        DIBSECTION section{};
        EXPECT_EQ(int{sizeof(section)}, GetObjectA(bitmap, sizeof(section), &section));
        EXPECT_EQ((5 * bits + 31) / 32 * 4, section.dsBm.bmWidthBytes);
        EXPECT_EQ(memory, section.dsBm.bmBits);
        GdiFlush();
        const auto* middle = static_cast<const BYTE*>(memory) + section.dsBm.bmWidthBytes;
        switch (bits) {
            case 1:
                EXPECT_EQ(0x10, middle[0]);
                break;
            case 4:
                EXPECT_EQ(0x01, middle[1]);
                break;
            case 8:
                EXPECT_EQ(1, middle[3]);
                break;
            case 24:
                EXPECT_EQ(255, middle[9]);
                break;
            default:
                EXPECT_EQ(255, middle[12]);
                break;
        }
        SelectObject(dc, previous);
        DeleteDC(dc);
        EXPECT_TRUE(DeleteObject(bitmap));
    }
}

TEST(GdiDib, OddDepthsBecomeTheNextThereIs) {
    BITMAP shape{};
    const int depths[][2] = {{2, 4}, {5, 8}, {17, 24}, {25, 32}};
    for (const auto& depth : depths) {
        const HBITMAP rounded = CreateBitmap(2, 2, 1, static_cast<UINT>(depth[0]), nullptr);
        GetObjectA(rounded, sizeof(shape), &shape);
        EXPECT_EQ(depth[1], shape.bmBitsPixel) << depth[0];
        EXPECT_TRUE(DeleteObject(rounded));
    }
    EXPECT_EQ(nullptr, CreateBitmap(2, 2, 1, 33, nullptr));
}

TEST(GdiDib, LinesCountFromTheBottomWhicheverIsStoredFirst) {
    for (const int stored : {4, -4}) {
        DibHeader header(1, stored, 32);
        void* memory = nullptr;
        const HDC dc = CreateCompatibleDC(nullptr);
        const HBITMAP bitmap = CreateDIBSection(dc, header.Info(), DIB_RGB_COLORS, &memory, nullptr, 0);
        ASSERT_NE(nullptr, bitmap);
        for (DWORD i = 0; i < 4; ++i) {
            // 1 is the top line.
            static_cast<DWORD*>(memory)[stored > 0 ? 3 - i : i] = i + 1;
        }
        struct {
            int height;
            UINT start;
            UINT lines;
            int copied;
            std::vector<DWORD> rows;
        } const cases[] = {
            {4, 0, 1, 1, {4}},
            {-4, 0, 1, 1, {4}},
            {4, 1, 2, 2, {3, 2}},
            {-4, 1, 2, 2, {2, 3}},
            {-4, 2, 5, 2, {1, 2}},
            {-4, 0, 4, 4, {1, 2, 3, 4}},
            {6, 0, 5, 3, {0, 0, 4, 3, 2}},
            {-6, 0, 5, 3, {2, 3, 4, 0, 0}},
        };
        for (const auto& each : cases) {
            SCOPED_TRACE(::testing::Message() << stored << ": " << each.height << ", from " << each.start);
            DibHeader wanted(1, each.height, 32);
            std::vector<DWORD> rows(6, 99);
            EXPECT_EQ(each.copied,
                      GetDIBits(dc, bitmap, each.start, each.lines, rows.data(), wanted.Info(), DIB_RGB_COLORS));
            EXPECT_EQ(99U, rows[each.rows.size()]);
            rows.resize(each.rows.size());
            EXPECT_EQ(each.rows, rows);
        }
        DeleteDC(dc);
        DeleteObject(bitmap);
    }
}

TEST(GdiDib, RefusesWhatIsNoBitmap) {
    void* memory = &memory;
    DibHeader header(0, 3, 32);
    EXPECT_EQ(nullptr, CreateDIBSection(nullptr, header.Info(), DIB_RGB_COLORS, &memory, nullptr, 0));
    header = DibHeader(3, 3, 7);
    EXPECT_EQ(nullptr, CreateDIBSection(nullptr, header.Info(), DIB_RGB_COLORS, &memory, nullptr, 0));
    BITMAP bitmap{};
    const HBITMAP least = CreateBitmap(0, 0, 1, 1, nullptr);
    ASSERT_NE(0, GetObjectA(least, sizeof(bitmap), &bitmap));
    EXPECT_EQ(1, bitmap.bmWidth);
}

TEST(GdiDib, BitsComeBackInTheFormAskedFor) {
    Canvas canvas(3, 2);
    canvas.Put(0, 0, 0xFF0000);
    canvas.Put(2, 1, 0x0000FF);
    const HBITMAP bitmap = CreateCompatibleBitmap(canvas, 3, 2);
    const HDC dc = CreateCompatibleDC(canvas);
    const HGDIOBJ previous = SelectObject(dc, bitmap);
    BitBlt(dc, 0, 0, 3, 2, canvas, 0, 0, SRCCOPY);
    SelectObject(dc, previous);

    DibHeader measure(0, 0, 0);
    measure.header.biPlanes = 0;
    EXPECT_NE(0, GetDIBits(dc, bitmap, 0, 0, nullptr, measure.Info(), DIB_RGB_COLORS));
    EXPECT_EQ(3, measure.header.biWidth);
    EXPECT_EQ(2, measure.header.biHeight < 0 ? -measure.header.biHeight : measure.header.biHeight);

    DibHeader down(3, -2, 32);
    DWORD top[6] = {};
    EXPECT_EQ(2, GetDIBits(dc, bitmap, 0, 2, top, down.Info(), DIB_RGB_COLORS));
    EXPECT_EQ(0xFF0000u, top[0] & 0xFFFFFF);
    EXPECT_EQ(0x0000FFu, top[5] & 0xFFFFFF);

    DibHeader up(3, 2, 24);
    BYTE bytes[24] = {};
    EXPECT_EQ(2, GetDIBits(dc, bitmap, 0, 2, bytes, up.Info(), DIB_RGB_COLORS));
    EXPECT_EQ(255, bytes[6]);       // the last pixel's blue, in the bottom row
    EXPECT_EQ(255, bytes[12 + 2]);  // the first pixel's red, in the top row

    // One line by number: line 0 is the bottom one.
    std::memset(bytes, 0, sizeof(bytes));
    EXPECT_EQ(1, GetDIBits(dc, bitmap, 1, 1, bytes, up.Info(), DIB_RGB_COLORS));
    EXPECT_EQ(255, bytes[2]);
    DeleteDC(dc);
    DeleteObject(bitmap);
}

TEST(GdiDib, DeviceBitmapsHaveRowsOfWords) {
    const BYTE bits[8] = {0x80, 0, 0x40, 0, 0x20, 0, 0x10, 0};
    const HBITMAP bitmap = CreateBitmap(5, 4, 1, 1, bits);
    BITMAP shape{};
    GetObjectA(bitmap, sizeof(shape), &shape);
    EXPECT_EQ(2, shape.bmWidthBytes);
    EXPECT_EQ(nullptr, shape.bmBits);
    const HDC dc = CreateCompatibleDC(nullptr);
    const HGDIOBJ previous = SelectObject(dc, bitmap);
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(RGB(255, 255, 255), GetPixel(dc, i, i)) << i;
        EXPECT_EQ(RGB(0, 0, 0), GetPixel(dc, i + 1, i)) << i;
    }
    SelectObject(dc, previous);
    DeleteDC(dc);
    DeleteObject(bitmap);
}

}  // namespace
