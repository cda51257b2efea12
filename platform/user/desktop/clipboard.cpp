// The clipboard: blocks of global memory by format, one opener at a time. Its text and that of the host's clipboard
// follow each other: the host's is looked at when the clipboard is opened or asked, and written when it is closed.
#include "user/desktop/clipboard.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <optional>
#include <vector>

#include "kernel/text/encoding.h"
#include "user/controls/above.h"
#include "user/input/above.h"
#include "user/model/thread.h"
#include "user/model/window.h"

namespace platform::user {
namespace {

struct Item {
    UINT format = 0;
    HANDLE data = nullptr;     ///< null while the owner has yet to render it
    bool synthesised = false;  ///< made from another text format when it was asked for
};

// Guarded by UserLock.
struct Clipboard {
    std::vector<Item> items;
    ThreadState* opener = nullptr;
    HWND openWindow = nullptr;
    HWND owner = nullptr;
    DWORD sequence = 1;
    bool changed = false;    ///< since it was opened
    std::string hostText;    ///< what the host's clipboard held when both were last the same
    bool rendering = false;  ///< the owner is being asked for data, and may set it
};

Clipboard& Board() {
    static auto& board = *new Clipboard;
    return board;
}

bool IsText(UINT format) {
    return format == CF_TEXT || format == CF_OEMTEXT || format == CF_UNICODETEXT;
}

Item* FindItem(UINT format) {
    for (Item& item : Board().items) {
        if (item.format == format) {
            return &item;
        }
    }
    return nullptr;
}

/// Bitmaps are GDI's; everything else is a block of memory.
void Free(const Item& item) {
    if (item.data == nullptr) {
        return;
    }
    if (item.format == CF_BITMAP) {
        DeleteObject(item.data);
    } else if (item.format < CF_PRIVATEFIRST || item.format > CF_PRIVATELAST) {
        GlobalFree(item.data);
    }
}

void Clear() {
    Clipboard& board = Board();
    for (const Item& item : board.items) {
        Free(item);
    }
    board.items.clear();
    ++board.sequence;
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

// --- text in its three formats

std::u16string WideText(const Item& item) {
    const auto* bytes = static_cast<const char*>(GlobalLock(item.data));
    if (bytes == nullptr) {
        return {};
    }
    const std::size_t size = GlobalSize(item.data);
    std::u16string wide;
    if (item.format == CF_UNICODETEXT) {
        wide.resize(size / sizeof(char16_t));
        std::memcpy(wide.data(), bytes, wide.size() * sizeof(char16_t));
        wide.resize(std::min(wide.find(u'\0'), wide.size()));
    } else {
        const UINT page = item.format == CF_TEXT ? CP_ACP : CP_OEMCP;
        const auto length = static_cast<int>(strnlen(bytes, size));
        wide.resize(static_cast<std::size_t>(length));
        wide.resize(static_cast<std::size_t>(
            MultiByteToWideChar(page, 0, bytes, length, reinterpret_cast<LPWSTR>(wide.data()), length)));
    }
    GlobalUnlock(item.data);
    return wide;
}

HGLOBAL TextBlock(UINT format, const std::u16string& wide) {
    if (format == CF_UNICODETEXT) {
        return BlockOf(wide.c_str(), (wide.size() + 1) * sizeof(char16_t));
    }
    const UINT page = format == CF_TEXT ? CP_ACP : CP_OEMCP;
    const auto* text = reinterpret_cast<LPCWSTR>(wide.c_str());
    const auto length = static_cast<int>(wide.size());
    const int size = WideCharToMultiByte(page, 0, text, length, nullptr, 0, nullptr, nullptr);
    std::string bytes(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(page, 0, text, length, bytes.data(), size, nullptr, nullptr);
    return BlockOf(bytes.c_str(), bytes.size() + 1);
}

/// A text format that another one can be made from; null for other formats and without text.
Item* TextSource(UINT format) {
    if (!IsText(format)) {
        return nullptr;
    }
    for (Item& item : Board().items) {
        if (IsText(item.format) && !item.synthesised) {
            return &item;
        }
    }
    return nullptr;
}

// --- rendering

/// Asks the owner for what it has put off. The lock is released meanwhile.
void Render(UserHold& hold, UINT format) {
    Clipboard& board = Board();
    const HWND owner = board.owner;
    if (owner == nullptr || board.rendering) {
        return;
    }
    board.rendering = true;
    hold.unlock();
    SendMessageA(owner, WM_RENDERFORMAT, format, 0);
    hold.lock();
    board.rendering = false;
}

HANDLE DataOf(UserHold& hold, UINT format) {
    Item* item = FindItem(format);
    if (item != nullptr && item->data == nullptr) {
        Render(hold, format);
        item = FindItem(format);
    }
    if (item != nullptr) {
        return item->data;
    }
    Item* source = TextSource(format);
    if (source != nullptr && source->data == nullptr) {
        Render(hold, source->format);
        source = TextSource(format);
    }
    if (source == nullptr || source->data == nullptr) {
        return nullptr;
    }
    const HGLOBAL block = TextBlock(format, WideText(*source));
    if (block != nullptr) {
        Board().items.push_back({format, block, true});
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
    const bool found = ReadHostClipboard(&text);
    hold.lock();
    Clipboard& board = Board();
    if (!found || text == board.hostText) {
        return;
    }
    board.hostText = text;
    const std::string ansi = kernel::AnsiFromUtf8(WindowsLines(text));
    Clear();
    board.owner = nullptr;
    if (const HGLOBAL block = BlockOf(ansi.c_str(), ansi.size() + 1)) {
        board.items.push_back({CF_TEXT, block, false});
    }
}

/// @returns the text to give to the host; nothing if there is none.
std::optional<std::string> TextForHost(UserHold& hold) {
    const HANDLE block = DataOf(hold, CF_TEXT);
    const auto* bytes = static_cast<const char*>(block != nullptr ? GlobalLock(block) : nullptr);
    if (bytes == nullptr) {
        return std::nullopt;
    }
    const std::string text(bytes, strnlen(bytes, GlobalSize(block)));
    GlobalUnlock(block);
    return HostLines(kernel::Utf8FromAnsi(text));
}

bool IsOpenHere() {
    if (Board().opener == CurrentThread()) {
        return true;
    }
    SetLastError(ERROR_CLIPBOARD_NOT_OPEN);
    return false;
}

bool Close(UserHold& hold) {
    Clipboard& board = Board();
    std::optional<std::string> text;
    if (board.changed && HasHostClipboard()) {
        text = TextForHost(hold);
    }
    board.changed = false;
    board.opener = nullptr;
    board.openWindow = nullptr;
    if (text) {
        board.hostText = *text;
        hold.unlock();
        WriteHostClipboard(*text);
        hold.lock();
    }
    return true;
}

}  // namespace

bool ReadPrimarySelection(std::string* text) {
    std::string utf8;
    if (!ReadHostSelection(&utf8)) {
        return false;
    }
    *text = kernel::AnsiFromUtf8(WindowsLines(utf8));
    return true;
}

void OfferPrimarySelection(const std::string& text) {
    if (HasHostClipboard()) {
        WriteHostSelection(HostLines(kernel::Utf8FromAnsi(text)));
    }
}

void LeaveClipboard(HWND window) {
    UserHold hold(UserLock());
    Clipboard& board = Board();
    if (board.owner == window) {
        const bool putOff =
            std::any_of(board.items.begin(), board.items.end(), [](const Item& item) { return item.data == nullptr; });
        if (putOff) {
            hold.unlock();
            SendMessageA(window, WM_RENDERALLFORMATS, 0, 0);
            hold.lock();
            std::erase_if(board.items, [](const Item& item) { return item.data == nullptr; });
        }
        board.owner = nullptr;
    }
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
        SetLastError(ERROR_ACCESS_DENIED);
        return FALSE;
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
    SetLastError(ERROR_NOT_ENOUGH_MEMORY);
    return FALSE;
}

BOOL WINAPI CloseClipboard(VOID) try {
    UserHold hold(UserLock());
    return IsOpenHere() && Close(hold);
} catch (const std::bad_alloc&) {
    SetLastError(ERROR_NOT_ENOUGH_MEMORY);
    return FALSE;
}

BOOL WINAPI EmptyClipboard(VOID) {
    UserHold hold(UserLock());
    Clipboard& board = Board();
    if (!IsOpenHere()) {
        return FALSE;
    }
    if (const HWND owner = board.owner; owner != nullptr && PeekWindow(owner) != nullptr) {
        hold.unlock();
        SendMessageA(owner, WM_DESTROYCLIPBOARD, 0, 0);
        hold.lock();
    }
    Clear();
    board.owner = board.openWindow;
    return TRUE;
}

HANDLE WINAPI SetClipboardData(UINT format, HANDLE data) try {
    UserHold hold(UserLock());
    Clipboard& board = Board();
    if (!board.rendering && !IsOpenHere()) {
        return nullptr;
    }
    if (format == 0 || (data == nullptr && board.owner == nullptr)) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    // What was made from a text that is there no more goes with it.
    std::erase_if(board.items, [&](const Item& item) {
        const bool stale = item.format == format || (IsText(format) && item.synthesised);
        if (stale && item.data != data) {
            Free(item);
        }
        return stale;
    });
    board.items.push_back({format, data, false});
    ++board.sequence;
    board.changed = true;
    return data;
} catch (const std::bad_alloc&) {
    SetLastError(ERROR_NOT_ENOUGH_MEMORY);
    return nullptr;
}

HANDLE WINAPI GetClipboardData(UINT format) try {
    UserHold hold(UserLock());
    return IsOpenHere() ? DataOf(hold, format) : nullptr;
} catch (const std::bad_alloc&) {
    SetLastError(ERROR_NOT_ENOUGH_MEMORY);
    return nullptr;
}

BOOL WINAPI IsClipboardFormatAvailable(UINT format) try {
    UserHold hold(UserLock());
    if (Board().opener == nullptr) {
        FollowHost(hold);
    }
    return FindItem(format) != nullptr || TextSource(format) != nullptr;
} catch (const std::bad_alloc&) {
    return FALSE;
}

namespace {

/// The formats that can be had, in the order in which they were set; those made from another one come last.
std::vector<UINT> Formats() {
    std::vector<UINT> formats;
    for (const Item& item : Board().items) {
        if (!item.synthesised) {
            formats.push_back(item.format);
        }
    }
    for (const UINT format : {UINT{CF_TEXT}, UINT{CF_OEMTEXT}, UINT{CF_UNICODETEXT}}) {
        if (TextSource(format) != nullptr && std::find(formats.begin(), formats.end(), format) == formats.end()) {
            formats.push_back(format);
        }
    }
    return formats;
}

}  // namespace

int WINAPI CountClipboardFormats(VOID) try {
    UserHold hold(UserLock());
    if (Board().opener == nullptr) {
        FollowHost(hold);
    }
    return static_cast<int>(Formats().size());
} catch (const std::bad_alloc&) {
    return 0;
}

UINT WINAPI EnumClipboardFormats(UINT format) try {
    UserHold hold(UserLock());
    if (!IsOpenHere()) {
        return 0;
    }
    const std::vector<UINT> formats = Formats();
    auto next = formats.begin();
    if (format != 0) {
        next = std::find(formats.begin(), formats.end(), format);
        if (next != formats.end()) {
            ++next;
        }
    }
    SetLastError(ERROR_SUCCESS);
    return next == formats.end() ? 0 : *next;
} catch (const std::bad_alloc&) {
    SetLastError(ERROR_NOT_ENOUGH_MEMORY);
    return 0;
}

HWND WINAPI GetClipboardOwner(VOID) {
    UserGuard guard(UserLock());
    return Board().owner;
}

HWND WINAPI GetOpenClipboardWindow(VOID) {
    UserGuard guard(UserLock());
    return Board().openWindow;
}

DWORD WINAPI GetClipboardSequenceNumber(VOID) {
    UserGuard guard(UserLock());
    return Board().sequence;
}

UINT WINAPI RegisterClipboardFormatA(LPCSTR name) {
    // Formats and messages are names of one table.
    return RegisterWindowMessageA(name);
}
