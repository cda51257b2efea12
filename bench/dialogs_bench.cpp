// The standard dialogs from opening to closing, beside a message box's template that nobody fills or lays out. The owner
// closes each one when it hears that the dialog has nothing left to do, which is after it has painted itself.
#include <cvutil32/about.h>
#include <cvutil32/msgbox.h>
#include <cvutil32/util.h>

#include <benchmark/benchmark.h>

namespace {

LRESULT CALLBACK CloseWhenIdle(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_ENTERIDLE && wParam == MSGF_DIALOGBOX) {
        PostMessageA(reinterpret_cast<HWND>(lParam), WM_COMMAND, IDOK, 0);
        return 0;
    }
    return DefWindowProcA(window, message, wParam, lParam);
}

class Owner {
  public:
    Owner() {
        static ATOM const atom = [] {
            WNDCLASSA record = {};
            record.lpfnWndProc = CloseWhenIdle;
            record.hInstance = GetModuleHandleA(nullptr);
            record.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
            record.lpszClassName = "CvBenchOwner";
            return RegisterClassA(&record);
        }();
        static_cast<void>(atom);
        window_ = CreateWindowExA(0, "CvBenchOwner", "", WS_POPUP | WS_VISIBLE, 200, 150, 500, 400, nullptr, nullptr,
                                  GetModuleHandleA(nullptr), nullptr);
        SetForegroundWindow(window_);
    }
    ~Owner() {
        DestroyWindow(window_);
    }
    Owner(Owner const&) = delete;
    Owner& operator=(Owner const&) = delete;
    operator HWND() const {
        return window_;
    }

  private:
    HWND window_;
};

constexpr char kText[] =
    "The document has been changed by somebody else since you opened it. Do you want to save your version all the "
    "same?";

void ExtendedMessageBox(benchmark::State& state) {
    Owner const owner;
    KVMB_MESSAGEBOX box = {};
    box.owner = owner;
    box.title = "Benchmark";
    box.text = kText;
    box.icon = LoadIconA(nullptr, IDI_QUESTION);
    box.buttonCount = static_cast<WORD>(state.range(0));
    for (WORD i = 0; i < box.buttonCount; ++i) {
        box.buttons[i].kind = i % 4u;
        box.buttons[i].id = i + 1;
    }
    for (auto _ : state) {
        if (KVMB_MessageBoxExtended(&box) != IDOK) {
            state.SkipWithError("the box could not be shown");
            break;
        }
    }
    state.SetItemsProcessed(state.iterations());
}

void AboutBox(benchmark::State& state) {
    Owner const owner;
    for (auto _ : state) {
        if (ABOUT_DisplayAboutBox(owner, nullptr, nullptr, "Planner", "Version 2.1", kText, IDI_APPLICATION) != 0) {
            state.SkipWithError("the box could not be shown");
            break;
        }
    }
    state.SetItemsProcessed(state.iterations());
}

INT_PTR CALLBACK EndByCommand(HWND dialog, UINT message, WPARAM wParam, LPARAM) {
    if (message == WM_COMMAND) {
        EndDialog(dialog, static_cast<INT_PTR>(wParam));
    }
    return message == WM_COMMAND || message == WM_INITDIALOG;
}

void TemplateAsItIs(benchmark::State& state) {
    constexpr int kNarrowBox = 10100;
    Owner const owner;
    for (auto _ : state) {
        if (DialogBoxParamA(UTIL_GetModuleInstance(), MAKEINTRESOURCEA(kNarrowBox), owner, EndByCommand, 0) != IDOK) {
            state.SkipWithError("the dialog could not be shown");
            break;
        }
    }
    state.SetItemsProcessed(state.iterations());
}

BENCHMARK(ExtendedMessageBox)->Arg(2)->Arg(8)->Unit(benchmark::kMicrosecond);
BENCHMARK(AboutBox)->Unit(benchmark::kMicrosecond);
BENCHMARK(TemplateAsItIs)->Unit(benchmark::kMicrosecond);

}  // namespace
