// The characters of the US keyboard.
#include "user/input/input.h"

namespace platform::user {
namespace {

struct KeyText {
    BYTE key;
    char plain;
    char shifted;
};

constexpr KeyText kText[] = {
    {'1', '1', '!'},
    {'2', '2', '@'},
    {'3', '3', '#'},
    {'4', '4', '$'},
    {'5', '5', '%'},
    {'6', '6', '^'},
    {'7', '7', '&'},
    {'8', '8', '*'},
    {'9', '9', '('},
    {'0', '0', ')'},
    {VK_OEM_MINUS, '-', '_'},
    {VK_OEM_PLUS, '=', '+'},
    {VK_OEM_4, '[', '{'},
    {VK_OEM_6, ']', '}'},
    {VK_OEM_1, ';', ':'},
    {VK_OEM_7, '\'', '"'},
    {VK_OEM_3, '`', '~'},
    {VK_OEM_5, '\\', '|'},
    {VK_OEM_COMMA, ',', '<'},
    {VK_OEM_PERIOD, '.', '>'},
    {VK_OEM_2, '/', '?'},
    {VK_SPACE, ' ', ' '},
    {VK_BACK, '\b', '\b'},
    {VK_TAB, '\t', '\t'},
    {VK_RETURN, '\r', '\r'},
    {VK_ESCAPE, '\x1B', '\x1B'},
    {VK_CANCEL, '\x03', '\x03'},
    // After the main keys, where a character is looked up.
    {VK_OEM_102, '\\', '|'},
    {VK_ADD, '+', '+'},
    {VK_SUBTRACT, '-', '-'},
    {VK_MULTIPLY, '*', '*'},
    {VK_DIVIDE, '/', '/'},
    {VK_DECIMAL, '.', '.'},
    {VK_NUMPAD0, '0', '0'},
    {VK_NUMPAD1, '1', '1'},
    {VK_NUMPAD2, '2', '2'},
    {VK_NUMPAD3, '3', '3'},
    {VK_NUMPAD4, '4', '4'},
    {VK_NUMPAD5, '5', '5'},
    {VK_NUMPAD6, '6', '6'},
    {VK_NUMPAD7, '7', '7'},
    {VK_NUMPAD8, '8', '8'},
    {VK_NUMPAD9, '9', '9'},
};

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
    for (const KeyText& each : kText) {
        if (each.key == key) {
            return static_cast<unsigned char>(shift ? each.shifted : each.plain);
        }
    }
    return -1;
}

}  // namespace platform::user
