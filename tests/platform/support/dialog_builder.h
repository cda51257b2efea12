/// @file dialog_builder.h
/// Dialog templates in memory, and what the tests of dialogs and controls share.
#pragma once

#include <windows.h>

#include <cstring>
#include <vector>

namespace tests {

/// Builds a DLGTEMPLATE or DLGTEMPLATEEX. Items are added in order; Data() is good until the next call.
class DialogBuilder {
  public:
    explicit DialogBuilder(DWORD style = WS_POPUP | WS_CAPTION, short width = 160, short height = 120,
                           bool extended = false, DWORD exStyle = 0)
        : extended_(extended) {
        if (extended) {
            Words({1, 0xFFFF});
            Dword(0);
            Dword(exStyle);
            Dword(style);
        } else {
            Dword(style);
            Dword(exStyle);
        }
        countAt_ = words_.size();
        Words({0, 10, 10, static_cast<WORD>(width), static_cast<WORD>(height), 0});
    }

    DialogBuilder& Class(const char* name) {
        class_ = name;
        return *this;
    }

    /// Ends the head: class, title and, where the style has DS_SETFONT, the font.
    DialogBuilder& Title(const char* title, const char* face = nullptr, WORD points = 8) {
        Text(class_);
        Text(title);
        if (face) {
            Words({points});
            if (extended_)
                Words({FW_NORMAL, 0x0100});
            Text(face);
        }
        return *this;
    }

    DialogBuilder& Item(const char* className, const char* text, int id, DWORD style, short x, short y, short width,
                        short height, DWORD exStyle = 0, const std::vector<WORD>& creationData = {}) {
        Head(id, style, x, y, width, height, exStyle);
        Text(className);
        Text(text);
        if (creationData.empty()) {
            Words({0});
            return *this;
        }
        // Without EX the length counts itself.
        const size_t bytes = (creationData.size() + (extended_ ? 0 : 1)) * sizeof(WORD);
        Words({static_cast<WORD>(bytes)});
        Words(creationData);
        return *this;
    }

    /// An item of a predefined class by its number.
    DialogBuilder& NumberedItem(WORD classNumber, const char* text, int id, DWORD style, short x, short y, short width,
                                short height) {
        Head(id, style, x, y, width, height, 0);
        Words({0xFFFF, classNumber});
        Text(text);
        Words({0});
        return *this;
    }

    const DLGTEMPLATE* Data() {
        // DWORD alignment, whatever the vector's own.
        aligned_.assign(words_.size() / 2 + 1, 0);
        std::memcpy(aligned_.data(), words_.data(), words_.size() * sizeof(WORD));
        return reinterpret_cast<const DLGTEMPLATE*>(aligned_.data());
    }

  private:
    void Words(const std::vector<WORD>& words) {
        words_.insert(words_.end(), words.begin(), words.end());
    }
    void Dword(DWORD value) {
        Words({LOWORD(value), HIWORD(value)});
    }
    void Text(const char* text) {
        for (; *text; ++text)
            words_.push_back(static_cast<unsigned char>(*text));
        words_.push_back(0);
    }
    void Head(int id, DWORD style, short x, short y, short width, short height, DWORD exStyle) {
        ++words_[countAt_];
        if (words_.size() % 2)
            words_.push_back(0);
        if (extended_) {
            Dword(0);
            Dword(exStyle);
        }
        Dword(style | WS_CHILD | WS_VISIBLE);
        if (!extended_)
            Dword(exStyle);
        Words({static_cast<WORD>(x), static_cast<WORD>(y), static_cast<WORD>(width), static_cast<WORD>(height)});
        if (extended_)
            Dword(static_cast<DWORD>(id));
        else
            Words({static_cast<WORD>(id)});
    }

    bool extended_;
    const char* class_ = "";
    size_t countAt_ = 0;
    std::vector<WORD> words_;
    std::vector<DWORD> aligned_;
};

/// Dispatches what is in the queue, without dialog handling.
inline void PumpMessages() {
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
}

/// Puts a key message to IsDialogMessage as if it had come to a window.
inline BOOL DialogKey(HWND dialog, HWND window, WPARAM key, UINT message = WM_KEYDOWN) {
    MSG keyMessage{};
    keyMessage.hwnd = window;
    keyMessage.message = message;
    keyMessage.wParam = key;
    keyMessage.lParam = 1;
    return IsDialogMessageA(dialog, &keyMessage);
}

/// A key held down, as the calling thread's GetKeyState sees it, for the life of the object. The thread has the keyboard.
class KeyHeld {
  public:
    explicit KeyHeld(WORD key) : key_(key) {
        Set(true);
    }
    ~KeyHeld() {
        Set(false);
    }
    KeyHeld(const KeyHeld&) = delete;
    KeyHeld& operator=(const KeyHeld&) = delete;

  private:
    void Set(bool down) const {
        INPUT input{};
        input.type = INPUT_KEYBOARD;
        input.ki.wVk = key_;
        input.ki.dwFlags = down ? 0 : KEYEVENTF_KEYUP;
        SendInput(1, &input, sizeof input);
        MSG message;
        for (int wait = 0; (GetKeyState(key_) < 0) != down && wait < 1000; ++wait) {
            if (!PeekMessageA(&message, nullptr, WM_KEYFIRST, WM_KEYLAST, PM_REMOVE))
                Sleep(1);
        }
    }
    WORD key_;
};

/// The edit control of a combo box, or the combo box itself where it has none.
inline HWND ComboField(HWND combo) {
    const HWND edit = FindWindowExA(combo, nullptr, "edit", nullptr);
    return edit ? edit : combo;
}

/// The list of a combo box; where it drops down, of the one that was made last.
inline HWND ComboList(HWND combo) {
    const HWND child = FindWindowExA(combo, nullptr, "ComboLBox", nullptr);
    return child ? child : FindWindowExA(nullptr, nullptr, "ComboLBox", nullptr);
}

inline void RegisterPlain(const char* name, WNDPROC procedure = DefWindowProcA) {
    WNDCLASSA windowClass{};
    windowClass.lpfnWndProc = procedure;
    windowClass.hInstance = GetModuleHandleA(nullptr);
    windowClass.lpszClassName = name;
    RegisterClassA(&windowClass);  // the tests share it: it is there from the second time on
}

/// A top-level window that can own dialogs and be activated.
inline HWND MakeOwner(WNDPROC procedure = DefWindowProcA) {
    RegisterPlain("tests_dialog_owner");
    const HWND owner = CreateWindowExA(0, "tests_dialog_owner", "owner", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 400,
                                       300, nullptr, nullptr, GetModuleHandleA(nullptr), nullptr);
    SetWindowLongPtrA(owner, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure));
    return owner;
}

}  // namespace tests
