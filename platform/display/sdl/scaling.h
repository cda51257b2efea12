/// @file scaling.h
/// Where the picture lies in a window of another size, and what it looks like there. Needs no window.
#pragma once

#include "display/display.h"

#include <cstdint>
#include <vector>

namespace platform::display {

/// @returns what two boxes have in common.
Box Cut(const Box& a, const Box& b);
/// @returns the smallest box around two.
Box Around(const Box& a, const Box& b);

/// Takes a box out of others.
void CutOut(std::vector<Box>& boxes, const Box& hole);

constexpr int kMostScale = 8;

/// @returns how many pixels of a desktop, along each side, make one of the screen where it has so many dots per inch. Half a
/// step up to the next whole factor things stay small rather than become large, and a screen of 800 by 600 is left.
int ScaleOf(int density, const Box& desktop);

/// @returns a quotient, rounded down also below zero.
int RoundDown(int at, int scale);

/// A picture in the middle of a window, as large as fits without changing its shape.
class Placement {
  public:
    Placement(int width, int height, int windowWidth, int windowHeight);

    const Box& Area() const {
        return area_;
    }
    bool Scales() const {
        return area_.Width() != width_ || area_.Height() != height_;
    }
    /// @returns the pixels of the window, inside the picture's area, that show something of a part of the picture.
    Box ToWindow(const Box& part) const;
    /// @returns a coordinate of the window in the picture; outside it where the window's lies outside the area.
    int PictureX(int x) const;
    int PictureY(int y) const;

  private:
    int width_;
    int height_;
    Box area_;
};

/// Draws a part of the picture's area, in coordinates of the window, whose pixels begin at `to`. Each pixel is a mixture
/// of the four of the picture that lie around it, whatever part it is drawn with. Strides are in pixels.
void DrawScaled(const std::uint32_t* from, int fromStride, int width, int height, const Box& area, const Box& part,
                std::uint32_t* to, int toStride);

}  // namespace platform::display
