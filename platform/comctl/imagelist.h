/// @file imagelist.h
/// An image list from inside.
#pragma once

#include <commctrl.h>

#include <array>

#include "base/handle.h"

namespace platform::comctl {

/// The pictures lie one below the other in two bitmaps. Where the mask is set the picture is black, so that it can be
/// laid over any background: AND with the mask, OR with the picture.
struct ImageList {
    static constexpr int kOverlays = 15;

    ImageList() = default;
    ImageList(const ImageList&) = delete;
    ImageList& operator=(const ImageList&) = delete;
    ~ImageList();

    bool Has(int index) const {
        return index >= 0 && index < count;
    }
    bool Masked() const {
        return (flags & ILC_MASK) != 0;
    }

    int cx = 0;
    int cy = 0;
    UINT flags = 0;
    int count = 0;
    int capacity = 0;
    int grow = 1;
    HBITMAP images = nullptr;
    HBITMAP masks = nullptr;  ///< one bit a pixel, set where the background shows; null without ILC_MASK
    COLORREF background = CLR_NONE;
    std::array<int, kOverlays> overlays{};  ///< indices, -1 for none
};

/// @returns null, with ERROR_INVALID_HANDLE set, when the handle is stale or foreign.
ImageList* FindImageList(HIMAGELIST handle);

/// A context in memory with a bitmap selected into it. Test it before use: there may be no memory, and a bitmap may be
/// selected elsewhere.
class Memory {
  public:
    explicit Memory(HBITMAP bitmap)
        : context_(CreateCompatibleDC(nullptr)), former_(context_ ? SelectObject(context_, bitmap) : nullptr) {}
    ~Memory() {
        if (former_) {
            SelectObject(context_, former_);
        }
        if (context_) {
            DeleteDC(context_);
        }
    }
    Memory(const Memory&) = delete;
    Memory& operator=(const Memory&) = delete;

    explicit operator bool() const {
        return former_ != nullptr;
    }
    operator HDC() const {
        return context_;
    }

  private:
    HDC context_;
    HGDIOBJ former_;
};

}  // namespace platform::comctl
