// International settings of the user for the length of a test.
#pragma once

#include <windows.h>

#include <string>

namespace testing_support {

/// Sets or removes one value of the profile's section "Intl" and puts back what was there.
class IntlSetting {
  public:
    /// @param value  null removes the value.
    IntlSetting(LPCSTR key, LPCSTR value) : key_(key) {
        char former[80] = {};
        GetProfileStringA("Intl", key, kMissing, former, sizeof former);
        former_ = former;
        WriteProfileStringA("Intl", key, value);
    }
    ~IntlSetting() {
        WriteProfileStringA("Intl", key_, former_ == kMissing ? nullptr : former_.c_str());
    }

    IntlSetting(IntlSetting const&) = delete;
    IntlSetting& operator=(IntlSetting const&) = delete;

    void Change(LPCSTR value) const {
        WriteProfileStringA("Intl", key_, value);
    }

  private:
    static constexpr char kMissing[] = "(missing)";
    LPCSTR key_;
    std::string former_;
};

}  // namespace testing_support
