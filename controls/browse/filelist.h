// The text that several chosen files become.
#pragma once

#include <windows.h>

namespace browse {

/// Turns the list that the open-file dialog hands back (the folder, NUL, names each with its NUL, and one more NUL) into
/// one text with ";" between its parts, in place. A single path is left as it is. A name that begins with a byte of 0x80
/// or above ends the list at the NUL before it.
/// @param size  of the buffer in bytes.
void JoinFileList(char* list, UINT size);

}  // namespace browse
