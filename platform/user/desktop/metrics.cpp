// The measures of the 1995 scheme, and the settings that go with them.
#include <windows.h>

#include <cstring>

#include "gdi/context/device_context.h"
#include "gdi/context/syscolors.h"
#include "gdi/surface/screen.h"
#include "user/desktop/room.h"
#include "user/message/queue.h"
#include "user/model/window.h"
#include "user/painting/painting.h"
#include "user/resource/icons.h"

using namespace platform::user;

namespace {

int Width(const RECT& rect) {
    return rect.right - rect.left;
}

int Height(const RECT& rect) {
    return rect.bottom - rect.top;
}

}  // namespace

int WINAPI GetSystemMetrics(int index) {
    switch (index) {
        case SM_CXSCREEN:
        case SM_CXVIRTUALSCREEN:
            return platform::gdi::Screen().width;
        case SM_CYSCREEN:
        case SM_CYVIRTUALSCREEN:
            return platform::gdi::Screen().height;
        case SM_CXFULLSCREEN:
            return Width(WorkArea());
        case SM_CYFULLSCREEN:
            return Height(WorkArea()) - GetSystemMetrics(SM_CYCAPTION);
        case SM_CXMAXIMIZED:
            return Width(WorkArea()) + 2 * GetSystemMetrics(SM_CXSIZEFRAME);
        case SM_CYMAXIMIZED:
            return Height(WorkArea()) + 2 * GetSystemMetrics(SM_CYSIZEFRAME);
        case SM_CXMAXTRACK:
            return platform::gdi::Screen().width + 12;
        case SM_CYMAXTRACK:
            return platform::gdi::Screen().height + 12;
        case SM_CXBORDER:
        case SM_CYBORDER:
        case SM_MOUSEPRESENT:
        case SM_MOUSEWHEELPRESENT:
        case SM_CMONITORS:
        case SM_SAMEDISPLAYFORMAT:
            return 1;
        case SM_CXEDGE:
        case SM_CYEDGE:
            return 2;
        case SM_CXDLGFRAME:
        case SM_CYDLGFRAME:
        case SM_CMOUSEBUTTONS:
            return 3;
        case SM_CXFRAME:
        case SM_CYFRAME:
        case SM_CXDOUBLECLK:
        case SM_CYDOUBLECLK:
        case SM_CXDRAG:
        case SM_CYDRAG:
            return 4;
        case SM_CYCAPTION:
        case SM_CYMENU:
            return 19;  // one pixel more than the bar itself: the line below it
        case SM_CXSIZE:
        case SM_CYSIZE:
        case SM_CXMENUSIZE:
        case SM_CYMENUSIZE:
            return 18;
        case SM_CYSMCAPTION:
            return 16;
        case SM_CXSMSIZE:
        case SM_CYSMSIZE:
            return 15;
        case SM_CXVSCROLL:
        case SM_CYHSCROLL:
        case SM_CYVSCROLL:
        case SM_CXHSCROLL:
        case SM_CYVTHUMB:
        case SM_CXHTHUMB:
        case SM_CXSMICON:
        case SM_CYSMICON:
            return 16;
        case SM_CXICON:
        case SM_CYICON:
        case SM_CXCURSOR:
        case SM_CYCURSOR:
            return 32;
        case SM_CXMIN:
        case SM_CXMINTRACK:
            return 112;
        case SM_CYMIN:
        case SM_CYMINTRACK:
            return 27;
        case SM_CXICONSPACING:
        case SM_CYICONSPACING:
            return 75;
        case SM_CXMENUCHECK:
        case SM_CYMENUCHECK:
            return 13;
        case SM_CXMINIMIZED:
        case SM_CXMINSPACING:
            return 160;
        case SM_CYMINIMIZED:
        case SM_CYMINSPACING:
            return 24;
        case SM_DBCSENABLED: {
            CPINFO info;
            return GetCPInfo(CP_ACP, &info) && info.MaxCharSize > 1;
        }
        default:
            return 0;
    }
}

