#include "system/ProgramStart.h"

#include <fcntl.h>
#include <io.h>
#include <windows.h>
// Needs the types of the header above.
#include <shellapi.h>

#include <memory>

#include "base/Paths.h"

namespace hullwright {

void BeginProgram()
{
  for (const int stream : {0, 1, 2}) _setmode(stream, _O_BINARY);
}

std::vector<std::string> CommandWords(int, char**)
{
  // What main gets has lost each character that is not in the system's code page.
  int count = 0;
  const std::unique_ptr<wchar_t*, decltype(&LocalFree)> words(
      CommandLineToArgvW(GetCommandLineW(), &count), LocalFree);
  std::vector<std::string> texts;
  for (int i = 0; i < count; ++i) {
    const std::u8string bytes = std::filesystem::path(words.get()[i]).u8string();
    texts.emplace_back(bytes.begin(), bytes.end());
  }
  return texts;
}

bool HasTerminal()
{
  const HANDLE stream = GetStdHandle(STD_ERROR_HANDLE);
  DWORD mode = 0;
  return GetConsoleMode(stream, &mode) != 0 &&
         SetConsoleMode(stream, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
}

}  // namespace hullwright
