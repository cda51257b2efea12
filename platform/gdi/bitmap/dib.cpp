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
    surface.paletteSize = 1 << std::min(bitsPerPixel, 8);
    return surface;
}

std::optional<DibLayout> ReadLayout(const void* info, UINT usage, bool colours, std::size_t room) {
    if (!info || usage != DIB_RGB_COLORS || (room && room < sizeof(BITMAPCOREHEADER))) {
        return std::nullopt;
    }
    constexpr DWORD kLargestHeader = 124;  // the fifth version
    DibLayout layout;
    DWORD size = 0;
    std::memcpy(&size, info, sizeof(size));
    DWORD used = 0;
    std::size_t entry = sizeof(RGBQUAD);
    int planes = 0;
    if (size == sizeof(BITMAPCOREHEADER)) {
        BITMAPCOREHEADER core;
        std::memcpy(&core, info, sizeof(core));
        layout.width = core.bcWidth;
        layout.height = core.bcHeight;
        layout.bitsPerPixel = core.bcBitCount;
        planes = core.bcPlanes;
        entry = sizeof(RGBTRIPLE);
    } else if (size >= sizeof(BITMAPINFOHEADER) && size <= kLargestHeader && (!room || room >= size)) {
        BITMAPINFOHEADER header;
        std::memcpy(&header, info, sizeof(header));
        layout.width = header.biWidth;
        layout.topDown = header.biHeight < 0;
        if (header.biHeight == INT32_MIN) {
            return std::nullopt;
        }
        layout.height = std::abs(header.biHeight);
        layout.bitsPerPixel = header.biBitCount;
        planes = header.biPlanes;
        used = header.biClrUsed;
        if (header.biCompression != BI_RGB) {
            return std::nullopt;
        }
    } else {
        return std::nullopt;
    }
    const int bits = layout.bitsPerPixel;
    if (planes != 1 || layout.width <= 0 || !IsDepth(bits) ||
        !FitsMemory(DwordRowBytes(layout.width, bits), layout.height)) {
        return std::nullopt;
    }
    layout.rowBytes = static_cast<std::size_t>(DwordRowBytes(layout.width, bits));
    layout.headerBytes = size;
    const int most = bits <= 8 ? 1 << bits : 0;
    layout.paletteSize = used && used < static_cast<DWORD>(most) ? static_cast<int>(used) : most;
    // A bitmap of true colours may list colours too, for those who want to make a palette.
    const std::size_t listed = bits <= 8 ? static_cast<std::size_t>(layout.paletteSize) : used <= 256 ? used : 0;
    layout.paletteBytes = listed * entry;
    if (room && room < layout.headerBytes + layout.paletteBytes) {
        return std::nullopt;
    }
    if (bits > 8) {
        return layout;
    }
    std::copy_n(DefaultPalette(bits), most, layout.palette.begin());
    const auto* at = static_cast<const BYTE*>(info) + layout.headerBytes;
    if (colours) {
        layout.palette.fill(0);
        for (std::size_t i = 0; i < static_cast<std::size_t>(layout.paletteSize); ++i, at += entry) {
            layout.palette[i] = static_cast<std::uint32_t>(at[0] | at[1] << 8 | at[2] << 16);
        }
    }
    return layout;
}

}  // namespace platform::gdi

using namespace platform::gdi;

namespace {

/// Copies rows between two surfaces of equal width.
void CopyRows(const Surface& from, int fromRow, const Surface& to, int toRow, int count, int width) {
    const MonoColours plain;
    Converter converter(from, to, plain);
    std::vector<std::uint32_t> row(static_cast<std::size_t>(width));
    for (int i = 0; i < count; ++i) {
        ReadRow(from, 0, fromRow + i, width, row.data());
        converter.Convert(row.data(), width);
        WriteRow(to, 0, toRow + i, width, row.data());
    }
}

/// Lines are numbered from the bottom, whichever of them is stored first. @returns the top row of a run of them.
int TopRow(const DibLayout& layout, int start, int lines) {
    return layout.height - start - lines;
}

std::optional<DibLayout> Checked(const void* info, UINT usage, bool colours) {
    auto layout = ReadLayout(info, usage, colours);
    if (!layout) {
        SetLastError(ERROR_INVALID_PARAMETER);
    }
    return layout;
}

/// A view that takes a bitmap's pixels for colours: bits of a monochrome one are black and white.
Surface ColourView(const Bitmap& bitmap) {
    Surface surface = bitmap.View();
    surface.monochrome = false;
    return surface;
}

void WritePalette(BITMAPINFO* info, const DibLayout& layout, const Surface& from) {
    if (layout.bitsPerPixel > 8) {
        return;
    }
    auto* at = reinterpret_cast<BYTE*>(info) + layout.headerBytes;
    const bool own = from.bitsPerPixel == layout.bitsPerPixel;
    const std::uint32_t* colours = own ? from.palette : DefaultPalette(layout.bitsPerPixel);
    const int count = own ? from.paletteSize : 1 << layout.bitsPerPixel;
    const bool core = info->bmiHeader.biSize == sizeof(BITMAPCOREHEADER);
    for (int i = 0; i < 1 << layout.bitsPerPixel; ++i) {
        const std::uint32_t pixel = i < count ? colours[i] : 0;
        at[0] = static_cast<BYTE>(pixel);
        at[1] = static_cast<BYTE>(pixel >> 8);
        at[2] = static_cast<BYTE>(pixel >> 16);
        if (!core) {
            at[3] = 0;
        }
        at += core ? 3 : 4;
    }
}

}  // namespace

