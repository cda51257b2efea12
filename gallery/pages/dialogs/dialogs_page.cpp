#include "gallery/pages/dialogs/dialogs_page.h"

#include "gallery/pages/dialogs/dialogs_ids.h"
#include "gallery/text.h"

#include <cvutil32/about.h>
#include <cvutil32/msgbox.h>

#include <algorithm>
#include <string>
#include <vector>

namespace gallery {
namespace {

constexpr LONG kFirstButton = 101;  // identifiers of the boxes' buttons; none of them is IDCANCEL
constexpr char kLabelSeparator = ';';
constexpr std::size_t kLongestLabel = 80;  // that the result shows of one

/// The icons to choose from, in the order of the radio buttons.
struct IconChoice {
    LPCSTR name;
    DWORD style;
};
const IconChoice kIcons[] = {{nullptr, 0},
                             {IDI_HAND, MB_ICONHAND},
                             {IDI_QUESTION, MB_ICONQUESTION},
                             {IDI_EXCLAMATION, MB_ICONEXCLAMATION},
                             {IDI_ASTERISK, MB_ICONASTERISK}};

std::string TextOf(HWND page, int id) {
    const HWND control = GetDlgItem(page, id);
    std::string text(static_cast<std::size_t>(GetWindowTextLengthA(control)) + 1, '\0');
    text.resize(static_cast<std::size_t>(GetWindowTextA(control, text.data(), static_cast<int>(text.size()))));
    return text;
}

std::vector<std::string> LabelsOf(HWND page) {
    std::vector<std::string> labels;
    const std::string all = TextOf(page, IDC_DIALOGS_LABELS);
    for (std::size_t begin = 0; begin < all.size() && labels.size() < KVMB_MAXBUTTONS;) {
        const std::size_t end = std::min(all.find(kLabelSeparator, begin), all.size());
        labels.push_back(all.substr(begin, end - begin));
        begin = end + 1;
    }
    return labels;
}

const IconChoice& ChosenIcon(HWND page) {
    for (int id = IDC_DIALOGS_HAND; id <= IDC_DIALOGS_ASTERISK; ++id) {
        if (IsDlgButtonChecked(page, id)) {
            return kIcons[id - IDC_DIALOGS_NO_ICON];
        }
    }
    return kIcons[0];
}

void ShowIcon(HWND page) {
    const LPCSTR name = ChosenIcon(page).name;
    const HICON icon = name ? LoadIconA(nullptr, name) : nullptr;
    SendDlgItemMessageA(page, IDC_DIALOGS_ICON, STM_SETICON, reinterpret_cast<WPARAM>(icon), 0);
}

void ShowResult(HWND page, UINT text, int number, const char* label = "") {
    char line[256];
    wsprintfA(line, LoadText(page, text).c_str(), number, label);
    SetDlgItemTextA(page, IDC_DIALOGS_RESULT, line);
}

void ShowMessageBox(HWND page) {
    const std::string title = TextOf(page, IDC_DIALOGS_CAPTION);
    const std::string message = TextOf(page, IDC_DIALOGS_MESSAGE);
    const std::vector<std::string> labels = LabelsOf(page);
    const LPCSTR icon = ChosenIcon(page).name;
    KVMB_MESSAGEBOX box = {};
    box.owner = GetAncestor(page, GA_ROOT);
    box.title = title.c_str();
    box.text = message.c_str();
    box.icon = icon ? LoadIconA(nullptr, icon) : nullptr;
    box.flags = static_cast<WORD>((IsDlgButtonChecked(page, IDC_DIALOGS_NARROW) ? KVMB_SMALL : 0) |
                                  (IsDlgButtonChecked(page, IDC_DIALOGS_WIDE) ? KVMB_LARGE : 0) |
                                  (IsDlgButtonChecked(page, IDC_DIALOGS_TASKMODAL) ? KVMB_TASKMODAL : 0));
    // Counted from 1 by people, from 0 by the box, which makes anything else its first button.
    box.defaultButton = static_cast<WORD>(GetDlgItemInt(page, IDC_DIALOGS_DEFAULT, nullptr, FALSE) - 1);
    box.buttonCount = static_cast<WORD>(labels.size());
    for (std::size_t i = 0; i < labels.size(); ++i) {
        box.buttons[i].label = labels[i].c_str();
        box.buttons[i].id = kFirstButton + static_cast<LONG>(i);
    }
    const int result = KVMB_MessageBoxExtended(&box);
    if (result >= kFirstButton) {
        std::string label = labels[static_cast<std::size_t>(result - kFirstButton)].substr(0, kLongestLabel);
        std::erase(label, '&');
        ShowResult(page, IDS_DIALOGS_BUTTON, result, label.c_str());
    } else {
        ShowResult(page, result ? IDS_DIALOGS_DISMISSED : IDS_DIALOGS_FAILED, result);
    }
}

void ShowErrorReport(HWND page) {
    const std::string title = TextOf(page, IDC_DIALOGS_CAPTION);
    const std::string message = TextOf(page, IDC_DIALOGS_MESSAGE);
    const std::string reason = TextOf(page, IDC_DIALOGS_REASON);
    const int result = KVMB_MessageBoxError(GetAncestor(page, GA_ROOT), title.c_str(), nullptr, message.c_str(),
                                            nullptr, reason.empty() ? nullptr : reason.c_str(), nullptr, nullptr,
                                            nullptr, nullptr, 0, KVMB_SEP_REASON | ChosenIcon(page).style);
    ShowResult(page, result == IDOK ? IDS_DIALOGS_OK : result ? IDS_DIALOGS_DISMISSED : IDS_DIALOGS_FAILED, result);
}

void ShowAboutBox(HWND page) {
    const std::string product = TextOf(page, IDC_DIALOGS_CAPTION);
    const std::string version = TextOf(page, IDC_DIALOGS_REASON);
    const std::string notice = TextOf(page, IDC_DIALOGS_MESSAGE);
    const LPCSTR icon = ChosenIcon(page).name;
    const int result = ABOUT_DisplayAboutBox(GetAncestor(page, GA_ROOT), nullptr, nullptr, product.c_str(),
                                             version.c_str(), notice.c_str(), icon);
    ShowResult(page, result == 0 ? IDS_DIALOGS_CLOSED : IDS_DIALOGS_FAILED, result);
}

void OnInitDialog(HWND page) {
    const HINSTANCE instance = InstanceOf(page);
    SetDlgItemTextA(page, IDC_DIALOGS_CAPTION, LoadText(instance, IDS_DIALOGS_CAPTION_TEXT).c_str());
    SetDlgItemTextA(page, IDC_DIALOGS_MESSAGE, LoadText(instance, IDS_DIALOGS_MESSAGE_TEXT).c_str());
    SetDlgItemTextA(page, IDC_DIALOGS_REASON, LoadText(instance, IDS_DIALOGS_REASON_TEXT).c_str());
    SetDlgItemTextA(page, IDC_DIALOGS_LABELS, LoadText(instance, IDS_DIALOGS_LABELS_TEXT).c_str());
    SetDlgItemInt(page, IDC_DIALOGS_DEFAULT, 1, FALSE);
    CheckRadioButton(page, IDC_DIALOGS_NO_ICON, IDC_DIALOGS_ASTERISK, IDC_DIALOGS_QUESTION);
    CheckRadioButton(page, IDC_DIALOGS_BY_LENGTH, IDC_DIALOGS_WIDE, IDC_DIALOGS_BY_LENGTH);
    ShowIcon(page);
}

void OnCommand(HWND page, int id) {
    switch (id) {
        case IDC_DIALOGS_NO_ICON:
        case IDC_DIALOGS_HAND:
        case IDC_DIALOGS_QUESTION:
        case IDC_DIALOGS_EXCLAMATION:
        case IDC_DIALOGS_ASTERISK:
            ShowIcon(page);
            break;
        case IDC_DIALOGS_BOX:
            ShowMessageBox(page);
            break;
        case IDC_DIALOGS_ERROR:
            ShowErrorReport(page);
            break;
        case IDC_DIALOGS_ABOUT:
            ShowAboutBox(page);
            break;
        default:
            break;
    }
}

INT_PTR CALLBACK DialogsPageProcedure(HWND page, UINT message, WPARAM wParam, LPARAM) {
    switch (message) {
        case WM_INITDIALOG:
            OnInitDialog(page);
            return TRUE;
        case WM_COMMAND:
            OnCommand(page, LOWORD(wParam));
            return TRUE;
        default:
            return FALSE;
    }
}

}  // namespace

Page const& DialogsPage() {
    static const KeptValue kept[] = {
        {IDC_DIALOGS_CAPTION, "BoxTitle"},
        {IDC_DIALOGS_MESSAGE, "BoxMessage"},
        {IDC_DIALOGS_REASON, "BoxReason"},
        {IDC_DIALOGS_LABELS, "BoxButtons"},
        {IDC_DIALOGS_DEFAULT, "BoxDefault"},
        {IDC_DIALOGS_NO_ICON, "BoxNoIcon"},
        {IDC_DIALOGS_HAND, "BoxHand"},
        {IDC_DIALOGS_QUESTION, "BoxQuestion"},
        {IDC_DIALOGS_EXCLAMATION, "BoxExclamation"},
        {IDC_DIALOGS_ASTERISK, "BoxAsterisk"},
        {IDC_DIALOGS_BY_LENGTH, "BoxByLength"},
        {IDC_DIALOGS_NARROW, "BoxNarrow"},
        {IDC_DIALOGS_WIDE, "BoxWide"},
        {IDC_DIALOGS_TASKMODAL, "BoxTaskModal"},
    };
    static const Page page{IDS_DIALOGS_TITLE, MAKEINTRESOURCEA(IDD_DIALOGS), DialogsPageProcedure, kept};
    return page;
}

}  // namespace gallery
