// The validity property of superclassed controls: set to 1 from WM_NCCREATE to WM_NCDESTROY, and tested by exported
// functions before they trust a window handle.
#pragma once

#include <windows.h>

namespace frame {

class ValidityProperty {
  public:
    /// @param name  the kind's name with the ending "_IsValid"
    constexpr explicit ValidityProperty(LPCSTR name) : name_(name) {}

    void Set(HWND window) const {
        SetPropA(window, name_, reinterpret_cast<HANDLE>(static_cast<LONG_PTR>(1)));
    }
    void Remove(HWND window) const {
        RemovePropA(window, name_);
    }
    bool IsSet(HWND window) const {
        return GetPropA(window, name_) != nullptr;
    }

  private:
    LPCSTR name_;
};

}  // namespace frame
