#include <gtest/gtest.h>

#include <malloc.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <limits>
#include <new>
#include <optional>
#include <string>
#include <vector>

#include "model/ShapePoint.h"
#include "model/ShapePolygon.h"
#include "model/ShapeText.h"
#include "paint/PaintTarget.h"
#include "render/Canvas.h"
#include "render/Scene.h"
#include "support/AddLine.h"
#include "support/CoordinateBits.h"
#include "support/FailingNew.h"

// Repaints of a picture in memory, once with each of their allocations failing: the picture of the
// next one is whole, and the design is what it was.
namespace hullwright {
namespace {

/// What is drawn, and what of a design it needs.
struct Drawing {
  const char* name;
  std::function<void(DesignState&, GridSettings&)> prepare;
};

/// A polyline of a width with so many vertices, which runs to and fro over the view.
void AddZigzag(DesignState& design, float width, int vertices)
{
  CShapePolyline& line = test::AddLine(design, design.activeView, {});
  for (int i = 0; i < vertices; ++i) {
    line.AddVertex(-90.0 + 180.0 * i / vertices, i % 2 == 0 ? -40.0 : 40.0 - i % 7, 0.0);
  }
  line.style = std::make_unique<ShapeStyle>();
  line.style->lineWidth = width;
}

Drawing Zigzag(const char* name, float width, int vertices)
{
  return {name, [width, vertices](DesignState& design, GridSettings&) {
            AddZigzag(design, width, vertices);
          }};
}

/// A marked line that leaves the view for where single precision ends, and for what is no number.
void AddFarLine(DesignState& design, GridSettings&)
{
  const double none = std::numeric_limits<double>::quiet_NaN();
  test::AddLine(design, design.activeView,
                {{-50, 0, 0}, {1e9, 1e9, 0}, {20, -10, 0}, {none, 0, 0}, {30, 30, 0}, {-1e9, 5, 0}})
      .selected = true;
}

void AddText(DesignState& design, double x, double height, bool isMarked)
{
  auto text = std::make_unique<CShapeText>();
  text->vertices.push_back(std::make_unique<CShapeVertex>(x, 10.0, 0.0));
  text->text = u"Echo sounder\nbelow the keel";
  text->height = height;
  text->angle = isMarked ? 30.0 : 0.0;
  text->selected = isMarked;
  GetShapes(design.shapeGroups, design.activeView)->shapes.push_back(std::move(text));
}

void AddTexts(DesignState& design, GridSettings&)
{
  AddText(design, -80.0, 6.0, false);
  AddText(design, -20.0, 9.0, true);
  AddText(design, 20.0, 6.0, false);
}

void AddPoints(DesignState& design, GridSettings&)
{
  for (int i = 0; i < 5; ++i) {
    auto point = std::make_unique<CShapePoint>();
    point->position = {10.0 * i, 5.0 * i, 0.0};
    point->selected = i == 2;
    GetShapes(design.shapeGroups, design.activeView)->shapes.push_back(std::move(point));
  }
}

void AddPolygon(DesignState& design, GridSettings&)
{
  auto polygon = std::make_unique<CShapePolygon>();
  for (std::size_t ring = 0; ring < 3; ++ring) {
    for (int corner = 0; corner < 6; ++corner) {
      const double reach = 60.0 / static_cast<double>(ring + 1);
      const double x = corner % 3 == 0 ? -reach : reach + corner;
      polygon->AddVertex(std::make_unique<CShapeVertex>(x, corner < 3 ? -reach : reach, 0.0), ring);
    }
  }
  polygon->selected = true;
  GetShapes(design.shapeGroups, design.activeView)->shapes.push_back(std::move(polygon));
}

/// The three devices stand on the top side of any design.
void AddDevices(DesignState& design, GridSettings&)
{
  design.activeView = ViewSide::Top;
  for (int i = 0; i < 3; ++i) {
    design.anchors->items.push_back(design.anchors->NewAnchor());
    design.anchors->items.back()->attachmentX = 20.0 * i;
  }
}

void ShowGrid(DesignState&, GridSettings& grid)
{
  grid.show = 1;
  grid.spacingShowX = grid.spacingShowY = 40.0;
}

std::vector<Drawing> Drawings()
{
  std::vector<Drawing> drawings = {Zigzag("width 1", 1.0F, 40),
                                   Zigzag("width 2", 2.0F, 40),
                                   Zigzag("width 5", 5.0F, 40),
                                   Zigzag("thinnest, many vertices", 0.0F, 3000),
                                   Zigzag("width 5, many vertices", 5.0F, 3000),
                                   {"far away", AddFarLine},
                                   {"texts", AddTexts},
                                   {"points", AddPoints},
                                   {"polygon", AddPolygon},
                                   {"devices", AddDevices},
                                   {"grid", ShowGrid}};
  const std::vector<Drawing> parts = drawings;
  drawings.push_back({"everything", [parts](DesignState& design, GridSettings& grid) {
                        for (const Drawing& part : parts) part.prepare(design, grid);
                      }});
  return drawings;
}

/// A design in a picture of its own.
class Painted {
public:
  explicit Painted(const Drawing& drawing)
  {
    design_.activeView = ViewSide::Right;
    grid_.show = 0;
    drawing.prepare(design_, grid_);
    design_.viewPort = &viewPort_;
    viewPort_.canvas = &canvas_;
    canvas_.Initialize(&target_);
    Resize(200, 150);
  }

