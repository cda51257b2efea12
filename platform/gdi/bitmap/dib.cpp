// Device-independent bitmaps.
#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "gdi/bitmap/bitmaps.h"
#include "gdi/bitmap/convert.h"

namespace platform::gdi {

Surface DibLayout::View(const void* bits, int lines) const {
    Surface surface;
    auto* first = static_cast<std::byte*>(const_cast<void*>(bits));
    const auto stride = static_cast<std::ptrdiff_t>(rowBytes);
    surface.width = width;
    surface.height = lines;
    surface.bitsPerPixel = bitsPerPixel;
    surface.bits = topDown ? first : first + stride * (lines - 1);
    surface.stride = topDown ? stride : -stride;
    surface.palette = palette.data();
    return surface;
}

std::optional<DibLayout> ReadLayout(const void* info, std::size_t room) {
    constexpr DWORD kLargestHeader = 124;  // the fifth version
    BITMAPINFOHEADER header;
    if (!info || room < sizeof header) {
        return std::nullopt;
    }
    std::memcpy(&header, info, sizeof header);
    const int bits = header.biBitCount;
    const bool known = bits == 1 || bits == 4 || bits == 8 || bits == 24 || bits == 32;
    if (header.biSize < sizeof header || header.biSize > kLargestHeader || header.biCompression != BI_RGB ||
        header.biPlanes != 1 || !known || header.biWidth <= 0 || header.biHeight == 0 || header.biHeight == INT32_MIN ||
        !FitsMemory(DwordRowBytes(header.biWidth, bits), std::abs(header.biHeight))) {
        return std::nullopt;
    }
    DibLayout layout;
    layout.width = header.biWidth;
    layout.height = std::abs(header.biHeight);
    layout.topDown = header.biHeight < 0;
    layout.bitsPerPixel = bits;
    layout.rowBytes = static_cast<std::size_t>(DwordRowBytes(layout.width, bits));
    const DWORD most = bits <= 8 ? 1u << bits : 0;
    // A bitmap of true colours may list colours too, for those who want to make a palette.
    const DWORD used = header.biClrUsed;
    const DWORD listed = most ? (used && used < most ? used : most) : used <= 256 ? used : 0;
    layout.headerBytes = header.biSize + listed * sizeof(RGBQUAD);
    if (room < layout.headerBytes) {
        return std::nullopt;
    }
    const auto* at = static_cast<const BYTE*>(info) + header.biSize;
    for (DWORD i = 0; i < std::min(listed, most); ++i, at += sizeof(RGBQUAD)) {
        layout.palette[i] = static_cast<std::uint32_t>(at[0] | at[1] << 8 | at[2] << 16);
    }
    return layout;
}

}  // namespace platform::gdi

using namespace platform::gdi;

namespace {

/// What an application describes to be read or written: true colours, without a palette.
std::optional<DibLayout> Checked(const BITMAPINFO* info, UINT usage) {
    auto layout = usage == DIB_RGB_COLORS ? ReadLayout(info, sizeof(BITMAPINFOHEADER)) : std::nullopt;
    if (!layout || layout->bitsPerPixel != 32) {
        return Fail(ERROR_INVALID_PARAMETER, std::nullopt);
    }
    return layout;
}

}  // namespace

HBITMAP WINAPI CreateDIBSection(HDC, const BITMAPINFO* info, UINT usage, void** bits, HANDLE section, DWORD) {
    if (bits) {
        *bits = nullptr;
    }
    const auto layout = Checked(info, usage);
    if (!layout) {
        return nullptr;
    }
    if (section) {
        return Fail(ERROR_INVALID_PARAMETER, nullptr);
    }
    auto bitmap = NewBitmap(layout->width, layout->height, layout->bitsPerPixel);
    if (!bitmap) {
        return nullptr;
    }
    bitmap->topDown = layout->topDown;
    void* memory = bitmap->bits;
    const HBITMAP handle = FileObject<HBITMAP>(std::move(bitmap));
    if (handle && bits) {
        *bits = memory;
    }
    return handle;
}

int WINAPI GetDIBits(HDC context, HBITMAP handle, UINT start, UINT lines, LPVOID bits, LPBITMAPINFO info, UINT usage) {
    const auto* bitmap = FindObject<Bitmap>(handle);
    if (!bitmap || !FindObject<DeviceContext>(context)) {
        return 0;
    }
    const auto layout = Checked(info, usage);
    if (!layout) {
        return 0;
    }
    info->bmiHeader.biSizeImage = static_cast<DWORD>(layout->Bytes());
    if (!bits) {
        return bitmap->height;
    }
    if (start >= static_cast<UINT>(layout->height)) {
        return 0;
    }
    const int count = static_cast<int>(std::min(lines, static_cast<UINT>(layout->height) - start));
    if (count == 0) {
        return 0;
    }
    return Guarded(0, [&] {
        const Surface from = bitmap->View();
        const Surface to = layout->View(bits, count);
        // Lines are numbered from the bottom, whichever of them is stored first.
        const int first = layout->height - static_cast<int>(start) - count;
        const int rows = std::clamp(from.height - first, 0, count);
        const int width = std::min(from.width, to.width);
        Converter converter(from, to, {});
        for (int row = 0; row < rows; ++row) {
            ReadRow(from, 0, first + row, width, to.Row32(row));
            converter.Convert(to.Row32(row), width);
        }
        // Lines below the bitmap are asked for when the header is higher than the bitmap is.
        for (int row = rows; row < count; ++row) {
            std::memset(to.Row(row), 0, layout->rowBytes);
        }
        return rows;
    });
}

namespace platform::gdi {

bool StretchBits(HDC context, const RECT& place, const std::uint32_t* pixels, SIZE size, DWORD operation) {
    return DrawIn(context, [&](DeviceContext& target) {
        Surface from;
        from.bits = reinterpret_cast<std::byte*>(const_cast<std::uint32_t*>(pixels));
        from.width = size.cx;
        from.height = size.cy;
        from.stride = std::ptrdiff_t{size.cx} * 4;
        from.bitsPerPixel = 32;
        DrawSurface(target, target.ToSurface(place), from, from.Bounds(), Shrink::Mix, OperationOf(operation), {});
        return true;
    });
}

}  // namespace platform::gdi
