#include "tests/endurance/endurance.h"

#include <cstdio>
#include <cstdlib>
#include <string_view>

int main(int count, char** arguments) {
    std::string_view const what = count > 1 ? arguments[1] : "";
    int const number = count > 2 ? std::atoi(arguments[2]) : 0;
    if (what == "dialogs") {
        return endurance::Dialogs(number > 0 ? number : 1000) ? 0 : 1;
    }
    if (what == "processes") {
        return endurance::Processes(arguments[0], number > 0 ? number : 500) ? 0 : 1;
    }
    if (what == "write" || what == "read") {
        return what == "write" ? endurance::Write(number) : endurance::Read(number);
    }
    std::fprintf(stderr, "endurance dialogs [times] | processes [count]\n");
    return 2;
}
