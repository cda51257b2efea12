// What a person does with a menu: presses, drags and lets go, or goes through it with the keys.
#include "user/menu/menu.h"

#include "user/frame/mnemonic.h"
#include "user/frame/nonclient.h"
#include "user/menu/menu_window.h"
#include "user/model/thread.h"

namespace platform::user {
namespace {

bool IsKey(UINT message) {
    return message >= WM_KEYFIRST && message <= WM_KEYLAST;
}

/// @returns whether a key message is the key's first one, not a repetition.
bool IsFresh(LPARAM lParam) {
    return (lParam & 0x40000000) == 0;
}

class MenuRun {
  public:
    MenuRun(HWND owner, const std::vector<MenuItem>& items, const MenuPlace& place)
        : owner_(owner), place_(place), menu_{items} {}
    MenuRun(const MenuRun&) = delete;
    MenuRun& operator=(const MenuRun&) = delete;

    MenuChoice Run() {
        GetCursorPos(&pointer_);
        // A menu that a press has opened is chosen from by letting go over an item.
        opening_ = GetKeyState(VK_LBUTTON) < 0 || GetKeyState(VK_RBUTTON) < 0;
        if (!ShowMenu(menu_, owner_, place_)) {
            EndMenu(menu_);
            return {};
        }
        if (place_.firstChosen) {
            Step(menu_.items.size() - 1, 1);
        }
        const HCURSOR cursor = SetCursor(LoadCursorA(nullptr, IDC_ARROW));
        while (menu_.window) {
            TakeMessage();
            if (!IsWindow(owner_)) {
                EndMenu(menu_);
            }
        }
        SetCursor(cursor);
        return choice_;
    }

  private:
    /// Messages are looked at before they are taken: a click beside the menu puts it away and is then what it would have been
    /// without the menu, and the end of the program is for the loops outside.
    void TakeMessage() {
        MSG message;
        if (!PeekMessageA(&message, nullptr, 0, 0, PM_NOREMOVE)) {
            MsgWaitForMultipleObjects(0, nullptr, FALSE, INFINITE, QS_ALLINPUT);
        } else if (menu_.window && IsForOthers(message)) {
            EndMenu(menu_);
        } else if (menu_.window && PeekMessageA(&message, nullptr, message.message, message.message, PM_REMOVE)) {
            Take(message);
        }
    }

    bool IsMouse(const MSG& message) const {
        return message.hwnd == menu_.window && message.message >= WM_MOUSEFIRST && message.message <= WM_MOUSELAST;
    }

    bool IsForOthers(const MSG& message) const {
        if (IsMouse(message) && IsPress(message.message) && !IsInside(message.pt)) {
            ThreadState* self = CurrentThread();
            const UserGuard guard(UserLock());
            self->menu.closedOwner = owner_;
            self->menu.closingPress = message.time;
            return true;
        }
        return message.message == WM_QUIT;
    }

    void Take(const MSG& message) {
        if (!menu_.window) {
            return;
        }
        if (IsMouse(message)) {
            OnMouse(message);
        } else if (IsKey(message.message)) {
            OnKey(message);
        } else if (message.message == WM_QUIT) {
            // It has come between the two looks.
            PostQuitMessage(static_cast<int>(message.wParam));
        } else {
            DispatchMessageA(&message);
        }
    }

    bool IsInside(POINT point) const {
        RECT rect{};
        return GetWindowRect(menu_.window, &rect) && PtInRect(&rect, point);
    }

    bool IsEnabled(int index) const {
        return index != OpenMenu::kNone && menu_.items[static_cast<std::size_t>(index)].enabled;
    }

    void Choose(int index, bool byMouse, POINT point) {
        choice_ = {menu_.items[static_cast<std::size_t>(index)].command, byMouse, point};
        EndMenu(menu_);
    }

    void OnMouse(const MSG& message) {
        const bool inside = IsInside(message.pt);
        const int index = ItemAt(menu_, message.pt);
        switch (message.message) {
            case WM_MOUSEMOVE:
                // A pointer that rests leaves the selection to the keys.
                if (message.pt.x != pointer_.x || message.pt.y != pointer_.y) {
                    if (inside || wasInside_) {
                        SelectItem(menu_, index);
                    }
                    pointer_ = message.pt;
                    wasInside_ = inside;
                }
                break;
            case WM_LBUTTONUP:
            case WM_RBUTTONUP:
                OnRelease(message.pt, inside, index);
                break;
            default:
                if (IsPress(message.message)) {
                    SelectItem(menu_, index);
                }
                break;
        }
    }

    void OnRelease(POINT point, bool inside, int index) {
        const bool clicked = opening_ && !inside && PtInRect(&place_.beside, point);
        opening_ = false;
        if (IsEnabled(index)) {
            Choose(index, true, point);
        } else if (!inside && !clicked) {
            EndMenu(menu_);
        }
    }

    void OnKey(const MSG& message) {
        if (message.message == WM_CHAR || message.message == WM_SYSCHAR) {
            OnCharacter(static_cast<char>(message.wParam));
        } else if (message.message == WM_KEYDOWN || message.message == WM_SYSKEYDOWN) {
            OnKeyDown(message);
        }
    }

    void OnKeyDown(const MSG& message) {
        const std::size_t last = menu_.items.size() - 1;
        const auto selected = static_cast<std::size_t>(menu_.selected);
        const bool none = menu_.selected == OpenMenu::kNone;
        switch (message.wParam) {
            case VK_DOWN:
                return Step(none ? last : selected, 1);
            case VK_UP:
                return Step(none ? 0 : selected, last);
            case VK_HOME:
                return Step(last, 1);
            case VK_END:
                return Step(0, last);
            case VK_RETURN:
                if (none) {
                    EndMenu(menu_);
                } else if (IsEnabled(menu_.selected)) {
                    Choose(menu_.selected, false, {});
                }
                return;
            case VK_ESCAPE:
                return EndMenu(menu_);
            case VK_MENU:
            case VK_F10:
                if (IsFresh(message.lParam)) {
                    EndMenu(menu_);
                }
                return;
            default:
                TranslateMessage(&message);
                return;
        }
    }

    /// To the next item, disabled ones too, from one end to the other. @param by 1, or as many as lead to the one before.
    void Step(std::size_t from, std::size_t by) {
        std::size_t index = from;
        do {
            index = (index + by) % menu_.items.size();
        } while (!menu_.items[index].command && index != from);
        SelectItem(menu_, static_cast<int>(index));
    }

    void OnCharacter(char character) {
        // The space that has opened a system menu may be held.
        if (static_cast<unsigned char>(character) <= ' ') {
            return;
        }
        for (std::size_t index = 0; index < menu_.items.size(); ++index) {
            if (menu_.items[index].command && MnemonicOf(menu_.items[index].text) == Capital(character)) {
                SelectItem(menu_, static_cast<int>(index));
                if (menu_.items[index].enabled) {
                    Choose(static_cast<int>(index), false, {});
                }
                return;
            }
        }
        MessageBeep(0);
    }

    HWND owner_;
    const MenuPlace& place_;
    OpenMenu menu_;
    MenuChoice choice_;
    POINT pointer_{};
    bool wasInside_ = false;
    bool opening_ = false;  ///< the button that has opened the menu is still held
};

}  // namespace

MenuChoice RunMenu(HWND owner, const std::vector<MenuItem>& items, const MenuPlace& place) {
    const ThreadState* self = CurrentThread();
    if (!self || items.empty() || Shared(self->menu.window)) {
        return {};
    }
    return MenuRun(owner, items, place).Run();
}

}  // namespace platform::user
