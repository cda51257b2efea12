// The browse button: its options and buddy, what a click does, the folder dialog and the hook of the file dialog.
#include <cvutil32/browse.h>
#include <cvutil32/treelist.h>

#include "tests/controls/folder_tree.h"
#include "tests/support/modal.h"
#include "tests/support/temp_folder.h"
#include "tests/support/window.h"

#include <commdlg.h>
#include <dlgs.h>

#include <gtest/gtest.h>

#include <functional>

namespace {

using namespace testing_support;

constexpr int kButtonId = 20;
constexpr int kBuddyId = 21;

HWND Create(LPCSTR className, HWND parent, DWORD style, int id) {
    return MakeChild(parent, className, style, {10, 10, 90, 30}, id);
}

std::string SpecsOf(HWND button) {
    char const* specs = nullptr;
    return BROWSE_GetFileSpecs(button, &specs) ? specs : "(none)";
}

/// A folder that the folder dialog can give: any, or a root where the shell's names are wide.
std::string Choosable(TempFolder const& folder, std::string const& name) {
    TestWindow host;
    HWND const tree = Create(TREELIST_CLASSNAME, host, 0, 1);
    std::string const path = folder.MakeFolder(name);
    return folder_tree::Found(tree, path).empty() ? path.substr(0, 3) : path;
}

constexpr char kFolderDialog[] = "Browse for Folder";
constexpr char kFileDialog[] = "Browse";

/// What is done to a dialog once it is open.
std::function<void(HWND)> g_act;
char const* g_title;

void CALLBACK Act(HWND, UINT, UINT_PTR timer, DWORD) {
    HWND const dialog = FindWindowA("#32770", g_title);
    if (dialog && IsWindowVisible(dialog)) {
        KillTimer(nullptr, timer);
        g_act(dialog);
    }
}

void WhenOpen(std::function<void(HWND)> act, char const* title = kFolderDialog) {
    g_act = std::move(act);
    g_title = title;
    SetTimer(nullptr, 0, 10, Act);
}

/// Types a name into the open-file dialog and accepts it.
void ChooseFile(std::string const& name) {
    WhenOpen(
        [=](HWND dialog) {
            SendMessageA(dialog, CDM_SETCONTROLTEXT, edt1, reinterpret_cast<LPARAM>(name.c_str()));
            PostMessageA(dialog, WM_COMMAND, IDOK, 0);
        },
        kFileDialog);
}

void SelectByKey(HWND tree, std::string const& folder) {
    HTREEITEM const item = folder_tree::Reach(tree, folder);
    EXPECT_NE(nullptr, item);
    // The item above it first, so that a key comes to it.
    folder_tree::Select(tree, folder_tree::Next(tree, TVGN_PREVIOUSVISIBLE, item));
    folder_tree::Send(tree, WM_KEYDOWN, VK_DOWN, 1);
}

/// Selects a folder in the folder dialog and accepts it.
void ChooseFolder(std::string const& path) {
    WhenOpen([=](HWND dialog) {
        SelectByKey(GetDlgItem(dialog, 102), path);
        PostMessageA(dialog, WM_COMMAND, IDOK, 0);
    });
}

class BrowseButton : public testing::Test {
  protected:
    HWND MakeButton(DWORD style) {
        return Create(BROWSE_CLASSNAME, host_, style, kButtonId);
    }
    void Click(HWND button, WORD code = BN_CLICKED) {
        SendMessageA(host_, WM_COMMAND, MAKEWPARAM(kButtonId, code), reinterpret_cast<LPARAM>(button));
    }
    /// The codes of the commands that the parent got from a window.
    std::vector<int> CodesFrom(HWND window) const {
        std::vector<int> codes;
        for (Message const& command : host_.Received(WM_COMMAND)) {
            if (reinterpret_cast<HWND>(command.lParam) == window) {
                codes.push_back(HIWORD(command.wParam));
            }
        }
        return codes;
    }

