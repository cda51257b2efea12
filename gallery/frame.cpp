#include "gallery/frame.h"

#include "gallery/help.h"
#include "gallery/pages.h"
#include "gallery/pages/fields/dates_page.h"
#include "gallery/resource.h"
#include "gallery/settings.h"
#include "gallery/text.h"

#include <vector>

namespace gallery {
namespace {

constexpr char kLeft[] = "Left";
constexpr char kTop[] = "Top";
constexpr char kPage[] = "Page";

struct Frame {
    Frame(HWND dialog, Result& result) : dialog(dialog), result(result), pages(Pages().size()) {}

    HWND dialog;
    Result& result;
    std::vector<HWND> pages;  ///< null until a page is shown for the first time
    int shown = -1;
};

Frame* FrameOf(HWND dialog) {
    return reinterpret_cast<Frame*>(GetWindowLongPtrA(dialog, DWLP_USER));
}

HWND MakePage(const Frame& frame, const Page& page) {
    HWND window = CreateDialogParamA(InstanceOf(frame.dialog), page.dialog, frame.dialog, page.procedure, 0);
    if (window == nullptr) {
        return nullptr;
    }
    RECT area;
    GetWindowRect(GetDlgItem(frame.dialog, IDC_PAGE_AREA), &area);
    MapWindowPoints(nullptr, frame.dialog, reinterpret_cast<POINT*>(&area), 2);
    // Behind the list, so that the Tab key comes to the page's controls before the buttons.
    SetWindowPos(window, GetDlgItem(frame.dialog, IDC_PAGES), area.left, area.top, area.right - area.left,
                 area.bottom - area.top, SWP_NOACTIVATE);
    RestoreValues(window, page.kept);
    return window;
}

bool Turn(Frame& frame, int index) {
    const auto pages = Pages();
    if (index < 0 || index >= static_cast<int>(pages.size())) {
        return false;
    }
    HWND& page = frame.pages[static_cast<std::size_t>(index)];
    if (page == nullptr) {
        page = MakePage(frame, pages[static_cast<std::size_t>(index)]);
    }
    if (page == nullptr) {
        return false;
    }
    if (index == frame.shown) {
        return true;
    }
    HWND list = GetDlgItem(frame.dialog, IDC_PAGES);
    if (frame.shown >= 0) {
        HWND previous = frame.pages[static_cast<std::size_t>(frame.shown)];
        // A hidden control keeps the focus and would go on taking keys.
        if (IsChild(previous, GetFocus())) {
            SetFocus(list);
        }
        ShowWindow(previous, SW_HIDE);
    }
    ShowWindow(page, SW_SHOW);
    frame.shown = index;
    SendMessageA(list, LB_SETCURSEL, static_cast<WPARAM>(index), 0);
    return true;
}

// Where the window stood, unless its caption would lie outside the screen now.
void RestorePlace(HWND dialog) {
    const auto left = KeptNumber(kLeft);
    const auto top = KeptNumber(kTop);
    if (!left || !top) {
        return;
    }
    RECT rect;
    GetWindowRect(dialog, &rect);
    const int captionHeight = GetSystemMetrics(SM_CYCAPTION);
    if (*left + (rect.right - rect.left) / 2 > 0 && *left + captionHeight < GetSystemMetrics(SM_CXSCREEN) &&
        *top >= 0 && *top + captionHeight < GetSystemMetrics(SM_CYSCREEN)) {
        SetWindowPos(dialog, nullptr, *left, *top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
}

void KeepPlace(const Frame& frame) {
    RECT rect;
    if (!IsIconic(frame.dialog) && GetWindowRect(frame.dialog, &rect)) {
        KeepNumber(kLeft, rect.left);
        KeepNumber(kTop, rect.top);
    }
    KeepNumber(kPage, frame.shown);
}

void OnInitDialog(HWND dialog, Result& result) {
    auto* frame = new Frame(dialog, result);
    SetWindowLongPtrA(dialog, DWLP_USER, reinterpret_cast<LONG_PTR>(frame));
    for (const Page& page : Pages()) {
        const std::string title = LoadText(dialog, page.titleId);
        SendDlgItemMessageA(dialog, IDC_PAGES, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(title.c_str()));
    }
    RestorePlace(dialog);
    // The page of dates is there in any case: it knows the date that OK prints.
    Turn(*frame, kDatesPage);
    Turn(*frame, KeptNumber(kPage).value_or(kDatesPage));
}

void Accept(Frame& frame) {
    KeepPlace(frame);
    const auto pages = Pages();
    for (std::size_t index = 0; index < pages.size(); ++index) {
        if (HWND page = frame.pages[index]) {
            SendMessageA(page, kKeepValues, 0, 0);
            KeepValues(page, pages[index].kept);
        }
    }
    frame.result.isoDate = ChosenIsoDate(frame.pages[kDatesPage]);
    frame.result.accepted = !frame.result.isoDate.empty();
}

void OnCommand(Frame& frame, int id, int code) {
    switch (id) {
        case IDC_PAGES:
            if (code == LBN_SELCHANGE) {
                Turn(frame, static_cast<int>(SendDlgItemMessageA(frame.dialog, IDC_PAGES, LB_GETCURSEL, 0, 0)));
            }
            break;
        case IDOK:
            Accept(frame);
            DestroyWindow(frame.dialog);
            break;
        case IDCANCEL:
            DestroyWindow(frame.dialog);
            break;
        default:
            break;
    }
}

// Only windows of the top level are told of new settings.
void TellPages(const Frame& frame, LPARAM section) {
    for (HWND page : frame.pages) {
        if (page != nullptr) {
            SendMessageA(page, WM_WININICHANGE, 0, section);
        }
    }
}

void OnDestroy(HWND dialog) {
    delete FrameOf(dialog);
    SetWindowLongPtrA(dialog, DWLP_USER, 0);
    PostQuitMessage(0);
}

INT_PTR CALLBACK FrameProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        OnInitDialog(dialog, *reinterpret_cast<Result*>(lParam));
        // The page's first field, where a visitor begins.
        const Frame& frame = *FrameOf(dialog);
        SetFocus(GetNextDlgTabItem(frame.pages[static_cast<std::size_t>(frame.shown)], nullptr, FALSE));
        return FALSE;
    }
    Frame* frame = FrameOf(dialog);
    if (frame == nullptr) {
        return FALSE;
    }
    switch (message) {
        case WM_COMMAND:
            OnCommand(*frame, LOWORD(wParam), HIWORD(wParam));
            return TRUE;
        case WM_HELP:
            return ShowHelp(dialog, *reinterpret_cast<const HELPINFO*>(lParam)) ? TRUE : FALSE;
        case WM_CONTEXTMENU:
            return ShowContextMenuHelp(dialog, reinterpret_cast<HWND>(wParam), lParam) ? TRUE : FALSE;
        case WM_WININICHANGE:
            TellPages(*frame, lParam);
            return TRUE;
        case WM_DESTROY:
            OnDestroy(dialog);
            return TRUE;
        default:
            return FALSE;
    }
}

}  // namespace

HWND OpenFrame(HINSTANCE instance, Result& result) {
    return CreateDialogParamA(instance, MAKEINTRESOURCEA(IDD_FRAME), nullptr, FrameProcedure,
                              reinterpret_cast<LPARAM>(&result));
}

bool ShowPage(HWND frame, int index) {
    return Turn(*FrameOf(frame), index);
}

void FollowFields(HWND window) {
    if (const Frame* frame = FrameOf(window); frame != nullptr && frame->shown >= 0) {
        SendMessageA(frame->pages[static_cast<std::size_t>(frame->shown)], kFollowFields, 0, 0);
    }
}

bool TurnPageByKey(HWND window, const MSG& message) {
    if (message.message != WM_KEYDOWN || GetKeyState(VK_CONTROL) >= 0 || !IsChild(window, message.hwnd)) {
        return false;
    }
    Frame* frame = FrameOf(window);
    const int count = static_cast<int>(Pages().size());
    switch (message.wParam) {
        case VK_TAB:
            Turn(*frame, (frame->shown + (GetKeyState(VK_SHIFT) < 0 ? count - 1 : 1)) % count);
            return true;
        case VK_NEXT:
            Turn(*frame, (frame->shown + 1) % count);
            return true;
        case VK_PRIOR:
            Turn(*frame, (frame->shown + count - 1) % count);
            return true;
        default:
            return false;
    }
}

}  // namespace gallery