HBITMAP WINAPI CreateDIBSection(HDC, const BITMAPINFO* info, UINT usage, void** bits, HANDLE section, DWORD) {
    if (bits) {
        *bits = nullptr;
    }
    const auto layout = Checked(info, usage, true);
    if (!layout) {
        return nullptr;
    }
    if (section || layout->height == 0) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    auto bitmap = NewBitmap(layout->width, layout->height, layout->bitsPerPixel);
    if (!bitmap) {
        return nullptr;
    }
    bitmap->section = true;
    bitmap->topDown = layout->topDown;
    if (layout->bitsPerPixel <= 8) {
        const std::size_t size = std::size_t{1} << layout->bitsPerPixel;
        bitmap->palette.reset(new (std::nothrow) std::uint32_t[size]);
        if (!bitmap->palette) {
            SetLastError(ERROR_NOT_ENOUGH_MEMORY);
            return nullptr;
        }
        std::copy_n(layout->palette.begin(), size, bitmap->palette.get());
        bitmap->paletteSize = static_cast<int>(size);
    }
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
    if (!info) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return 0;
    }
    BITMAPINFOHEADER& header = info->bmiHeader;
    const bool core = header.biSize == sizeof(BITMAPCOREHEADER);
    if (!bits && !core && header.biSize >= sizeof(BITMAPINFOHEADER) && header.biBitCount == 0) {
        // Only the bitmap's own measures are asked for.
        header.biWidth = bitmap->width;
        header.biHeight = bitmap->section && bitmap->topDown ? -bitmap->height : bitmap->height;
        header.biPlanes = 1;
        header.biBitCount = static_cast<WORD>(bitmap->bitsPerPixel);
        header.biCompression = BI_RGB;
        header.biSizeImage = static_cast<DWORD>(bitmap->Bytes());
        header.biXPelsPerMeter = header.biYPelsPerMeter = 0;
        header.biClrUsed = header.biClrImportant = 0;
        return TRUE;
    }
    const auto layout = Checked(info, usage, false);
    if (!layout) {
        return 0;
    }
    const Surface from = ColourView(*bitmap);
    if (!core) {
        header.biSizeImage = static_cast<DWORD>(layout->Bytes());
        header.biClrUsed = 0;
    }
    WritePalette(info, *layout, from);
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
        // The colours in the header are by now those of the bitmap.
        DibLayout written = ReadLayout(info, usage, true).value_or(*layout);
        const Surface to = written.View(bits, count);
        const int first = TopRow(*layout, static_cast<int>(start), count);
        const int width = std::min(bitmap->width, layout->width);
        const int rows = std::clamp(bitmap->height - first, 0, count);
        if (rows > 0) {
            CopyRows(from, first, to, 0, rows, width);
        }
        // Lines below the bitmap are asked for when the header is higher than the bitmap is.
        for (int row = rows; row < count; ++row) {
            std::memset(to.Row(row), 0, layout->rowBytes);
        }
        return rows;
    });
}

namespace platform::gdi {

bool SetBits(HBITMAP handle, const void* bits, const BITMAPINFO* info) {
    auto* bitmap = FindObject<Bitmap>(handle);
    const auto layout = bitmap ? Checked(info, DIB_RGB_COLORS, true) : std::nullopt;
    return layout && Guarded(false, [&] {
               Surface to = bitmap->View();
               // Black and white decide the bits of a monochrome bitmap.
               to.monochrome = false;
               CopyRows(layout->View(bits, layout->height), 0, to, 0, std::min(bitmap->height, layout->height),
                        std::min(bitmap->width, layout->width));
               return true;
           });
}

bool StretchBits(HDC context, const RECT& place, const void* bits, const BITMAPINFO* info, DWORD operation) {
    const Drawing drawing(context);
    const auto layout = drawing ? Checked(info, DIB_RGB_COLORS, true) : std::nullopt;
    return layout && layout->height > 0 && place.left < place.right && place.top < place.bottom && Guarded(false, [&] {
               const Surface from = layout->View(bits, layout->height);
               DrawSurface(*drawing, drawing->ToSurface(place), from, from.Bounds(), false, false,
                           OperationOf(operation), {});
               return true;
           });
}

}  // namespace platform::gdi
