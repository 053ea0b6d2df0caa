#include "replay/driver/Player.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <fstream>

#include "base/Numbers.h"
#include "base/Paths.h"
#include "base/Text.h"
#include "file/AnchorListReader.h"
#include "replay/driver/Script.h"
#include "resources/CommandIds.h"

namespace hullwright::replay {
namespace {

ClientPoint PointOf(const Json& step)
{
  return {IntOf(Member(step, "x")), IntOf(Member(step, "y"))};
}

std::vector<std::size_t> PathOf(const Json& value)
{
  // A number that is no child's leads nowhere.
  std::vector<std::size_t> path;
  for (const Json& number : ListOf(value)) {
    path.push_back(static_cast<std::size_t>(IntegerOf(number)));
  }
  return path;
}

/// The control that a member is called by its number; None for what is no number.
ControlId IdOf(const std::string& name)
{
  int id = 0;
  const char* const end = name.data() + name.size();
  return std::from_chars(name.data(), end, id).ptr == end ? ControlId{id} : ControlId::None;
}

/// Texts by the ids of their fields.
std::map<ControlId, std::u16string> TextsOf(const Json& object)
{
  std::map<ControlId, std::u16string> texts;
  for (const auto& [id, text] : MembersOf(object).items()) texts[IdOf(id)] = WideOf(text);
  return texts;
}

DialogScript DialogOf(const Json& object)
{
  DialogScript script;
  const std::string end = TextOf(Member(object, "end"));
  script.ok = end == "ok" || end == "dblclick";
  script.fields = TextsOf(Member(object, "fields"));
  script.typed = TextsOf(Member(object, "type"));
  for (const auto& [id, check] : MembersOf(Member(object, "checks")).items()) {
    script.clicks.emplace_back(IdOf(id), BoolOf(check));
  }
  const Json& select = Member(object, "select");
  if (select.is_number()) script.select = static_cast<std::size_t>(IntegerOf(select));
  script.selectNothing = object.contains("select") && select.is_null();
  return script;
}

Value BandOf(const KeptPointer& pointer)
{
  Value::List band;
  for (const auto& [from, to] : pointer.lines) band.push_back(Row(from.x, from.y, to.x, to.y));
  return band;
}

}  // namespace

Player::Handler Player::FindHandler(const std::string& name)
{
  struct Entry {
    std::string_view name;
    Handler handler;
  };
  static constexpr auto handlers = std::to_array<Entry>({
      {"size", &Player::Size},
      {"mousemove", &Player::Mouse},
      {"lbuttondown", &Player::Mouse},
      {"lbuttonup", &Player::Mouse},
      {"rbuttondown", &Player::Mouse},
      {"wheel", &Player::Wheel},
      {"setcursor", &Player::SetCursor},
      {"command", &Player::Command},
      {"menu", &Player::Menu},
      {"treeclick", &Player::TreeClick},
      {"treemenu", &Player::TreeMenu},
      {"treecommand", &Player::TreeCommand},
      {"statusclick", &Player::StatusClick},
      {"user", &Player::User},
      {"new", &Player::New},
      {"open", &Player::Open},
      {"save", &Player::Save},
      {"write", &Player::WriteFile},
      {"anchorlist", &Player::AnchorList},
      {"setting", &Player::Setting},
      {"trace", &Player::Trace},
      {"putgroup", &Player::PutGroup},
      {"putshape", &Player::PutShape},
      {"putanchor", &Player::PutAnchor},
      {"setoffset", &Player::SetOffset},
      {"setunit", &Player::SetUnit},
      {"setrotation", &Player::SetRotation},
      {"setviewport", &Player::SetViewPort},
      {"call", &Player::Call},
  });
  const auto* const found = std::ranges::find(handlers, name, &Entry::name);
  return found == handlers.end() ? nullptr : found->handler;
}

void Player::Prepare(const Json& step)
{
  editor_.events.clear();
  std::vector<bool> answers;
  for (const Json& answer : ListOf(Member(step, "answers"))) {
    answers.push_back(TextOf(answer) == "yes");
  }
  editor_.Answer(std::move(answers));
  editor_.dialogs.reports.clear();
  editor_.dialogs.script = DialogOf(Member(step, "dialog"));
  editor_.pointer.menu = {};
  editor_.pointer.lines.clear();
  editor_.fileDialogs.answer.reset();
  if (step.contains("file"))
    editor_.fileDialogs.answer = editor_.PathOf(TextOf(Member(step, "file")));
  written_.reset();
}

Value Player::Play(const Json& step, Detail detail)
{
  const std::string name = TextOf(Member(step, "do"));
  Prepare(step);
  const Handler handler = FindHandler(name);
  Value result = handler == nullptr ? Value("unknown step") : (this->*handler)(step);
  Value::Object report = {{"step", number_++},
                          {"do", name},
                          {"result", std::move(result)},
                          {"events", editor_.events},
                          {"messages", editor_.boxes},
                          {"dialogs", editor_.dialogs.reports},
                          {"menu", editor_.pointer.menu},
                          {"band", BandOf(editor_.pointer)}};
  if (detail != Detail::Events) ReportState(report, detail == Detail::Full);
  return report;
}

void Player::ReportState(Value::Object& report, bool full)
{
  Value state = editor_.State();
  std::string canonical;
  state.AppendParts(canonical, {"design", "view", "shell", "tree", "frame"});
  if (written_) {
    const std::u16string bytes = ReplayEditor::BytesOf(*written_);
    for (const char16_t byte : bytes) canonical.push_back(static_cast<char>(byte));
    if (full) report["file"] = bytes;
  }
  report["hash"] = Crc32(canonical);
  if (full) report["state"] = std::move(state);
}

Value Player::Size(const Json& step)
{
  editor_.view.OnSize(IntOf(Member(step, "cx")), IntOf(Member(step, "cy")));
  return {};
}

Value Player::Mouse(const Json& step)
{
  const std::string name = TextOf(Member(step, "do"));
  const ClientPoint point = PointOf(step);
  if (name == "mousemove") editor_.view.OnMouseMove(BoolOf(Member(step, "left")), point);
  if (name == "lbuttondown") editor_.view.OnLButtonDown(point);
  if (name == "lbuttonup") editor_.view.OnLButtonUp(point);
  if (name == "rbuttondown") editor_.view.OnRButtonDown(point);
  return {};
}

Value Player::Wheel(const Json& step)
{
  editor_.view.OnMouseWheel(IntOf(Member(step, "delta")), PointOf(step));
  return {};
}

Value Player::SetCursor(const Json& step)
{
  constexpr int clientArea = 1;
  if (IntOf(Member(step, "hit")) == clientArea) editor_.view.OnSetCursor();
  return {};
}

Value Player::Command(const Json& step)
{
  editor_.frame.OnCommand(CodeOf<CommandId>(Member(step, "id")));
  return {};
}

Value Player::Menu(const Json& step)
{
  editor_.view.OnMenuCommand(CodeOf<CommandId>(Member(step, "id")));
  return {};
}

Value Player::TreeClick(const Json& step)
{
  editor_.pane.OnClick(editor_.ItemAt(PathOf(Member(step, "path"))));
  return {};
}

Value Player::TreeMenu(const Json& step)
{
  const TreeItem item = editor_.ItemAt(PathOf(Member(step, "path")));
  if (item) editor_.pane.OnContextMenu(item);
  return {};
}

Value Player::TreeCommand(const Json& step)
{
  editor_.pane.selectedItem = Member(step, "select").is_array()
                                  ? editor_.ItemAt(PathOf(Member(step, "select")))
                                  : TreeItem();
  editor_.pane.OnCommand(CodeOf<CommandId>(Member(step, "id")));
  return {};
}

Value Player::StatusClick(const Json& step)
{
  constexpr int unitsPane = 2;
  if (IntOf(Member(step, "pane")) == unitsPane) editor_.frame.OnCommand(CommandId::Units);
  return {};
}

Value Player::User(const Json& step)
{
  const auto code = CodeOf<Notification>(Member(step, "wparam"));
  if (TextOf(Member(step, "to")) == "view") {
    editor_.view.OnUser(code);
    return {};
  }
  editor_.listener.listing = false;
  editor_.frame.Notify(code);
  editor_.listener.listing = true;
  return {};
}

Value Player::New(const Json&)
{
  const bool done = editor_.document.OnNewDocument();
  editor_.document.SetModifiedFlag(false);
  return done;
}

Value Player::Open(const Json& step)
{
  const bool done = editor_.document.OnOpenDocument(editor_.PathOf(TextOf(Member(step, "path"))));
  if (done) editor_.document.SetModifiedFlag(false);
  return done;
}

Value Player::Save(const Json& step)
{
  const std::u16string path = editor_.PathOf(TextOf(Member(step, "path")));
  const bool done = editor_.document.OnSaveDocument(path);
  NoteWritten(path);
  return done;
}

Value Player::WriteFile(const Json& step)
{
  std::ofstream stream(hullwright::PathOf(editor_.PathOf(TextOf(Member(step, "path")))),
                       std::ios::binary);
  stream << BytesOf(Member(step, "text"));
  return {};
}

Value Player::AnchorList(const Json& step)
{
  CAnchors list;
  CAnchorListReader reader(list, editor_.messages);
  const int rc = reader.Read(editor_.PathOf(TextOf(Member(step, "path"))));
  Value::List items;
  for (const auto& anchor : list.items) items.push_back(Of(*anchor));
  return Value::Object{{"rc", rc}, {"items", std::move(items)}};
}

Value Player::Setting(const Json& step)
{
  const std::string key = SettingOf(TextOf(Member(step, "key")));
  if (step.contains("value") && Member(step, "value").is_null()) {
    editor_.settings.values.erase(key);
  } else {
    editor_.settings.values[key] = static_cast<std::int32_t>(IntegerOf(Member(step, "value")));
  }
  return {};
}

Value Player::Trace(const Json& step)
{
  const std::u16string category = WideOf(Member(step, "category"));
  editor_.commonData.log.Trace(NumberOf(Member(step, "elapsed")),
                               CodeOf<TraceLevel>(Member(step, "level")), category,
                               WideOf(Member(step, "text")));
  NoteWritten(editor_.PathOf("Sondaris/Tracing/Trace_" + Utf8FromWide(category) + ".txt"));
  return {};
}

void Player::NoteWritten(const std::u16string& path)
{
  std::error_code isNone;
  if (std::filesystem::is_regular_file(hullwright::PathOf(path), isNone)) written_ = path;
}

Value Player::PutGroup(const Json& step)
{
  editor_.app.shapeGroups.push_back(
      std::make_unique<CShapes>(CodeOf<ViewSide>(Member(step, "view"))));
  return {};
}

Value Player::PutShape(const Json& step)
{
  auto& groups = editor_.app.shapeGroups;
  CShapes* group = nullptr;
  if (step.contains("view")) {
    group = GetShapes(groups, CodeOf<ViewSide>(Member(step, "view")));
  } else if (const auto index = static_cast<std::size_t>(IntegerOf(Member(step, "group")));
             index < groups.size()) {
    group = groups[index].get();
  }
  if (group != nullptr) group->shapes.push_back(ShapeOf(Member(step, "shape")));
  return {};
}

Value Player::PutAnchor(const Json& step)
{
  const Json& object = Member(step, "anchor");
  auto anchor = std::make_unique<CAnchor>();
  anchor->id = static_cast<std::uint32_t>(IntegerOf(Member(object, "id"), anchor->id));
  anchor->name = WideOf(Member(object, "name"));
  anchor->visible = BoolOf(Member(object, "visible"), anchor->visible);
  anchor->marked = BoolOf(Member(object, "marked"), anchor->marked);
  anchor->vessel = static_cast<std::uint16_t>(IntOf(Member(object, "vessel")));
  anchor->attachmentX = NumberOf(Member(object, "attachmentX"));
  anchor->attachmentY = NumberOf(Member(object, "attachmentY"));
  anchor->easting = NumberOf(Member(object, "easting"));
  anchor->northing = NumberOf(Member(object, "northing"));
  anchor->state = IntOf(Member(object, "state"));
  editor_.app.anchors->items.push_back(std::move(anchor));
  return {};
}

Value Player::SetOffset(const Json& step)
{
  const std::string which = TextOf(Member(step, "which"));
  CShapeVertex& offset = which == "gps"   ? *editor_.app.offsetGps
                         : which == "txd" ? *editor_.app.offsetTransducer
                                          : *editor_.app.offsetPivot;
  offset.x = NumberOf(Member(step, "x"));
  offset.y = NumberOf(Member(step, "y"));
  offset.z = NumberOf(Member(step, "z"));
  return {};
}

Value Player::SetUnit(const Json& step)
{
  editor_.app.unitCode = CodeOf<UnitCode>(Member(step, "value"));
  return {};
}

Value Player::SetRotation(const Json& step)
{
  editor_.view.viewPort->SetRotation(NumberOf(Member(step, "value")));
  return {};
}

Value Player::SetViewPort(const Json& step)
{
  CViewPort& v = *editor_.view.viewPort;
  v.left = NumberOf(Member(step, "left"));
  v.right = NumberOf(Member(step, "right"));
  v.bottom = NumberOf(Member(step, "bottom"));
  v.top = NumberOf(Member(step, "top"));
  v.width = std::abs(v.right - v.left);
  v.height = std::abs(v.top - v.bottom);
  return {};
}

Value Player::Call(const Json& step)
{
  const auto result =
      CallOperation(editor_, TextOf(Member(step, "fn")), ListOf(Member(step, "args")));
  return result.value_or("skip");
}

}  // namespace hullwright::replay
