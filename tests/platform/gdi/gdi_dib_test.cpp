#include "tests/platform/support/dib_header.h"
#include "tests/platform/support/gdi_canvas.h"

#include <vector>

namespace {

TEST(GdiDib, SectionsShareTheirPixels) {
    DibHeader header(5, 3, 32);
    void* memory = nullptr;
    const HDC dc = CreateCompatibleDC(nullptr);
    const HBITMAP bitmap = CreateDIBSection(dc, header.Info(), DIB_RGB_COLORS, &memory, nullptr, 0);
    ASSERT_NE(nullptr, bitmap);
    ASSERT_NE(nullptr, memory);
    const HGDIOBJ previous = SelectObject(dc, bitmap);
    SetPixel(dc, 3, 1, RGB(255, 255, 255));
    SetPixel(dc, 4, 2, RGB(255, 0, 0));
    EXPECT_EQ(RGB(255, 255, 255), GetPixel(dc, 3, 1));
    EXPECT_EQ(RGB(0, 0, 0), GetPixel(dc, 2, 1));
    GdiFlush();
    // The bottom row comes first.
    EXPECT_EQ(0xFF0000U, static_cast<DWORD*>(memory)[4] & 0xFFFFFF);
    EXPECT_EQ(0xFFFFFFU, static_cast<DWORD*>(memory)[5 + 3] & 0xFFFFFF);
    SelectObject(dc, previous);
    DeleteDC(dc);
    EXPECT_TRUE(DeleteObject(bitmap));
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
        EXPECT_NE(0, GetDIBits(dc, bitmap, 0, 4, nullptr, DibHeader(1, 4, 32).Info(), DIB_RGB_COLORS))
            << "without bits";
        DeleteDC(dc);
        DeleteObject(bitmap);
    }
}

}  // namespace