namespace {

struct Settings {
    BOOL beep = TRUE;
    BOOL dragFullWindows = TRUE;
    UINT wheelLines = 3;
    int keyboardDelay = 1;
    DWORD keyboardSpeed = 31;
};

Settings& TheSettings() {
    static Settings settings;
    return settings;
}

LOGFONTA DialogFont(LONG weight) {
    LOGFONTA font{};
    font.lfHeight = -11;
    font.lfWeight = weight;
    std::strcpy(font.lfFaceName, "MS Sans Serif");
    return font;
}

BOOL NonClientMetrics(NONCLIENTMETRICSA* metrics) {
    if (metrics->cbSize != sizeof(NONCLIENTMETRICSA)) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return FALSE;
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

BOOL Apply(UINT action, UINT parameter, PVOID data) {
    Settings& settings = TheSettings();
    switch (action) {
        case SPI_GETBEEP:
            *static_cast<BOOL*>(data) = settings.beep;
            return TRUE;
        case SPI_SETBEEP:
            settings.beep = parameter != 0;
            return TRUE;
        case SPI_GETBORDER:
            *static_cast<int*>(data) = 1;
            return TRUE;
        case SPI_GETKEYBOARDSPEED:
            *static_cast<DWORD*>(data) = settings.keyboardSpeed;
            return TRUE;
        case SPI_SETKEYBOARDSPEED:
            settings.keyboardSpeed = parameter;
            return TRUE;
        case SPI_GETKEYBOARDDELAY:
            *static_cast<int*>(data) = settings.keyboardDelay;
            return TRUE;
        case SPI_SETKEYBOARDDELAY:
            settings.keyboardDelay = static_cast<int>(parameter);
            return TRUE;
        case SPI_GETDRAGFULLWINDOWS:
            *static_cast<BOOL*>(data) = settings.dragFullWindows;
            return TRUE;
        case SPI_SETDRAGFULLWINDOWS:
            settings.dragFullWindows = parameter != 0;
            return TRUE;
        case SPI_GETWHEELSCROLLLINES:
            *static_cast<UINT*>(data) = settings.wheelLines;
            return TRUE;
        case SPI_SETWHEELSCROLLLINES:
            settings.wheelLines = parameter;
            return TRUE;
        case SPI_GETWORKAREA:
            *static_cast<RECT*>(data) = WorkArea();
            return TRUE;
        case SPI_GETICONTITLELOGFONT:
            *static_cast<LOGFONTA*>(data) = DialogFont(FW_NORMAL);
            return TRUE;
        case SPI_GETNONCLIENTMETRICS:
            return NonClientMetrics(static_cast<NONCLIENTMETRICSA*>(data));
        default:
            SetLastError(ERROR_INVALID_PARAMETER);
            return FALSE;
    }
}

bool TakesNoData(UINT action) {
    return action == SPI_SETBEEP || action == SPI_SETKEYBOARDSPEED || action == SPI_SETKEYBOARDDELAY ||
           action == SPI_SETDRAGFULLWINDOWS || action == SPI_SETWHEELSCROLLLINES;
}

}  // namespace

BOOL WINAPI SystemParametersInfoA(UINT action, UINT parameter, PVOID data, UINT winIni) {
    if (!data && !TakesNoData(action)) {
        SetLastError(ERROR_NOACCESS);
        return FALSE;
    }
    if (!Apply(action, parameter, data)) {
        return FALSE;
    }
    if (TakesNoData(action) && (winIni & SPIF_SENDCHANGE)) {
        BroadcastSetting(WM_WININICHANGE, action, 0);
    }
    return TRUE;
}

namespace {

/// New system colours: every top-level window hears of it, and everything is drawn anew.
void OnColoursChanged() {
    BroadcastSetting(WM_SYSCOLORCHANGE, 0, 0);
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
        case GR_USEROBJECTS: {
            // The desktop and the parent of message-only windows are the system's own.
            MessageRoot();
            Desktop();
            return static_cast<DWORD>(platform::base::CountHandles(platform::base::HandleKind::Window)) - 2 +
                   OwnIcons();
        }
        default:
            SetLastError(ERROR_INVALID_PARAMETER);
            return 0;
    }
}
