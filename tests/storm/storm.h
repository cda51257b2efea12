/// @file storm.h
/// What the parts of a storm share: the chance, the windows that are there, and what has been done that leaves something behind
/// by its own rules.
#pragma once

#include "tests/storm/chance.h"
#include "tests/storm/watch.h"

#include <windows.h>

#include <span>

namespace storm {

struct Options {
    unsigned long events = 20000;
    unsigned long long seed = 1;
    bool failing = false;    ///< allocations fail now and then
    bool vanishing = false;  ///< parents destroy things in their answers
};

/// Something that can happen. It happens as often as its weight says.
struct Event {
    char const* name;
    int weight;
    void (*happen)();
};

std::span<Event const> InputEvents();
std::span<Event const> MessageEvents();
std::span<Event const> LibraryEvents();
std::span<Event const> WindowEvents();
std::span<Event const> SettingEvents();
std::span<Event const> ModalEvents();

/// All decisions. Handlers draw from it too.
Chance& Die();

/// @name The stage
/// @{

HWND OpenDialog(bool modal);  ///< modal: null, once it is closed
HWND Dialog();                ///< null when it is gone
HWND Page();
INT_PTR CALLBACK NestedProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) noexcept;

HWND AnyWindow();  ///< of this thread, at any depth; null where there is none
/// A window of one of these classes, mostly; now and then a stale handle or null, or for functions that look at the class
/// whatever window there is.
HWND AnyOf(std::span<char const* const> classes, bool orOther = false);
HWND StaleWindow();  ///< gone by now, or null
HWND TopWindow();    ///< the window of the top level that is active, or any
bool Is(HWND window, char const* className);

/// Ends a window as its rules want it: pictures of animations are released before.
void End(HWND window);
void EndAll();

/// In a parent's answer: now and then ends the control, its parent or the dialog.
void MaybeVanish(HWND parent, HWND control);
void SetVanishing(bool on);

/// @}

/// What is left behind by the rules of what was called; forgotten when a dialog begins.
struct Kept {
    bool hooks = false;  ///< whether this dialog gets bars that hook the arrow keys of what stands before them
    std::size_t globalBlocks = 0;  ///< of hooked windows, which do not see their end
    std::size_t gdi = 0;           ///< the same
    std::size_t handles = 0;       ///< keys that the profile functions leave open
};
Kept& ByTheRules();

/// One more modal loop, unless there are many already.
class Nesting {
  public:
    Nesting();
    ~Nesting();
    Nesting(Nesting const&) = delete;
    Nesting& operator=(Nesting const&) = delete;
    bool allowed() const {
        return allowed_;
    }
    static int Depth();

  private:
    bool allowed_;
};

/// Texts to set, add and look for: empty, short, long, with characters above 0x7F.
char const* AnyText();
int AnyNumber();  ///< mostly small, now and then at one of the ends

/// Runs the storm. @return the process's exit code.
int Blow(Options const& options);

}  // namespace storm
