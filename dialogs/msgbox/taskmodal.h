// The windows that a task-modal box disables, kept in the box's record.
#pragma once

#include "cvutil32/msgbox.h"

namespace msgbox {

/// Disables the enabled top-level windows of the owner's thread, except the dialog, and lists them in the record.
void DisableOthers(HWND dialog, KVMB_MESSAGEBOX& box);

/// Enables them again and frees the list, whose handle stays in the record.
void EnableOthers(KVMB_MESSAGEBOX const& box);

}  // namespace msgbox
