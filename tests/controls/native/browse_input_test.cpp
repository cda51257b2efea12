// The browse button in the user's hands: real input from the click on the button to the path in the field, on a drive of
// the test's own.
#include <cvutil32/browse.h>

#include "tests/controls/folder_tree.h"
#include "tests/controls/native/hands.h"
#include "tests/support/modal.h"
#include "tests/support/window.h"

#include <commdlg.h>
#include <dlgs.h>

#include <gtest/gtest.h>

#include <cstring>
#include <filesystem>
#include <fstream>
#include <vector>

namespace {

namespace fs = std::filesystem;
using namespace hands;
using namespace testing_support;

class BrowseInput : public Walk {
  protected:
    void SetUp() override {
        if (!Make({"one/two/three", "other"}, {"a.txt", "b.txt", "c.txt", "d.doc"})) {
            GTEST_SKIP() << "needs a state folder of its own";
        }
        edit_ = MakeChild(host_, "edit", ES_AUTOHSCROLL, {10, 10, 210, 30});
    }
    /// Presses the button and lets the hands do the rest. @return what stands in the field.
    std::string Browse(DWORD options, std::vector<Hands::Step> steps) {
        HWND const button = MakeChild(host_, BROWSE_CLASSNAME, BROWSE_AUTOBUDDY | options, {220, 10, 240, 30});
        SetForegroundWindow(host_);
        UpdateWindow(host_);
        {
            Hands const hands(std::move(steps));
            ClickMiddle(button);
            // The dialog runs within the click.
            testing_support::PumpMessages();
        }
        DestroyWindow(button);
        return TextOf(edit_);
    }

    HWND edit_ = nullptr;
};

TEST_F(BrowseInput, AFolderThreeLevelsDownByKeyboard) {
    std::string const chosen = Browse(0, {[](HWND) {
                                              Press({VK_DOWN, VK_RIGHT});
                                          },
                                          [](HWND) {
                                              Press({'W', 'A', VK_RIGHT});
                                          },
                                          [](HWND) {
                                              // A key that moves has ended what was typed before.
                                              Press({'O', 'N', VK_RIGHT});
                                          },
                                          [](HWND) {
                                              Press({VK_RIGHT, VK_RIGHT});
                                          },
                                          [](HWND) { Press({VK_RIGHT}); }, [](HWND) { Press({VK_RETURN}); }});
    EXPECT_EQ("c:\\walk\\one\\two\\three", chosen);
}

void ClickItem(HWND dialog, char const* path, int times) {
    HWND const tree = GetDlgItem(dialog, 102);
    HWND const view = folder_tree::TreeViewOf(tree);
    // Found without selecting anything: by its name among the rows.
    for (HTREEITEM item = folder_tree::Next(tree, TVGN_ROOT); item;
         item = folder_tree::Next(tree, TVGN_NEXTVISIBLE, item)) {
        if (folder_tree::NameOf(tree, item).find(path) != std::string::npos) {
            RECT label = {};
            std::memcpy(&label, &item, sizeof item);  // the message takes the item where it puts the rectangle
            SendMessageA(view, TVM_GETITEMRECT, TRUE, reinterpret_cast<LPARAM>(&label));
            Click(view, {label.left + 4, (label.top + label.bottom) / 2}, times);
            return;
        }
    }
    ADD_FAILURE() << path << " is not shown";
}

TEST_F(BrowseInput, AFolderThreeLevelsDownByMouse) {
    auto const open = [](char const* name) { return [=](HWND dialog) { ClickItem(dialog, name, 2); }; };
    std::string const chosen = Browse(
        0, {open("(C:)"), open("walk"), open("one"), open("two"), [](HWND dialog) { ClickItem(dialog, "three", 1); },
            [](HWND dialog) { ClickMiddle(GetDlgItem(dialog, IDOK)); }});
    EXPECT_EQ("c:\\walk\\one\\two\\three", chosen);
}

void ClickFile(HWND dialog, char const* name, int times = 1) {
    HWND const list = GetDlgItem(dialog, lst1);
    LRESULT const index =
        SendMessageA(list, LB_FINDSTRINGEXACT, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(name));
    ASSERT_GE(index, 0) << name;
    RECT row;
    SendMessageA(list, LB_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&row));
    Click(list, {row.left + 8, (row.top + row.bottom) / 2}, times);
}

