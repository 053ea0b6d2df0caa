#include "replay/driver/Player.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <fstream>

#include "base/Numbers.h"
#include "base/Text.h"
#include "file/AnchorListReader.h"
#include "replay/driver/Script.h"
#include "resources/CommandIds.h"

namespace hullwright::replay {
namespace {

ClientPoint PointOf(const QJsonObject& step) { return {step[u"x"].toInt(), step[u"y"].toInt()}; }

std::string NameOf(const QJsonValue& value) { return value.toString().toStdString(); }

std::vector<std::size_t> PathOf(const QJsonValue& value)
{
  // A number that is no child's leads nowhere.
  std::vector<std::size_t> path;
  for (const QJsonValue& number : value.toArray()) {
    path.push_back(static_cast<std::size_t>(number.toInteger()));
  }
  return path;
}

/// Texts by the ids of their fields.
std::map<int, std::u16string> TextsOf(const QJsonObject& object)
{
  std::map<int, std::u16string> texts;
  for (auto text = object.begin(); text != object.end(); ++text) {
    texts[text.key().toInt()] = WideOf(text.value());
  }
  return texts;
}

DialogScript DialogOf(const QJsonObject& object)
{
  DialogScript script;
  const QString end = object[u"end"].toString();
  script.ok = end == u"ok" || end == u"dblclick";
  script.fields = TextsOf(object[u"fields"].toObject());
  script.typed = TextsOf(object[u"type"].toObject());
  const QJsonObject checks = object[u"checks"].toObject();
  for (auto check = checks.begin(); check != checks.end(); ++check) {
    script.clicks.emplace_back(check.key().toInt(), check.value().toBool());
  }
  const QJsonValue select = object[u"select"];
  if (select.isDouble()) script.select = static_cast<std::size_t>(select.toInteger());
  script.selectNothing = select.isNull();
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

void Player::Prepare(const QJsonObject& step)
{
  editor_.events.clear();
  std::vector<bool> answers;
  for (const QJsonValue& answer : step[u"answers"].toArray()) {
    answers.push_back(answer.toString() == u"yes");
  }
  editor_.Answer(std::move(answers));
  editor_.dialogs.reports.clear();
  editor_.dialogs.script = DialogOf(step[u"dialog"].toObject());
  editor_.pointer.menu = {};
  editor_.pointer.lines.clear();
  editor_.fileDialogs.answer.reset();
  if (step.contains(u"file")) editor_.fileDialogs.answer = editor_.PathOf(NameOf(step[u"file"]));
  written_.reset();
}

Value Player::Play(const QJsonObject& step, Detail detail)
{
  const std::string name = NameOf(step[u"do"]);
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

Value Player::Size(const QJsonObject& step)
{
  editor_.view.OnSize(step[u"cx"].toInt(), step[u"cy"].toInt());
  return {};
}

Value Player::Mouse(const QJsonObject& step)
{
  const QString name = step[u"do"].toString();
  const ClientPoint point = PointOf(step);
  if (name == u"mousemove") editor_.view.OnMouseMove(step[u"left"].toBool(), point);
  if (name == u"lbuttondown") editor_.view.OnLButtonDown(point);
  if (name == u"lbuttonup") editor_.view.OnLButtonUp(point);
  if (name == u"rbuttondown") editor_.view.OnRButtonDown(point);
  return {};
}

Value Player::Wheel(const QJsonObject& step)
{
  editor_.view.OnMouseWheel(step[u"delta"].toInt(), PointOf(step));
  return {};
}

Value Player::SetCursor(const QJsonObject& step)
{
  constexpr int clientArea = 1;
  if (step[u"hit"].toInt() == clientArea) editor_.view.OnSetCursor();
  return {};
}

Value Player::Command(const QJsonObject& step)
{
  editor_.frame.OnCommand(step[u"id"].toInt());
  return {};
}

Value Player::Menu(const QJsonObject& step)
{
  editor_.view.OnMenuCommand(step[u"id"].toInt());
  return {};
}

Value Player::TreeClick(const QJsonObject& step)
{
  editor_.pane.OnClick(editor_.ItemAt(PathOf(step[u"path"])));
  return {};
}

Value Player::TreeMenu(const QJsonObject& step)
{
  const TreeItem item = editor_.ItemAt(PathOf(step[u"path"]));
  if (item) editor_.pane.OnContextMenu(item);
  return {};
}

Value Player::TreeCommand(const QJsonObject& step)
{
  editor_.pane.selectedItem =
      step[u"select"].isArray() ? editor_.ItemAt(PathOf(step[u"select"])) : TreeItem();
  editor_.pane.OnCommand(step[u"id"].toInt());
  return {};
}

Value Player::StatusClick(const QJsonObject& step)
{
  constexpr int unitsPane = 2;
  if (step[u"pane"].toInt() == unitsPane) editor_.frame.OnCommand(Command::Units);
  return {};
}

Value Player::User(const QJsonObject& step)
{
  const int code = step[u"wparam"].toInt();
  if (step[u"to"].toString() == u"view") {
    editor_.view.OnUser(code);
    return {};
  }
  editor_.listener.listing = false;
  editor_.frame.Notify(code, 0);
  editor_.listener.listing = true;
  return {};
}

Value Player::New(const QJsonObject&)
{
  const bool done = editor_.document.OnNewDocument();
  editor_.document.SetModifiedFlag(false);
  return done;
}

Value Player::Open(const QJsonObject& step)
{
  const bool done = editor_.document.OnOpenDocument(editor_.PathOf(NameOf(step[u"path"])));
  if (done) editor_.document.SetModifiedFlag(false);
  return done;
}

Value Player::Save(const QJsonObject& step)
{
  const std::u16string path = editor_.PathOf(NameOf(step[u"path"]));
  const bool done = editor_.document.OnSaveDocument(path);
  NoteWritten(path);
  return done;
}

Value Player::WriteFile(const QJsonObject& step)
{
  std::ofstream stream(Utf8FromWide(editor_.PathOf(NameOf(step[u"path"]))), std::ios::binary);
  stream << BytesOf(step[u"text"]);
  return {};
}

Value Player::AnchorList(const QJsonObject& step)
{
  CAnchors list;
  CAnchorListReader reader(list, editor_.messages);
  const int rc = reader.Read(editor_.PathOf(NameOf(step[u"path"])));
  Value::List items;
  for (const auto& anchor : list.items) items.push_back(Of(*anchor));
  return Value::Object{{"rc", rc}, {"items", std::move(items)}};
}

Value Player::Setting(const QJsonObject& step)
{
  const std::string key = SettingOf(NameOf(step[u"key"]));
  if (step[u"value"].isNull()) {
    editor_.settings.values.erase(key);
  } else {
    editor_.settings.values[key] = static_cast<std::int32_t>(step[u"value"].toInteger());
  }
  return {};
}

Value Player::Trace(const QJsonObject& step)
{
  const std::u16string category = WideOf(step[u"category"]);
  editor_.commonData.log.Trace(NumberOf(step[u"elapsed"]), step[u"level"].toInt(), category,
                               WideOf(step[u"text"]));
  NoteWritten(editor_.PathOf("Sondaris/Tracing/Trace_" + Utf8FromWide(category) + ".txt"));
  return {};
}

void Player::NoteWritten(const std::u16string& path)
{
  std::error_code isNone;
  if (std::filesystem::is_regular_file(Utf8FromWide(path), isNone)) written_ = path;
}

Value Player::PutGroup(const QJsonObject& step)
{
  editor_.app.shapeGroups.push_back(std::make_unique<CShapes>(step[u"view"].toInt()));
  return {};
}

Value Player::PutShape(const QJsonObject& step)
{
  auto& groups = editor_.app.shapeGroups;
  CShapes* group = nullptr;
  if (step.contains(u"view")) {
    group = GetShapes(groups, step[u"view"].toInt());
  } else if (const auto index = static_cast<std::size_t>(step[u"group"].toInteger());
             index < groups.size()) {
    group = groups[index].get();
  }
  if (group != nullptr) group->shapes.push_back(ShapeOf(step[u"shape"].toObject()));
  return {};
}

Value Player::PutAnchor(const QJsonObject& step)
{
  const QJsonObject object = step[u"anchor"].toObject();
  auto anchor = std::make_unique<CAnchor>();
  anchor->id = static_cast<std::uint32_t>(object[u"id"].toInteger(anchor->id));
  anchor->name = WideOf(object[u"name"]);
  anchor->visible = object[u"visible"].toBool(anchor->visible);
  anchor->marked = object[u"marked"].toBool(anchor->marked);
  anchor->vessel = static_cast<std::uint16_t>(object[u"vessel"].toInt());
  anchor->attachmentX = NumberOf(object[u"attachmentX"]);
  anchor->attachmentY = NumberOf(object[u"attachmentY"]);
  anchor->easting = NumberOf(object[u"easting"]);
  anchor->northing = NumberOf(object[u"northing"]);
  anchor->state = object[u"state"].toInt();
  editor_.app.anchors->items.push_back(std::move(anchor));
  return {};
}

Value Player::SetOffset(const QJsonObject& step)
{
  const QString which = step[u"which"].toString();
  CShapeVertex& offset = which == u"gps"   ? *editor_.app.offsetGps
                         : which == u"txd" ? *editor_.app.offsetTransducer
                                           : *editor_.app.offsetPivot;
  offset.x = NumberOf(step[u"x"]);
  offset.y = NumberOf(step[u"y"]);
  offset.z = NumberOf(step[u"z"]);
  return {};
}

Value Player::SetUnit(const QJsonObject& step)
{
  editor_.app.unitCode = static_cast<std::int32_t>(step[u"value"].toInteger());
  return {};
}

Value Player::SetRotation(const QJsonObject& step)
{
  editor_.view.viewPort->SetRotation(NumberOf(step[u"value"]));
  return {};
}

Value Player::SetViewPort(const QJsonObject& step)
{
  CViewPort& v = *editor_.view.viewPort;
  v.left = NumberOf(step[u"left"]);
  v.right = NumberOf(step[u"right"]);
  v.bottom = NumberOf(step[u"bottom"]);
  v.top = NumberOf(step[u"top"]);
  v.width = std::abs(v.right - v.left);
  v.height = std::abs(v.top - v.bottom);
  return {};
}

Value Player::Call(const QJsonObject& step)
{
  const auto result = CallOperation(editor_, NameOf(step[u"fn"]), step[u"args"].toArray());
  return result.value_or("skip");
}

}  // namespace hullwright::replay
