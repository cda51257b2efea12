// What a click on a browse button does.
#include "controls/browse/button.h"
#include "cvutil32/browse.h"
#include "cvutil32/util.h"

#include <utility>

namespace browse {

namespace {

constexpr unsigned kResultSize = 5120;

/// Where the dialog begins, by what stands in the buddy.
struct Start {
    CSTRING folder;
    CSTRING fileName;
};

void FindStart(Data& data, Start& start) {
    char const* const text = std::as_const(data.Specs());
    if ((data.options & BROWSE_FILEMODE) && UTIL_FileExists(text)) {
        start.fileName.GetFileName(text);
        start.folder.GetFilePath(text);
        if (!UTIL_DirExists(std::as_const(start.folder))) {
            start.folder = "";
        }
    } else if (UTIL_DirExists(text)) {
        start.folder = text;
    }
}

DWORD DialogFlags(DWORD options) {
    return (options & BROWSE_FILEMODE) >> 1 | (options & BROWSE_MULTISELECT) >> 2;
}

/// Whatever was sent may have ended the button.
bool IsStillThere(HWND button, Data const* data) {
    return DataOf(button) == data;
}

void Notify(HWND parent, HWND button, Data const& data, WORD id, WORD code) {
    if (data.options & BROWSE_NOTIFY) {
        SendMessageA(parent, WM_COMMAND, MAKEWPARAM(id, code), reinterpret_cast<LPARAM>(button));
    }
}

/// @return whether the user has chosen something.
bool Ask(HWND parent, Data& data, CSTRING& result) {
    Start start;
    FindStart(data, start);
    char* const buffer = result.BufferLock(kResultSize);
    if (!buffer) {
        return false;
    }
    BOOL const accepted = BROWSE_DisplayBrowseDialog(parent, std::as_const(start.folder), std::as_const(start.fileName),
                                                     buffer, result.GetBufLen(1024), DialogFlags(data.options));
    result.BufferUnlock();
    return accepted != FALSE;
}

/// Builds the new text in a string of its own: in the old one, bytes behind its end would show up behind what is appended.
void Take(Data& data, CSTRING const& result) {
    CSTRING text;
    if ((data.options & BROWSE_APPEND) && data.Specs().GetStrLen() > 0) {
        text = data.Specs();
        text.Append(';');
    }
    text.Append(result);
    data.Specs() = text;
}

/// Copies a text with all its bytes: assigned, it would end at its first one of 0x80 or above.
/// @return false if there is no memory for it.
bool CopyWhole(CSTRING& to, CSTRING const& from) {
    char const* const text = from;
    to = "";
    char* const buffer = to.BufferLock(static_cast<unsigned>(lstrlenA(text)) + 1);
    if (!buffer) {
        return false;
    }
    lstrcpyA(buffer, text);
    to.BufferUnlock();
    return true;
}

/// Reads the buddy's text into the specs; an empty one leaves them as they were. It is read aside first, since a buddy
/// that is asked for its text may end the button.
/// @return whether the button is still there.
bool ReadBuddy(HWND button, Data& data) {
    CSTRING text;
    text.GetWindowTextA(data.buddy);
    if (!IsStillThere(button, &data)) {
        return false;
    }
    if (text.GetStrLen() > 0) {
        CopyWhole(data.Specs(), text);
    }
    return true;
}

/// The buddy gets the text, and the parent hears of it as if the user had typed it. Either may end the button, and with it
/// the specs.
void Deliver(HWND parent, Data& data) {
    HWND const buddy = data.buddy;
    CSTRING text;
    if (!CopyWhole(text, data.Specs())) {
        return;
    }
    CSTRING name;
    name.GetClassNameA(buddy);
    WORD const code = name.Compare("Edit") == 0 ? EN_CHANGE : CBN_EDITCHANGE;
    WPARAM const command = MAKEWPARAM(GetWindowLongPtrA(buddy, GWLP_ID), code);
    SetWindowTextA(buddy, std::as_const(text));
    SendMessageA(parent, WM_COMMAND, command, reinterpret_cast<LPARAM>(buddy));
}

}  // namespace

void Browse(HWND parent, HWND button, WORD id) {
    Data* const data = DataOf(button);
    if (!data || (data->options & BROWSE_NOACTION) || !data->buddy) {
        return;
    }
    if (!ReadBuddy(button, *data)) {
        return;
    }
    Notify(parent, button, *data, id, BRN_BEFOREBROWSE);
    CSTRING result;
    if (!IsStillThere(button, data) || !Ask(parent, *data, result) || !IsStillThere(button, data)) {
        return;
    }
    Take(*data, result);
    Notify(parent, button, *data, id, BRN_AFTERBROWSE);
    if (IsStillThere(button, data)) {
        Deliver(parent, *data);
    }
}

}  // namespace browse
