// What the open-file dialog tells the user: why a name is refused, where a folder lies, what cannot be read.
#include "tests/controls/native/hands.h"

#include <commdlg.h>
#include <dlgs.h>

#include <gtest/gtest.h>

#include <linux/capability.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

namespace {

namespace fs = std::filesystem;
using namespace hands;

/// The privilege of some users to read what they may not, taken off the calling thread for a while.
class WithoutPrivilege {
  public:
    WithoutPrivilege() {
        syscall(SYS_capget, &header_, former_);
        __user_cap_data_struct fewer[2] = {former_[0], former_[1]};
        fewer[0].effective &= ~(1U << CAP_DAC_OVERRIDE | 1U << CAP_DAC_READ_SEARCH);
        syscall(SYS_capset, &header_, fewer);
    }
    ~WithoutPrivilege() {
        syscall(SYS_capset, &header_, former_);
    }
    WithoutPrivilege(WithoutPrivilege const&) = delete;
    WithoutPrivilege& operator=(WithoutPrivilege const&) = delete;

  private:
    __user_cap_header_struct header_ = {_LINUX_CAPABILITY_VERSION_3, 0};
    __user_cap_data_struct former_[2] = {};
};

class OpenDialog : public Walk {
  protected:
    void SetUp() override {
        if (!Make({"one/same", "two/same", "locked/inside"}, {"a.txt", "b.txt", "one/c.txt"})) {
            GTEST_SKIP() << "needs a state folder of its own";
        }
        record_.lStructSize = sizeof record_;
        record_.hwndOwner = host_;
        record_.lpstrFile = buffer_;
        record_.nMaxFile = sizeof buffer_;
        record_.lpstrInitialDir = "C:\\walk";
        record_.Flags = OFN_EXPLORER | OFN_FILEMUSTEXIST;
    }
    void TearDown() override {
        std::error_code ignored;
        fs::permissions(root_ / "locked", fs::perms::owner_all, ignored);
        Walk::TearDown();
    }

    std::string Open(std::vector<Hands::Step> steps) {
        SetForegroundWindow(host_);
        buffer_[0] = '\0';
        Hands const hands(std::move(steps));
        return GetOpenFileNameA(&record_) ? buffer_ : "";
    }
    /// Types a name, reads what is said about it, and goes on with what is selected then.
    Hands::Step Type(std::string const& name) {
        return [name](HWND dialog) {
            SetDlgItemTextA(dialog, edt1, name.c_str());
            SetFocus(GetDlgItem(dialog, edt1));
            Press({VK_RETURN});
        };
    }
    Hands::Step Read() {
        return [this](HWND box) {
            said_.push_back(MessageOf(box));
            Press({VK_RETURN});
        };
    }
    Hands::Step Mark() {
        return [this](HWND dialog) { said_.push_back(Selected(GetDlgItem(dialog, edt1))); };
    }
    static Hands::Step Leave() {
        return [](HWND) { Press({VK_ESCAPE}); };
    }
    void Lock() const {
        fs::permissions(root_ / "locked", fs::perms::none);
    }

