// Where an application of the Windows kind starts on other hosts: main, which calls WinMain.
#include <windows.h>

#include <cstring>

int main() {
    // The command line without the program's name: a quoted name ends at its quote, another at its first blank.
    LPSTR commandLine = GetCommandLineA();
    if (*commandLine == '"') {
        ++commandLine;
        while (*commandLine && *commandLine != '"') {
            ++commandLine;
        }
        commandLine += *commandLine == '"';
    } else {
        commandLine += std::strcspn(commandLine, " \t");
    }
    commandLine += std::strspn(commandLine, " \t");
    return WinMain(GetModuleHandleA(nullptr), nullptr, commandLine, SW_SHOWDEFAULT);
}
