// The measures of the 1995 scheme, and the settings that go with them.
#include <windows.h>

#include <cstring>

#include "gdi/context/device_context.h"
#include "gdi/context/syscolors.h"
#include "gdi/surface/screen.h"
#include "user/message/queue.h"
#include "user/model/window.h"
#include "user/painting/painting.h"
#include "user/resource/icons.h"
#include "user/window/above.h"

using namespace platform::user;

int WINAPI GetSystemMetrics(int index) {
    switch (index) {
        case SM_CXSCREEN:
            return platform::gdi::Screen().width;
        case SM_CYSCREEN:
            return platform::gdi::Screen().height;
        case SM_CXBORDER:
        case SM_CYBORDER:
            return 1;
        case SM_CXEDGE:
        case SM_CYEDGE:
            return 2;
        case SM_CXDLGFRAME:
        case SM_CYDLGFRAME:
            return 3;
        case SM_CXFRAME:
        case SM_CYFRAME:
        case SM_CXDOUBLECLK:
        case SM_CYDOUBLECLK:
            return 4;
        case SM_CYCAPTION:
        case SM_CYMENU:
            return 19;  // one pixel more than the bar itself: the line below it
        case SM_CYSMCAPTION:
        case SM_CXVSCROLL:
        case SM_CYHSCROLL:
        case SM_CYVSCROLL:
        case SM_CYVTHUMB:
        case SM_CXSMICON:
        case SM_CYSMICON:
            return 16;
        case SM_CXICON:
        case SM_CYICON:
            return 32;
        default:
            return 0;
    }
}

namespace {

LOGFONTA DialogFont(LONG weight) {
    LOGFONTA font{};
    font.lfHeight = -11;
    font.lfWeight = weight;
    std::strcpy(font.lfFaceName, "MS Sans Serif");
    return font;
}

BOOL NonClientMetrics(NONCLIENTMETRICSA* metrics) {
    if (metrics->cbSize != sizeof(NONCLIENTMETRICSA)) {
        return Fail(ERROR_INVALID_PARAMETER, FALSE);
    }
    metrics->iBorderWidth = 1;
    metrics->iScrollWidth = metrics->iScrollHeight = 16;
    metrics->iCaptionWidth = metrics->iCaptionHeight = 18;
    metrics->iSmCaptionWidth = metrics->iSmCaptionHeight = 15;
    metrics->iMenuWidth = metrics->iMenuHeight = 18;
    metrics->lfCaptionFont = DialogFont(FW_BOLD);
    metrics->lfSmCaptionFont = metrics->lfMenuFont = metrics->lfStatusFont = metrics->lfMessageFont =
        DialogFont(FW_NORMAL);
    return TRUE;
}

}  // namespace

BOOL WINAPI SystemParametersInfoA(UINT action, UINT, PVOID data, UINT) {
    if (!data) {
        return Fail(ERROR_NOACCESS, FALSE);
    }
    switch (action) {
        case SPI_GETWORKAREA:
            *static_cast<RECT*>(data) = WorkArea();
            return TRUE;
        case SPI_GETNONCLIENTMETRICS:
            return NonClientMetrics(static_cast<NONCLIENTMETRICSA*>(data));
        default:
            return Fail(ERROR_INVALID_PARAMETER, FALSE);
    }
}

namespace {

/// New system colours: every top-level window hears of it, and everything is drawn anew.
void OnColoursChanged() {
    SendMessageTimeoutA(HWND_BROADCAST, WM_SYSCOLORCHANGE, 0, 0, SMTO_ABORTIFHUNG, 1000, nullptr);
    RedrawWindow(nullptr, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
}

const bool listening = [] {
    platform::gdi::syscolorsChanged = OnColoursChanged;
    return true;
}();

}  // namespace

DWORD WINAPI GetGuiResources(HANDLE, DWORD flags) {
    switch (flags) {
        case GR_GDIOBJECTS:
            return static_cast<DWORD>(platform::gdi::CountObjects()) + static_cast<DWORD>(ContextsInUse());
        case GR_USEROBJECTS:
            // The desktop and the parent of what has lost its own are the system's.
            Orphanage();
            Desktop();
            return static_cast<DWORD>(platform::base::CountHandles(platform::base::HandleKind::Window)) - 2;
        default:
            return Fail(ERROR_INVALID_PARAMETER, 0);
    }
}
