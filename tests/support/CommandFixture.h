#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "model/ShapePoint.h"
#include "support/AppFixture.h"

namespace hullwright::test {

/// The application with its design commands, and their notifications.
class CommandFixture : public AppFixture {
protected:
  CShapePoint& AddPoint(ViewSide side, const CShapeVertex& position)
  {
    auto point = std::make_unique<CShapePoint>();
    point->position = position;
    CShapePoint& added = *point;
    GetShapes(app.shapeGroups, side)->shapes.push_back(std::move(point));
    return added;
  }

  void Run(CommandId id, DialogScript script = {})
  {
    dialogs.script = std::move(script);
    EXPECT_TRUE(frame.OnCommand(id)) << NumberOf(id);
  }
};

/// All three notifications of a command that changes the design.
inline const std::vector<std::string> notifiedOfAll = {"repaint", "tree", "modified"};

}  // namespace hullwright::test
