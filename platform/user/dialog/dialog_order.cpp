// The order of controls: tab stops through nested pages, and groups of siblings.
#include <vector>

#include "user/dialog/dialog.h"

namespace platform::user {
namespace {

struct Stop {
    HWND window;
    bool eligible;
};

DWORD StyleOfItem(HWND window) {
    return static_cast<DWORD>(GetWindowLongA(window, GWL_STYLE));
}

/// Visible and enabled by its own style: the dialog itself may still be hidden.
bool IsReachable(HWND window) {
    return (StyleOfItem(window) & (WS_VISIBLE | WS_DISABLED)) == WS_VISIBLE;
}

bool IsContainer(HWND window) {
    return (GetWindowLongA(window, GWL_EXSTYLE) & WS_EX_CONTROLPARENT) != 0;
}

void CollectStops(HWND parent, std::vector<Stop>& stops) {
    for (HWND child = GetWindow(parent, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        const bool container = IsContainer(child);
        stops.push_back({child, !container && IsReachable(child) && (StyleOfItem(child) & WS_TABSTOP)});
        if (container && IsReachable(child))
            CollectStops(child, stops);
    }
}

constexpr size_t kNowhere = static_cast<size_t>(-1);

/// Where a control stands among the stops; a part of a control (the edit field of a combo box) stands where it does.
size_t PlaceOf(HWND dialog, HWND control, const std::vector<Stop>& stops) {
    for (; control && control != dialog; control = GetParent(control)) {
        for (size_t index = 0; index < stops.size(); ++index) {
            if (stops[index].window == control)
                return index;
        }
    }
    return kNowhere;
}

HWND NextTabStop(HWND dialog, HWND control, bool previous) {
    std::vector<Stop> stops;
    CollectStops(dialog, stops);
    const size_t count = stops.size();
    const size_t start = PlaceOf(dialog, control, stops);
    size_t index = start != kNowhere ? start : (previous ? 0 : count - 1);
    for (size_t step = 0; step < count; ++step) {
        index = previous ? (index + count - 1) % count : (index + 1) % count;
        if (stops[index].eligible)
            return stops[index].window;
    }
    return control == dialog ? nullptr : control;
}

HWND NextInGroup(HWND dialog, HWND control, bool previous) {
    while (control && control != dialog && GetParent(control) != dialog && !IsContainer(GetParent(control)))
        control = GetParent(control);
    const HWND parent = control && control != dialog ? GetParent(control) : dialog;
    if (!parent)
        return nullptr;

    std::vector<HWND> siblings;
    for (HWND child = GetWindow(parent, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
        siblings.push_back(child);
    if (siblings.empty())
        return nullptr;

    const bool given = control && control != dialog;
    size_t place = given ? 0 : (previous ? siblings.size() - 1 : 0);
    for (size_t index = 0; given && index < siblings.size(); ++index) {
        if (siblings[index] == control)
            place = index;
    }
    size_t first = place;
    while (first > 0 && !(StyleOfItem(siblings[first]) & WS_GROUP))
        --first;
    size_t end = place + 1;
    while (end < siblings.size() && !(StyleOfItem(siblings[end]) & WS_GROUP))
        ++end;

    const size_t count = end - first;
    size_t index = given ? place - first : (previous ? 0 : count - 1);
    for (size_t step = 0; step < count; ++step) {
        index = previous ? (index + count - 1) % count : (index + 1) % count;
        const HWND candidate = siblings[first + index];
        if (IsReachable(candidate) && !IsContainer(candidate))
            return candidate;
    }
    return given ? control : nullptr;
}

bool CheckArguments(HWND dialog, HWND control) {
    if (!IsWindow(dialog) || (control && !IsWindow(control))) {
        SetLastError(ERROR_INVALID_WINDOW_HANDLE);
        return false;
    }
    if (control && control != dialog && !IsChild(dialog, control)) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return false;
    }
    return true;
}

}  // namespace
}  // namespace platform::user

using namespace platform::user;

WINUSERAPI HWND WINAPI GetNextDlgTabItem(HWND dialog, HWND control, BOOL previous) try {
    return CheckArguments(dialog, control) ? NextTabStop(dialog, control, previous != FALSE) : nullptr;
} catch (const std::bad_alloc&) {
    return control;
}

WINUSERAPI HWND WINAPI GetNextDlgGroupItem(HWND dialog, HWND control, BOOL previous) try {
    return CheckArguments(dialog, control) ? NextInGroup(dialog, control, previous != FALSE) : nullptr;
} catch (const std::bad_alloc&) {
    return control;
}
