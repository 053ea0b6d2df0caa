#include "replay/driver/ReplayEditor.h"

#include <fstream>
#include <iterator>

#include "base/Paths.h"
#include "base/Text.h"
#include "resources/DialogTemplates.h"

namespace hullwright::replay {
namespace {

/// A dialog by its template: what reports call it, and whether units, enabled fields or a list
/// belong to the report.
struct DialogName {
  DialogId id;
  const char* name;
};

constexpr DialogName dialogNames[] = {
    {DialogId::About, "about"}, {DialogId::Grid, "grid"},       {DialogId::Vertex, "vertex"},
    {DialogId::Units, "units"}, {DialogId::Scale, "scale"},     {DialogId::Rotate, "rotate"},
    {DialogId::Move, "move"},   {DialogId::Offsets, "offsets"},
};

const char* NameOf(DialogId id)
{
  for (const DialogName& dialog : dialogNames) {
    if (dialog.id == id) return dialog.name;
  }
  return "?";
}

template <class Map>
Value ById(const Map& map)
{
  Value::Object object;
  for (const auto& [id, value] : map) object[std::to_string(NumberOf(id))] = Value(value);
  return object;
}

/// The ids of a dialog's edit fields, and of the first text that names the unit.
struct DialogFields {
  std::vector<ControlId> fields;
  ControlId unit = ControlId::None;
};

DialogFields FieldsOf(DialogId id)
{
  DialogFields found;
  const DialogTemplate* const rows = FindDialogTemplate(id);
  if (rows == nullptr) return found;
  for (const DialogRow& row : rows->rows) {
    if (const ControlId field = FieldOf(row); field != ControlId::None)
      found.fields.push_back(field);
    if (row.kind == DialogRowKind::Field && found.unit == ControlId::None) found.unit = row.unitId;
  }
  return found;
}

}  // namespace

std::string SettingOf(const std::string& key)
{
  return (key == "ApplicationLook" ? "Workspace/" : "Grid/") + key;
}

DialogEnd ReplayDialogs::Run(IDialog& dialog)
{
  const DialogEnd end = ScriptedDialogs::Run(dialog);
  const DialogId id = dialog.Template();
  const DialogFields ids = FieldsOf(id);
  Value::Object report = {{"dialog", NameOf(id)}};
  std::map<ControlId, std::u16string> fields;
  for (const ControlId field : ids.fields) fields[field] = startTexts[field];
  if (!fields.empty()) report["fields"] = ById(fields);
  if (!startChecks.empty()) report["checks"] = ById(startChecks);
  if (ids.unit != ControlId::None) report["unit"] = startTexts[ids.unit];
  if (id == DialogId::Offsets) report["focus"] = focus ? Value(*focus) : Value();
  if (id == DialogId::Grid) {
    report["enabled"] = ById(startEnabled);
    report["enabledEnd"] = ById(enabled);
  }
  if (id == DialogId::Units) {
    Value::List items;
    for (const DialogListItem& item : list) items.push_back(Row(item.text, item.data));
    report["list"] = std::move(items);
    report["selected"] = startSelected ? Value(*startSelected) : Value();
  }
  reports.emplace_back(std::move(report));
  return end;
}

void ReplayPointer::Offer(std::span<const PopupEntry> entries)
{
  Value::List list;
  for (const PopupEntry& entry : entries) {
    list.push_back(entry.id == CommandId::None ? Row(0, "-") : Row(entry.id, entry.text));
  }
  menu = std::move(list);
}

ReplayTree::Node ReplayTree::Snapshot(const TreeItem& item) const
{
  CObjectTree& tree = pane->Tree();
  const bool top = item.level == TreeLevel::Root || item.level == TreeLevel::Anchors;
  // A root shows itself expanded only when there is something below it.
  return {item, tree.Text(item), tree.Image(item), top && tree.ChildCount(item) != 0,
          Children(&item)};
}

std::vector<ReplayTree::Node> ReplayTree::Children(const TreeItem* parent) const
{
  CObjectTree& tree = pane->Tree();
  std::vector<Node> nodes;
  if (parent == nullptr) {
    nodes.push_back(Snapshot(tree.Root()));
    if (tree.Anchors()) nodes.push_back(Snapshot(tree.Anchors()));
    return nodes;
  }
  for (std::size_t i = 0; i < tree.ChildCount(*parent); ++i) {
    nodes.push_back(Snapshot(tree.Child(*parent, i)));
  }
  return nodes;
}

void ReplayTree::ImagesChanged() { Refresh(snapshot); }

void ReplayTree::Refresh(std::vector<Node>& nodes) const
{
  for (Node& node : nodes) {
    if (node.item.level == TreeLevel::Polyline) node.image = pane->Tree().Image(node.item);
    if (node.item.level != TreeLevel::Polyline) Refresh(node.children);
  }
}

namespace {

Value ReportNodes(const std::vector<ReplayTree::Node>& nodes)
{
  Value::List list;
  for (const ReplayTree::Node& node : nodes) {
    list.push_back(Value::Object{{"text", node.text},
                                 {"image", node.image},
                                 {"selimage", node.image},
                                 {"expanded", node.expanded},
                                 {"children", ReportNodes(node.children)}});
  }
  return list;
}

}  // namespace

Value ReplayTree::Report() const { return ReportNodes(snapshot); }

void ReplayListener::Notify(Notification code)
{
  if (listing && code == Notification::RepaintDesign) events_.emplace_back("repaint");
  if (listing && code == Notification::RebuildTree) events_.emplace_back("tree");
}

void ReplayListener::SetModifiedFlag(bool modified)
{
  events_.emplace_back(modified ? "modified" : "clean");
}

ReplayEditor::ReplayEditor(std::filesystem::path folder)
    : work(std::move(folder)),
      commonData(messages, [this](CommonData) { return PathOf(""); }),
      editor({.settings = settings,
              .messages = messages,
              .dialogs = dialogs,
              .fileDialogs = fileDialogs,
              .units = commonData.units,
              .log = commonData.log,
              .widgets = widgets,
              .tree = tree,
              .cursor = pointer,
              .rubberBand = pointer,
              .popupMenu = pointer,
              .listener = &listener})
{
  recorder.width = recorder.height = 0;
  recorder.onFrame = [this] {
    recorder.calls.clear();
    events.emplace_back("frame");
  };
  messages.onShow = [this] { boxes.push_back(Row(messages.shown.back(), "ok", "ok")); };
  messages.onQuestion = [this] { AnswerQuestion(); };
  tree.pane = &pane;
}

void ReplayEditor::Answer(std::vector<bool> answers)
{
  boxes.clear();
  answers_ = std::move(answers);
  next_ = 0;
}

void ReplayEditor::AnswerQuestion()
{
  messages.answer = next_ < answers_.size() && answers_[next_];
  ++next_;
  boxes.push_back(Row(messages.asked.back(), "yesno", messages.answer ? "yes" : "no"));
}

void ReplayEditor::Start(std::optional<std::string> file)
{
  file_ = std::move(file);
  app.LoadLook();
  frame.OnApplicationLook(app.applicationLook);
  view.OnCreate(&recorder);
  pane.BuildTree();
  app.InitInstance(*this);
  recorder.calls.clear();
}

bool ReplayEditor::ProcessCommandLine()
{
  if (file_) {
    document.OnOpenDocument(PathOf(*file_));
  } else {
    document.OnNewDocument();
  }
  document.SetModifiedFlag(false);
  return true;
}

std::u16string ReplayEditor::PathOf(const std::string& name) const
{
  return WideFromUtf8(hullwright::TextOf(work / hullwright::PathOf(name)));
}

TreeItem ReplayEditor::ItemAt(const std::vector<std::size_t>& path)
{
  TreeItem item;
  for (std::size_t depth = 0; depth < path.size(); ++depth) {
    CObjectTree& objects = pane.Tree();
    if (depth == 0) {
      item = path[0] == 0 ? objects.Root() : path[0] == 1 ? objects.Anchors() : TreeItem();
    } else {
      item = path[depth] < objects.ChildCount(item) ? objects.Child(item, path[depth]) : TreeItem();
    }
    if (!item) return {};
  }
  return item;
}

std::u16string ReplayEditor::BytesOf(const std::u16string& path)
{
  std::ifstream stream(hullwright::PathOf(path), std::ios::binary);
  const std::string bytes((std::istreambuf_iterator<char>(stream)), {});
  std::u16string text;
  for (const char byte : bytes) text.push_back(static_cast<unsigned char>(byte));
  return text;
}

}  // namespace hullwright::replay
