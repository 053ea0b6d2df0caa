#include <gtest/gtest.h>
#include <malloc.h>

#include <cstddef>
#include <memory>
#include <utility>

#include "file/HullwrightDoc.h"
#include "headless/KeptMessages.h"
#include "model/ShapePolyline.h"
#include "support/Fakes.h"
#include "support/TempFolder.h"

namespace {

int timesGivenBack = 0;

}  // namespace

/// In the place of the C library's, which walks over all that was freed; counts its calls.
extern "C" int malloc_trim(std::size_t) noexcept
{
  ++timesGivenBack;
  return 0;
}

namespace hullwright {
namespace {

TEST(LastSave, LooksForWhatCanBeGivenBackMoreAndMoreSeldom)
{
  const test::TempFolder folder;
  KeptMessages messages;
  test::RecordedNotifications window;
  DesignState design;
  CHullwrightDoc document(design, window, messages);
  OwnedArray<CShape>& shapes = GetShapes(design.shapeGroups, ViewSide::Top)->shapes;
  for (int i = 0; i < 16; ++i) {
    auto line = std::make_unique<CShapePolyline>();
    for (int j = 0; j < 4096; ++j) line->AddVertex(j, i, 0.0);
    shapes.push_back(std::move(line));
  }
  document.LetGoAtSave();
  timesGivenBack = 0;
  document.OnSaveDocument(folder.File("last.xml"));
  EXPECT_TRUE(document.SavedWhole());
  // After 8, 10 and 13 polylines: 2^15 vertices, and each time a quarter more.
  EXPECT_EQ(timesGivenBack, 3);
}

}  // namespace
}  // namespace hullwright
