// What a click on a browse button does.
#include "controls/browse/button.h"
#include "cvutil32/browse.h"
#include "cvutil32/util.h"

#include <utility>

namespace browse {

namespace {

constexpr unsigned kResultSize = 5120;
constexpr unsigned kAll = ~0U;

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
            start.folder.Delete(0, kAll);
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

void Take(Data& data, CSTRING const& result) {
    CSTRING& specs = data.Specs();
    if (!(data.options & BROWSE_APPEND)) {
        specs.Delete(0, kAll);
    } else if (specs.GetStrLen() > 0) {
        specs.Append(';');
    }
    specs.Append(result);
}

/// The buddy gets the text, and the parent hears of it as if the user had typed it.
void Deliver(HWND parent, Data& data) {
    HWND const buddy = data.buddy;
    SetWindowTextA(buddy, std::as_const(data.Specs()));
    CSTRING name;
    name.GetClassNameA(buddy);
    WORD const code = name.Compare("Edit") == 0 ? EN_CHANGE : CBN_EDITCHANGE;
    SendMessageA(parent, WM_COMMAND, MAKEWPARAM(GetWindowLongPtrA(buddy, GWLP_ID), code),
                 reinterpret_cast<LPARAM>(buddy));
}

}  // namespace

void Browse(HWND parent, HWND button, WORD id) {
    Data* const data = DataOf(button);
    if (!data || (data->options & BROWSE_NOACTION) || !data->buddy) {
        return;
    }
    data->Specs().GetWindowTextA(data->buddy);
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
