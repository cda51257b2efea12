// Asking for the state of keys, and turning key messages into characters.
#include "user/input/input.h"
#include "user/model/input_state.h"
#include "user/model/thread.h"
#include "user/model/window.h"

namespace platform::user {
namespace {

// The bytes of a character in the code page in use; 0 when it has none there.
int ToBytes(unsigned unicode, char (&bytes)[4]) {
    if (unicode < 0x80) {
        bytes[0] = static_cast<char>(unicode);
        return 1;
    }
    WCHAR wide[2] = {static_cast<WCHAR>(unicode), 0};
    int units = 1;
    if (unicode > 0xFFFF) {
        wide[0] = static_cast<WCHAR>(0xD800 + ((unicode - 0x10000) >> 10));
        wide[1] = static_cast<WCHAR>(0xDC00 + ((unicode - 0x10000) & 0x3FF));
        units = 2;
    }
    return WideCharToMultiByte(CP_ACP, 0, wide, units, bytes, sizeof bytes, nullptr, nullptr);
}

/// @returns the character of a key with the modifiers that are down, -1 for none.
int TypedCharacter(const ThreadState* self, UINT key) {
    const UserGuard guard(UserLock());
    const auto down = [self](BYTE which) { return (self->keyState[which] & 0x80) != 0; };
    return CharacterOf(key, down(VK_SHIFT), down(VK_CONTROL), down(VK_MENU), (self->keyState[VK_CAPITAL] & 1) != 0);
}

}  // namespace
}  // namespace platform::user

using namespace platform::user;

BOOL WINAPI TranslateMessage(const MSG* message) {
    ThreadState* self = CurrentThread();
    if (self == nullptr || message == nullptr || message->message < WM_KEYDOWN || message->message > WM_SYSKEYUP ||
        message->message == WM_CHAR) {
        return FALSE;
    }
    if (message->message != WM_KEYDOWN && message->message != WM_SYSKEYDOWN) {
        return TRUE;
    }
    const UINT number = message->message == WM_KEYDOWN ? WM_CHAR : WM_SYSCHAR;
    const auto& last = self->lastKey;
    char bytes[4] = {};
    int count = 0;
    if (last.unicode != 0 && last.key == message->wParam && last.data == message->lParam) {
        count = ToBytes(last.unicode, bytes);
    } else if (const int character = TypedCharacter(self, static_cast<UINT>(message->wParam)); character >= 0) {
        bytes[0] = static_cast<char>(character);
        count = 1;
    }
    for (int i = 0; i < count; ++i) {
        PostMessageA(message->hwnd, number, static_cast<unsigned char>(bytes[i]), message->lParam);
    }
    return TRUE;
}

SHORT WINAPI GetKeyState(int key) {
    const ThreadState* self = CurrentThread();
    if (self == nullptr || key < 0 || key > 0xFF) {
        return 0;
    }
    const BYTE state = Shared(self->keyState[key]);
    return static_cast<SHORT>((state & 0x80 ? 0xFF80 : 0) | (state & 0x01));
}

SHORT WINAPI GetAsyncKeyState(int key) {
    if (key < 0 || key > 0xFF) {
        return 0;
    }
    const UserGuard guard(UserLock());
    return static_cast<SHORT>((Input().keys[key] & 0x80) != 0 ? 0x8000 : 0);
}
