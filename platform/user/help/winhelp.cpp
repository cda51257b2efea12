// Help topics for controls.
#include <windows.h>

#include <exception>
#include <string>

#include "user/help/help_popup.h"
#include "user/help/help_topics.h"
#include "user/model/window.h"

using namespace platform::user;

namespace {

/// @returns the topic of a control or of what holds it, 0 for none.
DWORD TopicOf(const DWORD* table, HWND control) {
    for (; control; control = (GetWindowLongA(control, GWL_STYLE) & WS_CHILD) ? GetParent(control) : nullptr) {
        const auto id = static_cast<DWORD>(GetDlgCtrlID(control));
        for (const DWORD* pair = table; id && pair[0]; pair += 2) {
            if (pair[0] == id) {
                return pair[1];
            }
        }
    }
    return 0;
}

POINT Below(HWND window) {
    RECT place = {};
    GetWindowRect(window, &place);
    return {(place.left + place.right) / 2, place.bottom};
}

}  // namespace

BOOL WINAPI WinHelpA(HWND window, LPCSTR helpFile, UINT command, ULONG_PTR data) {
    POINT at = {};
    GetCursorPos(&at);
    DWORD topic = 0;
    switch (command) {
        case HELP_QUIT:
            CloseHelpPopup();
            return TRUE;
        case HELP_CONTEXT:
        case HELP_CONTEXTPOPUP:
            topic = static_cast<DWORD>(data);
            break;
        case HELP_CONTEXTMENU: {
            // Dialogs name the control that was clicked, or themselves when it is not enabled.
            const auto* table = reinterpret_cast<const DWORD*>(data);
            topic = table ? TopicOf(table, window) : 0;
            topic = topic || !table ? topic : TopicOf(table, WindowFromPoint(at));
            break;
        }
        case HELP_WM_HELP:
            topic = data && window ? TopicOf(reinterpret_cast<const DWORD*>(data), window) : 0;
            at = window ? Below(window) : at;
            break;
        default:
            return FALSE;
    }
    try {
        const std::string text = FindTopic(ReadTopics(helpFile), topic);
        return !text.empty() && ShowHelpPopup(window ? GetAncestor(window, GA_ROOT) : nullptr, at, text);
    } catch (const std::exception&) {
        return Fail(ERROR_NOT_ENOUGH_MEMORY, FALSE);
    }
}