TEST_F(BrowseInput, ThreeFilesWithControl) {
    SetWindowTextA(edit_, "C:\\walk\\");
    std::string const chosen =
        Browse(BROWSE_FILEMODE | BROWSE_MULTISELECT,
               {[](HWND dialog) { ClickFile(dialog, "a.txt"); }, [](HWND) { Key(VK_CONTROL, true); },
                [](HWND dialog) { ClickFile(dialog, "c.txt"); }, [](HWND dialog) { ClickFile(dialog, "d.doc"); },
                [](HWND) { Key(VK_CONTROL, false); }, [](HWND dialog) { ClickMiddle(GetDlgItem(dialog, IDOK)); }});
    EXPECT_EQ("C:\\walk;a.txt;c.txt;d.doc", chosen);
}

TEST_F(BrowseInput, AFileIsTypedAndMustExist) {
    SetWindowTextA(edit_, "C:\\walk\\a.txt");
    std::string proposed;
    std::string caption;
    std::string said;
    std::string marked;
    std::string const chosen = Browse(BROWSE_FILEMODE, {[&](HWND dialog) {
                                                            char text[MAX_PATH];
                                                            GetDlgItemTextA(dialog, edt1, text, sizeof text);
                                                            proposed = text;
                                                            GetDlgItemTextA(dialog, IDOK, text, sizeof text);
                                                            caption = text;
                                                            SetDlgItemTextA(dialog, edt1, "none.txt");
                                                            Press({VK_RETURN});
                                                        },
                                                        [&](HWND box) {
                                                            said = MessageOf(box);
                                                            Press({VK_RETURN});
                                                        },
                                                        [&](HWND dialog) {
                                                            marked = Selected(GetDlgItem(dialog, edt1));
                                                            SetDlgItemTextA(dialog, edt1, "one\\two\\..\\..\\B.TXT");
                                                            Press({VK_RETURN});
                                                        }});
    EXPECT_EQ("a.txt", proposed);
    EXPECT_EQ("OK", caption);
    EXPECT_EQ("C:\\walk\\none.txt\nFile not found.\nPlease verify the correct file name was given.", said);
    EXPECT_EQ("none.txt", marked);
    EXPECT_EQ("C:\\walk\\B.TXT", chosen);
}

/// The files that the dialog shows, or of them those that are selected.
std::string FilesOf(HWND dialog, bool selectedOnly) {
    HWND const list = GetDlgItem(dialog, lst1);
    std::string names;
    for (LRESULT i = 0; i < SendMessageA(list, LB_GETCOUNT, 0, 0); ++i) {
        char text[MAX_PATH] = "";
        SendMessageA(list, LB_GETTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(text));
        bool const counts = !selectedOnly || SendMessageA(list, LB_GETSEL, static_cast<WPARAM>(i), 0) > 0;
        names += counts ? std::string(text) + '|' : "";
    }
    return names;
}

TEST_F(BrowseInput, TheFileListFindsWhatIsTyped) {
    std::ofstream(root_ / "on top.txt");
    std::ofstream(root_ / "oo.txt");
    for (DWORD const options : {DWORD{BROWSE_FILEMODE}, DWORD{BROWSE_FILEMODE | BROWSE_MULTISELECT}}) {
        SetWindowTextA(edit_, "C:\\walk");
        std::vector<std::string> found;
        auto const note = [&](HWND dialog) { found.push_back(FilesOf(dialog, true)); };
        std::string const chosen = Browse(options, {[](HWND dialog) {
                                                        SetFocus(GetDlgItem(dialog, lst1));
                                                        Press({'O'});
                                                    },
                                                    [&](HWND dialog) {
                                                        note(dialog);
                                                        // A capital letter leaves the selection one row.
                                                        Key(VK_SHIFT, true);
                                                        Press({'T'});
                                                        Key(VK_SHIFT, false);
                                                    },
                                                    [&](HWND dialog) {
                                                        note(dialog);
                                                        // Another folder, and typing begins anew.
                                                        Press({VK_RETURN, VK_BACK, 'O', 'N', VK_SPACE, 'T'});
                                                    },
                                                    [&](HWND dialog) {
                                                        note(dialog);
                                                        Press({VK_RETURN});
                                                    }});
        EXPECT_EQ((std::vector<std::string>{"one|", "other|", "on top.txt|"}), found);
        EXPECT_EQ("C:\\walk\\on top.txt", chosen);
    }
}

