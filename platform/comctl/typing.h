/// @file typing.h
/// Typing to find: what was typed within a short while, and the row that it leads to.
#pragma once

#include <windows.h>

#include <functional>
#include <string>

namespace platform::comctl {

class Typing {
  public:
    using TextOfRow = std::function<std::string(int row)>;

    /// Takes a character in. @returns the row to go to from `row`, -1 for none. Rows may go while their texts are asked
    /// for; the text of a row that is gone is empty.
    int Find(char character, int row, int rows, const TextOfRow& textOf);
    /// @returns whether another character would go on with what was typed.
    bool IsUnderWay() const;
    /// A key that moves, and typing begins anew.
    void OnKey(WPARAM key) {
        if (key == VK_BACK || (key >= VK_PRIOR && key <= VK_DOWN)) {
            Forget();
        }
    }
    /// Typing begins anew: the rows are others, or the user has gone to another.
    void Forget() {
        typed_.clear();
    }

  private:
    std::string typed_;
    DWORD typedAt_ = 0;
};

}  // namespace platform::comctl
