// The icons that the system brings along, as the 1995 scheme draws them: sixteen colours, 32 by 32 pixels.
#include "user/resource/icons.h"

#include <cmath>

namespace platform::user {
namespace {

constexpr int kSize = 32;
constexpr std::uint32_t kBlack = 0x000000;
constexpr std::uint32_t kWhite = 0xFFFFFF;
constexpr std::uint32_t kGrey = 0x808080;
constexpr std::uint32_t kFace = 0xC0C0C0;
constexpr std::uint32_t kRed = 0xFF0000;
constexpr std::uint32_t kDarkRed = 0x800000;
constexpr std::uint32_t kYellow = 0xFFFF00;
constexpr std::uint32_t kBlue = 0x0000FF;
constexpr std::uint32_t kNavy = 0x000080;

class Canvas {
  public:
    Canvas() {
        picture.width = picture.height = kSize;
        picture.pixels.assign(kSize * kSize, kTransparent);
    }

    void Set(int x, int y, std::uint32_t colour) {
        if (x >= 0 && x < kSize && y >= 0 && y < kSize) {
            picture.pixels[static_cast<std::size_t>(y * kSize + x)] = colour;
        }
    }

    void Fill(int left, int top, int right, int bottom, std::uint32_t colour) {
        for (int y = top; y < bottom; ++y) {
            for (int x = left; x < right; ++x) {
                Set(x, y, colour);
            }
        }
    }

    /// Every pixel whose middle the test accepts.
    template <class Inside>
    void Where(Inside inside, std::uint32_t colour) {
        for (int y = 0; y < kSize; ++y) {
            for (int x = 0; x < kSize; ++x) {
                if (inside(x + 0.5, y + 0.5)) {
                    Set(x, y, colour);
                }
            }
        }
    }

    IconPicture picture;
};

auto Ellipse(double x, double y, double rx, double ry) {
    return [=](double px, double py) {
        const double dx = (px - x) / rx;
        const double dy = (py - y) / ry;
        return dx * dx + dy * dy <= 1;
    };
}

/// A triangle that stands on its base.
auto Triangle(double middle, double top, double bottom, double half) {
    return [=](double x, double y) {
        return y >= top && y <= bottom && std::fabs(x - middle) <= half * (y - top) / (bottom - top);
    };
}

void DrawHand(Canvas& canvas) {
    canvas.Where(Ellipse(16.5, 16.5, 15.4, 15.4), kGrey);
    canvas.Where(Ellipse(15.5, 15.5, 15.4, 15.4), kDarkRed);
    canvas.Where(Ellipse(15.5, 15.5, 14.2, 14.2), kRed);
    canvas.Where(
        [](double x, double y) {
            const double dx = x - 15.5;
            const double dy = y - 15.5;
            const bool inside = std::fabs(dx) <= 7.5 && std::fabs(dy) <= 7.5;
            return inside && (std::fabs(dx - dy) <= 3 || std::fabs(dx + dy) <= 3);
        },
        kWhite);
}

void DrawExclamation(Canvas& canvas) {
    canvas.Where(Triangle(16.5, 1, 31, 15.5), kGrey);
    canvas.Where(Triangle(15.5, 0, 30, 15.5), kBlack);
    canvas.Where(Triangle(15.5, 2.6, 28.6, 13.2), kYellow);
    canvas.Fill(14, 9, 17, 17, kBlack);
    canvas.Fill(15, 17, 16, 21, kBlack);
    canvas.Fill(14, 23, 17, 26, kBlack);
}

void DrawBalloon(Canvas& canvas) {
    const auto tail = [](double grow) {
        return [grow](double x, double y) {
            return y >= 22 && y <= 31 - grow && x >= 14 + grow && x <= 23 - (y - 22) - grow;
        };
    };
    canvas.Where(Ellipse(16.5, 14.5, 15.4, 12.7), kGrey);
    canvas.Where(Ellipse(15.5, 13.5, 15.4, 13.3), kBlack);
    canvas.Where(tail(0), kBlack);
    canvas.Where(Ellipse(15.5, 13.5, 14.4, 12.3), kWhite);
    canvas.Where(tail(1.2), kWhite);
}

void DrawQuestion(Canvas& canvas) {
    DrawBalloon(canvas);
    // A stroke of three pixels: the bow, the way down, the dot.
    canvas.Where(
        [](double x, double y) {
            const double dx = x - 15.5;
            const double dy = y - 9.5;
            const double distance = std::sqrt(dx * dx + dy * dy);
            return distance >= 2 && distance <= 5.2 && (dy <= 0 || dx >= 0) && !(dx < 0 && dy > -1);
        },
        kBlue);
    canvas.Fill(14, 12, 17, 18, kBlue);
    canvas.Fill(14, 20, 17, 23, kBlue);
}

void DrawAsterisk(Canvas& canvas) {
    DrawBalloon(canvas);
    canvas.Fill(14, 5, 17, 8, kBlue);
    canvas.Fill(12, 10, 17, 12, kBlue);
    canvas.Fill(14, 12, 17, 20, kBlue);
    canvas.Fill(12, 20, 19, 22, kBlue);
}

void DrawApplication(Canvas& canvas) {
    canvas.Fill(2, 4, 30, 28, kBlack);
    canvas.Fill(2, 4, 29, 27, kWhite);
    canvas.Fill(3, 5, 29, 27, kGrey);
    canvas.Fill(3, 5, 28, 26, kFace);
    canvas.Fill(4, 6, 28, 11, kNavy);
    canvas.Fill(24, 7, 27, 10, kFace);
    canvas.Fill(4, 12, 28, 26, kWhite);
}

}  // namespace

std::optional<IconPicture> DrawSystemIcon(unsigned number) {
    Canvas canvas;
    switch (number) {
        case 32513:
            DrawHand(canvas);
            break;
        case 32514:
            DrawQuestion(canvas);
            break;
        case 32515:
            DrawExclamation(canvas);
            break;
        case 32516:
            DrawAsterisk(canvas);
            break;
        default:
            DrawApplication(canvas);
    }
    return std::move(canvas.picture);
}

}  // namespace platform::user
