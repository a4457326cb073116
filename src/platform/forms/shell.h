// Other programs.
#pragma once

#include <string>

namespace forms {

// Starts a program by a command line and gives its process number. There is no shell, and no character but the blank
// means anything: the line is cut at every single blank, so that a program which joins its arguments by one blank each
// has the line behind its name back, byte for byte - two blanks on end make an empty argument. A line that ends behind
// the name or with one blank there gives no argument.
//
// The name is the longest beginning of the line that a blank or the line's end follows and that names an executable
// file. A name with a slash is a path, any other is looked for in PATH.
//
// The program reads nothing from us, and what it prints goes where our errors go. Error 53 if there is no such program.
int Shell(const std::string& line);

// Waits for the end of a program that Shell has started, so many milliseconds at most. True if it has ended, or if
// there is no such process.
bool WaitForProgram(int process, int milliseconds);

}  // namespace forms
