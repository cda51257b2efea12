// Every dialog and every page of the gallery, again and again.
#include "tests/endurance/endurance.h"

#include "gallery/frame.h"
#include "gallery/pages.h"

#include <cvplatform.h>
#include <cvutil32.h>

#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

namespace endurance {

namespace {

constexpr int kWarm = 10;               // rounds after which everything that is made once is there
constexpr long kMostGrowth = 4L << 20;  // bytes of memory; what a thousand leaks of a small thing would pass

struct Amounts {
    std::size_t windows;
    std::size_t gdi;
    std::size_t blocks;
    std::size_t handles;
    long memory;

    static Amounts Now() {
        return {CvPlatformCount(CV_PLATFORM_WINDOWS), CvPlatformCount(CV_PLATFORM_GDI_OBJECTS),
                CvPlatformCount(CV_PLATFORM_GLOBAL_BLOCKS), CvPlatformCount(CV_PLATFORM_OTHER_HANDLES), Resident()};
    }

    static long Resident() {
        long pages = 0;
        if (std::FILE* const file = std::fopen("/proc/self/statm", "r")) {
            if (std::fscanf(file, "%*s %ld", &pages) != 1) {
                pages = 0;
            }
            std::fclose(file);
        }
        return pages * sysconf(_SC_PAGESIZE);
    }
};

bool Is(HWND window, char const* name) {
    char buffer[64] = "";
    GetClassNameA(window, buffer, sizeof buffer);
    return lstrcmpiA(buffer, name) == 0;
}

/// A field whose arrow keys a bar hooks does not see its end, and leaves its data behind: that is a rule of the bar.
BOOL CALLBACK CountHooked(HWND window, LPARAM count) {
    LONG_PTR constexpr kHooks = SCROLL_PREVSIBLING | SCROLL_ARROWKEYS;
    if (Is(window, SCROLL_CLASSNAME) && (GetWindowLongPtrA(window, GWL_STYLE) & kHooks) == kHooks) {
        ++*reinterpret_cast<std::size_t*>(count);
    }
    return TRUE;
}

std::size_t g_hooked = 0;

void Paint(HWND dialog) {
    RedrawWindow(dialog, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
}

void Pump() {
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message != WM_QUIT) {
            DispatchMessageA(&message);
        }
    }
}

void OpenPage(int page) {
    gallery::Result result;
    HWND const frame = gallery::OpenFrame(GetModuleHandleA(nullptr), result);
    gallery::ShowPage(frame, page);
    ShowWindow(frame, SW_SHOWNORMAL);
    Paint(frame);
    Pump();
    EnumChildWindows(frame, CountHooked, reinterpret_cast<LPARAM>(&g_hooked));
    DestroyWindow(frame);
    Pump();
}

void CALLBACK CloseActive(HWND, UINT, UINT_PTR, DWORD) {
    HWND const dialog = GetActiveWindow();
    if (Is(dialog, "#32770") && IsWindowVisible(dialog)) {
        Paint(dialog);
        PostMessageA(dialog, WM_COMMAND, IDCANCEL, 0);
    }
}

/// A modal dialog, which is closed as soon as it is up.
void Show(std::function<void()> const& dialog) {
    UINT_PTR const timer = SetTimer(nullptr, 0, USER_TIMER_MINIMUM, CloseActive);
    dialog();
    KillTimer(nullptr, timer);
    Pump();
}

struct Subject {
    std::string name;
    std::function<void()> open;
};

std::vector<Subject> Subjects() {
    std::vector<Subject> subjects;
    for (int page = 0; page < static_cast<int>(gallery::Pages().size()); ++page) {
        subjects.push_back({"page " + std::to_string(page), [page] { OpenPage(page); }});
    }
    const auto modal = [&](char const* name, std::function<void()> dialog) {
        subjects.push_back({name, [dialog] { Show(dialog); }});
    };
    modal("system's message box", [] { MessageBoxA(nullptr, "A text.", "Endurance", MB_YESNOCANCEL | MB_ICONHAND); });
    modal("extended message box", [] {
        KVMB_MESSAGEBOX box = {};
        box.title = "Endurance";
        box.text = "A text that is long enough for two lines of the narrow box, at least.";
        box.icon = LoadIconA(nullptr, IDI_QUESTION);
        box.buttonCount = 3;
        for (int i = 0; i < 3; ++i) {
            box.buttons[i].kind = static_cast<DWORD>(i);
            box.buttons[i].id = i + 1;
        }
        KVMB_MessageBoxExtended(&box);
    });
    modal("error box", [] {
        KVMB_MessageBoxError(nullptr, "Endurance", nullptr, "A message.", nullptr, "A reason.", nullptr, nullptr,
                             nullptr, nullptr, 0, KVMB_SEP_REASON | MB_ICONHAND);
    });
    modal("About box", [] {
        ABOUT_DisplayAboutBox(nullptr, nullptr, nullptr, "Endurance", "Version 1", "A notice.", IDI_APPLICATION);
    });
    for (DWORD const flags : {0, BROWSE_DLG_FILE, BROWSE_DLG_FILE | BROWSE_DLG_MULTISELECT}) {
        modal(flags ? "open-file dialog" : "folder dialog", [flags] {
            HWND const owner = CreateWindowExA(0, "static", "", WS_POPUP | WS_VISIBLE, 0, 0, 200, 100, nullptr, nullptr,
                                               nullptr, nullptr);
            char buffer[MAX_PATH];
            BROWSE_DisplayBrowseDialog(owner, "C:\\", nullptr, buffer, sizeof buffer, flags);
            DestroyWindow(owner);
        });
    }
    return subjects;
}

bool Compare(char const* name, char const* what, long before, long after, long most) {
    if (after - before <= most) {
        return true;
    }
    std::printf("%s: %s grew from %ld to %ld\n", name, what, before, after);
    return false;
}

bool Endure(Subject const& subject, int times) {
    for (int i = 0; i < kWarm; ++i) {
        subject.open();
    }
    g_hooked = 0;
    Amounts const before = Amounts::Now();
    auto const start = std::chrono::steady_clock::now();
    for (int i = 0; i < times; ++i) {
        subject.open();
    }
    std::chrono::duration<double> const took = std::chrono::steady_clock::now() - start;
    Amounts const after = Amounts::Now();
    std::printf("%-22s %d times in %.1f s, memory %ld to %ld KiB, %zu blocks of hooked fields\n", subject.name.c_str(),
                times, took.count(), before.memory / 1024, after.memory / 1024, g_hooked);
    std::fflush(stdout);
    char const* const name = subject.name.c_str();
    auto const count = [](std::size_t amount) { return static_cast<long>(amount); };
    bool counts = Compare(name, "windows", count(before.windows), count(after.windows), 0);
    counts &= Compare(name, "GDI objects", count(before.gdi), count(after.gdi), 0);
    counts &= Compare(name, "handles", count(before.handles), count(after.handles), 0);
    counts &= Compare(name, "global blocks", count(before.blocks), count(after.blocks), count(g_hooked));
    // The sanitizer keeps what was released for a while.
#ifdef CVUTIL32_SANITIZE
    return counts;
#else
    return Compare(name, "memory", before.memory, after.memory, kMostGrowth) & counts;
#endif
}

}  // namespace

bool Dialogs(int times) {
    bool good = true;
    for (Subject const& subject : Subjects()) {
        good = Endure(subject, times) && good;
    }
    return good;
}

}  // namespace endurance