  void Resize(int width, int height)
  {
    viewPort_.screenWidth = width;
    viewPort_.screenHeight = height;
    viewPort_.KeepAspect();
    target_.Resize(width, height);
  }

  void Repaint() { DrawScene(design_, &viewPort_, nullptr, grid_); }

  /// Runs something with the allocation of that number failing; whether there was one.
  template <class Act>
  static bool ShortOfMemory(std::size_t which, Act act)
  {
    const test::FailingNew memory(which);
    try {
      act();
    } catch (const std::bad_alloc&) {
    }
    return test::FailingNew::Stop();
  }

  /// The next repaint.
  QImage Next()
  {
    Repaint();
    return surface_.Picture().copy();
  }

  bool HasPicture() { return !surface_.Picture().isNull(); }
  const DesignState& Design() const { return design_; }

private:
  PaintSurface surface_{0, 0};
  PaintTarget target_{surface_};
  CCanvas canvas_;
  CViewPortDesigner viewPort_;
  DesignState design_;
  GridSettings grid_;
};

class RepaintShortOfMemory : public testing::TestWithParam<Drawing> {};

TEST_P(RepaintShortOfMemory, IsWholeTheNextTime)
{
  const QImage whole = Painted(GetParam()).Next();
  const auto coordinates = test::CoordinateBits(Painted(GetParam()).Design());
  std::size_t which = 1;
  for (bool failed = true; failed; ++which) {
    Painted painted(GetParam());
    failed = Painted::ShortOfMemory(which, [&] { painted.Repaint(); });
    ASSERT_EQ(painted.Next(), whole) << "allocation " << which;
    ASSERT_EQ(test::CoordinateBits(painted.Design()), coordinates) << "allocation " << which;
  }
  EXPECT_GT(which, 4U);
}

/// What a line that was never finished has left would lie outside the smaller picture.
TEST_P(RepaintShortOfMemory, IsWholeInASmallerPictureToo)
{
  Painted small(GetParam());
  small.Resize(100, 60);
  const QImage whole = small.Next();
  for (std::size_t which = 1;; ++which) {
    Painted painted(GetParam());
    if (!Painted::ShortOfMemory(which, [&] { painted.Repaint(); })) break;
    painted.Resize(100, 60);
    ASSERT_EQ(painted.Next(), whole) << "allocation " << which;
  }
}

/// The room that the frames of before have taken is there already.
TEST_P(RepaintShortOfMemory, IsWholeTheNextTimeInASessionAsWell)
{
  Painted painted(GetParam());
  const QImage whole = painted.Next();
  for (std::size_t which = 1; Painted::ShortOfMemory(which, [&] { painted.Repaint(); }); ++which) {
    ASSERT_EQ(painted.Next(), whole) << "allocation " << which;
  }
}

TEST_P(RepaintShortOfMemory, ComesBackWhereThePictureItselfFoundNoRoom)
{
  Painted painted(GetParam());
  painted.Repaint();
  Painted large(GetParam());
  large.Resize(300, 200);
  const QImage whole = large.Next();
  const auto enlarge = [&] {
    painted.Resize(300, 200);
    painted.Repaint();
  };
  for (std::size_t which = 1; Painted::ShortOfMemory(which, enlarge); ++which) {
    ASSERT_EQ(painted.Next(), whole) << "allocation " << which;
    painted.Resize(200, 150);
  }
  EXPECT_EQ(painted.Next(), whole);
}

INSTANTIATE_TEST_SUITE_P(Of, RepaintShortOfMemory, testing::ValuesIn(Drawings()),
                         [](const auto& drawing) {
                           std::string name = drawing.param.name;
                           std::erase_if(name, [](char c) { return c == ' ' || c == ','; });
                           return name;
                         });

/// While it lives, the process gets no more than so many bytes from the system.
class SystemLimit {
public:
  explicit SystemLimit(rlim_t bytes)
  {
    getrlimit(RLIMIT_AS, &before_);
    std::ifstream("/proc/self/statm") >> pages_;
    const rlimit limit{pages_ * static_cast<rlim_t>(getpagesize()) + bytes, before_.rlim_max};
    setrlimit(RLIMIT_AS, &limit);
  }
  SystemLimit(const SystemLimit&) = delete;
  SystemLimit& operator=(const SystemLimit&) = delete;
  ~SystemLimit() { setrlimit(RLIMIT_AS, &before_); }

private:
  rlimit before_{};
  rlim_t pages_ = 0;  ///< that the process has
};

/// While it lives, the heap has no room of its own for a picture: what tests of before have freed
/// there could hold one, however little the system gives.
class TakenHeap {
public:
  explicit TakenHeap(std::size_t bytes)
  {
    blocks_.reserve(1000);
    const SystemLimit limit(0);
    while (blocks_.size() < blocks_.capacity()) {
      void* block = std::malloc(bytes);
      if (block == nullptr) break;
      blocks_.push_back(block);
    }
  }
  TakenHeap(const TakenHeap&) = delete;
  TakenHeap& operator=(const TakenHeap&) = delete;
  ~TakenHeap() { std::ranges::for_each(blocks_, std::free); }

private:
  std::vector<void*> blocks_;
};

/// A picture that the system has no room for, under a limit.
class RepaintUnderALimitOfTheSystem : public testing::Test {
protected:
  void SetUp() override
  {
#ifdef HULLWRIGHT_SANITIZE
    GTEST_SKIP() << "the sanitizers take all addresses that there are";
#endif
    mallopt(M_MMAP_THRESHOLD, 1 << 16);  // pictures come from the system and go back there
    {
      Painted large(everything);
      large.Resize(1500, 1000);
      whole = large.Next();
    }
    heap.emplace(static_cast<std::size_t>(whole.sizeInBytes()));
  }

