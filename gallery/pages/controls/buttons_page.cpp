#include "gallery/pages/controls/buttons_page.h"

#include "gallery/pages/controls/buttons_ids.h"
#include "gallery/text.h"

#include <array>

namespace gallery {
namespace {

constexpr int kClockWidth = 32;
constexpr COLORREF kClockBackground = RGB(255, 0, 255);

/// A button that nobody clicks: the page draws it with the library's routines.
struct Sample {
    BOOL pressed;
    BOOL outline;
    BOOL focus;
    BOOL stretch;
};

constexpr std::array<Sample, 6> kSamples = {{
    {FALSE, FALSE, FALSE, FALSE},  // raised
    {TRUE, FALSE, FALSE, FALSE},   // sunken
    {FALSE, TRUE, FALSE, FALSE},   // outlined
    {TRUE, TRUE, FALSE, FALSE},    // flat
    {FALSE, FALSE, TRUE, FALSE},   // focused
    {FALSE, FALSE, FALSE, TRUE},   // stretched
}};

struct ButtonsState {
    explicit ButtonsState(HINSTANCE instance)
        : picture(LoadBitmapA(instance, MAKEINTRESOURCEA(IDB_DISK))),
          mask(LoadBitmapA(instance, MAKEINTRESOURCEA(IDB_DISK_MASK))) {}
    ~ButtonsState() {
        DeleteObject(picture);
        DeleteObject(mask);
    }
    ButtonsState(const ButtonsState&) = delete;
    ButtonsState& operator=(const ButtonsState&) = delete;

    HBITMAP picture;  ///< of the samples
    HBITMAP mask;
    unsigned clicks = 0;
};

ButtonsState* StateOf(HWND page) {
    return reinterpret_cast<ButtonsState*>(GetWindowLongPtrA(page, DWLP_USER));
}

void ShowClicks(HWND page, unsigned clicks) {
    char text[80];
    wsprintfA(text, LoadText(page, IDS_BUTTONS_CLICKED).c_str(), clicks);
    SetDlgItemTextA(page, IDC_BUTTONS_CLICKS, text);
}

void ShowPlaying(HWND page, bool playing) {
    const UINT text = playing ? IDS_BUTTONS_PLAYING : IDS_BUTTONS_STOPPED;
    SetDlgItemTextA(page, IDC_BUTTONS_STATE, LoadText(page, text).c_str());
    EnableWindow(GetDlgItem(page, IDC_BUTTONS_STOP), playing);
}

void SetPicture(HWND page, int button, int picture, int mask) {
    GRBUTTON_SetBitmaps(GetDlgItem(page, button), InstanceOf(page), MAKEINTRESOURCEA(picture),
                        mask ? MAKEINTRESOURCEA(mask) : nullptr);
}

void OnInitDialog(HWND page) {
    SetWindowLongPtrA(page, DWLP_USER, reinterpret_cast<LONG_PTR>(new ButtonsState(InstanceOf(page))));
    SetPicture(page, IDC_BUTTONS_PLAIN, IDB_FOLDER, 0);
    SetPicture(page, IDC_BUTTONS_MASKED, IDB_FOLDER, IDB_FOLDER_MASK);
    SetPicture(page, IDC_BUTTONS_PRESSED, IDB_FOLDER, IDB_FOLDER_MASK);
    SetPicture(page, IDC_BUTTONS_DISABLED, IDB_FOLDER, IDB_FOLDER_MASK);
    SetPicture(page, IDC_BUTTONS_LARGE, IDB_DIAL, IDB_DIAL_MASK);
    SendDlgItemMessageA(page, IDC_BUTTONS_PRESSED, BM_SETSTATE, TRUE, 0);
    ShowClicks(page, 0);

    HWND clock = GetDlgItem(page, IDC_BUTTONS_CLOCK);
    ANIMATE_Initialize(clock, InstanceOf(page), MAKEINTRESOURCEA(IDB_CLOCK), kClockWidth, kClockBackground);
    ShowPlaying(page, false);
}

void DrawSample(const ButtonsState& state, const DRAWITEMSTRUCT& item) {
    const UINT index = item.CtlID - IDC_BUTTONS_SAMPLE;
    if (index >= kSamples.size()) {
        return;
    }
    const Sample& sample = kSamples[index];
    RECT face;
    GRBUTTON_DrawButtonFrame(item.hDC, &item.rcItem, &face, sample.pressed, sample.outline, nullptr, nullptr, nullptr,
                             nullptr);
    GRBUTTON_DrawButtonFace(item.hDC, &face, sample.pressed, sample.focus, FALSE, state.picture, state.mask, nullptr,
                            sample.stretch);
}

void OnCommand(HWND page, ButtonsState& state, int id) {
    HWND clock = GetDlgItem(page, IDC_BUTTONS_CLOCK);
    switch (id) {
        case IDC_BUTTONS_PRESSED:
            // A click leaves it raised; it is the one that is always held.
            SendDlgItemMessageA(page, id, BM_SETSTATE, TRUE, 0);
            [[fallthrough]];
        case IDC_BUTTONS_PLAIN:
        case IDC_BUTTONS_MASKED:
        case IDC_BUTTONS_LARGE:
            ShowClicks(page, ++state.clicks);
            break;
        case IDC_BUTTONS_START:
            ShowPlaying(page, ANIMATE_Start(clock) != FALSE);
            break;
        case IDC_BUTTONS_STOP:
            ANIMATE_Stop(clock);
            // The button that is about to be disabled must keep neither the focus nor the default button's border; the
            // dialog moves both.
            SendMessageA(GetParent(page), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(GetDlgItem(page, IDC_BUTTONS_START)),
                         TRUE);
            ShowPlaying(page, false);
            break;
        default:
            break;
    }
}

// The animation releases its pictures only when it is told to close.
void OnDestroy(HWND page) {
    SendDlgItemMessageA(page, IDC_BUTTONS_CLOCK, WM_CLOSE, 0, 0);
    delete StateOf(page);
    SetWindowLongPtrA(page, DWLP_USER, 0);
}

INT_PTR CALLBACK ButtonsProcedure(HWND page, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        OnInitDialog(page);
        return TRUE;
    }
    ButtonsState* state = StateOf(page);
    if (state == nullptr) {
        return FALSE;
    }
    switch (message) {
        case WM_DRAWITEM:
            DrawSample(*state, *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
            return TRUE;
        case WM_COMMAND:
            if (HIWORD(wParam) == BN_CLICKED) {
                OnCommand(page, *state, LOWORD(wParam));
            }
            return TRUE;
        case WM_DESTROY:
            OnDestroy(page);
            return TRUE;
        default:
            return FALSE;
    }
}

}  // namespace

Page const& ButtonsPage() {
    static const Page page = {IDS_BUTTONS_TITLE, MAKEINTRESOURCEA(IDD_BUTTONS), ButtonsProcedure};
    return page;
}

}  // namespace gallery
