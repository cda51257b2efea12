#include "user/frame/mnemonic.h"

#include <windows.h>

namespace platform::user {

char Capital(char character) {
    char text[2] = {character, '\0'};
    CharUpperA(text);
    return text[0];
}

char MnemonicOf(std::string_view text) {
    char mnemonic = 0;
    for (std::size_t index = 0; index + 1 < text.size(); ++index) {
        if (IsDBCSLeadByte(static_cast<BYTE>(text[index]))) {
            ++index;
        } else if (text[index] == '&') {
            ++index;
            mnemonic = text[index] != '&' ? text[index] : mnemonic;
        }
    }
    return mnemonic ? Capital(mnemonic) : '\0';
}

}  // namespace platform::user
