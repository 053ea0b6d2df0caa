#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "base/Code.h"
#include "headless/KeptMessages.h"
#include "headless/KeptPointer.h"
#include "platform/MainWindowPort.h"
#include "support/AddLine.h"
#include "support/RecordedDrawing.h"
#include "view/HullwrightView.h"

namespace hullwright::test {

/// An application that only counts what the view asks of it.
class FakeHost : public IViewHost {
public:
  std::unique_ptr<CViewPortDesigner> HandOverViewPort() override { return std::move(viewPort); }
  GridSettings LoadGridSettings() const override
  {
    ++gridReadings;
    return grid;
  }
  CursorTool GetCursorTool() const override { return cursorTool; }
  std::u16string GetUnitName() override { return unitName; }
  bool EditVertex(CShapeVertex& vertex) override
  {
    events.emplace_back("edit vertex");
    edited = vertex;
    if (whileEditing) whileEditing();
    if (accept) vertex = typed;
    return accept;
  }
  bool EditOffsets(HitKind focus) override
  {
    events.push_back("edit offsets " + std::to_string(NumberOf(focus)));
    return accept;
  }
  void NotifyDesignChanged() override { events.emplace_back("changed"); }
  void SetModifiedFlag(bool modified) override
  {
    events.emplace_back(modified ? "modified" : "clean");
  }

  std::unique_ptr<CViewPortDesigner> viewPort;
  GridSettings grid;
  mutable int gridReadings = 0;
  CursorTool cursorTool = CursorTool::None;
  std::u16string unitName;
  std::vector<std::string> events;
  CShapeVertex edited;                 ///< what the dialog showed
  CShapeVertex typed;                  ///< what is typed into it
  bool accept = false;                 ///< how it ends
  std::function<void()> whileEditing;  ///< what happens meanwhile
};

/// A view in a window of 800 by 600 over a design. The view is 200 wide and 150 high, so that 4
/// pixels are one world unit and world (0, 0) is pixel (400, 300). Snapping is off.
class ViewFixture : public testing::Test {
protected:
  ViewFixture()
  {
    GiveViewPort(design);
    design.activeView = ViewSide::Right;  // no devices in the way
    host.grid.snap = 0;
    host.grid.show = 0;
    view.OnCreate(&recorder);
    view.OnSize(800, 600);
    recorder.calls.clear();
  }

  /// Gives a design a viewport, which the next view created over it takes.
  void GiveViewPort(DesignState& to)
  {
    host.viewPort = std::make_unique<CViewPortDesigner>();
    to.viewPort = host.viewPort.get();
  }

  int Frames() const { return recorder.Frames(); }

  /// Adds a polyline to the side in view.
  CShapePolyline& AddLine(std::initializer_list<CShapeVertex> vertices)
  {
    return test::AddLine(design, design.activeView, vertices);
  }

  CAnchor& AddAnchor(double x, double y)
  {
    design.anchors->items.push_back(design.anchors->NewAnchor());
    design.anchors->items.back()->attachmentX = x;
    design.anchors->items.back()->attachmentY = y;
    return *design.anchors->items.back();
  }

  RecordedDrawing recorder;
  KeptMessages messages;
  KeptPointer pointer;
  FakeHost host;
  DesignState design;
  CHullwrightView view{design, host, {messages, pointer, pointer, pointer}};
};

}  // namespace hullwright::test
