#include "system/ProgramStart.h"

#include <unistd.h>

#include <csignal>

namespace hullwright {

void BeginProgram() { std::signal(SIGXFSZ, SIG_IGN); }

std::vector<std::string> CommandWords(int argc, char** argv) { return {argv, argv + argc}; }

bool HasTerminal() { return isatty(STDERR_FILENO) != 0; }

}  // namespace hullwright
