/// @file report.h
/// The one way in which the layer speaks to the person at the terminal.
#pragma once

namespace platform::base {

/// Writes "cvutil32: " and the text as one line on standard error; a text that was said before is not said again.
void ReportOnce(const char* text);

}  // namespace platform::base
