#include "cli/CommandLine.h"

namespace hullwright {
namespace {

constexpr const char* help =
    "Usage: hullwright-cli render\n"
    "Would draw sides of a vessel design, or of a drawing, as pictures. This program was\n"
    "built without pictures.\n"
    "\n"
    "Exit status: 1.\n";

int Run(int, char**) { return Fail("render: built without pictures"); }

}  // namespace

const Verb renderVerb = {"render", help, Run};

}  // namespace hullwright
