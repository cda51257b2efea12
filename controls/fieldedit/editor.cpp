#include "controls/fieldedit/editor.h"

#include "controls/frame/classes.h"
#include "controls/frame/windowdata.h"

#include <utility>

namespace fieldedit {

namespace {

constexpr frame::DataSlot<Data> kSlot(GWLP_USERDATA);

void Format(Rules const& rules, Data& data) {
    rules.Format(data.value, data.text, rules.TextSize());
}

BOOL Create(Rules const& rules, HWND field) {
    auto data = globalblock::Make<Data>();
    if (!data) {
        SetWindowLongPtrA(field, GWLP_USERDATA, 0);
        return FALSE;
    }
    SetWindowLongPtrA(field, GWL_STYLE, GetWindowLongPtrA(field, GWL_STYLE) | WS_TABSTOP);
    data->value = rules.InitialValue();
    Format(rules, *data);
    rules.ReloadSettings();
    kSlot.Put(field, std::move(data));
    return TRUE;
}

void Destroy(HWND field) {
    auto const data = kSlot.Take(field);
    if (data && data->caretBitmap) {
        DeleteObject(data->caretBitmap);
    }
}

void SetFont(HWND field, WPARAM font, LPARAM redraw) {
    if (Data* const data = DataOf(field)) {
        data->font = reinterpret_cast<HFONT>(font);
    }
    if (redraw) {
        Repaint(field);
    }
}

// The text keeps its old form until the value changes next, while the fields are looked up in the new order at once.
// Callers rely on it.
void TakeSettings(Rules const& rules, HWND field, LPCSTR section) {
    if (section && lstrcmpiA(section, "Intl") == 0) {
        rules.ReloadSettings();
        Repaint(field);
    }
}

void MoveByKey(Rules const& rules, HWND field, WPARAM key) {
    int const length = static_cast<int>(rules.TextLength());
    switch (key) {
        case VK_LEFT:
        case VK_BACK:
            return MoveCaret(rules, field, -1);
        case VK_RIGHT:
            return MoveCaret(rules, field, 1);
        case VK_HOME:
            return MoveCaret(rules, field, -length);
        case VK_END:
            return MoveCaret(rules, field, length);
        default:
            return;
    }
}

/// @return the data of a field whose value can be changed at the caret. An empty field gets the value of now instead,
/// and the input that caused it is spent.
Data* ReadyToChange(Rules const& rules, HWND field) {
    Data* const data = DataOf(field);
    if (data && !data->hasValue) {
        SetValue(rules, field, nullptr, TRUE);
        return nullptr;
    }
    return data && !rules.IsSeparator(data->caretPos) ? data : nullptr;
}

void TypeCharacter(Rules const& rules, HWND field, WPARAM character) {
    Data* const data = ReadyToChange(rules, field);
    int advance = 0;
    if (!data || !rules.Type(static_cast<char>(character), data->caretPos, data->value, advance)) {
        return;
    }
    MoveCaret(rules, field, advance);
    if (rules.IsSeparator(data->caretPos)) {
        MoveCaret(rules, field, 1);
    }
    Format(rules, *data);
    Repaint(field);
}

void StepField(Rules const& rules, HWND field, WORD code) {
    Data* const data = ReadyToChange(rules, field);
    if (data && rules.Step(code, data->caretPos, data->value)) {
        Format(rules, *data);
        Repaint(field);
    }
}

void PressButton(HWND field) {
    if (Data* const data = DataOf(field)) {
        data->buttonDown = 1;
    }
}

}  // namespace

Data* DataOf(HWND field) {
    return kSlot.Get(field);
}

BOOL RegisterFieldClass(HINSTANCE instance, LPCSTR name, WNDPROC procedure) {
    return frame::RegisterOwnClass(instance, {.name = name,
                                              .style = CS_HREDRAW | CS_VREDRAW,
                                              .procedure = procedure,
                                              .extraBytes = 0,
                                              .cursor = IDC_IBEAM,
                                              .background = nullptr});
}

BOOL SetValue(Rules const& rules, HWND field, SYSTEMTIME const* value, BOOL redraw) {
    if (!field || !IsWindow(field)) {
        return FALSE;
    }
    BOOL taken = FALSE;
    if (Data* const data = DataOf(field)) {
        SYSTEMTIME wanted;
        if (value) {
            wanted = *value;
        } else {
            GetLocalTime(&wanted);
        }
        if (rules.IsValid(wanted)) {
            data->hasValue = TRUE;
            data->value = rules.Reduced(wanted);
            taken = rules.Format(data->value, data->text, rules.TextSize());
        }
    }
    if (redraw) {
        Repaint(field);
    }
    return taken;
}

SYSTEMTIME const* GetValue(Rules const& rules, HWND field) {
    if (!field || !IsWindow(field)) {
        return nullptr;
    }
    Data const* const data = DataOf(field);
    return data && data->hasValue && rules.IsValid(data->value) ? &data->value : nullptr;
}

LRESULT WindowProcedure(Rules const& rules, HWND field, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_NCCREATE:
            return Create(rules, field);
        case WM_NCDESTROY:
            return Destroy(field), 0;
        case WM_SETFOCUS:
            return ShowFocus(rules, field), 0;
        case WM_KILLFOCUS:
            return HideFocus(field), 0;
        case WM_WINDOWPOSCHANGED:
            return PlaceCaret(rules, field), 0;
        case WM_PAINT:
            return Paint(rules, field), 0;
        case WM_ERASEBKGND:
            return FillBackground(field, reinterpret_cast<HDC>(wParam));
        case WM_SETFONT:
            return SetFont(field, wParam, lParam), 0;
        case WM_WININICHANGE:
            return TakeSettings(rules, field, reinterpret_cast<LPCSTR>(lParam)), 0;
        case WM_GETDLGCODE:
            return DLGC_WANTARROWS | DLGC_WANTCHARS;
        case WM_KEYDOWN:
            return MoveByKey(rules, field, wParam), 0;
        case WM_CHAR:
            return TypeCharacter(rules, field, wParam), 0;
        case WM_VSCROLL:
            return StepField(rules, field, LOWORD(wParam)), 0;
        case WM_LBUTTONDOWN:
            return PressButton(field), 0;
        case WM_LBUTTONUP:
            return ReleaseButton(rules, field, lParam), 0;
        default:
            return DefWindowProcA(field, message, wParam, lParam);
    }
}

}  // namespace fieldedit
