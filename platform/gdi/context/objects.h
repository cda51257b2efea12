/// @file objects.h
/// What stands behind the handles of pens, brushes, fonts and bitmaps.
#pragma once

#include <windows.h>

#include <array>
#include <atomic>
#include <cstdint>
#include <memory>
#include <new>

#include "base/fail.h"
#include "base/handle.h"
#include "gdi/surface/region.h"
#include "gdi/surface/surface.h"
#include "kernel/guarded.h"

namespace platform::gdi {

using base::Fail;
using kernel::Guarded;

class RealizedFont;
struct DeviceContext;

struct Object {
    std::uint32_t handle = 0;
    bool stock = false;            ///< never deleted, never counted
    std::atomic<int> selected{0};  ///< contexts and saved states that hold it
};

struct Pen : Object {
    static constexpr base::HandleKind kKind = base::HandleKind::Pen;
    UINT style = PS_SOLID;
    COLORREF colour = 0;
};

struct Brush : Object {
    static constexpr base::HandleKind kKind = base::HandleKind::Brush;
    UINT style = BS_SOLID;
    COLORREF colour = 0;
    int width = 0;  ///< of the pattern
    int height = 0;
    bool monochrome = false;                  ///< the pattern holds 0 and 1, else colours
    std::unique_ptr<std::uint32_t[]> pixels;  ///< the pattern
};

struct Font : Object {
    static constexpr base::HandleKind kKind = base::HandleKind::Font;
    ~Font();
    LOGFONTA logical{};
    bool doomed = false;                           ///< deleted by whoever lets go of it last
    std::atomic<RealizedFont*> realized{nullptr};  ///< found on first use; lives as long as a font asks for it
};

struct Bitmap : Object {
    static constexpr base::HandleKind kKind = base::HandleKind::Bitmap;
    ~Bitmap();
    int width = 0;
    int height = 0;
    int bitsPerPixel = 0;
    bool topDown = true;
    bool sharedBits = false;  ///< the bits belong to somebody else
    std::size_t rowBytes = 0;
    std::byte* bits = nullptr;         ///< the first row in memory
    DeviceContext* context = nullptr;  ///< the one context that it is selected into

    Surface View() const;
};

/// @returns the object of a handle; null, with ERROR_INVALID_HANDLE set, when it is stale or of another kind.
template <class Kind, class Handle>
Kind* FindObject(Handle handle) {
    auto* object = base::Find<Kind>(handle, Kind::kKind);
    return object ? object : Fail<Kind*>(ERROR_INVALID_HANDLE, nullptr);
}

/// Files a new object. @returns its handle; null, with ERROR_NOT_ENOUGH_MEMORY set, when there is none.
template <class Handle, class Kind>
Handle FileObject(std::unique_ptr<Kind> object) {
    if (object) {
        object->handle = base::InsertHandle(Kind::kKind, object.get());
        if (object->handle) {
            return base::ToHandle<Handle>(object.release()->handle);
        }
    }
    return Fail(ERROR_NOT_ENOUGH_MEMORY, nullptr);
}

template <class Kind>
std::unique_ptr<Kind> NewObject() {
    return std::unique_ptr<Kind>(new (std::nothrow) Kind);
}

/// The stock objects, made on first use.
struct StockObjects {
    Pen* blackPen;
    Brush* whiteBrush;
    Font* systemFont;
    Bitmap* defaultBitmap;  ///< one monochrome pixel, what new memory contexts hold
};
const StockObjects& Stock();

/// Makes a brush of a bitmap's pixels; those of a monochrome one take the context's text and background colours.
HBRUSH MakePatternBrush(HBITMAP bitmap);
/// Makes a brush that counts as a stock object; its colour follows a system colour.
HBRUSH MakeStockBrush(COLORREF colour);
/// Changes the colour of such a brush.
void RecolourBrush(HBRUSH brush, COLORREF colour);
/// Counts one more stock object of a kind.
void NoteStock(Object* object);
std::size_t StockCount();

}  // namespace platform::gdi
