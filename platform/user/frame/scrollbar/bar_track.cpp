// A scroll bar under the mouse: arrows and shaft repeat while they are held, the thumb follows the pointer.
#include "user/frame/above.h"
#include "user/frame/nonclient.h"
#include "user/frame/scrollbar/bar.h"
#include "user/input/input.h"

namespace platform::user {
namespace {

constexpr UINT_PTR kRepeatTimer = 0xFFFE;
constexpr UINT kFirstRepeat = 400;
constexpr UINT kRepeat = 50;
constexpr int kStray = 9;  // how many widths of the bar the pointer may stray from it before the thumb springs back

/// Changes what is held of a bar's thumb.
void Drag(const Bar& bar, bool dragging, int track, int offset) {
    const auto set = [=](BarState& state) {
        state.dragging = dragging;
        state.track = track;
        state.thumbOffset = offset;
    };
    if (bar.kind == SB_CTL) {
        if (const auto own = ControlBar(bar.window)) {
            set(*own);
        }
        return;
    }
    const UserGuard guard(UserLock());
    const Window* window = PeekWindow(bar.window);
    if (window && window->bars) {
        set(bar.kind == SB_VERT ? window->bars->vertical : window->bars->horizontal);
    }
}

/// One hold of the mouse button on a bar.
class Hold {
  public:
    Hold(const Bar& bar, POINT point) : bar_(bar), pointer_(point) {
        if (!ReadBar(bar_, &state_, &layout_)) {
            return;
        }
        part_ = PartAt(layout_, point);
        start_ = layout_;
        const bool arrow = part_ == BarPart::FirstArrow || part_ == BarPart::SecondArrow;
        if ((arrow && state_.disabled) || !CanScroll(state_)) {
            part_ = BarPart::None;
        }
    }

    void Run() {
        if (part_ == BarPart::None) {
            return;
        }
        SetCapture(bar_.window);
        Begin();
        MSG message;
        while (GetCapture() == bar_.window && NextMessage(bar_.window, &message)) {
            const bool released = message.message == WM_LBUTTONUP;
            if (message.message == WM_MOUSEMOVE || released) {
                pointer_ = message.pt;
                Move();
            }
            if (released) {
                break;
            }
            if (message.message == WM_TIMER && message.hwnd == bar_.window && message.wParam == kRepeatTimer) {
                Repeat();
            } else if (!IsInput(message.message)) {
                DispatchMessageA(&message);
            }
        }
        End();
    }

  private:
    int Pointer() const {
        return layout_.vertical ? pointer_.y : pointer_.x;
    }

    static int ThumbOffset(const BarLayout& layout) {
        return layout.vertical ? layout.thumb.top - layout.firstArrow.bottom
                               : layout.thumb.left - layout.firstArrow.right;
    }

    void Begin() {
        if (part_ == BarPart::Thumb) {
            offset_ = ThumbOffset(layout_);
            grip_ = Pointer() - offset_;
            track_ = state_.position;
            Drag(bar_, true, track_, offset_);
            TellBar(bar_, SB_THUMBTRACK, track_);
            return;
        }
        PaintBar(bar_, part_);
        shown_ = true;
        SetTimer(bar_.window, kRepeatTimer, kFirstRepeat, nullptr);
        TellBar(bar_, Code());
    }

    int Code() const {
        switch (part_) {
            case BarPart::FirstArrow:
                return SB_LINEUP;
            case BarPart::SecondArrow:
                return SB_LINEDOWN;
            case BarPart::FirstShaft:
                return SB_PAGEUP;
            default:
                return SB_PAGEDOWN;
        }
    }

    /// The layout changes under a held shaft: the thumb comes up to the pointer.
    bool Over() {
        return ReadBar(bar_, &state_, &layout_) && PartAt(layout_, pointer_) == part_;
    }

    void Repeat() {
        SetTimer(bar_.window, kRepeatTimer, kRepeat, nullptr);
        const bool over = Over();
        Show(over);
        if (over) {
            TellBar(bar_, Code());
        }
    }

    void Show(bool pressed) {
        if (pressed != shown_) {
            shown_ = pressed;
            PaintBar(bar_, pressed ? part_ : BarPart::None);
        }
    }

    void Move() {
        if (part_ != BarPart::Thumb) {
            Show(Over());
            return;
        }
        int offset = Strayed() ? ThumbOffset(start_) : Pointer() - grip_;
        const int track = PositionAt(start_, state_, &offset);
        if (offset == offset_) {
            return;
        }
        offset_ = offset;
        const bool moved = track != track_;
        track_ = track;
        Drag(bar_, true, track_, offset_);
        PaintBar(bar_, BarPart::Thumb);
        if (moved) {
            TellBar(bar_, SB_THUMBTRACK, track_);
        }
    }

    bool Strayed() const {
        RECT reach = start_.whole;
        const int width = layout_.vertical ? reach.right - reach.left : reach.bottom - reach.top;
        InflateRect(&reach, kStray * width, kStray * width);
        return !PtInRect(&reach, pointer_);
    }

    void End() {
        KillTimer(bar_.window, kRepeatTimer);
        if (part_ == BarPart::Thumb) {
            Drag(bar_, false, 0, 0);
        }
        LetGoOfMouse(bar_.window);
        PaintBar(bar_);
        if (part_ == BarPart::Thumb) {
            TellBar(bar_, SB_THUMBPOSITION, track_);
        }
        TellBar(bar_, SB_ENDSCROLL);
    }

    const Bar bar_;
    POINT pointer_;
    BarState state_;
    BarLayout layout_;
    BarLayout start_;
    BarPart part_ = BarPart::None;
    bool shown_ = false;
    int grip_ = 0;    // the pointer's distance from the thumb's offset
    int offset_ = 0;  // of the thumb
    int track_ = 0;
};

}  // namespace

void TellBar(const Bar& bar, int code, int position) {
    const WPARAM what = MAKEWPARAM(code, position);
    if (bar.kind != SB_CTL) {
        SendMessageA(bar.window, bar.kind == SB_VERT ? WM_VSCROLL : WM_HSCROLL, what, 0);
        return;
    }
    const bool vertical = (GetWindowLongA(bar.window, GWL_STYLE) & SBS_VERT) != 0;
    if (const HWND parent = GetParent(bar.window)) {
        SendMessageA(parent, vertical ? WM_VSCROLL : WM_HSCROLL, what, reinterpret_cast<LPARAM>(bar.window));
    }
}

void TrackBar(const Bar& bar, POINT point) {
    Hold(bar, point).Run();
}

}  // namespace platform::user
