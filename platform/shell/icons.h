/// @file icons.h
/// The system's list of small icons, drawn for this project.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include "shell/place.h"

namespace platform::shell {

enum class Picture { File, Folder, OpenFolder, HardDisk, Removable, Computer, Desktop, FolderUp, Count };

/// @returns the picture of a place.
Picture PictureOf(const Place& place, bool open);

/// @returns the list of the small icons, in the order of Picture; it is made once and belongs to the system. Null when it
/// cannot be made.
HIMAGELIST SmallIcons();

}  // namespace platform::shell
