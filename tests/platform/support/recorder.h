// A window that writes down what it hears, for tests of messages and input.
#pragma once

#include <gtest/gtest.h>
#include <windows.h>

#include <functional>
#include <vector>

namespace tests {

struct Heard {
    HWND window;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
};

class Recorder {
  public:
    static constexpr const char* kClass = "MessageRecorder";

    static Recorder& Get() {
        static Recorder recorder;
        return recorder;
    }

    /// What was heard since the last Clear, by all windows of the class.
    std::vector<Heard> heard;

    /// Asked first; a true result means that the message is answered.
    std::function<bool(const Heard&, LRESULT*)> answer;

    void Clear() {
        heard.clear();
    }

    void Reset() {
        heard.clear();
        answer = nullptr;
    }

    /// Ends all windows that it has made and that are still there.
    void EndWindows() {
        for (; !made_.empty(); made_.pop_back()) {
            if (IsWindow(made_.back())) {
                DestroyWindow(made_.back());
            }
        }
    }

    std::vector<UINT> Numbers(const std::vector<UINT>& wanted, HWND window = nullptr) const {
        std::vector<UINT> numbers;
        for (const Heard& each : heard) {
            for (UINT message : wanted) {
                if (each.message == message && (window == nullptr || window == each.window)) {
                    numbers.push_back(message);
                }
            }
        }
        return numbers;
    }

    const Heard* Find(UINT message, HWND window = nullptr) const {
        for (const Heard& each : heard) {
            if (each.message == message && (window == nullptr || window == each.window)) {
                return &each;
            }
        }
        return nullptr;
    }

    int Count(UINT message) const {
        return static_cast<int>(Numbers({message}).size());
    }

    HWND Make(DWORD style, int x, int y, int width, int height, HWND parent = nullptr, DWORD exStyle = 0,
              const char* text = "") {
        Register();
        made_.push_back(
            CreateWindowExA(exStyle, kClass, text, style, x, y, width, height, parent, nullptr, nullptr, nullptr));
        return made_.back();
    }

  private:
    static void Register() {
        WNDCLASSA windowClass{};
        windowClass.style = CS_DBLCLKS;
        windowClass.lpfnWndProc = Procedure;
        windowClass.hCursor = LoadCursorA(nullptr, IDC_ARROW);
        windowClass.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
        windowClass.lpszClassName = kClass;
        RegisterClassA(&windowClass);
    }

    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        const Heard heard{window, message, wParam, lParam};
        LRESULT result = 0;
        Get().heard.push_back(heard);
        const auto answer = Get().answer;
        if (answer && answer(heard, &result)) {
            return result;
        }
        return DefWindowProcA(window, message, wParam, lParam);
    }

    std::vector<HWND> made_;
};

/// Takes and delivers messages until none is left.
inline void Pump() {
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
}

/// Leaves neither its window nor others of the class behind.
class RecordedTest : public ::testing::Test {
  protected:
    void SetUp() override {
        Recorder::Get().Reset();
    }
    void TearDown() override {
        ReleaseCapture();
        Recorder::Get().Reset();
        Recorder::Get().EndWindows();
        Pump();
    }
    /// A window in the foreground that has heard nothing yet.
    void MakeWindow(DWORD style, int x, int y, int width, int height) {
        window = Recorder::Get().Make(style, x, y, width, height);
        ASSERT_NE(window, nullptr);
        SetForegroundWindow(window);
        Pump();
        Recorder::Get().Reset();
    }
    HWND window = nullptr;
};

/// How long a test waits, in milliseconds, for what must come on the slowest machine.
constexpr DWORD kPatience = 60000;

/// Pumps until something holds, as real input may take its time. @returns false when it does not come.
inline bool PumpUntil(const std::function<bool()>& holds) {
    const DWORD start = GetTickCount();
    for (;;) {
        Pump();
        if (holds()) {
            return true;
        }
        const DWORD spent = GetTickCount() - start;
        if (spent >= kPatience) {
            return false;
        }
        MsgWaitForMultipleObjects(0, nullptr, FALSE, 20, QS_ALLINPUT);
    }
}

}  // namespace tests
