/// @file paint_list.h
/// The children that a window tells to paint; a few fit without allocation.
#pragma once

#include <windows.h>

#include <array>
#include <cstddef>
#include <new>
#include <vector>

namespace platform::user {

class PaintList {
  public:
    void Add(HWND window) noexcept {
        if (count_ < few_.size()) {
            few_[count_++] = window;
            return;
        }
        try {
            if (many_.empty()) {
                many_.assign(few_.begin(), few_.end());
            }
            many_.push_back(window);
            ++count_;
        } catch (const std::bad_alloc&) {
            // Left out here, it gets its WM_PAINT from the queue.
        }
    }
    const HWND* begin() const noexcept {
        return many_.empty() ? few_.data() : many_.data();
    }
    const HWND* end() const noexcept {
        return begin() + (many_.empty() ? count_ : many_.size());
    }

  private:
    std::array<HWND, 16> few_{};
    std::vector<HWND> many_;
    std::size_t count_ = 0;
};

}  // namespace platform::user
