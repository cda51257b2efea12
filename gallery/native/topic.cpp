// By the system's help, which finds a topic by its control in a table.
#include "gallery/topic.h"

#include <cvutil32/util.h>

#include <array>

namespace gallery {

bool ShowTopic(HWND control, const std::string& file, UINT command, DWORD topic) {
    const std::array<DWORD, 4> table{static_cast<DWORD>(GetDlgCtrlID(control)), topic, 0, 0};
    const auto data = reinterpret_cast<ULONG_PTR>(table.data());
    return UTIL_WinHelp(control, (file + ".hlp").c_str(), command, data) != FALSE;
}

}  // namespace gallery