    char buffer_[2048] = "";
    OPENFILENAMEA record_ = {};
    std::vector<std::string> said_;
};

TEST_F(OpenDialog, ARefusedNameIsExplainedAndSelected) {
    EXPECT_EQ("C:\\walk\\b.txt", Open({Type("none.txt"), Read(), Mark(), Type("no\\way.txt"), Read(), Mark(),
                                       Type("a<b.txt"), Read(), Mark(), Type("\"a.txt\" \"b.txt\""), Read(), Mark(),
                                       Type("nowhere\\*.txt"), Read(), Type("b.txt")}));
    std::string const file = "\nFile not found.\nPlease verify the correct file name was given.";
    std::string const path = "\nPath does not exist.\nPlease verify the correct path was given.";
    std::string const name = "\nThe above file name is invalid.";
    EXPECT_EQ((std::vector<std::string>{"C:\\walk\\none.txt" + file, "none.txt", "C:\\walk\\no\\way.txt" + path,
                                        "no\\way.txt", "C:\\walk\\a<b.txt" + name, "a<b.txt",
                                        "\"a.txt\" \"b.txt\"" + name, "\"a.txt\" \"b.txt\"",
                                        "C:\\walk\\nowhere is not accessible.\n\nThe system cannot find the path "
                                        "specified."}),
              said_);
}

TEST_F(OpenDialog, APatternBehindAFolderIsAppliedThere) {
    std::string listed;
    EXPECT_EQ("C:\\walk\\one\\c.txt", Open({Type("one\\*.txt"),
                                            [&](HWND dialog) {
                                                char text[64] = "";
                                                SendDlgItemMessageA(dialog, lst1, LB_GETTEXT, 1,
                                                                    reinterpret_cast<LPARAM>(text));
                                                listed = text;
                                                said_.push_back(Selected(GetDlgItem(dialog, edt1)));
                                            },
                                            Type("c.txt")}));
    EXPECT_EQ("c.txt", listed);
    EXPECT_EQ(std::vector<std::string>{"*.txt"}, said_);
}

bool g_speaks = false;

UINT_PTR CALLBACK Refusing(HWND hook, UINT message, WPARAM, LPARAM) {
    static UINT const chosen = RegisterWindowMessageA(FILEOKSTRINGA);
    if (message != chosen) {
        return 0;
    }
    if (g_speaks) {
        MessageBoxA(GetParent(hook), "Not this one", "Hook", MB_OK);
    }
    SetWindowLongPtrA(hook, DWLP_MSGRESULT, 1);
    return 1;
}

TEST_F(OpenDialog, WhatAHookRefusesIsExplainedUnlessItHasSpoken) {
    record_.Flags = OFN_EXPLORER | OFN_ENABLEHOOK;
    record_.lpfnHook = Refusing;
    g_speaks = false;
    Open({Type("none.txt"), Read(), Mark(), Type("no\\way.txt"), Read(), Type("a.txt"), Read(), Mark(), Leave()});
    EXPECT_EQ(
        (std::vector<std::string>{"C:\\walk\\none.txt\nFile not found.\nPlease verify the correct file name was "
                                  "given.",
                                  "none.txt",
                                  "C:\\walk\\no\\way.txt\nPath does not exist.\nPlease verify the correct path was "
                                  "given.",
                                  "C:\\walk\\a.txt\nThe above file name is invalid.", "a.txt"}),
        said_);
    said_.clear();
    g_speaks = true;
    Open({Type("none.txt"), Read(), Mark(), Leave()});
    EXPECT_EQ((std::vector<std::string>{"Not this one", "none.txt"}), said_);
}

UINT g_when = 0;
bool g_destroys = false;

/// Does away with the dialog when a notification or a message comes.
UINT_PTR CALLBACK Ending(HWND hook, UINT message, WPARAM, LPARAM lParam) {
    static UINT const chosen = RegisterWindowMessageA(FILEOKSTRINGA);
    UINT const what = message == WM_NOTIFY ? reinterpret_cast<OFNOTIFYA const*>(lParam)->hdr.code
                      : message == chosen  ? UINT{WM_NULL}
                                           : message;
    if (what != g_when) {
        return 0;
    }
    if (g_destroys) {
        DestroyWindow(GetParent(hook));
    } else {
        EndDialog(GetParent(hook), FALSE);
    }
    return 0;
}

TEST_F(OpenDialog, AHookMayEndTheDialogAtAnyTime) {
    record_.Flags = OFN_EXPLORER | OFN_ENABLEHOOK;
    record_.lpfnHook = Ending;
    record_.lpstrFilter = "All\0*.*\0Texts\0*.txt\0\0";
    for (UINT const when : {UINT{WM_INITDIALOG}, CDN_INITDONE, CDN_FOLDERCHANGE, CDN_SELCHANGE, CDN_TYPECHANGE,
                            CDN_FILEOK, UINT{WM_NULL}}) {
        for (bool const destroys : {false, true}) {
            SCOPED_TRACE(testing::Message() << when << (destroys ? ", destroyed" : ", ended"));
            g_when = when;
            g_destroys = destroys;
            bool const atOnce = when == WM_INITDIALOG || when == CDN_INITDONE || when == CDN_FOLDERCHANGE;
            std::vector<Hands::Step> steps;
            if (when == CDN_SELCHANGE) {
                steps.push_back([](HWND dialog) {
                    SetFocus(GetDlgItem(dialog, lst1));
                    Press({'A'});
                });
            } else if (when == CDN_TYPECHANGE) {
                steps.push_back([](HWND dialog) {
                    SetFocus(GetDlgItem(dialog, cmb1));
                    Press({VK_DOWN});
                });
            } else if (!atOnce) {
                steps.push_back(Type("a.txt"));
            }
            EXPECT_EQ("", Open(std::move(steps)));
            EXPECT_TRUE(IsWindowEnabled(host_));
        }
    }
}

TEST_F(OpenDialog, AFolderThatCannotBeReadIsToldAndAnotherIsShown) {
    Lock();
    WithoutPrivilege const usual;
    if (std::error_code error; fs::directory_iterator(root_ / "locked", error) != fs::directory_iterator() || !error) {
        GTEST_SKIP() << "everything can be read here";
    }
    std::string const denied = " is not accessible.\n\nAccess is denied.";
    for (char const* start : {"C:\\walk\\locked", "C:\\walk\\locked\\inside"}) {
        record_.lpstrInitialDir = start;
        said_.clear();
        EXPECT_EQ("C:\\walk\\a.txt", Open({Read(), Type("C:\\walk"), Type("locked"), Read(), Mark(), Type("a.txt")}));
        EXPECT_EQ((std::vector<std::string>{start + denied, "C:\\walk\\locked" + denied, "locked"}), said_);
    }
    // One that is not there is none of the user's business.
    record_.lpstrInitialDir = "C:\\walk\\nowhere";
    said_.clear();
    Open({Leave()});
    EXPECT_TRUE(said_.empty());
}

TEST_F(OpenDialog, ItemsOfAHookAreNoFiles) {
    fs::create_directories(root_ / "empty");
    record_.lpstrInitialDir = "C:\\walk\\empty";
    // Added below what the folder holds, and chosen as a user does.
    Hands::Step const choose = [&](HWND dialog) {
        HWND const list = GetDlgItem(dialog, lst1);
        auto const item = SendMessageA(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>("zz of the hook"));
        SetFocus(list);
        SendMessageA(list, record_.Flags & OFN_ALLOWMULTISELECT ? UINT{LB_SETSEL} : UINT{LB_SETCURSEL},
                     record_.Flags & OFN_ALLOWMULTISELECT ? TRUE : static_cast<WPARAM>(item), item);
        SendMessageA(dialog, WM_COMMAND, MAKEWPARAM(lst1, LBN_SELCHANGE), reinterpret_cast<LPARAM>(list));
        char text[64] = "";
        GetDlgItemTextA(dialog, edt1, text, sizeof text);
        said_.emplace_back(text);
    };
    for (DWORD const several : {DWORD{0}, DWORD{OFN_ALLOWMULTISELECT}}) {
        record_.Flags = OFN_EXPLORER | several;
        EXPECT_EQ("", Open({choose, Leave()}));
        EXPECT_EQ("C:\\walk\\a.txt", Open({choose, Type("C:\\walk"), choose, Type("a.txt")}));
    }
    EXPECT_EQ(std::vector<std::string>(6), said_);
}

TEST_F(OpenDialog, OneLongNameDoesNotMakeAllColumnsWide) {
    fs::create_directories(root_ / "many");
    for (int i = 0; i < 30; ++i) {
        std::ofstream(root_ / "many" / ("file" + std::to_string(i) + ".txt"));
    }
    record_.lpstrInitialDir = "C:\\walk\\many";
    int width = 0;
    int client = 0;
    auto const measure = [&](HWND dialog) {
        HWND const list = GetDlgItem(dialog, lst1);
        RECT row;
        SendMessageA(list, LB_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&row));
        width = row.right - row.left;
        GetClientRect(list, &row);
        client = row.right;
        Press({VK_ESCAPE});
    };
    Open({measure});
    int const usual = width;
    std::ofstream(root_ / "many" / (std::string(150, 'l') + ".txt"));
    Open({measure});
    EXPECT_LE(width, client / 3);
    EXPECT_GE(width, usual);
    // Where there is one column anyway, it is as wide as it has to be.
    std::ofstream(root_ / "one" / (std::string(150, 'l') + ".txt"));
    record_.lpstrInitialDir = "C:\\walk\\one";
    Open({measure});
    EXPECT_GT(width, client * 2 / 3);
}

TEST_F(OpenDialog, LookInTellsFoldersOfOneNameApart) {
    std::vector<testing_support::Picture> seen;
    auto const look = [&](HWND dialog) {
        seen.push_back(testing_support::PictureOf(GetDlgItem(dialog, cmb2)));
        Press({VK_ESCAPE});
    };
    for (char const* start : {"C:\\walk\\one\\same", "C:\\walk\\two\\same", "C:\\walk\\one\\same"}) {
        record_.lpstrInitialDir = start;
        Open({look});
    }
    EXPECT_EQ(seen[0], seen[2]);
    EXPECT_NE(seen[0], seen[1]);
}

}  // namespace
