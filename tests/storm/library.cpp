// Calls of the library's functions with arguments that fit, and with some that do not.
#include "tests/storm/storm.h"

#include "tests/controls/resource.h"
#include "tests/storm/ids.h"

#include <cvutil32.h>

#include <commctrl.h>

namespace storm {

namespace {

char const* const kDates[] = {DATECTRL_CLASSNAME};
char const* const kTimes[] = {TIMECTRL_CLASSNAME};
char const* const kNumbers[] = {NUMFLD_CLASSNAME};
char const* const kBars[] = {SCROLL_CLASSNAME};
char const* const kButtons[] = {GRBUTTON_CLASSNAME};
char const* const kBrowseButtons[] = {BROWSE_CLASSNAME};
char const* const kTrees[] = {TREELIST_CLASSNAME};
char const* const kAnimations[] = {ANIMATE_CLASSNAME};

constexpr char kPictured[] = "CvStormPictured";

SYSTEMTIME AnyMoment() {
    SYSTEMTIME moment = {};
    moment.wYear = static_cast<WORD>(Die().OneIn(5) ? Die().Below(65536) : Die().From(1980, 2079));
    moment.wMonth = static_cast<WORD>(Die().Below(14));
    moment.wDay = static_cast<WORD>(Die().Below(33));
    moment.wHour = static_cast<WORD>(Die().Below(25));
    moment.wMinute = static_cast<WORD>(Die().Below(61));
    moment.wSecond = static_cast<WORD>(Die().Below(61));
    return moment;
}

void Date() {
    HWND const field = AnyOf(kDates);
    SYSTEMTIME moment = AnyMoment();
    switch (Die().Below(4)) {
        case 0:
            DATECTRL_SetDate(field, Die().OneIn(4) ? nullptr : &moment, Die().Below(2));
            break;
        case 1:
            DATECTRL_GetDate(field, &moment);
            break;
        case 2:
            DATECTRL_IncrementDate(&moment, static_cast<WORD>(Die().Below(5)));
            DATECTRL_SetDate(field, &moment, TRUE);
            break;
        default:
            DATECTRL_DecrementDate(&moment, static_cast<WORD>(Die().Below(5)));
            DATECTRL_SetDate(field, &moment, FALSE);
            break;
    }
}

void Time() {
    HWND const field = AnyOf(kTimes);
    SYSTEMTIME moment = AnyMoment();
    switch (Die().Below(3)) {
        case 0:
            TIMECTRL_SetTime(field, Die().OneIn(4) ? nullptr : &moment, Die().Below(2));
            break;
        case 1:
            TIMECTRL_GetTime(field, &moment);
            break;
        default:
            TIMECTRL_IncrementTime(&moment, static_cast<WORD>(Die().Below(6)));
            TIMECTRL_DecrementTime(&moment, static_cast<WORD>(Die().Below(6)));
            TIMECTRL_SetTime(field, &moment, TRUE);
            break;
    }
}

void Number() {
    HWND const field = AnyOf(kNumbers);
    switch (Die().Below(3)) {
        case 0:
            NUMFLD_SetLimits(field, static_cast<DWORD>(AnyNumber()), static_cast<DWORD>(AnyNumber()));
            break;
        case 1:
            NUMFLD_SetValue(field, AnyNumber());
            break;
        default:
            NUMFLD_GetValue(field);
            break;
    }
}

void Bar() {
    SCROLL_SetAssociateWindow(AnyOf(kBars), Die().OneIn(4) ? StaleWindow() : AnyWindow());
}

// Bitmaps that a button has are not released when it gets others: each button gets one pair.
void GraphicButton() {
    HWND const button = AnyOf(kButtons, true);
    if (!Is(button, GRBUTTON_CLASSNAME) || GetPropA(button, kPictured) ||
        !SetPropA(button, kPictured, reinterpret_cast<HANDLE>(INT_PTR{1}))) {
        return;
    }
    if (Die().OneIn(2)) {
        GRBUTTON_SetBitmaps(button, GetModuleHandleA(nullptr), MAKEINTRESOURCEA(IDB_PICTURE),
                            Die().OneIn(2) ? MAKEINTRESOURCEA(IDB_MASK) : nullptr);
        return;
    }
    HBITMAP const image = CreateBitmap(7, 5, 1, 1, nullptr);
    HBITMAP const mask = CreateBitmap(7, 5, 1, 1, nullptr);
    if (!GRBUTTON_SetHBitmaps(button, image, mask)) {
        DeleteObject(image);
        DeleteObject(mask);
    }
}

void DrawButton() {
    HWND const window = AnyWindow();
    HDC const dc = GetDC(window);
    RECT item = {Die().From(-5, 20), Die().From(-5, 20), Die().From(-5, 60), Die().From(-5, 60)};
    RECT face = {};
    HBITMAP const image = CreateBitmap(9, 9, 1, 1, nullptr);
    GRBUTTON_DrawButtonFrame(dc, &item, &face, Die().Below(2), Die().Below(2), nullptr, nullptr, nullptr, nullptr);
    GRBUTTON_DrawButtonFace(dc, &face, Die().Below(2), Die().Below(2), Die().Below(2), image,
                            Die().OneIn(2) ? image : nullptr, nullptr, Die().Below(2));
    DeleteObject(image);
    ReleaseDC(window, dc);
}

void BrowseButton() {
    HWND const button = AnyOf(kBrowseButtons);
    char const* specs = nullptr;
    switch (Die().Below(4)) {
        case 0:
            BROWSE_SetDialogOptions(button, static_cast<DWORD>(Die().Below(32)));
            break;
        case 1:
            // It writes into its buddy, whatever that is: a window with a text.
            BROWSE_SetBuddyWindow(button, Die().OneIn(3) ? StaleWindow() : AnyWindow());
            break;
        case 2:
            BROWSE_SetFileSpecs(button, AnyText());
            break;
        default:
            if (BROWSE_GetFileSpecs(button, &specs)) {
                lstrlenA(specs);
            }
            break;
    }
}

void FolderTree() {
    char folder[MAX_PATH];
    TREELIST_GetFolder(AnyOf(kTrees, true), folder);
}

// Pictures from before are not released: WM_CLOSE does.
void Animation() {
    HWND const control = AnyOf(kAnimations, true);
    switch (Die().Below(3)) {
        case 0:
            if (Is(control, ANIMATE_CLASSNAME)) {
                SendMessageA(control, WM_CLOSE, 0, 0);
                ANIMATE_Initialize(control, GetModuleHandleA(nullptr), MAKEINTRESOURCEA(IDB_STRIP), Die().From(-1, 12),
                                   Die().OneIn(2) ? CLR_DEFAULT : CLR_NONE);
            }
            break;
        case 1:
            ANIMATE_Start(control);
            break;
        default:
            ANIMATE_Stop(control);
            break;
    }
}

void Utility() {
    char text[64];
    switch (Die().Below(5)) {
        case 0:
            UTIL_CenterPopup(Die().OneIn(2) ? TopWindow() : AnyWindow());
            break;
        case 1:
            UTIL_AddRemoveSubdirSymbol(Page(), Die().OneIn(2) ? 1014 : 1018, Die().Below(2));
            break;
        case 2:
            UTIL_LongToStringWithCommas(AnyNumber(), text, Die().From(0, static_cast<int>(sizeof text)));
            break;
        case 3:
            UTIL_FileExists(AnyText());
            UTIL_DirExists(AnyText());
            break;
        default: {
            static DWORD const topics[] = {101, 1001, 1000, 1002, 0, 0};
            UTIL_WinHelp(AnyWindow(), "C:\\storm.hlp", HELP_CONTEXTMENU, reinterpret_cast<ULONG_PTR>(topics));
            break;
        }
    }
}

void Registry() {
    char text[64];
    char const* const section = Die().OneIn(3) ? nullptr : "Storm";
    switch (Die().Below(5)) {
        case 0:
            ByTheRules().handles += Reg_WriteProfileString(HKEY_CURRENT_USER, section, "Text", AnyText()) ? 1 : 1;
            break;
        case 1:
            ByTheRules().handles += Reg_WriteProfileInt(HKEY_CURRENT_USER, section, "Number", 7) ? 1 : 1;
            break;
        case 2:
            Reg_GetProfileString(HKEY_CURRENT_USER, section, Die().OneIn(3) ? nullptr : "Text", "none", text,
                                 static_cast<DWORD>(Die().Below(static_cast<int>(sizeof text))));
            break;
        case 3:
            Reg_GetProfileInt(HKEY_CURRENT_USER, section, "Number", 3);
            break;
        default:
            Reg_WriteString(HKEY_CURRENT_USER, "Software\\Storm", "Text", AnyText());
            break;
    }
}

void Classes() {
    CSTRING text(AnyText());
    text += AnyText();
    CDATASTR data;
    data = text;
    CSTRING const copy = text;
    LPVOID list = LIST_Malloc(static_cast<DWORD>(Die().From(1, 4)), sizeof(int));
    if (LIST_IsValid(reinterpret_cast<std::size_t>(list) == 24 ? nullptr : list)) {
        for (int i = 0; i < 6; ++i) {
            LIST_Insert(&list, &i, static_cast<DWORD>(Die().Below(8)));
        }
        LIST_Free(list);
    }
}

Event const kLibraryEvents[] = {
    {"date", 5, Date},
    {"time", 4, Time},
    {"number", 4, Number},
    {"scroll bar", 2, Bar},
    {"graphic button", 3, GraphicButton},
    {"drawing", 2, DrawButton},
    {"browse button", 4, BrowseButton},
    {"folder", 1, FolderTree},
    {"animation", 4, Animation},
    {"utility", 4, Utility},
    {"registry", 2, Registry},
    {"classes", 2, Classes},
};

}  // namespace

std::span<Event const> LibraryEvents() {
    return kLibraryEvents;
}

}  // namespace storm
