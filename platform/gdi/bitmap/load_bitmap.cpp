// Bitmaps from a module's resources.
#include <algorithm>
#include <cstring>

#include "gdi/bitmap/bitmaps.h"
#include "gdi/context/context.h"
#include "kernel/modules/resource.h"

using namespace platform::gdi;
namespace kernel = platform::kernel;

namespace {

struct Packed {
    const std::byte* data;
    std::size_t size;
};

/// A header with its colours, ready for the calls that take one; colours may have been exchanged.
struct Header {
    BITMAPINFOHEADER header{};
    std::array<RGBQUAD, 256> colours{};
    const BITMAPINFO* Info() const {
        return reinterpret_cast<const BITMAPINFO*>(&header);
    }
};

RGBQUAD Quad(std::uint32_t pixel) {
    return {static_cast<BYTE>(pixel), static_cast<BYTE>(pixel >> 8), static_cast<BYTE>(pixel >> 16), 0};
}

bool BlackAndWhite(const DibLayout& layout) {
    return layout.bitsPerPixel == 1 && ((layout.palette[0] == 0 && layout.palette[1] == 0xFFFFFF) ||
                                        (layout.palette[0] == 0xFFFFFF && layout.palette[1] == 0));
}

HBITMAP MakeBitmap(const DibLayout& source, const std::byte* bits, int width, int height, UINT flags) {
    Header header;
    header.header.biSize = sizeof(header.header);
    header.header.biWidth = width;
    header.header.biHeight = source.topDown ? -height : height;
    header.header.biPlanes = 1;
    header.header.biBitCount = static_cast<WORD>(source.bitsPerPixel);
    std::transform(source.palette.begin(), source.palette.end(), header.colours.begin(), Quad);
    const HDC memory = CreateCompatibleDC(nullptr);
    HBITMAP bitmap = nullptr;
    if (flags & LR_CREATEDIBSECTION) {
        void* unused = nullptr;
        bitmap = CreateDIBSection(memory, header.Info(), DIB_RGB_COLORS, &unused, nullptr, 0);
    } else {
        bitmap = CreateBitmap(width, height, 1, BlackAndWhite(source) ? 1 : 32, nullptr);
    }
    if (!bitmap || !memory) {
        DeleteObject(bitmap);
        DeleteDC(memory);
        return nullptr;
    }
    header.header.biWidth = source.width;
    header.header.biHeight = source.topDown ? -source.height : source.height;
    if (width == source.width && height == source.height) {
        SetBits(bitmap, bits, header.Info());
    } else {
        const HGDIOBJ previous = SelectObject(memory, bitmap);
        SetStretchBltMode(memory, COLORONCOLOR);
        StretchBits(memory, {0, 0, width, height}, bits, header.Info(), SRCCOPY);
        SelectObject(memory, previous);
    }
    DeleteDC(memory);
    return bitmap;
}

HBITMAP FromPacked(Packed packed, int width, int height, UINT flags) {
    auto layout = ReadLayout(packed.data, DIB_RGB_COLORS, true, packed.size);
    const std::size_t offset = layout ? layout->headerBytes + layout->paletteBytes : 0;
    if (!layout || layout->height == 0 || packed.size - offset < layout->Bytes()) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    const std::byte* bits = packed.data + offset;
    return MakeBitmap(*layout, bits, width > 0 ? width : layout->width, height > 0 ? height : layout->height, flags);
}

HBITMAP FromResource(HINSTANCE instance, LPCSTR name, int width, int height, UINT flags) {
    const kernel::Bytes resource = kernel::FindResourceBytes(instance, name, RT_BITMAP);
    if (resource.empty()) {
        return nullptr;
    }
    return FromPacked({reinterpret_cast<const std::byte*>(resource.data()), resource.size()}, width, height, flags);
}

}  // namespace

HBITMAP WINAPI LoadBitmapA(HINSTANCE instance, LPCSTR name) {
    return Guarded<HBITMAP>(nullptr, [&] { return FromResource(instance, name, 0, 0, LR_DEFAULTCOLOR); });
}

HANDLE WINAPI LoadImageA(HINSTANCE instance, LPCSTR name, UINT type, int width, int height, UINT flags) {
    if (type != IMAGE_BITMAP || (flags & ~UINT{LR_CREATEDIBSECTION}) || width < 0 || height < 0) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    return Guarded<HANDLE>(nullptr,
                           [&] { return static_cast<HANDLE>(FromResource(instance, name, width, height, flags)); });
}
