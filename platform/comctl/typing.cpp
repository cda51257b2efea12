#include "comctl/typing.h"

#include <algorithm>

namespace platform::comctl {
namespace {

constexpr DWORD kPause = 1000;  ///< milliseconds after which typing begins anew

bool BeginsWith(const std::string& text, const std::string& beginning) {
    return text.size() >= beginning.size() &&
           CompareStringA(LOCALE_USER_DEFAULT, NORM_IGNORECASE, text.c_str(), static_cast<int>(beginning.size()),
                          beginning.c_str(), static_cast<int>(beginning.size())) == CSTR_EQUAL;
}

/// Finds the next row from `start` on, around the end, whose text begins as given. @returns -1 for none.
int FindRow(int start, int rows, const std::string& beginning, const Typing::TextOfRow& textOf) {
    for (int step = 0; step < rows; ++step) {
        const int row = (start + step) % rows;
        if (BeginsWith(textOf(row), beginning)) {
            return row;
        }
    }
    return -1;
}

bool IsOneLetter(const std::string& text) {
    return std::all_of(text.begin(), text.end(), [&](char one) { return one == text[0]; });
}

}  // namespace

bool Typing::IsUnderWay() const {
    return !typed_.empty() && GetTickCount() - typedAt_ <= kPause;
}

int Typing::Find(char character, int row, int rows, const TextOfRow& textOf) {
    if (!IsUnderWay()) {
        typed_.clear();
    }
    typedAt_ = GetTickCount();
    typed_ += character;
    const std::string typed = typed_;
    // One letter again and again goes from one item to the next.
    const bool same = IsOneLetter(typed);
    int found = FindRow(same ? row + 1 : std::max(row, 0), rows, same ? typed.substr(0, 1) : typed, textOf);
    if (same && typed.size() > 1) {
        // Unless there is an item that begins with the letter as often as it was typed.
        const int exact = FindRow(std::max(row, 0), rows, typed, textOf);
        found = exact >= 0 ? exact : found;
    }
    return found;
}

}  // namespace platform::comctl
