/// @file convert.h
/// Pixels of one surface as native values of another.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "gdi/context/raster.h"

namespace platform::gdi {

/// The colours that decide what a monochrome bitmap's bits mean: 0 becomes the destination's text colour and 1 its
/// background colour; towards monochrome, what has the source's background colour becomes 1 and the rest 0.
struct MonoColours {
    COLORREF zero = RGB(0, 0, 0);
    COLORREF one = RGB(255, 255, 255);
    COLORREF match = RGB(255, 255, 255);
};

class Converter {
  public:
    Converter(const Surface& from, const Surface& to, const MonoColours& colours);
    /// Whether values pass unchanged.
    bool Same() const {
        return kind_ == Kind::Same;
    }
    void Convert(std::uint32_t* values, int count);

  private:
    enum class Kind { Same, Table, Match };
    Kind kind_ = Kind::Same;
    std::array<std::uint32_t, 256> table_;
    std::uint32_t match_ = 0;
};

/// Rows of a surface, moved by an offset.
class SurfaceRows : public RowSource {
  public:
    /// Destination (x, y) shows source (x + dx, y + dy).
    SurfaceRows(const Surface& from, int dx, int dy, const Surface& to, const MonoColours& colours)
        : from_(from), dx_(dx), dy_(dy), converter_(from, to, colours) {}
    void Read(int x, int y, int count, std::uint32_t* out) override {
        ReadRow(from_, x + dx_, y + dy_, count, out);
        if (!converter_.Same()) {
            converter_.Convert(out, count);
        }
    }

  private:
    const Surface from_;
    int dx_;
    int dy_;
    Converter converter_;
};

/// Rows kept in memory, already native values of the destination.
class BufferRows : public RowSource {
  public:
    BufferRows(const RECT& area, std::vector<std::uint32_t> values) : area_(area), values_(std::move(values)) {}
    void Read(int x, int y, int count, std::uint32_t* out) override;

  private:
    RECT area_;
    std::vector<std::uint32_t> values_;
};

/// What several source pixels become where a picture shrinks: those bits that all of them have, or the first of them.
enum class Shrink { Mix, TakeFirst };

/// Shrinks or grows part of a surface into the pixels of `part`, which lies inside `target`.
/// @returns native values of `to`, row by row.
std::vector<std::uint32_t> Stretched(const Surface& from, const RECT& source, const RECT& target, const RECT& part,
                                     Shrink shrink, const Surface& to, const MonoColours& colours);

/// Draws part of a surface into a rectangle of a context (surface coordinates), stretched where the sizes differ.
void DrawSurface(DeviceContext& context, const RECT& target, const Surface& from, const RECT& source, Shrink shrink,
                 Operation operation, const MonoColours& colours);

}  // namespace platform::gdi
