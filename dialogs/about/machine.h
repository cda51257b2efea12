// What the About box tells of the machine.
#pragma once

#include <windows.h>

#include <string>

namespace about {

/// @return identifier of the string that names a processor, by the type that the system reports.
UINT ProcessorString(DWORD type);

/// @param format  takes the amount as a text.
/// @param bytes  of physical memory; shown in kilobytes, with the user's thousands separators.
std::string MemoryLine(char const* format, SIZE_T bytes);

}  // namespace about
