/// @file chosen_date.h
/// The one date that the dates page is about, shown by two fields at once.
#pragma once

#include <windows.h>

#include <string>

namespace gallery {

class ChosenDate {
  public:
    ChosenDate(HWND first, HWND second) : fields{first, second} {}

    void SetToday();

    /// @param text YYYY-MM-DD. @returns false, with nothing changed, where it is no date that exists.
    bool SetIsoText(const std::string& text);

    /// Date fields send no notifications, so their values are read: the field that has moved away from the chosen date
    /// is the one that was edited, and the other one follows. @returns whether the date is another one now.
    bool Follow();

    bool IsSet() const {
        return isSet;
    }

    /// @returns YYYY-MM-DD, empty while no date is chosen.
    std::string IsoText() const;

  private:
    bool Differs(const SYSTEMTIME& other) const;

    HWND fields[2];
    SYSTEMTIME date{};
    bool isSet = false;
};

}  // namespace gallery
