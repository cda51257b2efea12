#include "controls/browse/filelist.h"

namespace browse {

namespace {

bool IsPlain(char ch) {
    return ch > 0 && static_cast<unsigned char>(ch) < 0x80;
}

/// Where the scan goes on. From a NUL, or a byte of 0x80 or above, it only goes on to a plain character.
char* Next(char* at) {
    if (IsPlain(*at)) {
        return CharNextA(at);
    }
    return IsPlain(at[1]) ? at + 1 : at;
}

}  // namespace

void JoinFileList(char* list, UINT size) {
    char* const last = list + size - 1;
    for (char* at = list; at < last;) {
        char* const next = Next(at);
        if (*at == '\0') {
            if (*next == '\0') {
                return;
            }
            *at = ';';
        } else if (next == at) {
            // Two such bytes in a row, or one at a name's end: there is no way on, and the list ends here.
            return;
        }
        at = next;
    }
}

}  // namespace browse
