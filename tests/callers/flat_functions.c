/* The library as a program of another compiler sees it: every flat function is called once, from C. A function whose arguments
   are passed otherwise than the library takes them does not come back here, or not with its result. */
#include <cvutil32.h>

#include "ids.h"
#include "records.h"

#include <stdio.h>

static int checks;
static int failures;

static void Check(BOOL good, const char* what, int line) {
    char text[200];
    ++checks;
    if (!good) {
        ++failures;
        wsprintfA(text, "FAILED, line %d: %.160s", line, what);
        puts(text);
    }
}
#define CHECK(condition) Check((condition) != 0, #condition, __LINE__)

/* Modal dialogs: what ends the next one. */
static int answer;
static int answers;

static void CALLBACK Answer(HWND window, UINT message, UINT_PTR timer, DWORD time) {
    char name[16] = "";
    HWND dialog = GetActiveWindow();
    (void)window, (void)message, (void)time;
    if (dialog != NULL && IsWindowVisible(dialog) && GetClassNameA(dialog, name, sizeof name) &&
        lstrcmpA(name, "#32770") == 0) {
        KillTimer(NULL, timer);
        ++answers;
        PostMessageA(dialog, WM_COMMAND, (WPARAM)answer, 0);
    }
}

static void AnswerNextDialog(int id) {
    answer = id;
    SetTimer(NULL, 0, 10, Answer);
}

static void CallClasses(HINSTANCE module) {
    CHECK(!GRBUTTON_RegisterClass(NULL) && GRBUTTON_RegisterClass(module));
    CHECK(!BUDDYFR_RegisterClass(NULL) && BUDDYFR_RegisterClass(module));
    CHECK(!ANIMATE_RegisterClass(NULL) && ANIMATE_RegisterClass(module));
    CHECK(!BROWSE_RegisterClass(NULL) && BROWSE_RegisterClass(module));
    CHECK(!SCROLL_RegisterClass(NULL) && SCROLL_RegisterClass(module));
    CHECK(!NUMFLD_RegisterClass(NULL) && NUMFLD_RegisterClass(module));
    CHECK(!DATECTRL_RegisterClass(NULL) && DATECTRL_RegisterClass(module));
    CHECK(!TIMECTRL_RegisterClass(NULL) && TIMECTRL_RegisterClass(module));
    CHECK(!TREELIST_RegisterClass(NULL) && TREELIST_RegisterClass(module));
}

static void CallLists(void) {
    static const LONG numbers[] = {10, 20, 30};
    const LONG wanted = 20;
    LONG later = 40;
    DWORD index = 99;
    LPVOID list = LIST_Malloc(2, sizeof(LONG));
    CHECK(LIST_IsValid(list));
    CHECK(LIST_Append(&list, &numbers[0]) == 0 && LIST_Append(&list, &numbers[2]) == 1);
    CHECK(LIST_Insert(&list, &numbers[1], 1) == 1 && LIST_GetCount(list) == 3);
    CHECK(((LONG*)list)[1] == 20 && ((LONG*)list)[2] == 30);
    CHECK(LIST_LFind(list, LIST_TYPE_LONG, 0, &wanted, &index) == (LONG*)list + 1 && index == 1);
    CHECK(LIST_BFind(list, LIST_TYPE_LONG, 0, &later, &index) == NULL && index == 3);
    CHECK(LIST_GetFirstItem(list) == list && LIST_GetNextItem(list) == (LONG*)list + 1);
    CHECK(LIST_GetCurrentItem(list) == (LONG*)list + 1 && LIST_SetCurrentItem(list, 2) == (LONG*)list + 2);
    CHECK(LIST_New(&list) == (LONG*)list + 3 && ((LONG*)list)[3] == 0);
    CHECK(LIST_Delete(list, 0) && LIST_GetCount(list) == 3);
    list = LIST_Realloc(list, 50);
    CHECK(((DWORD*)list)[-3] == 50 && ((DWORD*)list)[-4] == 3);
    CHECK(LIST_Free(list));
}

static void CallSettings(void) {
    static const char section[] = "Callers";
    static const char path[] = "Software\\Calverin\\Velmora\\Callers";
    char text[32];
    HKEY user = Reg_OpenBaseUserKey(section);
    HKEY machine = Reg_OpenBaseMachineKey(section);
    HKEY made = NULL;
    CHECK(user != NULL && machine != NULL);
    CHECK(Reg_WriteProfileInt(HKEY_CURRENT_USER, section, "Number", 0x80000001));
    CHECK(Reg_GetProfileInt(HKEY_CURRENT_USER, section, "Number", 5) == 0x80000001);
    CHECK(Reg_WriteProfileString(HKEY_CURRENT_USER, section, "Text", "words"));
    CHECK(Reg_GetProfileString(HKEY_CURRENT_USER, section, "Text", "none", text, sizeof text) == 5);
    CHECK(lstrcmpA(text, "words") == 0);
    CHECK(Reg_CreateKey(HKEY_CURRENT_USER, path, &made) && made != NULL);
    CHECK(Reg_WriteString(HKEY_CURRENT_USER, path, "Text", NULL));
    CHECK(Reg_GetProfileString(HKEY_CURRENT_USER, section, "Text", "none", text, sizeof text) == 4);
    CHECK(Reg_CloseKey(user) == 0 && Reg_CloseKey(machine) == 0 && Reg_CloseKey(made) == 0);
    RegDeleteKeyA(HKEY_CURRENT_USER, path);
}

