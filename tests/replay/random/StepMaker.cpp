#include "replay/random/StepMaker.h"

#include <locale>
#include <sstream>

#include "base/Code.h"
#include "resources/CommandIds.h"

namespace hullwright::replay {
namespace {

constexpr CommandId commands[] = {CommandId::Scale,
                                  CommandId::MirrorVertically,
                                  CommandId::MirrorHorizontally,
                                  CommandId::RotateLeft,
                                  CommandId::RotateRight,
                                  CommandId::Offsets,
                                  CommandId::Move,
                                  CommandId::ToggleGrid,
                                  CommandId::ToggleSnap,
                                  CommandId::CursorZoomIn,
                                  CommandId::CursorZoomOut,
                                  CommandId::ShowAll,
                                  CommandId::CursorMove,
                                  CommandId::DrawPolyline,
                                  CommandId::DrawPolyline,
                                  CommandId::ViewRight,
                                  CommandId::ViewTop,
                                  CommandId::ViewTop,
                                  CommandId::Grid,
                                  CommandId::Units,
                                  CommandId::About,
                                  CommandOf(Look::Silver)};
constexpr CommandId treeCommands[] = {
    CommandId::AddPolyline,  CommandId::RemoveAllPolylines, CommandId::AddAnchor,
    CommandId::RemoveAnchor, CommandId::AddVertex,          CommandId::RemovePolyline,
    CommandId::ZoomPolyline, CommandId::EditVertex,         CommandId::RemoveVertex};
constexpr const char* keys[] = {"Show", "Snap", "SpacingShowX", "SpacingSnapY"};

constexpr int types[] = {1, 2, 2, 2, 3, 8};
constexpr int views[] = {1, 1, 1, 2, 4, 63};

/// A number as a person types it.
std::string ShortText(double value)
{
  std::ostringstream text;
  text.imbue(std::locale::classic());
  text << value;
  return text.str();
}

}  // namespace

Json StepMaker::Next()
{
  switch (Below(20)) {
    case 0:
      return Json::object({{"do", "size"}, {"cx", Below(3) ? Below(1200) : 0}, {"cy", Below(900)}});
    case 1:
    case 2:
    case 3: return At("mousemove", Json::object({{"left", Below(2) == 0}}));
    case 4: return At("lbuttondown");
    case 5: return At("lbuttonup");
    case 6: return At("rbuttondown");
    case 7: return At("wheel", {{"delta", Below(2) ? 120 : -120}});
    case 8:
    case 9:
      return WithAnswers(Json::object({{"do", "command"}, {"id", NumberOf(AnyOf(commands))}}));
    case 10: return WithAnswers(Json::object({{"do", "menu"}, {"id", 32789 + Below(28)}}));
    case 11: return Json::object({{"do", "treeclick"}, {"path", Path()}});
    case 12: return Json::object({{"do", "treemenu"}, {"path", Path()}});
    case 13:
      return WithAnswers(Json::object(
          {{"do", "treecommand"}, {"id", NumberOf(AnyOf(treeCommands))}, {"select", Path()}}));
    case 14: return PutShape();
    case 15: return Json::object({{"do", "putanchor"}, {"anchor", Anchor()}});
    case 16: return Json::object({{"do", Below(2) ? "save" : "open"}, {"path", "boat.xml"}});
    case 17: return Import();
    case 18: return Rare();
    default:
      return Json::object(
          {{"do", "setting"}, {"key", AnyOf(keys)}, {"value", Below(3) ? Below(500) : -1}});
  }
}

Json StepMaker::At(const char* name, Json step)
{
  // Often on the devices and the origin, where there is something to hit.
  step["do"] = name;
  step["x"] = Below(2) ? 400 + 4 * Below(50) - 100 : Below(1000);
  step["y"] = Below(2) ? 300 : Below(800);
  return step;
}

Json StepMaker::WithAnswers(Json step)
{
  Json fields = Json::object();
  for (const char* const id : {"1000", "1003", "1008", "1009", "1011", "1017", "1024", "1027"}) {
    if (Below(3) == 0) fields[id] = Below(5) ? ShortText(Coordinate()) : "nonsense";
  }
  if (fields.contains("1011") && Below(3)) fields["1011"] = "0.75";
  const std::string side = std::to_string(1013 + Below(4));
  step["dialog"] = Json::object({{"end", Below(4) ? "ok" : "cancel"},
                                 {"fields", fields},
                                 {"checks", Json::object({{side, true}})},
                                 {"select", Below(6)}});
  step["answers"] = Json::array({Below(4) ? "yes" : "no"});
  return step;
}

Json StepMaker::Path()
{
  Json path = Json::array({Below(5) ? 0 : 1});
  for (int depth = Below(4); depth > 0; --depth) path.push_back(Below(4));
  return path;
}

Json StepMaker::PutShape()
{
  Json vertices = Json::array();
  for (int i = Below(6); i > 0; --i) {
    vertices.push_back(Json::array({Coordinate(), Coordinate(), 0.5}));
  }
  const Json shape = Json::object({{"type", AnyOf(types)},
                                   {"vertices", vertices},
                                   {"text", "Winch \\L"},
                                   {"height", 3},
                                   {"angle", 30},
                                   {"position", Json::array({1, 2, 3})},
                                   {"rings", Json::array({vertices})}});
  return Json::object({{"do", "putshape"}, {"view", AnyOf(views)}, {"shape", shape}});
}

Json StepMaker::Anchor()
{
  return Json::object({{"id", Below(9)},
                       {"name", "Bow"},
                       {"attachmentX", Coordinate()},
                       {"attachmentY", Coordinate()}});
}

Json StepMaker::Import()
{
  static constexpr const char* drawing =
      "0\nSECTION\n2\nBLOCKS\n0\nBLOCK\n2\nB\n0\nLINE\n10\n1\n11\n9\n0\nENDBLK\n0\nENDSEC\n"
      "0\nSECTION\n2\nENTITIES\n0\nSOLID\n11\n5\n12\n5\n22\n5\n0\nTEXT\n1\nCrane\n40\n2\n"
      "0\nINSERT\n2\nB\n50\n30\n0\nPOINT\n10\n3\n0\nCIRCLE\n40\n4\n0\nENDSEC\n0\nEOF\n";
  if (Below(4) == 0)
    return Json::object({{"do", "write"}, {"path", "hull.dxf"}, {"text", drawing}});
  return Json::object(
      {{"do", "command"}, {"id", NumberOf(CommandId::ImportDxf)}, {"file", "hull.dxf"}});
}

Json StepMaker::Rare()
{
  switch (Below(8)) {
    case 0: return Json::object({{"do", "new"}});
    case 1: return Json::object({{"do", "user"}, {"wparam", Below(2) ? 1054 : 1124}});
    case 2: return Json::object({{"do", "statusclick"}, {"pane", Below(3)}});
    case 3: return Json::object({{"do", "setrotation"}, {"value", Coordinate()}});
    case 4:
      return Json::object(
          {{"do", "write"}, {"path", "boat.xml"}, {"text", "<vessel><shapes view=\"01\">"}});
    case 5: return Json::object({{"do", "setcursor"}, {"hit", Below(3)}});
    case 6: return Json::object({{"do", "setunit"}, {"value", Below(2) ? 9001 : 9002}});
    default: return Json::object({{"do", "putgroup"}, {"view", 4}});
  }
}

}  // namespace hullwright::replay
