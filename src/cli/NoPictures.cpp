#include "cli/CommandLine.h"
#include "cli/Picture.h"

namespace hullwright {
namespace {

constexpr const char* help =
    "Usage: hullwright-cli render\n"
    "Would draw sides of a vessel design, or of a drawing, as pictures. This program was\n"
    "built without pictures.\n"
    "\n"
    "Exit status: 1.\n";

constexpr const char* noPictures = "built without pictures";

int Run(int, char**) { return Fail(std::string("render: ") + noPictures); }

}  // namespace

std::string WritePictures(const PictureRequest& request)
{
  return request.output + ": " + noPictures;
}

const Verb renderVerb = {"render", help, Run};

}  // namespace hullwright
