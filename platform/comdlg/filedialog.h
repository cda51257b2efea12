/// @file filedialog.h
/// The open-file dialog while it is open, and what its files share.
#pragma once

#include <windows.h>

#include <commdlg.h>
#include <dlgs.h>

#include <memory>
#include <string>
#include <vector>

#include "comctl/typing.h"
#include "comdlg/names.h"
#include "shell/place.h"

namespace platform::comdlg {

constexpr int kUpButton = 0x0490;

/// An item of the folder that is shown, or a row of the list of folders.
struct Row {
    shell::Place place;
    std::string name;
    int depth = 0;
};

struct FileDialog {
    explicit FileDialog(OPENFILENAMEA& given) : record(given) {}

    OPENFILENAMEA& record;
    HWND window = nullptr;
    HWND hook = nullptr;  ///< null without one
    std::vector<Filter> filters;
    std::string patterns;             ///< of the items shown
    std::vector<shell::Place> trail;  ///< the folder shown, last, and those above it
    std::vector<Row> items;           ///< as the list shows them
    std::vector<Row> folders;         ///< as the list of folders shows them
    WNDPROC listProcedure = nullptr;  ///< of the list's class
    comctl::Typing typing;            ///< in the list
    DWORD error = 0;

    bool Has(DWORD flag) const {
        return (record.Flags & flag) != 0;
    }
    const shell::Place& Folder() const {
        return trail.back();
    }
    HWND Control(int id) const {
        return GetDlgItem(window, id);
    }
};

/// @returns the dialog of a window; null before it is set up.
inline FileDialog* DialogOf(HWND window) {
    return reinterpret_cast<FileDialog*>(GetWindowLongPtrA(window, DWLP_USER));
}

/// Runs the dialog. @returns whether something was chosen.
bool RunFileDialog(FileDialog& dialog);

// --- the folder shown (filedialog_folder.cpp)

/// Goes to a folder, given by the places on the way to it. @returns false, with everything as it was, when it cannot be
/// read.
bool GoTo(FileDialog& dialog, std::vector<shell::Place> trail);
bool GoUp(FileDialog& dialog);
/// Goes into the item of a row of the list.
bool GoInto(FileDialog& dialog, std::size_t row);
/// The places on the way from the desktop to a path; empty when there is no such path.
std::vector<shell::Place> TrailOf(const std::string& path);
/// Reads the folder shown anew, as when the patterns have changed. @returns false when it cannot be read.
bool Refresh(FileDialog& dialog);
void FillFolders(FileDialog& dialog);

// --- the list of files (filedialog_list.cpp)

/// The list finds what is typed by all its letters.
void SubclassList(FileDialog& dialog);
/// The rows of the list that are selected.
std::vector<std::size_t> SelectedRows(const FileDialog& dialog);
/// The names of the files selected go into the name field.
void OnSelection(FileDialog& dialog);

// --- choosing (filedialog_accept.cpp)

/// The accept button: goes to a folder, applies a pattern, or ends the dialog with what was chosen.
void Accept(FileDialog& dialog);

std::string TextOf(HWND control);

// --- the hook (filedialog_hook.cpp)

void CreateHook(FileDialog& dialog);
void TellHookInitDone(FileDialog& dialog);
bool HookRefuses(FileDialog& dialog);

// --- drawing (filedialog_draw.cpp)

void MeasureRow(MEASUREITEMSTRUCT& measure);
void DrawRow(const FileDialog& dialog, const DRAWITEMSTRUCT& item);
/// How wide the columns of the list have to be.
int ColumnWidth(const FileDialog& dialog);

}  // namespace platform::comdlg
