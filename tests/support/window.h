// A window of the tests: it writes down what it receives, answers what a test wants it to answer, and leaves the rest
// to DefWindowProcA.
#pragma once

#include <windows.h>

#include <functional>
#include <optional>
#include <vector>

namespace testing_support {

struct Message {
    UINT id;
    WPARAM wParam;
    LPARAM lParam;
};

/// Dispatches what is queued for the thread.
void PumpMessages();

/// The client area of a window as it is on the screen, row by row.
struct Picture {
    int width = 0;
    int height = 0;
    std::vector<COLORREF> pixels;

    COLORREF At(int x, int y) const {
        return pixels[static_cast<std::size_t>(y) * width + x];
    }
    bool operator==(Picture const&) const = default;
};

Picture PictureOf(HWND window);

/// The first @p width by @p height pixels of a device context.
Picture PictureOf(HDC dc, int width, int height);

/// A visible child window of a class.
HWND MakeChild(HWND parent, char const* className, DWORD style = 0, RECT const& place = {10, 10, 90, 30}, int id = 1,
               char const* text = "");

class TestWindow {
  public:
    using Answer = std::function<std::optional<LRESULT>(Message const&)>;

    /// A visible window; a top-level one without parent.
    explicit TestWindow(HWND parent = nullptr, RECT const& place = {40, 40, 340, 240}, DWORD style = 0);
    ~TestWindow();

    TestWindow(TestWindow const&) = delete;
    TestWindow& operator=(TestWindow const&) = delete;

    HWND Handle() const {
        return window_;
    }
    operator HWND() const {
        return window_;
    }

    /// Ends the window; what it received stays readable.
    void Destroy();

    /// All messages with this number, in order.
    std::vector<Message> Received(UINT id) const;
    void Forget() {
        received_.clear();
    }

    /// Called for each message; what it returns is the answer.
    Answer answer;

  private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    HWND window_ = nullptr;
    std::vector<Message> received_;
};

}  // namespace testing_support
