// The animation control's window.
//
// | message   | handler                    |
// |-----------|----------------------------|
// | WM_CREATE | Create: nothing to show    |
// | WM_CLOSE  | Close: pictures            |
// | WM_TIMER  | ShowNext                   |
#include "cvutil32/animate.h"

#include "controls/frame/classes.h"
#include "controls/frame/drawing.h"

#include <commctrl.h>

namespace animate {

namespace {

constexpr UINT_PTR kTimer = 1;
constexpr UINT kInterval = 200;

/// What a control keeps in its extra bytes, in this order.
enum Slot { kImages, kRunning, kNext, kSlots };

constexpr int OffsetOf(Slot slot) {
    return slot * static_cast<int>(sizeof(LONG_PTR));
}

// Callers of 32 bits read these words by their numbers.
static_assert(sizeof(LONG_PTR) != 4 || (OffsetOf(kRunning) == 4 && OffsetOf(kNext) == 8 && OffsetOf(kSlots) == 12));

LONG_PTR Get(HWND control, Slot slot) {
    return GetWindowLongPtrA(control, OffsetOf(slot));
}

void Set(HWND control, Slot slot, LONG_PTR value) {
    SetWindowLongPtrA(control, OffsetOf(slot), value);
}

HIMAGELIST ImagesOf(HWND control) {
    return reinterpret_cast<HIMAGELIST>(Get(control, kImages));
}

/// A class of another name has another idea of its extra bytes, also if it is built on this one.
bool IsControl(HWND window) {
    char name[128];
    return window && GetClassNameA(window, name, sizeof name) && lstrcmpA(name, ANIMATE_CLASSNAME) == 0;
}

/// The control's own picture of itself: it has no WM_PAINT.
class ClientDc {
  public:
    explicit ClientDc(HWND window) : window_(window), dc_(GetDC(window)) {}
    ~ClientDc() {
        if (dc_) {
            ReleaseDC(window_, dc_);
        }
    }
    ClientDc(ClientDc const&) = delete;
    ClientDc& operator=(ClientDc const&) = delete;

    operator HDC() const {
        return dc_;
    }

  private:
    HWND window_;
    HDC dc_;
};

/// A picture's place in the middle of the window; it begins outside if the window is too small.
RECT PictureRect(HWND control, HIMAGELIST images) {
    RECT rect = {};
    GetClientRect(control, &rect);
    int cx = 0;
    int cy = 0;
    ImageList_GetIconSize(images, &cx, &cy);
    InflateRect(&rect, -((rect.right - cx) >> 1), -((rect.bottom - cy) >> 1));
    return rect;
}

void ShowNext(HWND control) {
    HIMAGELIST const images = ImagesOf(control);
    if (!images) {
        return;
    }
    ClientDc const dc(control);
    if (!dc) {
        return;
    }
    int const shown = static_cast<int>(Get(control, kNext));
    RECT const rect = PictureRect(control, images);
    frame::FillSystemColour(dc, rect, COLOR_BTNFACE);
    ImageList_Draw(images, shown, dc, rect.left, rect.top, ILD_NORMAL);
    Set(control, kNext, shown + 1 < ImageList_GetImageCount(images) ? shown + 1 : 0);
}

void Create(HWND control) {
    for (Slot slot : {kImages, kRunning, kNext}) {
        Set(control, slot, 0);
    }
}

bool Stop(HWND control) {
    LONG_PTR const timer = Get(control, kRunning);
    if (!timer) {
        return false;
    }
    KillTimer(control, static_cast<UINT_PTR>(timer));
    Set(control, kRunning, 0);
    Set(control, kNext, 0);
    ClientDc const dc(control);
    if (dc) {
        RECT client = {};
        GetClientRect(control, &client);
        frame::FillSystemColour(dc, client, COLOR_BTNFACE);
    }
    return true;
}

bool Start(HWND control) {
    if (!ImagesOf(control)) {
        return false;
    }
    Stop(control);
    UINT_PTR const timer = SetTimer(control, kTimer, kInterval, nullptr);
    Set(control, kRunning, static_cast<LONG_PTR>(timer));
    return timer != 0;
}

void Close(HWND control) {
    if (HIMAGELIST const images = ImagesOf(control)) {
        Stop(control);
        ImageList_Destroy(images);
        Set(control, kImages, 0);
    }
}

LRESULT CALLBACK WindowProcedure(HWND control, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_CREATE:
            return Create(control), 0;
        case WM_CLOSE:
            return Close(control), 0;
        case WM_TIMER:
            return ShowNext(control), 0;
        default:
            return DefWindowProcA(control, message, wParam, lParam);
    }
}

}  // namespace

}  // namespace animate

CVAPI(BOOL) ANIMATE_RegisterClass(HINSTANCE instance) {
    BOOL const registered =
        frame::RegisterOwnClass(instance, {.name = ANIMATE_CLASSNAME,
                                           .style = 0,
                                           .procedure = animate::WindowProcedure,
                                           .extraBytes = animate::OffsetOf(animate::kSlots),
                                           .cursor = IDC_ARROW,
                                           .background = static_cast<HBRUSH>(GetStockObject(NULL_BRUSH))});
    // Image lists need it, on systems that make them known late.
    InitCommonControls();
    return registered;
}

CVAPI(BOOL) ANIMATE_Initialize(HWND control, HINSTANCE module, LPCSTR bitmap, int width, COLORREF mask) {
    if (!animate::IsControl(control)) {
        return FALSE;
    }
    HIMAGELIST const images = ImageList_LoadImageA(module, bitmap, width, 0, mask, IMAGE_BITMAP, 0);
    if (!images) {
        return FALSE;
    }
    animate::Set(control, animate::kImages, reinterpret_cast<LONG_PTR>(images));
    return TRUE;
}

CVAPI(BOOL) ANIMATE_Start(HWND control) {
    return animate::IsControl(control) && animate::Start(control);
}

CVAPI(BOOL) ANIMATE_Stop(HWND control) {
    return animate::IsControl(control) && animate::Stop(control);
}
