/// @file help_topics.h
/// Texts of help topics.
#pragma once

#include <string>
#include <string_view>

#include <windows.h>

namespace platform::user {

/// Finds a topic in the text of a file. @returns its text without blank lines around it, empty when there is none.
std::string FindTopic(std::string_view file, DWORD topic);

/// Reads the file of topics that lies beside a help file. @returns an empty text when there is none.
std::string ReadTopics(LPCSTR helpFile);

}  // namespace platform::user
