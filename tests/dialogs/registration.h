/// @file registration.h
/// The registered user, for tests of the About box.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

/// A value of the registered user for the length of a test.
class Registration {
  public:
    Registration(char const* name, char const* value) : name_(name) {
        opened_ = RegCreateKeyExA(HKEY_LOCAL_MACHINE, "SOFTWARE\\Microsoft\\Windows\\CurrentVersion", 0, nullptr, 0,
                                  KEY_READ | KEY_WRITE, nullptr, &key_, nullptr) == ERROR_SUCCESS;
        char former[256] = {};
        DWORD size = sizeof former - 1;
        if (opened_ &&
            RegQueryValueExA(key_, name, nullptr, nullptr, reinterpret_cast<BYTE*>(former), &size) == ERROR_SUCCESS) {
            former_ = former;
        }
        Set(value);
    }
    ~Registration() {
        Set(former_ ? former_->c_str() : nullptr);
        if (opened_) {
            RegCloseKey(key_);
        }
    }
    Registration(Registration const&) = delete;
    Registration& operator=(Registration const&) = delete;

    /// Removes the value for null.
    void Set(char const* value) const {
        if (opened_ && value) {
            RegSetValueExA(key_, name_, 0, REG_SZ, reinterpret_cast<BYTE const*>(value),
                           static_cast<DWORD>(lstrlenA(value) + 1));
        } else if (opened_) {
            RegDeleteValueA(key_, name_);
        }
    }
    bool IsOpen() const {
        return opened_;
    }

  private:
    char const* name_;
    HKEY key_ = nullptr;
    bool opened_ = false;
    std::optional<std::string> former_;
};
