#include "cli/CommandLine.h"
#include "cli/DiffPicture.h"
#include "cli/Picture.h"

namespace hullwright {
namespace {

constexpr const char* renderHelp =
    "Usage: hullwright-cli render\n"
    "Would draw sides of a vessel design, or of a drawing, as pictures. This program was\n"
    "built without pictures.\n"
    "\n"
    "Exit status: 1.\n";

constexpr const char* reportHelp =
    "Usage: hullwright-cli report\n"
    "Would make a document of a vessel design. This program was built without pictures.\n"
    "\n"
    "Exit status: 1.\n";

constexpr const char* noPictures = "built without pictures";

int RunRender(int, char**) { return Fail(std::string("render: ") + noPictures); }
int RunReport(int, char**) { return Fail(std::string("report: ") + noPictures); }

}  // namespace

std::string WritePictures(const PictureRequest& request, bool&)
{
  return request.output + ": " + noPictures;
}

std::string WriteDiffPicture(const DiffPictureRequest&)
{
  return std::string("diff: ") + noPictures;
}

const Verb renderVerb = {"render", renderHelp, RunRender};
const Verb reportVerb = {"report", reportHelp, RunReport};

}  // namespace hullwright
