#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "model/ShapePoint.h"
#include "support/AppFixture.h"

namespace hullwright::test {

/// A main frame that also writes down what passes through it.
class ListeningFrame : public CMainFrame {
public:
  using CMainFrame::CMainFrame;
  void Notify(int code, std::intptr_t value) override
  {
    heard.emplace_back(code == Notification::RepaintDesign ? "repaint"
                       : code == Notification::RebuildTree ? "tree"
                                                           : std::to_string(code));
    CMainFrame::Notify(code, value);
  }
  void SetModifiedFlag(bool modified) override
  {
    heard.emplace_back(modified ? "modified" : "clean");
    CMainFrame::SetModifiedFlag(modified);
  }
  std::vector<std::string> heard;
};

/// The application with its design commands, and what they tell.
class CommandFixture : public AppFixture {
protected:
  CommandFixture()
  {
    listening.document = &document;
    listening.view = &view;
    listening.hasWindow = true;
  }

  CShapePolyline& AddLine(std::int32_t side, const CShapeVertex& vertex)
  {
    auto line = std::make_unique<CShapePolyline>();
    line->AddVertex(vertex.x, vertex.y, vertex.z);
    CShapePolyline& added = *line;
    GetShapes(app.shapeGroups, side)->shapes.push_back(std::move(line));
    return added;
  }

  CShapePoint& AddPoint(std::int32_t side, const CShapeVertex& position)
  {
    auto point = std::make_unique<CShapePoint>();
    point->position = position;
    CShapePoint& added = *point;
    GetShapes(app.shapeGroups, side)->shapes.push_back(std::move(point));
    return added;
  }

  void Run(int id, DialogScript script = {})
  {
    dialogs.script = std::move(script);
    EXPECT_TRUE(listening.OnCommand(id)) << id;
  }

  ListeningFrame listening{app, widgets};
};

/// All three notifications of a command that changes the design.
inline const std::vector<std::string> toldAll = {"repaint", "tree", "modified"};

}  // namespace hullwright::test
