// Handles of drawing objects: asking, deleting, and the stock objects.
#include "gdi/context/objects.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>

#include "gdi/context/context.h"

namespace platform::gdi {

Bitmap::~Bitmap() {
    if (!sharedBits) {
        std::free(bits);
    }
}

Surface Bitmap::View() const {
    Surface surface;
    surface.width = width;
    surface.height = height;
    surface.bitsPerPixel = bitsPerPixel;
    surface.monochrome = bitsPerPixel == 1;
    const auto stride = static_cast<std::ptrdiff_t>(rowBytes);
    surface.bits = topDown || !bits ? bits : bits + stride * (height - 1);
    surface.stride = topDown ? stride : -stride;
    return surface;
}

namespace {

std::atomic<std::size_t> stockCount{0};

template <class Kind>
Kind* MakeStock() {
    auto object = NewObject<Kind>();
    if (!object) {
        std::abort();
    }
    object->handle = base::InsertHandle(Kind::kKind, object.get());
    NoteStock(object.get());
    return object.release();
}

/// A pen or a brush.
template <class Kind>
Kind* StockTool(UINT style, COLORREF colour) {
    Kind* tool = MakeStock<Kind>();
    tool->style = style;
    tool->colour = colour;
    return tool;
}

Font* StockFont(const char* face, int height, int weight, BYTE pitch) {
    Font* font = MakeStock<Font>();
    font->logical.lfHeight = height;
    font->logical.lfWeight = weight;
    font->logical.lfPitchAndFamily = pitch;
    std::strncpy(font->logical.lfFaceName, face, LF_FACESIZE - 1);
    return font;
}

struct StockTable {
    std::array<Object*, DEFAULT_GUI_FONT + 1> objects{};
    StockObjects inside{};

    StockTable() {
        objects[WHITE_BRUSH] = StockTool<Brush>(BS_SOLID, 0xFFFFFF);
        objects[BLACK_BRUSH] = StockTool<Brush>(BS_SOLID, 0x000000);
        objects[NULL_BRUSH] = StockTool<Brush>(BS_NULL, 0);
        objects[WHITE_PEN] = StockTool<Pen>(PS_SOLID, 0xFFFFFF);
        objects[BLACK_PEN] = StockTool<Pen>(PS_SOLID, 0x000000);
        objects[NULL_PEN] = StockTool<Pen>(PS_NULL, 0);
        objects[ANSI_FIXED_FONT] = StockFont("Courier", 12, FW_NORMAL, FIXED_PITCH | FF_MODERN);
        objects[ANSI_VAR_FONT] = StockFont("MS Sans Serif", 12, FW_NORMAL, VARIABLE_PITCH | FF_SWISS);
        objects[SYSTEM_FONT] = StockFont("System", 16, FW_BOLD, VARIABLE_PITCH | FF_SWISS);
        objects[DEFAULT_GUI_FONT] = StockFont("MS Shell Dlg", -11, FW_NORMAL, VARIABLE_PITCH | FF_SWISS);
        static std::uint32_t onePixel = 0;
        Bitmap& bitmap = *(inside.defaultBitmap = MakeStock<Bitmap>());
        bitmap.width = bitmap.height = bitmap.bitsPerPixel = 1;
        bitmap.rowBytes = 2;
        bitmap.sharedBits = true;
        bitmap.bits = reinterpret_cast<std::byte*>(&onePixel);
        inside.blackPen = static_cast<Pen*>(objects[BLACK_PEN]);
        inside.whiteBrush = static_cast<Brush*>(objects[WHITE_BRUSH]);
        inside.systemFont = static_cast<Font*>(objects[SYSTEM_FONT]);
    }
};

const StockTable& AllStock() {
    static const StockTable table;
    return table;
}

template <class Kind>
BOOL DeleteKind(HGDIOBJ handle) {
    auto* object = FindObject<Kind>(handle);
    if (!object) {
        return FALSE;
    }
    if (object->stock) {
        return TRUE;
    }
    if (object->selected.load(std::memory_order_relaxed) > 0) {
        return FALSE;
    }
    base::RemoveHandle(object->handle, Kind::kKind);
    delete object;
    return TRUE;
}

int DescribeBitmap(const Bitmap& bitmap, int room, LPVOID buffer) {
    BITMAP plain{};
    plain.bmWidth = bitmap.width;
    plain.bmHeight = bitmap.height;
    plain.bmWidthBytes = static_cast<LONG>(WordRowBytes(bitmap.width, bitmap.bitsPerPixel));
    plain.bmPlanes = 1;
    plain.bmBitsPixel = static_cast<WORD>(bitmap.bitsPerPixel);
    // Without a buffer only the size that it needs is told.
    if (buffer && room < static_cast<int>(sizeof plain)) {
        return 0;
    }
    if (buffer) {
        std::memcpy(buffer, &plain, sizeof plain);
    }
    return sizeof plain;
}

}  // namespace

const StockObjects& Stock() {
    return AllStock().inside;
}

void NoteStock(Object* object) {
    object->stock = true;
    ++stockCount;
}

std::size_t StockCount() {
    return stockCount.load();
}

HBRUSH MakeStockBrush(COLORREF colour) {
    auto brush = NewObject<Brush>();
    Brush* made = brush.get();
    if (made) {
        made->colour = colour;
    }
    const HBRUSH handle = FileObject<HBRUSH>(std::move(brush));
    if (handle) {
        NoteStock(made);
    }
    return handle;
}

void RecolourBrush(HBRUSH handle, COLORREF colour) {
    if (auto* brush = base::Find<Brush>(handle, Brush::kKind)) {
        brush->colour = colour;
    }
}

}  // namespace platform::gdi

using namespace platform::gdi;
using platform::base::HandleKind;

HGDIOBJ WINAPI GetStockObject(int index) {
    const auto& objects = AllStock().objects;
    if (index < 0 || index >= static_cast<int>(objects.size()) || !objects[static_cast<std::size_t>(index)]) {
        return nullptr;
    }
    return platform::base::ToHandle<HGDIOBJ>(objects[static_cast<std::size_t>(index)]->handle);
}

BOOL WINAPI DeleteObject(HGDIOBJ handle) {
    switch (platform::base::KindOfHandle(platform::base::ToNumber(handle))) {
        case HandleKind::Pen:
            return DeleteKind<Pen>(handle);
        case HandleKind::Brush:
            return DeleteKind<Brush>(handle);
        case HandleKind::Font:
            return DeleteKind<Font>(handle);
        case HandleKind::Bitmap:
            return DeleteKind<Bitmap>(handle);
        case HandleKind::DeviceContext:
            return DeleteDC(static_cast<HDC>(handle));
        default:
            return Fail(ERROR_INVALID_HANDLE, FALSE);
    }
}

int WINAPI GetObjectA(HANDLE handle, int size, LPVOID buffer) {
    switch (platform::base::KindOfHandle(platform::base::ToNumber(handle))) {
        case HandleKind::Font: {
            // Callers may ask for the leading part only.
            const auto* font = FindObject<Font>(handle);
            const int part = buffer ? std::clamp(size, 0, static_cast<int>(sizeof(LOGFONTA))) : sizeof(LOGFONTA);
            if (font && buffer) {
                std::memcpy(buffer, &font->logical, static_cast<std::size_t>(part));
            }
            return font ? part : 0;
        }
        case HandleKind::Bitmap: {
            const auto* bitmap = FindObject<Bitmap>(handle);
            return bitmap ? DescribeBitmap(*bitmap, size, buffer) : 0;
        }
        default:
            return Fail(ERROR_INVALID_HANDLE, 0);
    }
}
