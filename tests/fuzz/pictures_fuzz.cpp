// Bitmaps and icons: any bytes as a picture of a module, loaded in every way there is and drawn.
#include "tests/fuzz/input.h"
#include "tests/fuzz/module.h"

#include <algorithm>

namespace {

// As resource scripts number their types.
constexpr WORD kBitmap = 2;
constexpr WORD kIcon = 3;
constexpr WORD kGroupIcon = 14;

/// A place to draw on that is somewhat larger than a picture.
class Canvas {
  public:
    Canvas() : bitmap_(CreateBitmap(40, 40, 1, 32, nullptr)), former_(SelectObject(dc_, bitmap_)) {}
    ~Canvas() {
        SelectObject(dc_, former_);
        DeleteObject(bitmap_);
        DeleteDC(dc_);
    }
    Canvas(Canvas const&) = delete;
    Canvas& operator=(Canvas const&) = delete;
    operator HDC() const {
        return dc_;
    }

  private:
    HDC dc_ = CreateCompatibleDC(nullptr);
    HBITMAP bitmap_;
    HGDIOBJ former_;
};

void Draw(Canvas const& canvas, HBITMAP bitmap) {
    BITMAP record = {};
    if (!bitmap) {
        return;
    }
    FUZZ_CHECK(GetObjectA(bitmap, sizeof record, &record) != 0);
    HDC const memory = CreateCompatibleDC(nullptr);
    if (HGDIOBJ const former = SelectObject(memory, bitmap)) {
        BitBlt(canvas, 1, 1, 38, 38, memory, 0, 0, SRCCOPY);
        StretchBlt(canvas, 0, 0, 40, 40, memory, 0, 0, record.bmWidth, record.bmHeight, SRCAND);
        SelectObject(memory, former);
    }
    DeleteDC(memory);
    DeleteObject(bitmap);
}

void LoadBitmaps(HINSTANCE instance) {
    Canvas const canvas;
    Draw(canvas, LoadBitmapA(instance, MAKEINTRESOURCEA(1)));
    for (int const side : {0, 7}) {
        Draw(canvas, static_cast<HBITMAP>(
                         LoadImageA(instance, MAKEINTRESOURCEA(1), IMAGE_BITMAP, side, side, LR_DEFAULTCOLOR)));
    }
}

void LoadIcons(HINSTANCE instance) {
    Canvas const canvas;
    if (HICON const icon = LoadIconA(instance, MAKEINTRESOURCEA(1))) {
        DrawIcon(canvas, 3, 3, icon);
    }
}

}  // namespace

// The first byte says what it is and how it is loaded; of an icon the second one, how long the group is.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    if (size < 2) {
        return 0;
    }
    std::uint8_t const how = *data++;
    --size;
    fuzz::ResourceFile file;
    bool const bitmap = how & 1;
    if (bitmap) {
        file.Add(kBitmap, 1, data, size);
    } else {
        std::size_t const group = std::min<std::size_t>(*data++, --size);
        file.Add(kGroupIcon, 1, data, group);
        file.Add(kIcon, 1, data + group, size - group);
    }
    DWORD const objects = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
    {
        fuzz::Module const module(file);
        if (bitmap) {
            LoadBitmaps(module.instance());
        } else {
            LoadIcons(module.instance());
        }
    }
    FUZZ_CHECK(GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS) == objects);
    return 0;
}
