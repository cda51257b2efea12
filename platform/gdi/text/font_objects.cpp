// Making font objects and asking for their measures.
#include <algorithm>
#include <cstring>

#include "gdi/text/text.h"

using namespace platform::gdi;

HFONT WINAPI CreateFontIndirectA(const LOGFONTA* logical) {
    if (!logical) {
        return Fail(ERROR_INVALID_PARAMETER, nullptr);
    }
    auto font = NewObject<Font>();
    if (font) {
        font->logical = *logical;
        font->logical.lfFaceName[LF_FACESIZE - 1] = 0;
    }
    return FileObject<HFONT>(std::move(font));
}

HFONT WINAPI CreateFontA(int height, int width, int escapement, int orientation, int weight, DWORD italic,
                         DWORD underline, DWORD strikeOut, DWORD charSet, DWORD outPrecision, DWORD clipPrecision,
                         DWORD quality, DWORD pitchAndFamily, LPCSTR faceName) {
    LOGFONTA logical{};
    logical.lfHeight = height;
    logical.lfWidth = width;
    logical.lfEscapement = escapement;
    logical.lfOrientation = orientation;
    logical.lfWeight = weight;
    logical.lfItalic = italic != 0;
    logical.lfUnderline = underline != 0;
    logical.lfStrikeOut = strikeOut != 0;
    logical.lfCharSet = static_cast<BYTE>(charSet);
    logical.lfOutPrecision = static_cast<BYTE>(outPrecision);
    logical.lfClipPrecision = static_cast<BYTE>(clipPrecision);
    logical.lfQuality = static_cast<BYTE>(quality);
    logical.lfPitchAndFamily = static_cast<BYTE>(pitchAndFamily);
    if (faceName) {
        std::memcpy(logical.lfFaceName, faceName, strnlen(faceName, LF_FACESIZE - 1));
    }
    return CreateFontIndirectA(&logical);
}

BOOL WINAPI GetTextMetricsA(HDC handle, LPTEXTMETRICA metrics) {
    auto* context = FindObject<DeviceContext>(handle);
    if (!context || !metrics) {
        return FALSE;
    }
    return Guarded(FALSE, [&] {
        RealizedFont& font = Realize(*context->state.font);
        const FontMetrics& own = font.Metrics();
        *metrics = {};
        metrics->tmHeight = font.Height();
        metrics->tmAscent = own.ascent;
        metrics->tmDescent = own.descent;
        metrics->tmInternalLeading = own.internalLeading;
        metrics->tmExternalLeading = own.externalLeading;
        metrics->tmAveCharWidth = own.averageWidth;
        metrics->tmMaxCharWidth = own.maximumWidth;
        metrics->tmWeight = own.weight;
        metrics->tmDigitizedAspectX = metrics->tmDigitizedAspectY = 96;
        metrics->tmFirstChar = 0x20;
        metrics->tmLastChar = 0xFF;
        metrics->tmDefaultChar = own.outline ? 0x1F : 0x80;
        metrics->tmBreakChar = 0x20;
        metrics->tmItalic = own.italic ? 255 : 0;
        metrics->tmUnderlined = font.Underlined() ? 255 : 0;
        metrics->tmStruckOut = font.StruckOut() ? 255 : 0;
        // The bit means variable pitch, whatever its name says.
        metrics->tmPitchAndFamily = static_cast<BYTE>((own.fixedPitch ? 0 : TMPF_FIXED_PITCH) | own.family |
                                                      (own.outline ? TMPF_VECTOR | TMPF_TRUETYPE : 0));
        metrics->tmCharSet = ANSI_CHARSET;
        return TRUE;
    });
}
