#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include "base/Text.h"
#include "support/AppFixture.h"

namespace hullwright::test {

/// The application with its object pane.
class ObjectPaneFixture : public AppFixture {
protected:
  ObjectPaneFixture()
  {
    pane.BuildTree();
    control.rebuilds = 0;
  }

  /// The item at a path of child numbers from the top: 0 the design, 1 the anchors.
  TreeItem At(std::initializer_list<std::size_t> path)
  {
    TreeItem item;
    for (const std::size_t number : path) {
      if (item) {
        item = pane.Tree().Child(item, number);
      } else {
        item = number == 0 ? pane.Tree().Root() : pane.Tree().Anchors();
      }
    }
    return item;
  }

  std::vector<std::string> Texts(const TreeItem& parent)
  {
    std::vector<std::string> texts;
    for (std::size_t i = 0; i < pane.Tree().ChildCount(parent); ++i) {
      texts.push_back(Utf8FromWide(pane.Tree().Text(pane.Tree().Child(parent, i))));
    }
    return texts;
  }

  std::vector<int> Images(const TreeItem& parent)
  {
    std::vector<int> images;
    for (std::size_t i = 0; i < pane.Tree().ChildCount(parent); ++i) {
      images.push_back(NumberOf(pane.Tree().Image(pane.Tree().Child(parent, i))));
    }
    return images;
  }

  void Command(CommandId id, const TreeItem& selected, DialogScript script = {})
  {
    pane.selectedItem = selected;
    dialogs.script = std::move(script);
    recorder.calls.clear();
    pane.OnCommand(id);
  }

  /// Whether the last command notified all three: a repaint, a rebuild and a modified document.
  bool NotifiedAll()
  {
    const bool all = Frames() == 1 && control.rebuilds == 1 && document.IsModified();
    const bool silent = Frames() == 0 && control.rebuilds == 0 && !document.IsModified();
    EXPECT_TRUE(all || silent);
    control.rebuilds = 0;
    document.SetModifiedFlag(false);
    return all;
  }

  CObjectView& pane = editor.objects;
};

}  // namespace hullwright::test
