/// @file font.h
/// A logical font found among the machine's faces, with its glyphs.
#pragma once

#include <windows.h>

#include <array>
#include <atomic>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "gdi/context/objects.h"

namespace platform::gdi {

struct Glyph {
    int advance = 0;
    int left = 0;  ///< from the pen position to the first column
    int top = 0;   ///< rows of the bitmap above the baseline
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> coverage;  ///< a byte a pixel: 1 where there is ink
    bool large = false;                  ///< too large to be kept: the picture is made for each drawing
};

struct FontMetrics {
    int ascent = 0;
    int descent = 0;
    int internalLeading = 0;
    int externalLeading = 0;
    int averageWidth = 0;
    int maximumWidth = 0;
    int weight = FW_NORMAL;
    bool italic = false;
    bool fixedPitch = false;
    bool outline = false;
    BYTE family = FF_DONTCARE;
    std::string name;
};

/// Where glyphs come from. Calls are serialised by the caller.
class Face {
  public:
    virtual ~Face() = default;
    virtual const FontMetrics& Metrics() const = 0;
    /// @returns whether the face has the character; fills in its glyph then, without the picture where that is large and
    /// not asked for.
    virtual bool Load(char32_t character, Glyph& glyph, bool evenLarge = false) = 0;
};

/// A face with the styles that it lacks put on, and a store of its glyphs. Glyphs never move or change once they are
/// made, so reading them takes no lock.
class RealizedFont {
  public:
    RealizedFont(std::unique_ptr<Face> face, const LOGFONTA& logical);
    ~RealizedFont();
    RealizedFont(const RealizedFont&) = delete;
    RealizedFont& operator=(const RealizedFont&) = delete;

    int fonts = 0;  ///< that have been realized by it and are still there; guarded as the store of realized fonts is

    const FontMetrics& Metrics() const {
        return metrics_;
    }
    int Height() const {
        return metrics_.ascent + metrics_.descent;
    }
    const Glyph& Get(char16_t character) {
        const Page* page = pages_[character >> 8].load(std::memory_order_acquire);
        const Glyph* glyph = page ? (*page)[character & 0xFF].load(std::memory_order_acquire) : nullptr;
        return glyph ? *glyph : Make(character);
    }
    /// The picture of a large glyph, which is not kept.
    Glyph GetLarge(char16_t character);
    bool Underlined() const {
        return logical_.lfUnderline != 0;
    }
    bool StruckOut() const {
        return logical_.lfStrikeOut != 0;
    }

  private:
    using Page = std::array<std::atomic<const Glyph*>, 256>;
    const Glyph& Make(char16_t character);
    Glyph Load(char16_t character, bool evenLarge);
    void Embolden(Glyph& glyph) const;
    void Slant(Glyph& glyph) const;
    bool LoadElsewhere(char32_t character, Glyph& glyph, bool evenLarge);

    std::unique_ptr<Face> face_;
    std::vector<std::unique_ptr<Face>> substitutes_;  ///< faces for characters that the face lacks
    LOGFONTA logical_;
    FontMetrics metrics_;
    bool bold_;   ///< put on by smearing
    bool slant_;  ///< put on by shearing
    std::array<std::atomic<Page*>, 256> pages_{};
};

/// @returns the realized font of a font object, which is found on first use.
RealizedFont& Realize(Font& font);

// --- where faces come from

/// The bitmap families that stand for the raster fonts of the 1995 desktop. @returns null when the logical font asks
/// for another face, for a size that they do not reach, or the files are not there.
std::unique_ptr<Face> OpenBitmapFace(const LOGFONTA& logical);
/// The nearest outline face that fontconfig knows, one that has `character` where that is not 0. @returns null for
/// none.
std::unique_ptr<Face> OpenOutlineFace(const LOGFONTA& logical, char32_t character);
/// A small face drawn by hand, for machines without any font.
std::unique_ptr<Face> OpenBuiltInFace();

/// The bitmap size (see OpenBitmapFace) whose metrics are known better than the file tells; zero where the file's hold.
struct BitmapSize {
    const char* suffix;  ///< in the file name
    int cell;            ///< height of a line
    int ascent;
    int character;  ///< height without internal leading
    int average;    ///< width of the average character
};

std::unique_ptr<Face> OpenBitmapFile(const std::string& path, const BitmapSize& size, bool forced, FontMetrics metrics);

}  // namespace platform::gdi
