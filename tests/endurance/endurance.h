/// @file endurance.h
/// The parts of the program. Each prints what it measured. @return whether all was well.
#pragma once

namespace endurance {

bool Dialogs(int times);

/// @param program  is started again, with "write" or "read" and a number.
bool Processes(char const* program, int count);

/// One of the processes. @return its exit code.
int Write(int number);
int Read(int number);

}  // namespace endurance
