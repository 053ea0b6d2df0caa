#include "cli/PictureName.h"

#include <algorithm>

#include "base/Paths.h"
#include "base/Text.h"

namespace hullwright {

std::string PictureEnding(const std::string& path)
{
  std::string ending = path == "-" ? ".png" : TextOf(PathOf(path).extension());
  std::ranges::transform(ending, ending.begin(), LowerAscii);
  return ending;
}

bool IsPictureName(const std::string& path)
{
  const std::string ending = PictureEnding(path);
  return ending == ".png" || ending == ".svg" || ending == ".pdf";
}

}  // namespace hullwright
