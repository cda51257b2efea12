/// @file desktop.h
/// Whether anybody can see the gallery, and where its picture goes when nobody can.
#pragma once

#include <string>

namespace gallery {

/// @returns whether windows of this process are shown to a person.
bool HasDesktop();

/// @returns gallery.png in the state folder (CVUTIL32_HOME, else cvutil32 in the user's data folder); the folder is
/// made when it is missing.
std::string PictureFile();

}  // namespace gallery
