// Faces from font files.
#include <fontconfig/fontconfig.h>
#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_GZIP_H

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>

#include "gdi/text/font.h"

namespace platform::gdi {

namespace {

FT_Library Library() {
    static const FT_Library library = [] {
        FT_Library made = nullptr;
        return FT_Init_FreeType(&made) ? nullptr : made;
    }();
    return library;
}

int Up(FT_Pos value) {
    return static_cast<int>((value + 63) >> 6);
}

class FreetypeFace : public Face {
  public:
    FreetypeFace(FT_Face face, FT_Int32 flags, FontMetrics metrics, std::vector<FT_Byte> file = {})
        : face_(face), file_(std::move(file)), flags_(flags), metrics_(std::move(metrics)) {}
    ~FreetypeFace() override {
        FT_Done_Face(face_);
    }
    const FontMetrics& Metrics() const override {
        return metrics_;
    }
    bool Load(char32_t character, Glyph& glyph, bool evenLarge) override {
        constexpr FT_Pos kLarge = 1 << 16;
        const FT_UInt index = FT_Get_Char_Index(face_, character);
        if (index == 0 || FT_Load_Glyph(face_, index, flags_)) {
            return false;
        }
        const FT_GlyphSlot slot = face_->glyph;
        glyph.advance = static_cast<int>((slot->advance.x + 32) >> 6);
        glyph.large = (slot->metrics.width >> 6) * (slot->metrics.height >> 6) > kLarge;
        if (glyph.large && !evenLarge) {
            return true;
        }
        if (FT_Render_Glyph(slot, FT_LOAD_TARGET_MODE(flags_))) {
            return false;
        }
        const FT_Bitmap& bitmap = slot->bitmap;
        glyph.left = slot->bitmap_left;
        glyph.top = slot->bitmap_top;
        glyph.width = static_cast<int>(bitmap.width);
        glyph.height = static_cast<int>(bitmap.rows);
        glyph.coverage.assign(static_cast<std::size_t>(glyph.width) * static_cast<std::size_t>(glyph.height), 0);
        std::uint8_t* out = glyph.coverage.data();
        for (int y = 0; y < glyph.height; ++y) {
            const unsigned char* row = bitmap.buffer + static_cast<std::ptrdiff_t>(y) * bitmap.pitch;
            for (int x = 0; x < glyph.width; ++x) {
                *out++ = row[x >> 3] & 0x80 >> (x & 7) ? 1 : 0;
            }
        }
        return true;
    }
    void Measure() {
        Glyph glyph;
        metrics_.averageWidth = Load('x', glyph, false) ? glyph.advance : metrics_.ascent / 2;
        metrics_.maximumWidth = metrics_.averageWidth;
        metrics_.fixedPitch = FT_IS_FIXED_WIDTH(face_);
        for (char32_t c = 0x20; c <= 0xFF && !metrics_.fixedPitch; ++c) {
            const FT_UInt index = FT_Get_Char_Index(face_, c);
            if (index && !FT_Load_Glyph(face_, index, flags_)) {
                metrics_.maximumWidth =
                    std::max(metrics_.maximumWidth, static_cast<int>((face_->glyph->advance.x + 32) >> 6));
            }
        }
    }

    void SetAverage(int width) {
        metrics_.averageWidth = width;
    }

