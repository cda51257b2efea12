// The bitmap families behind the raster fonts of the 1995 desktop. Their files are looked for where distributions keep
// them, without asking fontconfig, whose start would cost more than everything else in the start of a program.
#include <strings.h>
#include <unistd.h>

#include <algorithm>
#include <array>

#include "gdi/text/font.h"

namespace platform::gdi {

namespace {

enum Series { kHelvetica, kCourier, kTimes };

struct Alias {
    const char* name;
    Series series;
    bool alwaysBold;
    BYTE family;
};

constexpr std::array<Alias, 13> kAliases{{
    {"MS Sans Serif", kHelvetica, false, FF_SWISS},
    {"MS Shell Dlg", kHelvetica, false, FF_SWISS},
    {"MS Shell Dlg 2", kHelvetica, false, FF_SWISS},
    {"Microsoft Sans Serif", kHelvetica, false, FF_SWISS},
    {"Helv", kHelvetica, false, FF_SWISS},
    {"Helvetica", kHelvetica, false, FF_SWISS},
    {"Tahoma", kHelvetica, false, FF_SWISS},
    {"System", kHelvetica, true, FF_SWISS},
    {"Courier", kCourier, false, FF_MODERN},
    {"Fixedsys", kCourier, false, FF_MODERN},
    {"Terminal", kCourier, false, FF_MODERN},
    {"MS Serif", kTimes, false, FF_ROMAN},
    {"Tms Rmn", kTimes, false, FF_ROMAN},
}};

constexpr std::array<BitmapSize, 6> kSizes{{
    {"08", 13, 11, 11, 5},
    {"10", 16, 13, 13, 7},
    {"12", 20, 16, 16, 8},
    {"14", 24, 19, 19, 10},
    {"18", 29, 23, 24, 12},
    {"24", 37, 30, 32, 16},
}};

constexpr std::array<const char*, 4> kFolders{"/usr/share/fonts/X11/100dpi/", "/usr/share/X11/fonts/100dpi/",
                                              "/usr/share/fonts/100dpi/", "/usr/lib/X11/fonts/100dpi/"};
constexpr std::array<const char*, 3> kEndings{".pcf.gz", "-ISO8859-1.pcf.gz", ".pcf"};

const Alias* FindAlias(const LOGFONTA& logical) {
    if (!logical.lfFaceName[0]) {
        switch (logical.lfPitchAndFamily & 0xF0) {
            case FF_ROMAN:
                return &kAliases[11];
            case FF_MODERN:
                return &kAliases[8];
            default:
                return &kAliases[(logical.lfPitchAndFamily & 3) == FIXED_PITCH ? 8 : 0];
        }
    }
    const auto* found = std::ranges::find_if(
        kAliases, [&](const Alias& alias) { return strncasecmp(alias.name, logical.lfFaceName, LF_FACESIZE) == 0; });
    return found == kAliases.end() ? nullptr : found;
}

/// The largest size that does not pass the height asked for; the smallest when all do; null when they are far too
/// small.
const BitmapSize* FindSize(LONG height) {
    constexpr int kDefaultCell = 16;
    const bool byCharacter = height < 0;
    const std::int64_t wanted = height == 0 ? kDefaultCell : byCharacter ? -std::int64_t{height} : height;
    const BitmapSize* best = &kSizes[0];
    for (const BitmapSize& size : kSizes) {
        if ((byCharacter ? size.character : size.cell) <= wanted) {
            best = &size;
        }
    }
    return wanted > kSizes.back().cell + 8 ? nullptr : best;
}

std::string FindFile(Series series, const char* style, const char* size) {
    constexpr std::array<const char*, 3> kPrefixes{"helv", "cour", "tim"};
    for (const char* folder : kFolders) {
        for (const char* ending : kEndings) {
            std::string path = std::string(folder) + kPrefixes[series] + style + size + ending;
            if (access(path.c_str(), R_OK) == 0) {
                return path;
            }
        }
    }
    return {};
}

}  // namespace

std::unique_ptr<Face> OpenBitmapFace(const LOGFONTA& logical) {
    const Alias* alias = FindAlias(logical);
    const BitmapSize* size = alias ? FindSize(logical.lfHeight) : nullptr;
    if (!size) {
        return nullptr;
    }
    const bool bold = alias->alwaysBold || logical.lfWeight > FW_MEDIUM;
    const char* slanted = alias->series == kTimes ? bold ? "BI" : "I" : bold ? "BO" : "O";
    std::string path = FindFile(alias->series, logical.lfItalic ? slanted : bold ? "B" : "R", size->suffix);
    FontMetrics metrics;
    metrics.name = alias->name;
    metrics.family = alias->family;
    metrics.weight = bold ? FW_BOLD : FW_NORMAL;
    metrics.italic = logical.lfItalic != 0;
    if (path.empty()) {
        // The plain face will do: what it lacks is put on.
        path = FindFile(alias->series, "R", size->suffix);
        metrics.weight = FW_NORMAL;
        metrics.italic = false;
    }
    return path.empty() ? nullptr : OpenBitmapFile(path, *size, alias->series == kHelvetica, std::move(metrics));
}

}  // namespace platform::gdi
