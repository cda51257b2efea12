// The clipboard: a text in a block of global memory, one opener at a time. It and the text of the host's clipboard follow
// each other: the host's is looked at when the clipboard is opened or asked, and written when it is closed.
#include "user/desktop/clipboard.h"

#include <cstring>
#include <new>
#include <optional>
#include <string>

#include "base/immortal.h"
#include "kernel/text/encoding.h"
#include "user/controls/above.h"
#include "user/input/above.h"
#include "user/model/thread.h"
#include "user/model/window.h"

namespace platform::user {
namespace {

// Guarded by UserLock.
struct Clipboard {
    HGLOBAL text = nullptr;
    ThreadState* opener = nullptr;
    HWND openWindow = nullptr;
    bool changed = false;  ///< since it was opened
    std::string hostText;  ///< what the host's clipboard held when both were last the same
};

Clipboard& Board() {
    static base::Immortal<Clipboard> board;
    return *board;
}

void Clear() {
    Clipboard& board = Board();
    if (board.text != nullptr) {
        GlobalFree(board.text);
        board.text = nullptr;
    }
    board.changed = true;
}

HGLOBAL BlockOf(const void* bytes, std::size_t size) {
    const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, size);
    if (block != nullptr) {
        std::memcpy(GlobalLock(block), bytes, size);
        GlobalUnlock(block);
    }
    return block;
}

// --- the host's clipboard

std::string HostLines(const std::string& text) {
    std::string result;
    for (std::size_t index = 0; index < text.size(); ++index) {
        if (text[index] != '\r' || index + 1 == text.size() || text[index + 1] != '\n') {
            result += text[index];
        }
    }
    return result;
}

std::string WindowsLines(const std::string& text) {
    std::string result;
    for (std::size_t index = 0; index < text.size(); ++index) {
        if (text[index] == '\n' && (index == 0 || text[index - 1] != '\r')) {
            result += '\r';
        }
        result += text[index];
    }
    return result;
}

/// Takes over what the host's clipboard holds if it is new.
void FollowHost(UserHold& hold) {
    hold.unlock();
    std::string text;
    display::Display* host = Presenter();
    const bool found = host != nullptr && host->ReadClipboard(&text);
    hold.lock();
    Clipboard& board = Board();
    if (!found || text == board.hostText) {
        return;
    }
    board.hostText = text;
    const std::string ansi = kernel::AnsiFromUtf8(WindowsLines(text));
    Clear();
    board.text = BlockOf(ansi.c_str(), ansi.size() + 1);
}

/// @returns the text to give to the host; nothing if there is none.
std::optional<std::string> TextForHost() {
    const HGLOBAL block = Board().text;
    const auto* bytes = static_cast<const char*>(block != nullptr ? GlobalLock(block) : nullptr);
    if (bytes == nullptr) {
        return std::nullopt;
    }
    const std::string text(bytes, strnlen(bytes, GlobalSize(block)));
    GlobalUnlock(block);
    return HostLines(kernel::Utf8FromAnsi(text));
}

bool IsOpenHere() {
    return Board().opener == CurrentThread() || Fail(ERROR_CLIPBOARD_NOT_OPEN, false);
}

bool Close(UserHold& hold) {
    Clipboard& board = Board();
    std::optional<std::string> text;
    display::Display* host = Presenter();
    if (board.changed && host != nullptr && host->Interactive()) {
        text = TextForHost();
    }
    board.changed = false;
    board.opener = nullptr;
    board.openWindow = nullptr;
    if (text) {
        board.hostText = *text;
        hold.unlock();
        host->WriteClipboard(*text);
        hold.lock();
    }
    return true;
}

}  // namespace

bool ReadPrimarySelection(std::string* text) {
    std::string utf8;
    display::Display* host = Presenter();
    if (host == nullptr || !host->ReadSelection(&utf8)) {
        return false;
    }
    *text = kernel::AnsiFromUtf8(WindowsLines(utf8));
    return true;
}

void OfferPrimarySelection(const std::string& text) {
    display::Display* host = Presenter();
    if (host != nullptr && host->Interactive()) {
        host->WriteSelection(HostLines(kernel::Utf8FromAnsi(text)));
    }
}

void LeaveClipboard(HWND window) {
    UserHold hold(UserLock());
    Clipboard& board = Board();
    if (board.openWindow == window) {
        Close(hold);
    }
}

}  // namespace platform::user

using namespace platform::user;

BOOL WINAPI OpenClipboard(HWND owner) try {
    ThreadState* self = CurrentThread();
    UserHold hold(UserLock());
    Clipboard& board = Board();
    if (owner != nullptr && FindWindowObject(owner) == nullptr) {
        return FALSE;
    }
    if (board.opener != nullptr && (board.opener != self || board.openWindow != owner)) {
        return Fail(ERROR_ACCESS_DENIED, FALSE);
    }
    const bool again = board.opener != nullptr;
    board.opener = self;
    board.openWindow = owner;
    if (!again) {
        FollowHost(hold);
        board.changed = false;
    }
    return TRUE;
} catch (const std::bad_alloc&) {
    return Fail(ERROR_NOT_ENOUGH_MEMORY, FALSE);
}

BOOL WINAPI CloseClipboard(VOID) try {
    UserHold hold(UserLock());
    return IsOpenHere() && Close(hold);
} catch (const std::bad_alloc&) {
    return Fail(ERROR_NOT_ENOUGH_MEMORY, FALSE);
}

BOOL WINAPI EmptyClipboard(VOID) {
    const UserGuard guard(UserLock());
    if (!IsOpenHere()) {
        return FALSE;
    }
    Clear();
    return TRUE;
}

HANDLE WINAPI SetClipboardData(UINT format, HANDLE data) {
    const UserGuard guard(UserLock());
    Clipboard& board = Board();
    if (!IsOpenHere()) {
        return nullptr;
    }
    if (format != CF_TEXT || data == nullptr) {
        return Fail(ERROR_INVALID_PARAMETER, nullptr);
    }
    if (data != board.text) {
        Clear();
    }
    board.text = data;
    board.changed = true;
    return data;
}

HANDLE WINAPI GetClipboardData(UINT format) {
    const UserGuard guard(UserLock());
    return IsOpenHere() && format == CF_TEXT ? Board().text : nullptr;
}

BOOL WINAPI IsClipboardFormatAvailable(UINT format) try {
    UserHold hold(UserLock());
    if (Board().opener == nullptr) {
        FollowHost(hold);
    }
    return format == CF_TEXT && Board().text != nullptr;
} catch (const std::bad_alloc&) {
    return FALSE;
}
