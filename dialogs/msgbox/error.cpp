// Error reports: a message composed of up to three parts.
#include "cvutil32/msgbox.h"
#include "cvutil32/util.h"
#include "dialogs/msgbox/resource.h"

namespace {

constexpr int kTitleSize = 256;
constexpr int kMessageSize = 512;
constexpr DWORD kJoinMask = 0x0003;

/// Appends a text, or the string of that identifier, as far as the buffer reaches.
void Append(char* buffer, int size, LPCSTR text, HINSTANCE module) {
    int const length = lstrlenA(buffer);
    int const room = size - length;
    if (!IS_INTRESOURCE(text)) {
        lstrcpynA(buffer + length, text, room);
    } else if (text && room > 1) {
        HINSTANCE const from = module ? module : UTIL_GetModuleInstance();
        if (LoadStringA(from, LOWORD(text), buffer + length, room) <= 0) {
            buffer[length] = '\0';
        }
    }
}

void AppendSeparator(char* buffer, int size, DWORD mode, bool beforeSecond) {
    LPCSTR text = nullptr;
    switch (mode) {
        case KVMB_SEP_SPACE:
            text = " ";
            break;
        case KVMB_SEP_REASON:
            text = beforeSecond ? MAKEINTRESOURCEA(CVMB_REASON) : "\n\n";
            break;
        case KVMB_SEP_LINE:
            text = "\n";
            break;
        default:
            text = "\n\n";
            break;
    }
    Append(buffer, size, text, nullptr);
}

HICON SystemIcon(DWORD style) {
    switch (style & MB_ICONMASK) {
        case MB_ICONHAND:
            return LoadIconA(nullptr, IDI_HAND);
        case MB_ICONQUESTION:
            return LoadIconA(nullptr, IDI_QUESTION);
        case MB_ICONEXCLAMATION:
            return LoadIconA(nullptr, IDI_EXCLAMATION);
        case MB_ICONASTERISK:
            return LoadIconA(nullptr, IDI_ASTERISK);
        default:
            return nullptr;
    }
}

}  // namespace

CVAPI(int)
KVMB_MessageBoxError(HWND owner, LPCSTR title, HINSTANCE titleModule, LPCSTR message, HINSTANCE messageModule,
                     LPCSTR second, HINSTANCE secondModule, LPCSTR third, HINSTANCE thirdModule, HICON icon,
                     DWORD reservedWord, DWORD style) {
    char titleText[kTitleSize] = {};
    char messageText[kMessageSize] = {};
    Append(titleText, kTitleSize, title, titleModule);
    Append(messageText, kMessageSize, message, messageModule);
    if (second) {
        AppendSeparator(messageText, kMessageSize, style & kJoinMask, true);
        Append(messageText, kMessageSize, second, secondModule);
    }
    if (third) {
        AppendSeparator(messageText, kMessageSize, style & kJoinMask, false);
        Append(messageText, kMessageSize, third, thirdModule);
    }

    KVMB_MESSAGEBOX box = {};
    box.owner = owner;
    box.title = titleText;
    box.text = messageText;
    box.icon = icon ? icon : SystemIcon(style);
    box.reservedWord = LOWORD(reservedWord);
    box.buttonCount = 1;
    box.buttons[0].kind = KVMB_BTN_OK;
    box.buttons[0].id = IDOK;
    return KVMB_MessageBoxExtended(&box);
}
