/// @file filedialog.h
/// The open-file dialog while it is open, and what its files share.
#pragma once

#include <windows.h>

#include <commdlg.h>
#include <dlgs.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "comctl/typing.h"
#include "comdlg/names.h"
#include "shell/place.h"

namespace platform::comdlg {

constexpr int kUpButton = 0x0490;

/// Posted when the dialog is there to be seen: the user is told why it does not begin where it should.
constexpr UINT kTellUnreadable = WM_APP + 1;

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
    std::string unreadable;           ///< the folder that the dialog should have begun in
    HRESULT whyUnreadable = S_OK;
    bool interrupted = false;  ///< another window has come forward, since this was last cleared
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

/// Goes to a folder, given by the places on the way to it. When it cannot be read everything stays as it was.
HRESULT GoTo(FileDialog& dialog, std::vector<shell::Place> trail);
/// The same, and says why when it cannot be read.
void TryGoTo(FileDialog& dialog, std::vector<shell::Place> trail);
/// Goes to the folder above, if there is one.
void GoUp(FileDialog& dialog);
/// The places on the way from the desktop to a path; empty when there is no such path.
std::vector<shell::Place> TrailOf(const std::string& path);
/// Why there is no way to a path: not there, or below a folder that cannot be read.
HRESULT WhyUnreachable(const std::string& path);
/// What a place is called where it must be clear which one is meant.
std::string PathOrName(const shell::Place& place);
/// Reads the folder shown anew, as when the patterns have changed.
HRESULT Refresh(FileDialog& dialog);
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

// --- what the user is told (filedialog_words.cpp). The dialog may be gone afterwards.

enum class Refusal { NoPath, NoFile, BadName };
constexpr HRESULT kNoFolder = HRESULT_FROM_WIN32(ERROR_PATH_NOT_FOUND);

void SelectName(const FileDialog& dialog);

/// Says why a name was refused, and selects it for another try.
void TellRefused(const FileDialog& dialog, const std::string& name, Refusal why);
/// The application has refused a name. Says what is wrong with it, unless the application has said something.
void TellRefusedByHook(const FileDialog& dialog, const std::vector<std::string>& paths);
void TellNotAccessible(const FileDialog& dialog, const std::string& folder, HRESULT why);

/// @returns what speaks against giving a path back, of what is asked for.
std::optional<Refusal> WhyRefused(const std::string& path, bool mustExist);
bool Exists(const std::string& path);

/// A path is split at its last backslash; a drive's root keeps it.
Choice Split(const std::string& path);

// --- the hook (filedialog_hook.cpp)

void CreateHook(FileDialog& dialog);
/// @returns whether the hook refused.
bool TellHook(FileDialog& dialog, UINT code);
bool HookRefuses(FileDialog& dialog);

// --- drawing (filedialog_draw.cpp)

void MeasureRow(MEASUREITEMSTRUCT& measure);
void DrawRow(const FileDialog& dialog, const DRAWITEMSTRUCT& item);
/// How wide the columns of the list have to be.
int ColumnWidth(const FileDialog& dialog);

}  // namespace platform::comdlg
