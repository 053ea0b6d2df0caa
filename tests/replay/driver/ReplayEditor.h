#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "app/Editor.h"
#include "headless/DrawingRecorder.h"
#include "headless/FileAnswers.h"
#include "headless/KeptMessages.h"
#include "headless/KeptPointer.h"
#include "headless/MemorySettings.h"
#include "headless/NoTree.h"
#include "headless/NoWidgets.h"
#include "headless/ScriptedDialogs.h"
#include "headless/SilentWindow.h"
#include "replay/driver/Value.h"
#include "system/CommonDataPorts.h"

namespace hullwright::replay {

/// Dialogs that run by a script, and what they showed.
class ReplayDialogs : public ScriptedDialogs {
public:
  DialogEnd Run(IDialog& dialog) override;
  Value::List reports;
};

/// The pointer, with the context menus of view and tree as reports show them.
class ReplayPointer : public KeptPointer {
public:
  void Show(std::span<const PopupEntry> entries, ClientPoint) override { Offer(entries); }
  void Offer(std::span<const PopupEntry> entries);
  Value menu;
};

/// The object tree as a control holds it: texts stay as they were at the last rebuild.
class ReplayTree : public NoTree {
public:
  explicit ReplayTree(ReplayPointer& pointer) : pointer_(pointer) {}
  void Rebuilt() override { snapshot = Children(nullptr); }
  void ImagesChanged() override;
  void ShowMenu(std::span<const PopupEntry> entries) override { pointer_.Offer(entries); }

  struct Node {
    TreeItem item;
    std::u16string text;
    TreeImage image{};
    bool expanded = false;
    std::vector<Node> children;
  };
  Value Report() const;

  CObjectView* pane = nullptr;
  std::vector<Node> snapshot;

private:
  std::vector<Node> Children(const TreeItem* parent) const;
  Node Snapshot(const TreeItem& item) const;
  void Refresh(std::vector<Node>& nodes) const;

  ReplayPointer& pointer_;
};

/// Writes down the notifications of the frame.
class ReplayListener : public SilentWindow {
public:
  explicit ReplayListener(Value::List& events) : events_(events) {}
  void Notify(Notification code) override;
  void SetModifiedFlag(bool modified) override;
  bool listing = true;  ///< whether notifications are written down

private:
  Value::List& events_;
};

/// The whole editor from start-up to its end, in a work folder, over ports that a script drives.
class ReplayEditor : public IFramework {
public:
  explicit ReplayEditor(std::filesystem::path work);

  /// Starts the program, with a design if one is named.
  void Start(std::optional<std::string> file);

  /// Begins a step: nothing has been shown, and questions are answered in this order, then with no.
  void Answer(std::vector<bool> answers);

  /// A name of the script as a path in the work folder.
  std::u16string PathOf(const std::string& name) const;

  /// The state in full, with its five parts.
  Value State();

  /// A tree path as an item; none where it leads nowhere.
  TreeItem ItemAt(const std::vector<std::size_t>& path);

  /// The bytes of a file, as units of the same value.
  static std::u16string BytesOf(const std::u16string& path);

  void InitialiseControls() override {}
  bool InitialiseLibraries() override { return true; }
  void OpenUserStore(const char*, int) override {}
  bool CreateDocumentTemplate() override { return true; }
  bool ProcessCommandLine() override;
  void ShowMainWindow() override { frame.hasWindow = true; }
  void AcceptDroppedFiles() override {}
  void ReleaseLibraries() override {}

  std::filesystem::path work;
  Value::List events;
  Value::List boxes;  ///< what message boxes showed in this step, and how they ended
  MemorySettings settings;
  KeptMessages messages;
  ReplayDialogs dialogs;
  FileAnswers fileDialogs;
  ReplayPointer pointer;
  ReplayTree tree{pointer};
  ReplayListener listener{events};
  NoWidgets widgets;
  CommonDataPorts commonData;
  DrawingRecorder recorder;  ///< keeps the last frame only
  Editor editor;
  CHullwrightApp& app = editor.app;
  CMainFrame& frame = editor.frame;
  CHullwrightDoc& document = editor.document;
  CHullwrightView& view = editor.view;
  CObjectView& pane = editor.objects;

private:
  void AnswerQuestion();

  std::optional<std::string> file_;
  std::vector<bool> answers_;
  std::size_t next_ = 0;  ///< of the answers
};

/// What the settings store calls a setting, of which a script has the key alone.
std::string SettingOf(const std::string& key);
/// A vertex as three coordinates, or with its carried fields where one is set.
Value Of(const CShapeVertex& vertex);

/// A shape with everything that it has.
Value Of(const CShape& shape);

Value Of(const CAnchor& anchor);
Value Of(const GridSettings& grid);

}  // namespace hullwright::replay
