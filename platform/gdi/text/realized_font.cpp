#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <map>
#include <mutex>

#include "base/immortal.h"
#include "gdi/text/font.h"

namespace platform::gdi {

namespace {

// Guards the faces, which are not made for several threads, and the growing stores.
std::recursive_mutex& FontLock() {
    static std::recursive_mutex lock;
    return lock;
}

using Store = std::map<std::string, std::unique_ptr<RealizedFont>>;

Store& Fonts() {
    static base::Immortal<Store> fonts;  // text may be drawn until the very end of the process
    return *fonts;
}

/// What two logical fonts must share to share glyphs.
std::string KeyOf(const LOGFONTA& logical) {
    LOGFONTA plain = logical;
    // Beyond this all heights are the largest that there is.
    plain.lfHeight = std::clamp<LONG>(plain.lfHeight, -4000, 4000);
    plain.lfEscapement = plain.lfOrientation = 0;
    plain.lfOutPrecision = plain.lfClipPrecision = 0;
    std::memset(plain.lfFaceName, 0, sizeof(plain.lfFaceName));
    std::string key(reinterpret_cast<const char*>(&plain), offsetof(LOGFONTA, lfFaceName));
    return key + std::string(logical.lfFaceName, strnlen(logical.lfFaceName, LF_FACESIZE));
}

std::unique_ptr<Face> OpenFace(const LOGFONTA& logical) {
    std::unique_ptr<Face> face = OpenBitmapFace(logical);
    if (!face) {
        face = OpenOutlineFace(logical, 0);
    }
    return face ? std::move(face) : OpenBuiltInFace();
}

}  // namespace

RealizedFont::RealizedFont(std::unique_ptr<Face> face, const LOGFONTA& logical)
    : face_(std::move(face)), logical_(logical), metrics_(face_->Metrics()) {
    bold_ = logical.lfWeight > FW_MEDIUM && metrics_.weight <= FW_MEDIUM;
    slant_ = logical.lfItalic && !metrics_.italic;
    if (bold_) {
        metrics_.weight = FW_BOLD;
        ++metrics_.averageWidth;
        ++metrics_.maximumWidth;
    }
    metrics_.italic = metrics_.italic || slant_;
}

RealizedFont::~RealizedFont() {
    for (const auto& place : pages_) {
        const std::unique_ptr<Page> page(place.load(std::memory_order_relaxed));
        for (std::size_t i = 0; page && i < page->size(); ++i) {
            delete (*page)[i].load(std::memory_order_relaxed);
        }
    }
}

void RealizedFont::Embolden(Glyph& glyph) const {
    ++glyph.advance;
    if (glyph.width == 0) {
        return;
    }
    const auto width = static_cast<std::size_t>(glyph.width);
    const auto height = static_cast<std::size_t>(glyph.height);
    std::vector<std::uint8_t> wider((width + 1) * height);
    for (std::size_t y = 0; y < height; ++y) {
        for (std::size_t x = 0; x < width; ++x) {
            const std::uint8_t value = glyph.coverage[y * width + x];
            std::uint8_t* out = &wider[y * (width + 1) + x];
            out[0] = std::max(out[0], value);
            out[1] = std::max(out[1], value);
        }
    }
    glyph.coverage = std::move(wider);
    ++glyph.width;
}

void RealizedFont::Slant(Glyph& glyph) const {
    if (glyph.width == 0) {
        return;
    }
    // A quarter of a pixel to the right a row, around the baseline.
    const auto shift = [&](int y) {
        const int above = glyph.top - y;
        return above >= 0 ? above / 4 : -((3 - above) / 4);
    };
    const int least = shift(glyph.height - 1);
    const int most = shift(0);
    const auto width = static_cast<std::size_t>(glyph.width);
    const auto wide = width + static_cast<std::size_t>(most - least);
    std::vector<std::uint8_t> sheared(wide * static_cast<std::size_t>(glyph.height));
    for (int y = 0; y < glyph.height; ++y) {
        std::memcpy(&sheared[static_cast<std::size_t>(y) * wide + static_cast<std::size_t>(shift(y) - least)],
                    &glyph.coverage[static_cast<std::size_t>(y) * width], width);
    }
    glyph.coverage = std::move(sheared);
    glyph.width = static_cast<int>(wide);
    glyph.left += least;
}

bool RealizedFont::LoadElsewhere(char32_t character, Glyph& glyph, bool evenLarge) {
    if (character < 0x80) {
        return false;
    }
    for (const auto& face : substitutes_) {
        if (face->Load(character, glyph, evenLarge)) {
            return true;
        }
    }
    LOGFONTA sized = logical_;
    sized.lfHeight = -(metrics_.ascent + metrics_.descent - metrics_.internalLeading);
    sized.lfFaceName[0] = 0;
    auto face = OpenOutlineFace(sized, character);
    if (!face || !face->Load(character, glyph, evenLarge)) {
        return false;
    }
    substitutes_.push_back(std::move(face));
    return true;
}

Glyph RealizedFont::Load(char16_t character, bool evenLarge) {
    Glyph glyph;
    bool found = face_->Load(character, glyph, evenLarge);
    if (!found && (character < 0x20 || (character >= 0x7F && character < 0xA0))) {
        // Control characters show as the default character does.
        found = face_->Load(0x20, glyph);
    }
    found = found || LoadElsewhere(character, glyph, evenLarge) || face_->Load('?', glyph, evenLarge);
    if (!found) {
        glyph.advance = metrics_.averageWidth;
    }
    if (bold_) {
        Embolden(glyph);
    }
    if (slant_) {
        Slant(glyph);
    }
    return glyph;
}

const Glyph& RealizedFont::Make(char16_t character) {
    const std::lock_guard guard(FontLock());
    std::atomic<Page*>& slot = pages_[character >> 8];
    if (!slot.load(std::memory_order_relaxed)) {
        slot.store(new Page{}, std::memory_order_release);
    }
    std::atomic<const Glyph*>& place = (*slot.load(std::memory_order_relaxed))[character & 0xFF];
    if (const Glyph* made = place.load(std::memory_order_relaxed)) {
        return *made;
    }
    auto glyph = std::make_unique<Glyph>(Load(character, false));
    place.store(glyph.get(), std::memory_order_release);
    return *glyph.release();
}

Glyph RealizedFont::GetLarge(char16_t character) {
    const std::lock_guard guard(FontLock());
    return Load(character, true);
}

RealizedFont& Realize(Font& font) {
    if (RealizedFont* known = font.realized.load(std::memory_order_acquire)) {
        return *known;
    }
    const std::lock_guard guard(FontLock());
    if (RealizedFont* known = font.realized.load(std::memory_order_relaxed)) {
        return *known;
    }
    constexpr std::size_t kKept = 64;
    if (Fonts().size() >= kKept) {
        std::erase_if(Fonts(), [](const auto& each) { return !each.second || each.second->fonts == 0; });
    }
    std::unique_ptr<RealizedFont>& slot = Fonts()[KeyOf(font.logical)];
    if (!slot) {
        slot = std::make_unique<RealizedFont>(OpenFace(font.logical), font.logical);
    }
    ++slot->fonts;
    font.realized.store(slot.get(), std::memory_order_release);
    return *slot;
}

// What nobody asks for is kept for the next time, until there is too much of it.
Font::~Font() {
    if (RealizedFont* known = realized.load(std::memory_order_acquire)) {
        const std::lock_guard guard(FontLock());
        --known->fonts;
    }
}

}  // namespace platform::gdi
