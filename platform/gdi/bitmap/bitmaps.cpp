// Making device-dependent bitmaps.
#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "gdi/bitmap/bitmaps.h"
#include "gdi/context/context.h"

namespace platform::gdi {

std::unique_ptr<Bitmap> NewBitmap(int width, int height, int bitsPerPixel) {
    if (width <= 0 || height <= 0) {
        return Fail(ERROR_INVALID_PARAMETER, nullptr);
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
    return bitmap ? std::move(bitmap) : Fail(ERROR_NOT_ENOUGH_MEMORY, nullptr);
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
    if (planes != 1 || (bitsPerPixel != 1 && bitsPerPixel != 32) || height == INT32_MIN) {
        return Fail(ERROR_INVALID_PARAMETER, nullptr);
    }
    auto bitmap = NewBitmap(width, std::abs(height), static_cast<int>(bitsPerPixel));
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
        return Fail(ERROR_INVALID_PARAMETER, nullptr);
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
    return bitmap ? FileObject<HBITMAP>(std::move(bitmap)) : nullptr;
}