  /// Paints with so many bytes left, and with the allocation of that number failing besides. The
  /// next repaint must be whole.
  void Paint(rlim_t bytes, std::size_t which)
  {
    SCOPED_TRACE(testing::Message() << bytes << " bytes, allocation " << which);
    Painted painted(everything);
    {
      const SystemLimit limit(bytes);
      const auto enlarge = [&] {
        painted.Resize(1500, 1000);
        painted.Repaint();
      };
      failed = Painted::ShortOfMemory(which, enlarge);
      lost += painted.HasPicture() ? 0 : 1;
    }
    ASSERT_EQ(painted.Next(), whole);
  }

  const Drawing everything = Drawings().back();
  QImage whole;
  std::optional<TakenHeap> heap;
  bool failed = true;
  int lost = 0;  ///< pictures that there was no memory for
};

TEST_F(RepaintUnderALimitOfTheSystem, IsWholeAsSoonAsThereIsMemoryAgain)
{
  for (rlim_t bytes = 0; bytes < 12000000; bytes += 250000) Paint(bytes, 0);
  EXPECT_GT(lost, 10);
}

TEST_F(RepaintUnderALimitOfTheSystem, IsWholeAlsoIfWhatReportsThatFails)
{
  std::size_t which = 0;
  while (failed) Paint(0, ++which);
  EXPECT_GT(which, 3U);
  EXPECT_EQ(lost, static_cast<int>(which));
}

TEST(FontShortOfMemory, IsNotTakenForTheOneBefore)
{
  constexpr PixelSize limits{1000.0F, 100.0F};
  constexpr TextStyle sans{u"Arial", 16.0F};
  constexpr TextStyle monospaced{u"Consolas", 16.0F};
  PaintSurface surface(10, 10);
  for (std::size_t which = 1;; ++which) {
    PaintTarget target(surface);
    const float width = target.MeasureText(u"mmm", sans, limits)->width;
    const bool failed =
        Painted::ShortOfMemory(which, [&] { target.MeasureText(u"mmm", monospaced, limits); });
    EXPECT_EQ(target.MeasureText(u"mmm", sans, limits)->width, width) << which;
    if (!failed) break;
  }
}

}  // namespace
}  // namespace hullwright
