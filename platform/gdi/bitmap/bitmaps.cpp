// Making device-dependent bitmaps.
#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "gdi/bitmap/bitmaps.h"
#include "gdi/context/context.h"

namespace platform::gdi {

bool IsDepth(int bitsPerPixel) {
    switch (bitsPerPixel) {
        case 1:
        case 4:
        case 8:
        case 24:
        case 32:
            return true;
        default:
            return false;
    }
}

std::unique_ptr<Bitmap> NewBitmap(int width, int height, int bitsPerPixel) {
    if (!IsDepth(bitsPerPixel) || width <= 0 || height <= 0) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    const std::int64_t row = DwordRowBytes(width, bitsPerPixel);
    auto bitmap = FitsMemory(row, height) ? NewObject<Bitmap>() : nullptr;
    if (bitmap) {
        bitmap->width = width;
        bitmap->height = height;
        bitmap->bitsPerPixel = bitsPerPixel;
        bitmap->rowBytes = static_cast<std::size_t>(row);
        bitmap->bits = static_cast<std::byte*>(std::calloc(static_cast<std::size_t>(height), bitmap->rowBytes));
        if (!bitmap->bits) {
            bitmap.reset();
        }
    }
    if (!bitmap) {
        SetLastError(ERROR_NOT_ENOUGH_MEMORY);
    }
    return bitmap;
}

}  // namespace platform::gdi

using namespace platform::gdi;

namespace {

/// Fills a bitmap from the application's rows, which are multiples of two bytes.
void CopyBits(const Bitmap& bitmap, const std::byte* in) {
    const auto outer = static_cast<std::size_t>(WordRowBytes(bitmap.width, bitmap.bitsPerPixel));
    for (std::size_t row = 0; row < static_cast<std::size_t>(bitmap.height); ++row) {
        std::memcpy(bitmap.bits + row * bitmap.rowBytes, in + row * outer, outer);
    }
}

}  // namespace

HBITMAP WINAPI CreateBitmap(int width, int height, UINT planes, UINT bitsPerPixel, const void* bits) {
    if (width == 0 || height == 0) {
        return platform::base::ToHandle<HBITMAP>(Stock().defaultBitmap->handle);
    }
    if (planes != 1 || bitsPerPixel == 0 || bitsPerPixel > 32 || height == INT32_MIN) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    // A pixel takes what is needed for that many bits.
    int depth = static_cast<int>(bitsPerPixel);
    while (!IsDepth(depth)) {
        ++depth;
    }
    auto bitmap = NewBitmap(width, std::abs(height), depth);
    if (!bitmap) {
        return nullptr;
    }
    if (bits) {
        CopyBits(*bitmap, static_cast<const std::byte*>(bits));
    }
    return FileObject<HBITMAP>(std::move(bitmap));
}

HBITMAP WINAPI CreateBitmapIndirect(const BITMAP* bitmap) {
    if (!bitmap || bitmap->bmType != 0) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    return CreateBitmap(bitmap->bmWidth, bitmap->bmHeight, bitmap->bmPlanes, bitmap->bmBitsPixel, bitmap->bmBits);
}

HBITMAP WINAPI CreateCompatibleBitmap(HDC handle, int width, int height) {
    const auto* context = FindObject<DeviceContext>(handle);
    if (!context) {
        return nullptr;
    }
    if (width == 0 || height == 0) {
        return platform::base::ToHandle<HBITMAP>(Stock().defaultBitmap->handle);
    }
    auto bitmap = NewBitmap(width, height, context->surface.bitsPerPixel);
    if (!bitmap) {
        return nullptr;
    }
    // Like the section that is selected: the same format and colours.
    if (context->state.bitmap && context->state.bitmap->section) {
        const Bitmap& model = *context->state.bitmap;
        bitmap->section = true;
        if (model.palette) {
            const auto size = static_cast<std::size_t>(model.paletteSize);
            bitmap->palette.reset(new (std::nothrow) std::uint32_t[size]);
            if (!bitmap->palette) {
                SetLastError(ERROR_NOT_ENOUGH_MEMORY);
                return nullptr;
            }
            std::copy_n(model.palette.get(), size, bitmap->palette.get());
            bitmap->paletteSize = model.paletteSize;
        }
    }
    return FileObject<HBITMAP>(std::move(bitmap));
}
