// The characters of the US keyboard.
#include <iterator>

#include "user/input/input.h"

namespace platform::user {
namespace {

// The keys that make a character, and below it what it is without Shift and with it.
constexpr BYTE kTextKeys[] = {
    '1',          '2',           '3',         '4',         '5',        '6',        '7',        '8',        '9',
    '0',          VK_OEM_MINUS,  VK_OEM_PLUS, VK_OEM_4,    VK_OEM_6,   VK_OEM_1,   VK_OEM_7,   VK_OEM_3,   VK_OEM_5,
    VK_OEM_COMMA, VK_OEM_PERIOD, VK_OEM_2,    VK_SPACE,    VK_BACK,    VK_TAB,     VK_RETURN,  VK_ESCAPE,  VK_CANCEL,
    VK_OEM_102,   VK_ADD,        VK_SUBTRACT, VK_MULTIPLY, VK_DIVIDE,  VK_DECIMAL, VK_NUMPAD0, VK_NUMPAD1, VK_NUMPAD2,
    VK_NUMPAD3,   VK_NUMPAD4,    VK_NUMPAD5,  VK_NUMPAD6,  VK_NUMPAD7, VK_NUMPAD8, VK_NUMPAD9};
constexpr char kUnshifted[] = "1234567890-=[];'`\\,./ \b\t\r\x1B\x03\\+-*/.0123456789";
constexpr char kShifted[] = "!@#$%^&*()_+{}:\"~|<>? \b\t\r\x1B\x03|+-*/.0123456789";
static_assert(sizeof kUnshifted == sizeof kTextKeys + 1 && sizeof kShifted == sizeof kUnshifted);

struct KeyName {
    BYTE key;
    bool shift;
    char character;
};

constexpr KeyName kControlKeys[] = {
    {VK_OEM_4, false, '\x1B'},  {VK_OEM_5, false, '\x1C'}, {VK_OEM_102, false, '\x1C'}, {VK_OEM_6, false, '\x1D'},
    {VK_BACK, false, '\x7F'},   {VK_RETURN, false, '\n'},  {VK_ESCAPE, false, '\x1B'},  {VK_SPACE, false, ' '},
    {VK_CANCEL, false, '\x03'}, {'2', true, '\0'},         {'6', true, '\x1E'},         {VK_OEM_MINUS, true, '\x1F'},
};

int ControlCharacter(UINT key, bool shift) {
    if (key >= 'A' && key <= 'Z') {
        return static_cast<int>(key - 'A' + 1);
    }
    for (const KeyName& each : kControlKeys) {
        if (each.key == key && each.shift == shift) {
            return static_cast<unsigned char>(each.character);
        }
    }
    return -1;
}

}  // namespace

int CharacterOf(UINT key, bool shift, bool control, bool alt, bool capital) {
    if (control) {
        return alt ? -1 : ControlCharacter(key, shift);
    }
    if (key >= 'A' && key <= 'Z') {
        return static_cast<int>(shift != capital ? key : key - 'A' + 'a');
    }
    for (std::size_t index = 0; index < std::size(kTextKeys); ++index) {
        if (kTextKeys[index] == key) {
            return static_cast<unsigned char>(shift ? kShifted[index] : kUnshifted[index]);
        }
    }
    return -1;
}

}  // namespace platform::user
