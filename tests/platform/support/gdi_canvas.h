/// @file gdi_canvas.h
/// A picture in memory to draw on and to look at, pixel by pixel.
#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include <cstdint>

#include "tests/platform/support/expect_rect.h"

class Canvas {
  public:
    static constexpr std::uint32_t kWhite = 0xFFFFFF;
    static constexpr std::uint32_t kBlack = 0x000000;

    explicit Canvas(int width = 64, int height = 48) : width_(width), height_(height) {
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof(info.bmiHeader);
        info.bmiHeader.biWidth = width;
        info.bmiHeader.biHeight = -height;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        dc_ = CreateCompatibleDC(nullptr);
        bitmap_ = CreateDIBSection(dc_, &info, DIB_RGB_COLORS, &bits_, nullptr, 0);
        previous_ = SelectObject(dc_, bitmap_);
        Clear(kWhite);
    }
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;
    ~Canvas() {
        SelectObject(dc_, previous_);
        DeleteDC(dc_);
        DeleteObject(bitmap_);
    }
    operator HDC() const {
        return dc_;
    }
    HBITMAP Bitmap() const {
        return bitmap_;
    }
    std::uint32_t* Pixels() {
        GdiFlush();
        return static_cast<std::uint32_t*>(bits_);
    }
    /// 0x00RRGGBB
    std::uint32_t At(int x, int y) {
        return Pixels()[y * width_ + x] & 0xFFFFFF;
    }
    void Put(int x, int y, std::uint32_t pixel) {
        Pixels()[y * width_ + x] = pixel;
    }
    void Clear(std::uint32_t pixel) {
        for (int i = 0; i < width_ * height_; ++i) {
            Pixels()[i] = pixel;
        }
    }
    /// @returns how many pixels inside a rectangle have a colour.
    int Count(const RECT& rect, std::uint32_t pixel) {
        int count = 0;
        for (int y = rect.top; y < rect.bottom; ++y) {
            for (int x = rect.left; x < rect.right; ++x) {
                count += At(x, y) == pixel;
            }
        }
        return count;
    }
    RECT All() const {
        return {0, 0, width_, height_};
    }
    /// @returns the smallest rectangle around all pixels that are not white.
    RECT Inked() {
        RECT box{width_, height_, 0, 0};
        for (int y = 0; y < height_; ++y) {
            for (int x = 0; x < width_; ++x) {
                if (At(x, y) != kWhite) {
                    box.left = x < box.left ? x : box.left;
                    box.top = y < box.top ? y : box.top;
                    box.right = x >= box.right ? x + 1 : box.right;
                    box.bottom = y >= box.bottom ? y + 1 : box.bottom;
                }
            }
        }
        return box;
    }

  private:
    int width_;
    int height_;
    HDC dc_ = nullptr;
    HBITMAP bitmap_ = nullptr;
    HGDIOBJ previous_ = nullptr;
    void* bits_ = nullptr;
};

inline std::uint32_t PixelOf(COLORREF colour) {
    return static_cast<std::uint32_t>(GetRValue(colour)) << 16 | static_cast<std::uint32_t>(GetGValue(colour)) << 8 |
           GetBValue(colour);
}
