#include "support/TempFolder.h"

#include <fstream>
#include <iterator>
#include <string>

#include "base/Paths.h"
#include "base/Text.h"
#include "support/System.h"

namespace hullwright::test {

namespace fs = std::filesystem;

TempFolder::TempFolder()
{
  static int count = 0;
  path_ = fs::temp_directory_path() /
          ("hullwright-test-" + std::to_string(ProcessNumber()) + "-" + std::to_string(++count));
  fs::create_directories(path_);
}

TempFolder::~TempFolder()
{
  std::error_code error;
  fs::permissions(path_, fs::perms::owner_all, error);
  fs::remove_all(path_, error);
}

std::u16string TempFolder::File(std::string_view name) const
{
  return WideFromUtf8(TextOf(path_ / PathOf(name)));
}

std::u16string TempFolder::Write(std::string_view name, std::string_view bytes) const
{
  std::ofstream(path_ / PathOf(name), std::ios::binary) << bytes;
  return File(name);
}

std::string TempFolder::Read(std::string_view name) const
{
  std::ifstream file(path_ / PathOf(name), std::ios::binary);
  if (!file) return "(no file)";
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace hullwright::test
