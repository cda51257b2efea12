// Bitmaps of impossible sizes and handles that are none: a refusal, and nothing is written.
#include <gtest/gtest.h>
#include <windows.h>

#include <cstdint>

#include "tests/platform/support/dib_header.h"

namespace {

TEST(OddBitmaps, AreRefused) {
    void* memory = nullptr;
    DibHeader header(3, 3, 8);
    for (const DWORD size : {0xFFFFFFFFu, 3u}) {
        header.header.biSize = size;
        EXPECT_EQ(nullptr, CreateDIBSection(nullptr, header.Info(), DIB_RGB_COLORS, &memory, nullptr, 0));
    }
    header = DibHeader(3, 3, 7);
    EXPECT_EQ(nullptr, CreateDIBSection(nullptr, header.Info(), DIB_RGB_COLORS, &memory, nullptr, 0));
    header = DibHeader(1, 1, 32);
    header.header.biPlanes = 4;
    EXPECT_EQ(nullptr, CreateDIBSection(nullptr, header.Info(), DIB_RGB_COLORS, &memory, nullptr, 0));
    for (const LONG odd : {LONG{INT32_MIN}, LONG{INT32_MAX}, LONG{-1}, LONG{0}}) {
        for (const int bits : {1, 24, 32}) {
            header = DibHeader(odd, INT32_MIN, bits);
            EXPECT_EQ(nullptr, CreateDIBSection(nullptr, header.Info(), DIB_RGB_COLORS, &memory, nullptr, 0));
            header = DibHeader(INT32_MAX, odd, bits);
            EXPECT_TRUE(odd == -1 || !CreateDIBSection(nullptr, header.Info(), DIB_RGB_COLORS, &memory, nullptr, 0));
        }
    }
    // A bitmap of another kind, a stale one, none: nothing is written.
    const HBITMAP stale = CreateBitmap(3, 3, 1, 32, nullptr);
    DeleteObject(stale);
    const HDC dc = CreateCompatibleDC(nullptr);
    for (const HBITMAP bad : {stale, HBITMAP{nullptr}, reinterpret_cast<HBITMAP>(INT_PTR{-1}),
                              reinterpret_cast<HBITMAP>(GetStockObject(WHITE_BRUSH))}) {
        DWORD untouched = 99;
        header = DibHeader(1, 1, 32);
        EXPECT_EQ(0, GetDIBits(dc, bad, 0, 1, &untouched, header.Info(), DIB_RGB_COLORS));
        EXPECT_EQ(99U, untouched);
        EXPECT_EQ(0, GetObjectA(bad, sizeof(untouched), &untouched));
    }
    const HBITMAP one = CreateBitmap(1, 1, 1, 32, nullptr);
    DWORD pixels[2] = {99, 99};
    header = DibHeader(1, 1, 32);
    EXPECT_EQ(0, GetDIBits(dc, one, 0xFFFFFFFF, 0xFFFFFFFF, pixels, header.Info(), DIB_RGB_COLORS));
    EXPECT_EQ(1, GetDIBits(dc, one, 0, 0xFFFFFFFF, pixels, header.Info(), DIB_RGB_COLORS));
    EXPECT_EQ(99U, pixels[1]);
    EXPECT_EQ(0, GetDIBits(dc, one, 0, 1, pixels, nullptr, DIB_RGB_COLORS));
    EXPECT_EQ(0, GetDIBits(nullptr, one, 0, 1, pixels, header.Info(), DIB_RGB_COLORS));
    DeleteObject(one);
    DeleteDC(dc);
    EXPECT_EQ(nullptr, CreateBitmap(0x7FFFFFFF, 0x7FFFFFFF, 1, 32, nullptr));
    EXPECT_EQ(nullptr, CreateBitmap(40000, 40000, 1, 32, nullptr));
    EXPECT_EQ(nullptr, CreateBitmap(3, 3, 1, 0xFFFFFFFF, nullptr));
    EXPECT_EQ(nullptr, CreateBitmap(3, 3, 1, 24, nullptr));
    EXPECT_EQ(nullptr, CreateBitmap(-1, 3, 1, 32, nullptr));
    BITMAP least{};
    ASSERT_NE(0, GetObjectA(CreateBitmap(0, 0, 1, 1, nullptr), sizeof least, &least));
    EXPECT_EQ(1, least.bmWidth) << "no size is the least one";
}

}  // namespace