/// @return how many pixels of the list of files, along its first row, are not the ground's.
int InkOfFirstRow(HWND dialog) {
    HWND const list = GetDlgItem(dialog, lst1);
    UpdateWindow(list);
    RECT client;
    GetClientRect(list, &client);
    HDC const context = GetDC(list);
    int ink = 0;
    for (int y = 0; y < 17; ++y) {
        for (int x = 0; x < client.right; ++x) {
            ink += GetPixel(context, x, y) != GetSysColor(COLOR_WINDOW);
        }
    }
    ReleaseDC(list, context);
    return ink;
}

TEST_F(BrowseInput, RowsOfTheFileListAreDrawnWithinIt) {
    // Longer than the list is wide: it ends in three dots, whose last is followed by blank pixels.
    std::string const longName(200, 'l');
    std::ofstream(root_ / longName);
    fs::create_directories(root_ / "empty");
    SetWindowTextA(edit_, "C:\\walk\\empty");
    int emptyInk = -1;
    std::vector<int> dots;
    Browse(BROWSE_FILEMODE, {[](HWND dialog) { SetFocus(GetDlgItem(dialog, lst1)); },
                             [&](HWND dialog) {
                                 emptyInk = InkOfFirstRow(dialog);
                                 Press({VK_BACK, 'L'});
                             },
                             [&](HWND dialog) {
                                 HWND const list = GetDlgItem(dialog, lst1);
                                 UpdateWindow(list);
                                 RECT row;
                                 SendMessageA(list, LB_GETITEMRECT,
                                              static_cast<WPARAM>(SendMessageA(list, LB_GETCURSEL, 0, 0)),
                                              reinterpret_cast<LPARAM>(&row));
                                 HDC const context = GetDC(list);
                                 // The ink of each of the last columns inside the focus rectangle: dots, or whole letters.
                                 for (int x = row.right - 10; x < row.right - 2; ++x) {
                                     int ink = 0;
                                     for (int y = row.top + 2; y < row.bottom - 2; ++y) {
                                         ink += GetPixel(context, x, y) == GetSysColor(COLOR_HIGHLIGHTTEXT);
                                     }
                                     dots.push_back(ink);
                                 }
                                 ReleaseDC(list, context);
                                 Press({VK_ESCAPE});
                             }});
    EXPECT_EQ(0, emptyInk);
    int inked = 0;
    for (int const ink : dots) {
        EXPECT_LE(ink, 1) << "a letter is cut in two";
        inked += ink;
    }
    EXPECT_GE(inked, 2) << "there are no dots";
}

TEST_F(BrowseInput, FiltersPatternsAndCancel) {
    std::string texts;
    std::string all;
    char buffer[MAX_PATH] = "";
    OPENFILENAMEA record = {};
    record.lStructSize = sizeof record;
    record.hwndOwner = host_;
    record.lpstrFilter = "Texts\0*.txt\0Documents\0*.doc\0\0";
    record.nFilterIndex = 2;
    record.lpstrFile = buffer;
    record.nMaxFile = sizeof buffer;
    record.lpstrInitialDir = "C:\\walk";
    record.Flags = OFN_EXPLORER | OFN_FILEMUSTEXIST;
    BOOL accepted = TRUE;
    {
        Hands const hands({[&](HWND dialog) {
                               texts = FilesOf(dialog, false);
                               SetDlgItemTextA(dialog, edt1, "a*.*");
                               Press({VK_RETURN});
                           },
                           [&](HWND dialog) {
                               all = FilesOf(dialog, false);
                               Press({VK_ESCAPE});
                           }});
        accepted = GetOpenFileNameA(&record);
    }
    EXPECT_FALSE(accepted);
    EXPECT_EQ(0U, CommDlgExtendedError());
    EXPECT_EQ("one|other|d.doc|", texts);
    EXPECT_EQ("one|other|a.txt|", all);
    // A buffer too small for the choice tells how much it would take.
    record.nMaxFile = 4;
    {
        Hands const hands({[&](HWND dialog) {
            SetDlgItemTextA(dialog, edt1, "d.doc");
            Press({VK_RETURN});
        }});
        EXPECT_FALSE(GetOpenFileNameA(&record));
    }
    EXPECT_EQ(DWORD{FNERR_BUFFERTOOSMALL}, CommDlgExtendedError());
    WORD needed = 0;
    CopyMemory(&needed, buffer, sizeof needed);
    EXPECT_EQ(sizeof "C:\\walk\\d.doc", needed);
    record.lStructSize = 3;
    EXPECT_FALSE(GetOpenFileNameA(&record));
    EXPECT_EQ(DWORD{CDERR_STRUCTSIZE}, CommDlgExtendedError());
}

}  // namespace
