// Dialog after dialog: events at every beat of a timer, which beats in modal loops too, and a look at what is left when the
// dialog is gone.
#include "tests/storm/storm.h"

#include "tests/storm/memory.h"

#include <cvplatform.h>

#include <algorithm>
#include <cstdio>

namespace storm {

namespace {

constexpr int kMostInADialog = 2000;
constexpr int kMostInABeat = 8;
constexpr UINT kBeat = 10;
constexpr int kFailing = 500;  // one allocation in so many
// Soon the tick counter begins anew.
constexpr ULONGLONG kStart = 0xFFFFFFFF - 30000;

Options g_options;
unsigned long g_last = 0;  // event of the dialog that is up
bool g_ending = false;
int g_beats = 0;  // since the end began

struct Group {
    std::span<Event const> (*events)();
    int weight;
};
Group const kGroups[] = {
    {InputEvents, 30},  {MessageEvents, 35}, {LibraryEvents, 15},
    {WindowEvents, 16}, {SettingEvents, 1},  {ModalEvents, 6},
};

template <class Items>
auto const& Weighed(Items const& items) {
    int all = 0;
    for (auto const& item : items) {
        all += item.weight;
    }
    int at = Die().Below(all);
    for (auto const& item : items) {
        at -= item.weight;
        if (at < 0) {
            return item;
        }
    }
    return *std::begin(items);
}

// An exception that comes out of a call ends the program where it was thrown.
void Happen() noexcept {
    Event const& event = Weighed(Weighed(kGroups).events());
    BeginEvent(event.name);
    RollGlobalMemory();
    event.happen();
}

// Whoever still waits in a loop of its own must come back once its windows are gone.
void Finish() {
    EndAll();
    if (++g_beats > 50) {
        PostQuitMessage(0);
    }
    if (g_beats > 1000) {
        Fail("a modal loop goes on without its windows");
    }
}

void CALLBACK Beat(HWND, UINT, UINT_PTR, DWORD) noexcept {
    if (!Dialog() || Ours().events >= g_last) {
        g_ending = true;
    }
    if (g_ending) {
        Finish();
        return;
    }
    for (int left = Die().From(1, kMostInABeat); left > 0 && Dialog() && Ours().events < g_last; --left) {
        Happen();
    }
}

void Pump(MSG& message) {
    if (HWND const dialog = Dialog(); !dialog || !IsDialogMessageA(dialog, &message)) {
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
}

void ReleaseInput() {
    ReleaseCapture();
    for (int key = 1; key < 256; ++key) {
        if (GetAsyncKeyState(key) < 0) {
            INPUT input = {};
            if (key <= VK_MBUTTON && key != VK_CANCEL) {
                input.type = INPUT_MOUSE;
                input.mi.dwFlags = key == VK_LBUTTON   ? MOUSEEVENTF_LEFTUP
                                   : key == VK_RBUTTON ? MOUSEEVENTF_RIGHTUP
                                                       : MOUSEEVENTF_MIDDLEUP;
            } else {
                input.type = INPUT_KEYBOARD;
                input.ki.wVk = static_cast<WORD>(key);
                input.ki.dwFlags = KEYEVENTF_KEYUP;
            }
            SendInput(1, &input, sizeof input);
        }
    }
    if (OpenClipboard(nullptr)) {
        EmptyClipboard();
        CloseClipboard();
    }
}

// What has been posted to windows that are gone, and the keys' release.
void Drain() {
    MSG message;
    for (int left = 10000; PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE); --left) {
        DispatchMessageA(&message);
        if (left == 0) {
            Fail("messages without an end");
        }
    }
}

struct Left {
    std::size_t windows;
    std::size_t user;
    std::size_t gdi;
    std::size_t blocks;
    std::size_t handles;
    std::size_t shellBlocks;

    static Left Now() {
        return {CvPlatformCount(CV_PLATFORM_WINDOWS),
                GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS),
                GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS),
                CvPlatformCount(CV_PLATFORM_GLOBAL_BLOCKS),
                CvPlatformCount(CV_PLATFORM_OTHER_HANDLES),
                CvPlatformCount(CV_PLATFORM_SHELL_BLOCKS)};
    }
};

void Compare(char const* what, std::size_t before, std::size_t after, std::size_t byTheRules = 0) {
    if (after > before + byTheRules) {
        Fail("%s are left after dialog %lu: %zu, were %zu", what, Ours().dialogs.load(), after, before + byTheRules);
    }
}

void RunDialog(bool modal) {
    g_ending = false;
    g_beats = 0;
    ByTheRules() = {.hooks = Die().OneIn(5)};
    UINT_PTR timer = 0;
    {
        // Without its beat there is no storm.
        Plenty const plenty;
        timer = SetTimer(nullptr, 0, kBeat, Beat);
    }
    OpenDialog(modal);
    MSG message;
    while (Dialog() && GetMessageA(&message, nullptr, 0, 0) > 0) {
        Pump(message);
    }
    KillTimer(nullptr, timer);
}

void OneDialog(bool compare) {
    Left const before = Left::Now();
    g_last = std::min(g_options.events, Ours().events + static_cast<unsigned long>(Die().From(1, kMostInADialog)));
    ++Ours().dialogs;
    RunDialog(Die().OneIn(3));
    if (Nesting::Depth() != 0) {
        Fail("the dialog is over, and %d boxes are not", Nesting::Depth());
    }
    Plenty const plenty;
    CvPlatformFailAllocation(0);
    EndAll();
    ReleaseInput();
    Drain();
    if (compare) {
        Left const after = Left::Now();
        Compare("windows", before.windows, after.windows);
        Compare("user objects", before.user, after.user);
        Compare("GDI objects", before.gdi, after.gdi, ByTheRules().gdi);
        Compare("global blocks", before.blocks, after.blocks, ByTheRules().globalBlocks);
        Compare("kernel objects", before.handles, after.handles, ByTheRules().handles);
        Compare("blocks of the shell", before.shellBlocks, after.shellBlocks);
    }
}

}  // namespace

int Blow(Options const& options) {
    g_options = options;
    Die() = Chance(options.seed);
    CvPlatformDriveClock(kStart);
    SetVanishing(options.vanishing);
    if (options.failing) {
        FailAllocations(kFailing, ~options.seed);
    }
    // What is made once and kept is there after the first dialogs.
    for (int dialogs = 0; Ours().events < options.events; ++dialogs) {
        OneDialog(dialogs > 5);
    }
    FailAllocations(0, 0);
    Ours().failed = FailedAllocations();
    return 0;
}

}  // namespace storm
