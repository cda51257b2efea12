// Lines and the objects that they are drawn with.
#pragma once

#include <windows.h>

#include <initializer_list>

namespace frame {

/// An object selected into a device context for as long as this lives. One that does not exist leaves the one that is
/// there.
class Selected {
  public:
    Selected(HDC dc, HGDIOBJ object) : dc_(dc), former_(SelectObject(dc, object)) {}
    ~Selected() {
        if (former_) {
            SelectObject(dc_, former_);
        }
    }
    Selected(Selected const&) = delete;
    Selected& operator=(Selected const&) = delete;

  private:
    HDC dc_;
    HGDIOBJ former_;
};

/// A caller's object, or one made in its place, which is deleted again.
template <class Handle>
class OrDefault {
  public:
    template <class Make>
    OrDefault(Handle given, Make make) : given_(given), made_(given ? nullptr : make()) {}
    ~OrDefault() {
        if (made_) {
            DeleteObject(made_);
        }
    }
    OrDefault(OrDefault const&) = delete;
    OrDefault& operator=(OrDefault const&) = delete;

    /// Null if there was no memory for one.
    operator Handle() const {
        return given_ ? given_ : made_;
    }

  private:
    Handle given_;
    Handle made_;
};

/// Fills a rectangle with a system colour (COLOR_ constant).
inline void FillSystemColour(HDC dc, RECT const& rect, int colour) {
    OrDefault<HBRUSH> const brush(nullptr, [=] { return CreateSolidBrush(GetSysColor(colour)); });
    FillRect(dc, &rect, brush);
}

/// Lines from point to point; the last point is not drawn.
inline void DrawPath(HDC dc, std::initializer_list<POINT> points) {
    MoveToEx(dc, points.begin()->x, points.begin()->y, nullptr);
    for (POINT const* point = points.begin() + 1; point != points.end(); ++point) {
        LineTo(dc, point->x, point->y);
    }
}

/// The same with a pen, which is selected for these lines only.
inline void DrawPath(HDC dc, HPEN pen, std::initializer_list<POINT> points) {
    Selected const selected(dc, pen);
    DrawPath(dc, points);
}

}  // namespace frame
