/// @file thread.h
/// What the user module keeps for each thread that has windows or a message queue.
#pragma once

#include <windows.h>

#include <condition_variable>
#include <cstdint>
#include <deque>
#include <mutex>
#include <vector>

#include "gdi/surface/region.h"
#include "user/model/window.h"

namespace platform::user {

struct SentMessage;

enum class InputKind : std::uint8_t { Move, Button, Wheel, Key };

/// What the keyboard or the mouse did, before a thread turns it into a message for one of its windows.
struct InputEvent {
    InputKind kind = InputKind::Move;
    bool down = false;
    bool extended = false;
    BYTE code = 0;  ///< virtual key (left or right one for modifiers), or VK_LBUTTON, VK_RBUTTON, VK_MBUTTON
    WORD scan = 0;
    int wheel = 0;
    unsigned unicode = 0;  ///< the character this press makes under the host's layout; 0: the layer's own layout says
    POINT point{};
    DWORD time = 0;
    std::uint64_t number = 0;  ///< finds the event again after window procedures have run
};

struct Timer {
    HWND window = nullptr;
    UINT_PTR id = 0;
    UINT period = 0;
    std::uint64_t due = 0;
    TIMERPROC procedure = nullptr;
    bool ready = false;  ///< its time has come and a WM_TIMER waits to be taken
};

/// Guarded by UserLock except where a comment says "owner only".
struct ThreadState {
    DWORD id = 0;
    std::deque<MSG> posted;
    std::deque<SentMessage*> sent;  ///< from other threads, waiting to be answered
    std::vector<Timer> timers;
    bool quitPosted = false;
    int quitCode = 0;
    DWORD wakeBits = 0;    ///< QS_ bits that came since the queue was last looked at
    int paintWindows = 0;  ///< hint: more than 0 when some window of this thread may need WM_PAINT
    HWND active = nullptr;
    HWND focus = nullptr;
    HWND capture = nullptr;
    BYTE keyState[256] = {};  ///< the synchronous state, as of the last input message taken
    DWORD messageTime = 0;    ///< owner only
    DWORD messagePosition = 0;
    struct {
        HWND window = nullptr;
        int width = 0, height = 0;
        POINT position{};
        int hideCount = 1;
        bool drawn = false;  ///< inverted on the screen now
        bool blinkOn = true;
        std::uint64_t due = 0;               ///< when it blinks next
        std::vector<std::uint32_t> pattern;  ///< what each of its pixels is combined with, by exclusive or
        gdi::Region drawnArea;               ///< what was inverted, screen coordinates
        POINT drawnOrigin{};
    } caret;
    std::condition_variable_any wake;

    std::vector<HWND> caretSuspensions;  ///< windows that are being painted or moved; one entry a nested call
    std::deque<InputEvent> input;        ///< routed to this thread, not yet taken
    bool sleeping = false;
    bool objectSignalled = false;  ///< one of the kernel objects it waits for, since it last looked at them
    bool ending = false;           ///< is over; its windows are being cleared away
    HWND lastActive = nullptr;     ///< what to activate when the thread comes to the foreground again
    bool comingForward = false;    ///< was given the foreground, and has yet to activate its window
    bool altAlone = false;         ///< no other key was pressed since Alt went down
    struct {
        WPARAM key = 0;
        LPARAM data = 0;
        unsigned unicode = 0;
    } lastKey;  ///< the key message taken last, for TranslateMessage
    struct {
        HWND window = nullptr;
        UINT message = 0;
        DWORD time = 0;
        POINT point{};
    } lastClick;
    struct {
        HWND window = nullptr;       ///< of the menu that is open
        HWND owner = nullptr;        ///< the window that has opened it
        HWND closedOwner = nullptr;  ///< the owner of the menu that a press beside it has put away last
        DWORD closingPress = 0;      ///< the time of that press
    } menu;
};

/// @returns the calling thread's state, made on first use and filed until the thread ends.
ThreadState* CurrentThread();

/// @returns a live window of the calling thread, else null with the error set. Lock held.
Window* FindOwnWindow(HWND handle);

/// The thread with this id if it has a queue. Lock held.
ThreadState* FindThread(DWORD id);

/// Sets wake bits (QS_POSTMESSAGE, QS_PAINT, ...) and wakes the thread if it waits. Lock held.
void WakeThread(ThreadState* thread, DWORD bits);

/// Sleeps until the thread is woken, or until a deadline of base::TickCount64 (UINT64_MAX: none). The lock is released
/// meanwhile, and may have been woken for nothing.
void Sleep(ThreadState* self, UserHold& hold, std::uint64_t deadline);

}  // namespace platform::user
