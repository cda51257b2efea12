#include "gallery/help.h"

#include "gallery/pages/dialogs/browse_ids.h"
#include "gallery/pages/controls/buttons_ids.h"
#include "gallery/pages/fields/dates_page_ids.h"
#include "gallery/pages/fields/datetime_page_ids.h"
#include "gallery/pages/dialogs/dialogs_ids.h"
#include "gallery/pages/controls/lists_ids.h"
#include "gallery/pages/fields/numbers_page_ids.h"
#include "gallery/pages/controls/standard_ids.h"
#include "gallery/resource.h"
#include "gallery/topic.h"

#include <cvutil32.h>

#include <string>

namespace gallery {
namespace {

// The topics of gallery.txt.
enum Topic : DWORD {
    kPages = 1,
    kAccept = 2,
    kCancel = 3,
    kDateField = 10,
    kMicroBar = 11,
    kNow = 12,
    kValue = 13,
    kTimeField = 20,
    kClock = 21,
    kNumericField = 30,
    kLimits = 31,
    kGraphicButton = 40,
    kDrawn = 41,
    kAnimation = 42,
    kCheckList = 50,
    kOwnDrawn = 51,
    kFramed = 52,
    kPath = 60,
    kBrowseButton = 61,
    kAppend = 62,
    kFolderTree = 63,
    kStandard = 70,
    kBoxText = 80,
    kBoxIcon = 81,
    kBoxWidth = 82,
    kOpenBox = 83,
    kBoxResult = 84
};

// The items from `first` to `last` and their topic. Numbers of items are the same on no two pages.
struct Range {
    DWORD first;
    DWORD last;
    Topic topic;
};

constexpr Range kRanges[] = {
    {IDC_PAGES, IDC_PAGES, kPages},
    {IDOK, IDOK, kAccept},
    {IDCANCEL, IDCANCEL, kCancel},
    {IDC_DATE_VERTICAL, IDC_DATE_VERTICAL, kDateField},
    {IDC_BAR_VERTICAL, IDC_BAR_VERTICAL, kMicroBar},
    {IDC_DATE_HORIZONTAL, IDC_DATE_HORIZONTAL, kDateField},
    {IDC_BAR_HORIZONTAL, IDC_BAR_HORIZONTAL, kMicroBar},
    {IDC_CHOSEN, IDC_CHOSEN, kValue},
    {IDC_TODAY, IDC_TODAY, kNow},
    {IDC_TIME_VERTICAL, IDC_TIME_VERTICAL, kTimeField},
    {IDC_TIME_VERTICAL_BAR, IDC_TIME_VERTICAL_BAR, kMicroBar},
    {IDC_TIME_HORIZONTAL, IDC_TIME_HORIZONTAL, kTimeField},
    {IDC_TIME_HORIZONTAL_BAR, IDC_TIME_HORIZONTAL_BAR, kMicroBar},
    {IDC_TIME_NOW, IDC_TIME_NOW, kNow},
    {IDC_CLOCK_12, IDC_CLOCK_ZERO, kClock},
    {IDC_VISIT_DATE, IDC_VISIT_DATE, kDateField},
    {IDC_VISIT_DATE_BAR, IDC_VISIT_DATE_BAR, kMicroBar},
    {IDC_VISIT_TIME, IDC_VISIT_TIME, kTimeField},
    {IDC_VISIT_TIME_BAR, IDC_VISIT_TIME_BAR, kMicroBar},
    {IDC_VISIT_MINUTES, IDC_VISIT_MINUTES, kNumericField},
    {IDC_VISIT_MINUTES_BAR, IDC_VISIT_MINUTES_BAR, kMicroBar},
    {IDC_VISIT, IDC_VISIT, kValue},
    {IDC_NUMBER_VERTICAL, IDC_NUMBER_VERTICAL, kNumericField},
    {IDC_NUMBER_VERTICAL_BAR, IDC_NUMBER_VERTICAL_BAR, kMicroBar},
    {IDC_NUMBER_HORIZONTAL, IDC_NUMBER_HORIZONTAL, kNumericField},
    {IDC_NUMBER_HORIZONTAL_BAR, IDC_NUMBER_HORIZONTAL_BAR, kMicroBar},
    {IDC_MINIMUM, IDC_MAXIMUM_BAR, kLimits},
    {IDC_NUMBERS_FIRST, IDC_NUMBERS_SECOND, kValue},
    {IDC_BUTTONS_PLAIN, IDC_BUTTONS_LARGE, kGraphicButton},
    {IDC_BUTTONS_SAMPLE, IDC_BUTTONS_SAMPLE + 5, kDrawn},
    {IDC_BUTTONS_CLOCK, IDC_BUTTONS_STOP, kAnimation},
    {IDC_LISTS_CHECKS, IDC_LISTS_CHECKS, kCheckList},
    {IDC_LISTS_OWN, IDC_LISTS_OWN, kOwnDrawn},
    {IDC_LISTS_EDIT, IDC_LISTS_COMBO_FRAME, kFramed},
    {IDC_BROWSE_FILE, IDC_BROWSE_FILE, kPath},
    {IDC_BROWSE_FILE_BUTTON, IDC_BROWSE_FILE_BUTTON, kBrowseButton},
    {IDC_BROWSE_FILES, IDC_BROWSE_FILES, kPath},
    {IDC_BROWSE_FILES_BUTTON, IDC_BROWSE_FILES_BUTTON, kBrowseButton},
    {IDC_BROWSE_FOLDER, IDC_BROWSE_FOLDER, kPath},
    {IDC_BROWSE_FOLDER_BUTTON, IDC_BROWSE_FOLDER_BUTTON, kBrowseButton},
    {IDC_BROWSE_COMBO, IDC_BROWSE_COMBO, kPath},
    {IDC_BROWSE_COMBO_BUTTON, IDC_BROWSE_COMBO_BUTTON, kBrowseButton},
    {IDC_BROWSE_APPEND, IDC_BROWSE_APPEND, kAppend},
    {IDC_BROWSE_TREE, IDC_BROWSE_TREE, kFolderTree},
    {IDC_STANDARD_SORTED, IDC_STANDARD_VALUE, kStandard},
    {IDC_DIALOGS_CAPTION, IDC_DIALOGS_DEFAULT, kBoxText},
    {IDC_DIALOGS_NO_ICON, IDC_DIALOGS_ICON, kBoxIcon},
    {IDC_DIALOGS_BY_LENGTH, IDC_DIALOGS_TASKMODAL, kBoxWidth},
    {IDC_DIALOGS_BOX, IDC_DIALOGS_ABOUT, kOpenBox},
    {IDC_DIALOGS_RESULT, IDC_DIALOGS_RESULT, kBoxResult},
};

DWORD TopicOf(HWND frame, HWND control) {
    if (!IsChild(frame, control)) {
        // Other dialogs have the frame's numbers for controls of their own.
        char name[64] = "";
        GetClassNameA(control, name, sizeof name);
        return lstrcmpiA(name, TREELIST_CLASSNAME) == 0 ? DWORD{kFolderTree} : 0;
    }
    const auto id = static_cast<DWORD>(GetDlgCtrlID(control));
    for (const Range& range : kRanges) {
        if (id >= range.first && id <= range.last) {
            return range.topic;
        }
    }
    return 0;
}

// Beside the program where it is built, in the folder of shared data where it is installed. Without the ending.
std::string HelpFile() {
    char program[MAX_PATH];
    const DWORD length = GetModuleFileNameA(nullptr, program, sizeof program);
    const std::string folder = std::string(program, length).substr(0, std::string(program, length).rfind('\\') + 1);
    const std::string own = folder + "gallery";
    return UTIL_FileExists((own + ".txt").c_str()) ? own : folder + "..\\share\\cvutil32\\gallery";
}

bool Show(HWND frame, HWND control, UINT command) {
    // A part of a control (the field of a combo box, the tree of a folder tree list) has the topic of the whole.
    DWORD topic = 0;
    while (control != nullptr && topic == 0 && (GetWindowLongA(control, GWL_STYLE) & WS_CHILD) != 0) {
        topic = TopicOf(frame, control);
        if (topic == 0) {
            control = GetParent(control);
        }
    }
    return topic != 0 && ShowTopic(control, HelpFile(), command, topic);
}

}  // namespace

bool ShowHelp(HWND frame, const HELPINFO& info) {
    return info.iContextType == HELPINFO_WINDOW && Show(frame, static_cast<HWND>(info.hItemHandle), HELP_WM_HELP);
}

bool ShowContextMenuHelp(HWND frame, HWND control, LPARAM where) {
    const bool byKeyboard = LOWORD(where) == 0xFFFF && HIWORD(where) == 0xFFFF;
    return Show(frame, control, byKeyboard ? HELP_WM_HELP : HELP_CONTEXTMENU);
}

}  // namespace gallery
