// Bitmaps from a module's resources.
#include <algorithm>

#include "gdi/bitmap/bitmaps.h"
#include "gdi/bitmap/convert.h"
#include "gdi/context/device_context.h"
#include "kernel/modules/resource.h"

using namespace platform::gdi;
namespace kernel = platform::kernel;

namespace {

bool BlackAndWhite(const DibLayout& layout) {
    return layout.bitsPerPixel == 1 && ((layout.palette[0] == 0 && layout.palette[1] == 0xFFFFFF) ||
                                        (layout.palette[0] == 0xFFFFFF && layout.palette[1] == 0));
}

/// width and height: 0 for the bitmap's own.
HBITMAP FromResource(HINSTANCE instance, LPCSTR name, int width, int height) {
    const kernel::Bytes resource = kernel::FindResourceBytes(instance, name, RT_BITMAP);
    if (resource.empty()) {
        return nullptr;
    }
    const auto source = ReadLayout(resource.data(), resource.size());
    if (!source || resource.size() - source->headerBytes < source->Bytes()) {
        return Fail(ERROR_INVALID_PARAMETER, nullptr);
    }
    const RECT place{0, 0, width > 0 ? width : source->width, height > 0 ? height : source->height};
    const HBITMAP bitmap = CreateBitmap(place.right, place.bottom, 1, BlackAndWhite(*source) ? 1 : 32, nullptr);
    const MemoryContext memory(bitmap);
    if (!memory) {
        DeleteObject(bitmap);
        return nullptr;
    }
    const Surface from = source->View(resource.data() + source->headerBytes, source->height);
    DrawSurface(*FindObject<DeviceContext>(HDC{memory}), place, from, from.Bounds(), Shrink::TakeFirst, kCopySource,
                {});
    return bitmap;
}

}  // namespace

HBITMAP WINAPI LoadBitmapA(HINSTANCE instance, LPCSTR name) {
    return Guarded<HBITMAP>(nullptr, [&] { return FromResource(instance, name, 0, 0); });
}

HANDLE WINAPI LoadImageA(HINSTANCE instance, LPCSTR name, UINT type, int width, int height, UINT flags) {
    if (type != IMAGE_BITMAP || flags != LR_DEFAULTCOLOR || width < 0 || height < 0) {
        return Fail(ERROR_INVALID_PARAMETER, nullptr);
    }
    return Guarded<HANDLE>(nullptr, [&] { return static_cast<HANDLE>(FromResource(instance, name, width, height)); });
}
