#include "cli/PictureName.h"

#include <algorithm>
#include <filesystem>

namespace hullwright {

std::string PictureEnding(const std::string& path)
{
  std::string ending = path == "-" ? ".png" : std::filesystem::path(path).extension().string();
  std::ranges::transform(ending, ending.begin(), [](char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
  });
  return ending;
}

bool IsPictureName(const std::string& path)
{
  const std::string ending = PictureEnding(path);
  return ending == ".png" || ending == ".svg" || ending == ".pdf";
}

}  // namespace hullwright