  private:
    FT_Face face_;
    std::vector<FT_Byte> file_;  ///< what the face reads, where that is not a file
    FT_Int32 flags_;
    FontMetrics metrics_;
};

struct PatternCloser {
    void operator()(FcPattern* pattern) const {
        FcPatternDestroy(pattern);
    }
};
using Pattern = std::unique_ptr<FcPattern, PatternCloser>;

const char* GenericFamily(BYTE pitchAndFamily) {
    switch (pitchAndFamily & 0xF0) {
        case FF_ROMAN:
            return "serif";
        case FF_MODERN:
            return "monospace";
        default:
            return (pitchAndFamily & 3) == FIXED_PITCH ? "monospace" : "sans-serif";
    }
}

Pattern FindOutline(const LOGFONTA& logical, char32_t character) {
    static const bool ready = FcInit();
    Pattern wanted(ready ? FcPatternCreate() : nullptr);
    if (!wanted) {
        return nullptr;
    }
    const auto text = [](const char* name) { return reinterpret_cast<const FcChar8*>(name); };
    if (logical.lfFaceName[0]) {
        FcPatternAddString(wanted.get(), FC_FAMILY, text(logical.lfFaceName));
    }
    // Where the caller says nothing of the kind of face, the name alone leads to the best stand-in.
    if (!logical.lfFaceName[0] || logical.lfPitchAndFamily & 0xF0) {
        FcPatternAddString(wanted.get(), FC_FAMILY, text(GenericFamily(logical.lfPitchAndFamily)));
    }
    FcPatternAddInteger(wanted.get(), FC_WEIGHT, FcWeightFromOpenType(logical.lfWeight ? logical.lfWeight : FW_NORMAL));
    FcPatternAddInteger(wanted.get(), FC_SLANT, logical.lfItalic ? FC_SLANT_ITALIC : FC_SLANT_ROMAN);
    FcPatternAddBool(wanted.get(), FC_SCALABLE, FcTrue);
    FcPatternAddBool(wanted.get(), FC_OUTLINE, FcTrue);
    if (character) {
        FcCharSet* set = FcCharSetCreate();
        if (set) {
            FcCharSetAddChar(set, character);
            FcPatternAddCharSet(wanted.get(), FC_CHARSET, set);
            FcCharSetDestroy(set);
        }
    }
    FcConfigSubstitute(nullptr, wanted.get(), FcMatchPattern);
    FcDefaultSubstitute(wanted.get());
    FcResult result = FcResultNoMatch;
    return Pattern(FcFontMatch(nullptr, wanted.get(), &result));
}

/// The size in pixels that a logical height stands for: a negative one is the character's, a positive one the line's.
int PixelSize(FT_Face face, LONG height) {
    constexpr int kDefault = 16;
    constexpr int kLargest = 2000;
    if (height == 0 || height == INT32_MIN) {
        return kDefault;
    }
    if (height < 0) {
        return std::min<int>(-height, kLargest);
    }
    const double line = static_cast<double>(face->ascender) - face->descender;
    const double size = line > 0 ? height * static_cast<double>(face->units_per_EM) / line : height;
    return std::clamp(static_cast<int>(size + 0.5), 1, kLargest);
}

// The unpacker's own needs, met by the C library.
FT_MemoryRec_ PlainMemory() {
    FT_MemoryRec_ memory{};
    memory.alloc = [](FT_Memory, long size) { return std::malloc(static_cast<std::size_t>(size)); };
    memory.free = [](FT_Memory, void* block) { std::free(block); };
    memory.realloc = [](FT_Memory, long, long size, void* block) {
        return std::realloc(block, static_cast<std::size_t>(size));
    };
    return memory;
}

/// Reads a font file, unpacked where it is packed: read piecemeal from a packed file, every glyph would unpack it anew.
std::vector<FT_Byte> ReadUnpacked(const std::string& path) {
    constexpr std::size_t kLargest = 16u << 20;
    std::ifstream file(path, std::ios::binary);
    std::vector<FT_Byte> packed{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    if (packed.size() < 20 || packed[0] != 0x1F || packed[1] != 0x8B) {
        return packed;
    }
    // The last four bytes of the packed form tell the size of the plain one.
    const FT_Byte* tail = packed.data() + packed.size() - 4;
    const std::size_t size = tail[0] | tail[1] << 8 | tail[2] << 16 | static_cast<std::size_t>(tail[3]) << 24;
    std::vector<FT_Byte> plain(size <= kLargest ? size : 0);
    FT_ULong length = plain.size();
    FT_MemoryRec_ memory = PlainMemory();
    if (plain.empty() || FT_Gzip_Uncompress(&memory, plain.data(), &length, packed.data(), packed.size())) {
        return {};
    }
    return plain;
}

}  // namespace

std::unique_ptr<Face> OpenBitmapFile(const std::string& path, const BitmapSize& size, bool forced,
                                     FontMetrics metrics) {
    FT_Face face = nullptr;
    std::vector<FT_Byte> file = Library() ? ReadUnpacked(path) : std::vector<FT_Byte>();
    if (file.empty() || FT_New_Memory_Face(Library(), file.data(), static_cast<FT_Long>(file.size()), 0, &face)) {
        return nullptr;
    }
    if (face->num_fixed_sizes < 1 || FT_Select_Size(face, 0)) {
        FT_Done_Face(face);
        return nullptr;
    }
    if (!face->charmap && face->num_charmaps > 0) {
        FT_Set_Charmap(face, face->charmaps[0]);
    }
    const FT_Size_Metrics& own = face->size->metrics;
    const bool bold = metrics.weight > FW_MEDIUM;
    metrics.ascent = forced ? size.ascent : Up(own.ascender);
    metrics.descent = forced ? size.cell - size.ascent : Up(-own.descender);
    metrics.internalLeading = std::max(0, metrics.ascent + metrics.descent - size.character);
    auto made = std::make_unique<FreetypeFace>(face, FT_LOAD_DEFAULT, std::move(metrics), std::move(file));
    made->Measure();
    if (forced) {
        made->SetAverage(size.average + (bold ? 1 : 0));
    }
    return made;
}

std::unique_ptr<Face> OpenOutlineFace(const LOGFONTA& logical, char32_t character) {
    const Pattern found = Library() ? FindOutline(logical, character) : nullptr;
    FcChar8* file = nullptr;
    FcChar8* family = nullptr;
    int index = 0;
    FT_Face face = nullptr;
    if (!found || FcPatternGetString(found.get(), FC_FILE, 0, &file) != FcResultMatch) {
        return nullptr;
    }
    FcPatternGetInteger(found.get(), FC_INDEX, 0, &index);
    FcPatternGetString(found.get(), FC_FAMILY, 0, &family);
    if (FT_New_Face(Library(), reinterpret_cast<const char*>(file), index, &face)) {
        return nullptr;
    }
    if (!FT_IS_SCALABLE(face) || (character && !FT_Get_Char_Index(face, character))) {
        FT_Done_Face(face);
        return nullptr;
    }
    const int pixels = PixelSize(face, logical.lfHeight);
    FT_Set_Pixel_Sizes(face, 0, static_cast<FT_UInt>(pixels));
    FontMetrics metrics;
    metrics.outline = true;
    metrics.name = family ? reinterpret_cast<const char*>(family) : logical.lfFaceName;
    metrics.ascent = std::max(1, Up(face->size->metrics.ascender));
    metrics.descent = std::max(0, Up(-face->size->metrics.descender));
    metrics.internalLeading = std::max(0, metrics.ascent + metrics.descent - pixels);
    metrics.externalLeading = std::max(0, Up(face->size->metrics.height) - metrics.ascent - metrics.descent);
    metrics.weight = face->style_flags & FT_STYLE_FLAG_BOLD ? FW_BOLD : FW_NORMAL;
    metrics.italic = face->style_flags & FT_STYLE_FLAG_ITALIC;
    metrics.family = static_cast<BYTE>(logical.lfPitchAndFamily & 0xF0);
    auto made = std::make_unique<FreetypeFace>(face, FT_LOAD_NO_BITMAP | FT_LOAD_TARGET_MONO, std::move(metrics));
    made->Measure();
    return made;
}

}  // namespace platform::gdi
