// The data block of a control's window: one zero-filled record that belongs to the window, from its creation message to
// its destruction message, and whose address the window keeps in a slot.
#pragma once

#include "core/globalblock.h"

namespace frame {

/// The place where windows of one class keep their record: GWLP_USERDATA or an offset into their extra bytes. The
/// offset may be known only once the class is registered, so a slot is made where it is needed; it is no more than a
/// number.
template <class Record>
class DataSlot {
  public:
    constexpr explicit DataSlot(int index) : index_(index) {}

    /// @return the window's record; null if it has none.
    Record* Get(HWND window) const {
        return reinterpret_cast<Record*>(GetWindowLongPtrA(window, index_));
    }

    /// Hands a record over to the window.
    Record* Put(HWND window, globalblock::Owner<Record> record) const {
        Record* const kept = record.release();
        SetWindowLongPtrA(window, index_, reinterpret_cast<LONG_PTR>(kept));
        return kept;
    }

    /// Takes the record from the window, whose slot is 0 from then on.
    globalblock::Owner<Record> Take(HWND window) const {
        globalblock::Owner<Record> record(Get(window));
        SetWindowLongPtrA(window, index_, 0);
        return record;
    }

  private:
    int index_;
};

}  // namespace frame
