// The US keyboard: scan codes of set 1 and virtual keys.
#include <algorithm>
#include <iterator>

#include "user/input/input.h"

namespace platform::user {
namespace {

// Indexed by scan code. Modifiers come as their left and right keys.
constexpr BYTE kPlain[] = {
    0,         VK_ESCAPE,   '1',         '2',          '3',         '4',        '5',          '6',           '7',
    '8',       '9',         '0',         VK_OEM_MINUS, VK_OEM_PLUS, VK_BACK,    VK_TAB,       'Q',           'W',
    'E',       'R',         'T',         'Y',          'U',         'I',        'O',          'P',           VK_OEM_4,
    VK_OEM_6,  VK_RETURN,   VK_LCONTROL, 'A',          'S',         'D',        'F',          'G',           'H',
    'J',       'K',         'L',         VK_OEM_1,     VK_OEM_7,    VK_OEM_3,   VK_LSHIFT,    VK_OEM_5,      'Z',
    'X',       'C',         'V',         'B',          'N',         'M',        VK_OEM_COMMA, VK_OEM_PERIOD, VK_OEM_2,
    VK_RSHIFT, VK_MULTIPLY, VK_LMENU,    VK_SPACE,     VK_CAPITAL,  VK_F1,      VK_F2,        VK_F3,         VK_F4,
    VK_F5,     VK_F6,       VK_F7,       VK_F8,        VK_F9,       VK_F10,     VK_NUMLOCK,   VK_SCROLL,     VK_HOME,
    VK_UP,     VK_PRIOR,    VK_SUBTRACT, VK_LEFT,      VK_CLEAR,    VK_RIGHT,   VK_ADD,       VK_END,        VK_DOWN,
    VK_NEXT,   VK_INSERT,   VK_DELETE,   VK_SNAPSHOT,  0,           VK_OEM_102, VK_F11,       VK_F12};
static_assert(std::size(kPlain) == 0x59);

// Keys of which scan codes alone do not tell: modifiers of either side, what the keypad's numbers share with its arrows, and the
// extended keys.
constexpr struct {
    BYTE key;
    BYTE scan;
} kOthers[] = {{VK_SHIFT, 0x2A},   {VK_CONTROL, 0x1D}, {VK_MENU, 0x38},    {VK_RCONTROL, 0x1D}, {VK_RMENU, 0x38},
               {VK_NUMPAD7, 0x47}, {VK_NUMPAD8, 0x48}, {VK_NUMPAD9, 0x49}, {VK_NUMPAD4, 0x4B},  {VK_NUMPAD5, 0x4C},
               {VK_NUMPAD6, 0x4D}, {VK_NUMPAD1, 0x4F}, {VK_NUMPAD2, 0x50}, {VK_NUMPAD3, 0x51},  {VK_NUMPAD0, 0x52},
               {VK_DECIMAL, 0x53}, {VK_DIVIDE, 0x35},  {VK_CANCEL, 0x46},  {VK_LWIN, 0x5B},     {VK_RWIN, 0x5C},
               {VK_APPS, 0x5D}};

}  // namespace
}  // namespace platform::user

using namespace platform::user;

UINT WINAPI MapVirtualKeyA(UINT key, UINT mapType) {
    if (key == 0 || mapType != MAPVK_VK_TO_VSC) {
        return 0;
    }
    const auto* plain = std::find(std::begin(kPlain), std::end(kPlain), key);
    if (plain != std::end(kPlain)) {
        return static_cast<UINT>(plain - kPlain);
    }
    const auto* other =
        std::find_if(std::begin(kOthers), std::end(kOthers), [key](const auto& each) { return each.key == key; });
    return other != std::end(kOthers) ? other->scan : 0;
}
