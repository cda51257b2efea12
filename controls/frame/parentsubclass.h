// The subclass that a kind of control installs on its parent, to answer the parent's owner-draw and command messages
// itself.
//
// There is one parent procedure a kind and parent, however many controls of the kind the parent has. The parent's
// former procedure lies in a property of the parent. The kind's procedure handles what it needs and hands the rest to
// Forward(), which also ends the subclass with the parent.
#pragma once

#include <windows.h>

namespace frame {

class ParentSubclass {
  public:
    /// @param property   the kind's name with the ending "_ParentWndProc"
    /// @param procedure  the kind's parent procedure
    constexpr ParentSubclass(LPCSTR property, WNDPROC procedure) : property_(property), procedure_(procedure) {}

    /// Called at the control's WM_NCCREATE. Nothing happens without a parent or if the parent carries the property
    /// already.
    void Install(HWND control) const;

    /// Passes a message on to the parent's former procedure. WM_NCDESTROY goes on without its arguments; after it the
    /// former procedure is put back and the property removed, unless somebody else has subclassed the parent since:
    /// their procedure would come to lead nowhere.
    /// @return the former procedure's answer; 0 for WM_NCDESTROY, and when the property is gone.
    LRESULT Forward(HWND parent, UINT message, WPARAM wParam, LPARAM lParam) const;

  private:
    void End(HWND parent, WNDPROC former) const;

    LPCSTR property_;
    WNDPROC procedure_;
};

}  // namespace frame
