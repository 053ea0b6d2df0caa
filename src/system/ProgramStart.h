#pragma once

#include <string>
#include <vector>

/// What programs of the command line settle with the system at their start.
namespace hullwright {

/// Makes the standard streams carry bytes as they are, and a file that grows too large an error to
/// be reported instead of the end of the process.
void BeginProgram();

/// The words of the command line as UTF-8, or as the bytes that they are where the system does not
/// say in which code; the program's name first.
std::vector<std::string> CommandWords(int argc, char** argv);

/// Whether what is written to standard error is seen on a terminal that can clear a line.
bool HasTerminal();

}  // namespace hullwright
