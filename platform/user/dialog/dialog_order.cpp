// The order of controls: tab stops through nested pages, and groups of siblings.
#include <algorithm>
#include <vector>

#include "user/dialog/dialog.h"

namespace platform::user {
namespace {

DWORD StyleOfItem(HWND window) {
    return static_cast<DWORD>(GetWindowLongA(window, GWL_STYLE));
}

bool IsContainer(HWND window) {
    return (GetWindowLongA(window, GWL_EXSTYLE) & WS_EX_CONTROLPARENT) != 0;
}

}  // namespace

bool IsReachable(HWND window) {
    return (StyleOfItem(window) & (WS_VISIBLE | WS_DISABLED)) == WS_VISIBLE;
}

void CollectMembers(HWND parent, std::vector<HWND>& members) {
    for (HWND child = GetWindow(parent, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        if (IsContainer(child) && IsReachable(child))
            CollectMembers(child, members);
        else
            members.push_back(child);
    }
}

namespace {

struct Stop {
    HWND window;
    bool eligible;

    bool operator==(HWND other) const {
        return window == other;
    }
};

void CollectStops(HWND parent, std::vector<Stop>& stops) {
    for (HWND child = GetWindow(parent, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        const bool container = IsContainer(child);
        stops.push_back({child, !container && IsReachable(child) && (StyleOfItem(child) & WS_TABSTOP)});
        if (container && IsReachable(child))
            CollectStops(child, stops);
    }
}

constexpr size_t kNowhere = static_cast<size_t>(-1);

/// Where a control stands in a list of them; a part of a control (the edit field of a combo box) stands where it does.
template <class List>
size_t PlaceOf(HWND dialog, HWND control, const List& list) {
    for (; control && control != dialog; control = GetParent(control)) {
        const auto found = std::find(list.begin(), list.end(), control);
        if (found != list.end())
            return static_cast<size_t>(found - list.begin());
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
    std::vector<HWND> members;
    CollectMembers(dialog, members);
    const size_t size = members.size();
    if (size == 0)
        return nullptr;
    const bool given = control && control != dialog;
    const size_t place = given ? PlaceOf(dialog, control, members) : (previous ? size - 1 : 0);
    if (place == kNowhere)
        return control;
    if (!given && IsReachable(members[place]))
        return members[place];
    // The last group goes on at the beginning when nothing begins one there.
    const auto begins = [&](size_t index) { return (StyleOfItem(members[index]) & WS_GROUP) != 0; };
    size_t first = place;
    for (size_t step = 1; step < size && !begins(first); ++step)
        first = (first + size - 1) % size;
    size_t count = 1;
    while (count < size && !begins((first + count) % size))
        ++count;

    size_t index = (place + size - first) % size;
    for (size_t step = 0; step < count; ++step) {
        index = previous ? (index + count - 1) % count : (index + 1) % count;
        const HWND candidate = members[(first + index) % size];
        if (IsReachable(candidate))
            return candidate;
    }
    return given ? control : nullptr;
}

bool CheckArguments(HWND dialog, HWND control) {
    if (!IsWindow(dialog) || (control && !IsWindow(control))) {
        return Fail(ERROR_INVALID_WINDOW_HANDLE, false);
    }
    if (control && control != dialog && !IsChild(dialog, control)) {
        return Fail(ERROR_INVALID_PARAMETER, false);
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