    TestWindow host_;
};

TEST_F(BrowseButton, OptionsComeFromTheStyleAndTheButtonIsOwnerDrawn) {
    HWND const button = MakeButton(BROWSE_FILEMODE | BROWSE_NOTIFY | WS_TABSTOP);
    EXPECT_EQ(DWORD{BS_OWNERDRAW}, static_cast<DWORD>(GetWindowLongA(button, GWL_STYLE)) & 0xFFFF);
    EXPECT_EQ(DWORD{BROWSE_FILEMODE | BROWSE_NOTIFY}, BROWSE_GetDialogOptions(button));
    // The whole word comes back, not only what the getter tells.
    DWORD const before = BROWSE_SetDialogOptions(button, BROWSE_APPEND | BROWSE_NOACTION | BROWSE_AUTOBUDDY);
    // WS_VISIBLE comes later than the options are taken.
    EXPECT_EQ(DWORD{WS_CHILD | WS_TABSTOP | BROWSE_FILEMODE | BROWSE_NOTIFY}, before & ~DWORD{WS_VISIBLE});
    EXPECT_EQ(DWORD{BROWSE_APPEND}, BROWSE_GetDialogOptions(button));
    EXPECT_EQ(DWORD{WS_CHILD | WS_TABSTOP | BROWSE_APPEND}, BROWSE_SetDialogOptions(button, 0) & ~DWORD{WS_VISIBLE});
    EXPECT_EQ(0U, BROWSE_GetDialogOptions(nullptr));
    EXPECT_EQ(0U, BROWSE_SetDialogOptions(nullptr, 2));
}

TEST_F(BrowseButton, TheBuddyIsTheNearestFieldBeforeIt) {
    HWND const edit = Create("edit", host_, 0, 1);
    Create("static", host_, 0, 2);
    HWND const button = MakeButton(BROWSE_AUTOBUDDY);
    EXPECT_EQ(edit, BROWSE_SetBuddyWindow(button, host_));
    HWND const combo = Create("combobox", host_, CBS_DROPDOWN, 3);
    HWND const second = MakeButton(BROWSE_AUTOBUDDY);
    EXPECT_EQ(combo, BROWSE_SetBuddyWindow(second, edit));
    EXPECT_EQ(edit, BROWSE_SetBuddyWindow(second, combo));
    EXPECT_EQ(nullptr, BROWSE_SetBuddyWindow(MakeButton(0), edit));
    EXPECT_EQ(nullptr, BROWSE_SetBuddyWindow(second, nullptr));
    EXPECT_EQ(nullptr, BROWSE_SetBuddyWindow(nullptr, edit));
    EXPECT_EQ(combo, BROWSE_SetBuddyWindow(second, combo));
}

TEST_F(BrowseButton, ClicksThatOpenNothing) {
    HWND const edit = Create("edit", host_, 0, kBuddyId);
    SetWindowTextA(edit, "text");
    HWND const idle = MakeButton(BROWSE_AUTOBUDDY | BROWSE_NOACTION);
    HWND const lonely = MakeButton(0);
    host_.Forget();
    Click(idle);
    Click(lonely);
    Click(MakeButton(BROWSE_AUTOBUDDY), BN_SETFOCUS);
    EXPECT_EQ((std::vector<int>{BN_CLICKED}), CodesFrom(idle));
    EXPECT_EQ((std::vector<int>{BN_CLICKED}), CodesFrom(lonely));
    EXPECT_EQ("", SpecsOf(idle));
    EXPECT_EQ("text", TextOf(edit));
    // The answer is FALSE in any case.
    EXPECT_FALSE(BROWSE_SetFileSpecs(idle, "C:\\a;b"));
    EXPECT_FALSE(BROWSE_SetFileSpecs(idle, nullptr));
    EXPECT_EQ("C:\\a;b", SpecsOf(idle)) << "a text of the button";
    EXPECT_FALSE(BROWSE_GetFileSpecs(idle, nullptr));
    EXPECT_EQ("(none)", SpecsOf(nullptr));
}

TEST_F(BrowseButton, AChosenFolderComesInSmallLettersAndTheParentIsTold) {
    TempFolder const folder;
    std::string const path = Choosable(folder, "Chosen");
    folder.MakeFolder("Before");
    HWND const edit = Create("edit", host_, 0, kBuddyId);
    SetWindowTextA(edit, "old");
    HWND const button = MakeButton(BROWSE_AUTOBUDDY | BROWSE_NOTIFY);
    host_.Forget();
    bool disabledAtFirst = false;
    bool enabledLater = false;
    WhenOpen([&](HWND dialog) {
        HWND const tree = GetDlgItem(dialog, 102);
        disabledAtFirst = !IsWindowEnabled(GetDlgItem(dialog, IDOK));
        SelectByKey(tree, folder.Path("Before"));
        EXPECT_EQ(!folder_tree::Found(tree, folder.Path("Before")).empty(), IsWindowEnabled(GetDlgItem(dialog, IDOK)));
        SelectByKey(tree, path);
        enabledLater = IsWindowEnabled(GetDlgItem(dialog, IDOK));
        PostMessageA(dialog, WM_COMMAND, IDOK, 0);
    });
    Click(button);
    EXPECT_TRUE(disabledAtFirst);
    EXPECT_TRUE(enabledLater);
    std::string lower = path;
    CharLowerA(lower.data());
    EXPECT_EQ(lower, TextOf(edit));
    EXPECT_EQ(lower, SpecsOf(button));
    EXPECT_EQ((std::vector<int>{BN_CLICKED, BRN_BEFOREBROWSE, BRN_AFTERBROWSE}), CodesFrom(button));
    // What the application sees as the user's typing comes last, once more than from the field itself.
    auto const codes = CodesFrom(edit);
    ASSERT_FALSE(codes.empty());
    EXPECT_EQ(EN_CHANGE, codes.back());
}

constexpr char kLongText[] =
    "Q:\\a\\folder\\that\\is\\not\\there\\and\\has\\a\\name\\that\\is\\longer\\than\\any\\that\\can\\be\\chosen\\"
    "in\\these\\tests\\by\\a\\good\\many\\characters\\of\\all\\the\\kinds\\that\\there\\are\\in\\names";

TEST_F(BrowseButton, NothingOfTheOldTextIsLeftBehindAFile) {
    TempFolder const folder;
    std::string const file = folder.MakeFile("a.txt");
    for (char const* buddyClass : {"edit", "combobox", "static"}) {
        for (DWORD const several : {DWORD{0}, DWORD{BROWSE_MULTISELECT}}) {
            SCOPED_TRACE(testing::Message() << buddyClass << ' ' << several);
            HWND const buddy = Create(buddyClass, host_, CBS_DROPDOWN, kBuddyId);
            HWND const button = MakeButton(BROWSE_FILEMODE | several);
            BROWSE_SetBuddyWindow(button, buddy);
            SetWindowTextA(buddy, kLongText);
            ChooseFile(file);
            Click(button);
            EXPECT_EQ(file, TextOf(buddy));
            EXPECT_EQ(file, SpecsOf(button));
            DestroyWindow(button);
            DestroyWindow(buddy);
        }
    }
}

TEST_F(BrowseButton, NothingOfTheOldTextIsLeftBehindAFolder) {
    TempFolder const folder;
    std::string const path = Choosable(folder, "b");
    std::string lower = path;
    CharLowerA(lower.data());
    for (char const* buddyClass : {"edit", "combobox", "static"}) {
        SCOPED_TRACE(buddyClass);
        HWND const buddy = Create(buddyClass, host_, CBS_DROPDOWN, kBuddyId);
        HWND const button = MakeButton(0);
        BROWSE_SetBuddyWindow(button, buddy);
        SetWindowTextA(buddy, kLongText);
        ChooseFolder(path);
        Click(button);
        EXPECT_EQ(lower, TextOf(buddy));

        // A text ends at its first byte of 0x80 or above when something is appended, and what stood behind that is gone.
        BROWSE_SetDialogOptions(button, BROWSE_APPEND);
        SetWindowTextA(buddy, (std::string("C:\\caf\xE9") + kLongText).c_str());
        ChooseFolder(path);
        Click(button);
        EXPECT_EQ("C:\\caf;" + lower, TextOf(buddy));
        if (buddyClass == std::string("combobox")) {
            auto const codes = CodesFrom(buddy);
            ASSERT_FALSE(codes.empty());
            EXPECT_EQ(CBN_EDITCHANGE, codes.back());
        }
        DestroyWindow(button);
        DestroyWindow(buddy);
    }
}

TEST_F(BrowseButton, CancelLeavesTheBuddyAlone) {
    HWND const edit = Create("edit", host_, 0, kBuddyId);
    SetWindowTextA(edit, "kept");
    HWND const button = MakeButton(BROWSE_AUTOBUDDY | BROWSE_NOTIFY);
    host_.Forget();
    WhenOpen([](HWND dialog) { PostMessageA(dialog, WM_COMMAND, IDCANCEL, 0); });
    Click(button);
    EXPECT_EQ("kept", TextOf(edit));
    EXPECT_EQ("kept", SpecsOf(button));
    EXPECT_EQ((std::vector<int>{BN_CLICKED, BRN_BEFOREBROWSE}), CodesFrom(button));
}

TEST_F(BrowseButton, WindowsMayEndWhileTheyBrowse) {
    HWND const edit = Create("edit", host_, 0, kBuddyId);
    HWND const button = MakeButton(BROWSE_AUTOBUDDY | BROWSE_NOTIFY);
    host_.answer = [=](Message const& message) -> std::optional<LRESULT> {
        if (message.id == WM_COMMAND && HIWORD(message.wParam) == BRN_BEFOREBROWSE) {
            DestroyWindow(button);
        }
        return std::nullopt;
    };
    Click(button);
    EXPECT_FALSE(IsWindow(button));

    host_.answer = nullptr;
    HWND const second = MakeButton(BROWSE_AUTOBUDDY);
    WhenOpen([=](HWND dialog) {
        DestroyWindow(edit);
        PostMessageA(dialog, WM_COMMAND, IDOK, 0);
    });
    Click(second);
    EXPECT_TRUE(IsWindow(second));
}

TEST_F(BrowseButton, DialogsRefuseWhatTheyCannotUse) {
    char buffer[8] = "same";
    EXPECT_FALSE(BROWSE_DisplayBrowseDialog(nullptr, "", "", buffer, sizeof buffer, 0));
    EXPECT_FALSE(BROWSE_DisplayBrowseDialog(host_, "", "", nullptr, sizeof buffer, 0));
    EXPECT_FALSE(BROWSE_DisplayBrowseDialog(host_, "", "", buffer, 0, 0));
    EXPECT_STREQ("same", buffer);
}

TEST_F(BrowseButton, ALongPathIsCutAtTheBuffersSize) {
    char buffer[8] = "";
    TempFolder const folder;
    std::string const path = Choosable(folder, "b");
    ChooseFolder(path);
    EXPECT_TRUE(BROWSE_DisplayBrowseDialog(host_, nullptr, nullptr, buffer, 3, 0));
    std::string lower = path.substr(0, 2);
    CharLowerA(lower.data());
    EXPECT_EQ(lower, buffer);
}

TEST_F(BrowseButton, TheHookNamesTheButtonAndJudgesTheFile) {
    HWND const accept = Create("button", host_, 0, IDOK);
    EXPECT_EQ(1U, browse_DialogFileHookProc(host_, WM_INITDIALOG, 0, 0));
    NMHDR notification = {};
    notification.hwndFrom = host_;
    notification.code = CDN_INITDONE;
    EXPECT_EQ(0U, browse_DialogFileHookProc(host_, WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&notification)));
    EXPECT_EQ("OK", TextOf(accept));

    TempFolder const folder;
    std::string file = folder.MakeFile("there.txt");
    OPENFILENAMEA record = {};
    record.lpstrFile = file.data();
    auto const judge = [&] {
        return browse_DialogFileHookProc(host_, RegisterWindowMessageA("commdlg_FileNameOK"), 0,
                                         reinterpret_cast<LPARAM>(&record));
    };
    EXPECT_EQ(0U, judge());
    std::string missing = folder.Path("missing.txt");
    record.lpstrFile = missing.data();
    EXPECT_EQ(1U, judge());
    record.Flags = OFN_ALLOWMULTISELECT;
    EXPECT_EQ(0U, judge());
    EXPECT_EQ(0U, browse_DialogFileHookProc(host_, WM_COMMAND, IDOK, 0));
}

}  // namespace