static void CallDatesAndTimes(void) {
    SYSTEMTIME first = {0};
    SYSTEMTIME second = {0};
    first.wYear = 1995;
    first.wMonth = 12;
    first.wDay = 31;
    first.wHour = 23;
    first.wMinute = 59;
    first.wSecond = 59;
    second = first;
    CHECK(DATECTRL_IsValidDate(&first) && TIMECTRL_IsValidTime(&first));
    CHECK(DATECTRL_IncrementDate(&second, DATECTRL_DAY) && second.wYear == 1996);
    CHECK(DATECTRL_CompareDate(&first, &second) < 0 && DATECTRL_CompareDate(&second, &first) > 0);
    CHECK(DATECTRL_DecrementDate(&second, DATECTRL_DAY) && DATECTRL_CompareDate(&first, &second) == 0);
    CHECK(TIMECTRL_IncrementTime(&second, TIMECTRL_HOUR) && TIMECTRL_CompareTime(&first, &second) > 0);
    CHECK(TIMECTRL_DecrementTime(&second, TIMECTRL_HOUR) && TIMECTRL_CompareTime(&first, &second) == 0);
}

static void CallFields(HWND dialog) {
    HWND date = GetDlgItem(dialog, IDC_DATE);
    HWND time = GetDlgItem(dialog, IDC_TIME);
    HWND number = GetDlgItem(dialog, IDC_NUMBER);
    SYSTEMTIME set = {0};
    SYSTEMTIME got = {0};
    set.wYear = 2024;
    set.wMonth = 2;
    set.wDay = 29;
    set.wHour = 13;
    set.wMinute = 5;
    CHECK(DATECTRL_SetDate(date, &set, TRUE) && DATECTRL_GetDate(date, &got) && got.wDay == 29);
    CHECK(TIMECTRL_SetTime(time, &set, TRUE) && TIMECTRL_GetTime(time, &got) && got.wHour == 13);
    CHECK(datectrl_EditDateWndProc(date, WM_GETDLGCODE, 0, 0) == SendMessageA(date, WM_GETDLGCODE, 0, 0));
    CHECK(timectrl_EditTimeWndProc(time, WM_GETDLGCODE, 0, 0) == SendMessageA(time, WM_GETDLGCODE, 0, 0));
    NUMFLD_SetLimits(number, 5, 500);
    CHECK(NUMFLD_SetValue(number, 120) && NUMFLD_GetValue(number) == 120);
    CHECK(SCROLL_SetAssociateWindow(GetDlgItem(dialog, IDC_BAR), number) == date);
    /* The bar steps what it is tied to, as in the dialog of any application. */
    SendMessageA(number, WM_VSCROLL, SB_LINEUP, 0);
    CHECK(NUMFLD_GetValue(number) == 121);
}

static void CallPictures(HWND dialog, HINSTANCE module) {
    const LPCSTR image = MAKEINTRESOURCEA(IDB_LIBRARY_IMAGE);
    const LPCSTR mask = MAKEINTRESOURCEA(IDB_LIBRARY_MASK);
    const RECT item = {0, 0, 30, 20};
    RECT face = {0, 0, 0, 0};
    HWND button = GetDlgItem(dialog, IDC_PICTURE);
    HWND animation = GetDlgItem(dialog, IDC_ANIMATION);
    HDC screen = GetDC(NULL);
    HDC memory = CreateCompatibleDC(screen);
    HBITMAP canvas = CreateCompatibleBitmap(screen, 30, 20);
    HGDIOBJ before = SelectObject(memory, canvas);
    HGDIOBJ brush = GetStockObject(WHITE_BRUSH);
    HGDIOBJ black = GetStockObject(BLACK_PEN);
    HGDIOBJ white = GetStockObject(WHITE_PEN);
    CHECK(GRBUTTON_SetBitmaps(button, module, image, mask));
    CHECK(GRBUTTON_SetHBitmaps(button, LoadBitmapA(module, image), LoadBitmapA(module, mask)));
    GRBUTTON_DrawButtonFrame(memory, &item, &face, FALSE, TRUE, black, black, white, brush);
    CHECK(face.left > 0 && face.right < 30 && face.top > 0 && face.bottom < 20);
    GRBUTTON_DrawButtonFace(memory, &face, FALSE, FALSE, FALSE, LoadBitmapA(module, image), NULL, brush, TRUE);
    CHECK(GetPixel(memory, face.left, face.top) != CLR_INVALID && GetPixel(memory, 15, 0) == RGB(0, 0, 0));
    CHECK(ANIMATE_Initialize(animation, module, image, 5, RGB(0, 0, 0)));
    CHECK(ANIMATE_Start(animation) && ANIMATE_Stop(animation) && !ANIMATE_Stop(animation));
    SelectObject(memory, before);
    DeleteObject(canvas);
    DeleteDC(memory);
    ReleaseDC(NULL, screen);
}

