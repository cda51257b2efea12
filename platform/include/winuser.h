/// @file winuser.h
/// Windows, messages, input, painting and dialogs.
#pragma once

#include "winuser/strings.h"
#include "winuser/class.h"
#include "winuser/window.h"
#include "winuser/icon.h"
#include "winuser/metrics.h"
#include "winuser/messages.h"
#include "winuser/notify.h"
#include "winuser/input.h"
#include "winuser/drawing.h"
#include "winuser/painting.h"
#include "winuser/dialogs.h"
#include "winuser/controls.h"
#include "winuser/edit.h"
#include "winuser/clipboard.h"
#include "winuser/station.h"
#include "winuser/help.h"
#include "winuser/listbox.h"
#include "winuser/scrollbar.h"
#include "winuser/combobox.h"
