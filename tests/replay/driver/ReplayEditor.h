#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "app/HullwrightApp.h"
#include "app/MainFrame.h"
#include "app/ObjectView.h"
#include "cli/HeadlessEditor.h"
#include "file/HullwrightDoc.h"
#include "replay/driver/FrameRecorder.h"
#include "replay/driver/Value.h"
#include "support/ScriptedDialogs.h"
#include "system/CommonDataPorts.h"
#include "view/HullwrightView.h"

namespace hullwright::replay {

/// The settings store as its keys, without their sections.
class ReplaySettings : public ISettingsStore {
public:
  std::int32_t ReadInteger(std::string_view, std::string_view key,
                           std::int32_t fallback) const override
  {
    const auto found = values.find(key);
    return found == values.end() ? fallback : found->second;
  }
  void WriteInteger(std::string_view, std::string_view key, std::int32_t value) override
  {
    values.insert_or_assign(std::string(key), value);
  }
  std::map<std::string, std::int32_t, std::less<>> values;
};

/// Message boxes that are answered by a script, and what they showed.
class ReplayMessages : public IMessageBoxes {
public:
  void ShowMessage(std::u16string_view text) override { shown.push_back(Row(text, "ok", "ok")); }
  bool AskYesNo(std::u16string_view question) override;
  std::vector<bool> answers;  ///< in order; missing ones are no
  Value::List shown;

private:
  std::size_t next_ = 0;

public:
  void Reset()
  {
    answers.clear();
    shown.clear();
    next_ = 0;
  }
};

/// Dialogs that run by a script, and what they showed.
class ReplayDialogs : public test::ScriptedDialogs {
public:
  DialogEnd Run(IDialog& dialog) override;
  Value::List reports;
};

/// Pointer, rubber band and context menus of the view.
class ReplayPointer : public ICursor, public IRubberBand, public IPopupMenu, public IFileDialogs {
public:
  void SetCursor(CursorShape shape) override { cursor = shape; }
  void InvertLine(ClientPoint from, ClientPoint to) override
  {
    band.push_back(Row(from.x, from.y, to.x, to.y));
  }
  void Show(std::span<const PopupEntry> entries, ClientPoint) override { Offer(entries); }
  void Offer(std::span<const PopupEntry> entries);
  std::optional<std::u16string> AskOpen(std::u16string_view, std::u16string_view) override
  {
    return file;
  }

  std::optional<CursorShape> cursor;
  Value::List band;
  Value menu;
  std::optional<std::u16string> file;  ///< what the next question for a file is answered with
};

/// The object tree as a control holds it: texts stay as they were at the last rebuild.
class ReplayTree : public ITreeControl {
public:
  explicit ReplayTree(ReplayPointer& pointer) : pointer_(pointer) {}
  void BeforeRebuild() override {}
  void Rebuilt() override { snapshot = Children(nullptr); }
  void ImagesChanged() override;
  void ShowMenu(std::span<const PopupEntry> entries) override { pointer_.Offer(entries); }

  struct Node {
    TreeItem item;
    std::u16string text;
    int image = 0;
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

/// The frame, and what passes through it.
class ReplayFrame : public CMainFrame {
public:
  ReplayFrame(CHullwrightApp& app, IFrameWidgets& widgets, Value::List& events)
      : CMainFrame(app, widgets), events_(events)
  {
  }
  void Notify(int code, std::intptr_t value) override;
  void SetModifiedFlag(bool modified) override;
  bool listing = true;  ///< whether notifications are written down

private:
  Value::List& events_;
};

/// The whole editor from start-up to its end, in a work folder, over ports that a script drives.
class ReplayEditor : public IFramework {
public:
  explicit ReplayEditor(std::filesystem::path work);
  ~ReplayEditor() override;

  /// Starts the program, with a design if one is named.
  void Start(std::optional<std::string> file);

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
  ReplaySettings settings;
  ReplayMessages messages;
  ReplayDialogs dialogs;
  ReplayPointer pointer;
  NoWidgets widgets;
  CommonDataPorts commonData;
  FrameRecorder recorder;
  NoWindow window;
  CHullwrightApp app;
  ReplayFrame frame;
  CHullwrightDoc document;
  CHullwrightView view;
  ReplayTree tree;
  CObjectView pane;

private:
  std::optional<std::string> file_;
};

/// A vertex as three coordinates, or with its carried fields where one is set.
Value Of(const CShapeVertex& vertex);

/// A shape with everything that it has.
Value Of(const CShape& shape);

Value Of(const CAnchor& anchor);
Value Of(const GridSettings& grid);

}  // namespace hullwright::replay
