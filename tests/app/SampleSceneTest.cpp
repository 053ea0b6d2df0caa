#include <gmock/gmock.h>

#include <cmath>

#include "base/Code.h"
#include "base/Text.h"
#include "support/AppFixture.h"

namespace hullwright {
namespace {

using test::Exact;

/// The frame of a sample, worked out once more from the design's numbers alone: each coordinate by
/// the mapping of world to pixels, narrowed to a float.
class ExpectedFrame {
public:
  ExpectedFrame(const CHullwrightApp& app, const GridSettings& grid) : app_(app), grid_(grid) {}

  std::vector<std::string> Lines()
  {
    lines_.push_back("clear " + Exact({1.0F, 1.0F, 0.8784314F, 1.0F}));
    AddPolylines();
    AddGrid();
    if (app_.activeView == ViewSide::Top) AddDevices();
    return lines_;
  }

private:
  float X(double wx) const
  {
    const CViewPort& v = *app_.viewPort;
    return static_cast<float>((wx - v.left) / (v.width / 800.0));
  }
  float Y(double wy) const
  {
    const CViewPort& v = *app_.viewPort;
    return static_cast<float>(600.0 - (wy - v.bottom) / (v.height / 600.0));
  }
  /// The turning form of the mapping, for shapes and anchors: with no rotation it goes to the
  /// centre of the view rectangle and back.
  float TurnedX(double wx) const
  {
    const double cx = (app_.viewPort->left + app_.viewPort->right) * 0.5;
    return X((wx - cx) + cx);
  }
  float TurnedY(double wy) const
  {
    const double cy = (app_.viewPort->bottom + app_.viewPort->top) * 0.5;
    return Y((wy - cy) + cy);
  }

  void AddPolylines()
  {
    for (const auto& group : app_.shapeGroups) {
      if (group->viewCode != app_.activeView) continue;
      for (const auto& shape : group->shapes) {
        if (shape->vertices.size() < 2) continue;
        std::string points;
        for (const auto& v : shape->vertices) {
          points += " " + Exact(TurnedX(v->x)) + "," + Exact(TurnedY(v->y));
        }
        const std::string first = points.substr(1, points.find(' ', 1) - 1);
        lines_.push_back("geometry round hollow " + first + " :" + points +
                         " open width 1 colour 0 0 0 1");
      }
      return;
    }
  }

  void AddGrid()
  {
    const std::string ink = " width 1 colour 0.5019608 0.5019608 0.5019608 1";
    const float ox = X(0.0);
    const float oy = Y(0.0);
    Add("line", ox - 10.0F, oy, ox + 10.0F, oy, ink);
    Add("line", ox, oy - 10.0F, ox, oy + 10.0F, ink);
    const CViewPort& v = *app_.viewPort;
    const double sx = grid_.spacingShowX;
    const double sy = grid_.spacingShowY;
    if (v.width / sx > 40.0 || v.height / sy > 40.0) return;
    for (double gx = std::floor(v.left / sx) * sx; gx <= std::ceil(v.right / sx) * sx; gx += sx) {
      for (double gy = std::floor(v.bottom / sy) * sy; gy <= std::ceil(v.top / sy) * sy; gy += sy) {
        Add("rect", X(gx) - 1.0F, Y(gy) - 1.0F, X(gx) + 1.0F, Y(gy) + 1.0F, ink);
      }
    }
  }

  void AddDevices()
  {
    AddDevice(*app_.offsetGps, "GPS", "1 0 0 1");
    AddDevice(*app_.offsetTransducer, "TXD", "0 0 1 1");
    AddDevice(*app_.offsetPivot, "PIV", "0 0.5019608 0 1");
    for (const auto& anchor : app_.anchors->items) {
      const float x = TurnedX(anchor->attachmentX);
      const float y = TurnedY(anchor->attachmentY);
      const std::string ink = " colour 0.5019608 0 0.5019608 1";
      Add("text '" + std::to_string(anchor->id) + "' Arial 16 centred in", x - 20.0F, y - 20.0F,
          x + 20.0F, y + 20.0F, ink);
      Add("ellipse", x, y, 10.0F, 10.0F, " width 1" + ink);
    }
  }

  void AddDevice(const CShapeVertex& vertex, const std::string& label, const std::string& colour)
  {
    const float x = X(vertex.x);
    const float y = Y(vertex.y);
    const std::string ink = " colour " + colour;
    Add("ellipse", x, y, 15.0F, 15.0F, " width 2" + ink);
    Add("line", x - 15.0F, y - 15.0F, x + 15.0F, y + 15.0F, " width 2" + ink);
    Add("line", x + 15.0F, y - 15.0F, x - 15.0F, y + 15.0F, " width 2" + ink);
    Add("text '" + label + "' Arial 14 centred in", x - 50.0F, y - 40.0F, x + 50.0F, y - 10.0F,
        ink);
  }

  void Add(const std::string& what, float a, float b, float c, float d, const std::string& rest)
  {
    lines_.push_back(what + " " + Exact(a) + " " + Exact(b) + " " + Exact(c) + " " + Exact(d) +
                     rest);
  }

  const CHullwrightApp& app_;
  const GridSettings& grid_;
  std::vector<std::string> lines_;
};

class SampleScene : public test::AppFixture, public testing::WithParamInterface<const char*> {};

TEST_P(SampleScene, IsDrawnNumberByNumber)
{
  const std::string path = std::string(HULLWRIGHT_SAMPLES) + "/" + GetParam() + ".xml";
  ASSERT_TRUE(document.OnOpenDocument(WideFromUtf8(path)));
  for (const ViewSide side : eachViewSide) {
    app.SetViewSide(side);
    view.OnCommand(CommandId{32786});  // show all shapes
    view.OnMouseWheel(120, {333, 222});
    EXPECT_EQ(recorder.Frame(), ExpectedFrame(app, app.LoadGridSettings()).Lines())
        << NumberOf(side);
    EXPECT_GT(recorder.Count("rect"), 0) << NumberOf(side);
  }
}

INSTANTIATE_TEST_SUITE_P(Samples, SampleScene, testing::Values("workboat", "catamaran", "dredger"));

}  // namespace
}  // namespace hullwright