static void CallBrowsing(HWND dialog) {
    HWND button = GetDlgItem(dialog, IDC_BROWSE);
    HWND edit = GetDlgItem(dialog, IDC_PATH);
    char buffer[MAX_PATH] = "kept";
    const char* specs = NULL;
    CHECK(BROWSE_SetBuddyWindow(button, edit) == edit);
    CHECK(BROWSE_SetDialogOptions(button, BROWSE_APPEND) & BROWSE_NOTIFY);
    CHECK(BROWSE_GetDialogOptions(button) == BROWSE_APPEND);
    CHECK(!BROWSE_SetFileSpecs(button, "C:\\a") && BROWSE_GetFileSpecs(button, &specs) && lstrlenA(specs) == 4);
    AnswerNextDialog(IDCANCEL);
    CHECK(!BROWSE_DisplayBrowseDialog(dialog, "", "", buffer, sizeof buffer, 0));
    CHECK(browse_DialogFileHookProc(dialog, WM_INITDIALOG, 0, 0) == 1);
    CHECK(TREELIST_GetFolder(GetDlgItem(dialog, IDC_FOLDERS), buffer) == lstrlenA(buffer));
}

static void CallUtilities(HWND dialog, HINSTANCE module) {
    char text[32];
    RECT before, after;
    UTIL_SetModuleInstance(NULL);
    CHECK(UTIL_GetModuleInstance() == NULL);
    UTIL_SetModuleInstance(module);
    SetDlgItemTextA(dialog, IDC_PATH, "C:\\a;C:\\b");
    UTIL_AddRemoveSubdirSymbol(dialog, IDC_PATH, TRUE);
    GetDlgItemTextA(dialog, IDC_PATH, text, sizeof text);
    CHECK(lstrcmpA(text, "C:\\a+;C:\\b+") == 0);
    SetWindowPos(dialog, NULL, 3, 3, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    GetWindowRect(dialog, &before);
    UTIL_CenterPopup(dialog);
    GetWindowRect(dialog, &after);
    CHECK(before.left != after.left);
    UTIL_LongToStringWithCommas(-1234567, text, sizeof text);
    CHECK(lstrlenA(text) == 10);
    CHECK(UTIL_DirExists("C:\\") && !UTIL_FileExists("C:\\"));
    CHECK(UTIL_WinHelp(dialog, "none.hlp", HELP_QUIT, 0));
}

static void CallDialogs(HWND dialog, HINSTANCE module) {
    const POINT place = {40, 50};
    KVMB_MESSAGEBOX box = {0};
    box.owner = dialog;
    box.title = "Caption";
    box.text = "Filled in by another compiler.";
    box.icon = LoadIconA(NULL, IDI_ASTERISK);
    box.flags = KVMB_LARGE | KVMB_TASKMODAL;
    box.position = &place;
    box.defaultButton = 9;
    box.buttonCount = 2;
    box.buttons[0].label = "&Own";
    box.buttons[0].id = 4711;
    box.buttons[1].kind = KVMB_BTN_CANCEL;
    box.buttons[1].id = IDCANCEL;
    AnswerNextDialog(4711);
    CHECK(KVMB_MessageBoxExtended(&box) == 4711);
    /* What the library writes comes to the right places. */
    CHECK(box.defaultButton == 0 && box.buttonCount == 2 && box.disabledWindows != NULL);
    AnswerNextDialog(IDOK);
    CHECK(KVMB_MessageBoxError(dialog, "Caption", NULL, "One", NULL, "two", NULL, "three", NULL, NULL, 7,
                               KVMB_SEP_REASON | MB_ICONHAND) == IDOK);
    AnswerNextDialog(IDOK);
    CHECK(ABOUT_DisplayAboutBox(dialog, module, NULL, "Product", "1", NULL, NULL) == 0);
    CHECK(answers == 4);
}

static INT_PTR CALLBACK DialogProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    (void)dialog, (void)message, (void)wParam, (void)lParam;
    return FALSE;
}

int main(void) {
    char text[60];
    HINSTANCE module = UTIL_GetModuleInstance();
    HWND dialog = CreateDialogParamA(GetModuleHandleA(NULL), MAKEINTRESOURCEA(IDD_CONTROLS), NULL, DialogProcedure, 0);
    CHECK(module == GetModuleHandleA("CVUTIL32"));
    CHECK(dialog != NULL);
    CallClasses(module);
    CallLists();
    CallSettings();
    CallDatesAndTimes();
    CallFields(dialog);
    CallPictures(dialog, module);
    CallBrowsing(dialog);
    CallUtilities(dialog, module);
    CallDialogs(dialog, module);
    DestroyWindow(dialog);
    wsprintfA(text, "[  %s  ] %d tests.", failures ? "FAILED" : "PASSED", checks);
    puts(text);
    return failures != 0;
}
