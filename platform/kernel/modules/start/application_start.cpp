// Where an application of the Windows kind starts on other hosts: main, which calls WinMain.
#include "module_registration.h"

int main(int count, char** arguments) {
    return WinMain(GetModuleHandleA(nullptr), nullptr, CvPlatformCommandLine(count, arguments), SW_SHOWDEFAULT);
}
