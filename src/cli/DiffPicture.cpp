#include "cli/DiffPicture.h"

#include <QPainter>
#include <QPicture>
#include <algorithm>
#include <array>
#include <iterator>
#include <map>
#include <set>
#include <tuple>

#include "cli/DesignContent.h"
#include "cli/PictureFile.h"
#include "cli/PictureName.h"
#include "cli/Sheet.h"
#include "cli/SidePictures.h"
#include "paint/PaintText.h"

namespace hullwright {
namespace {

constexpr QSize pictureSize(1600, 1000);

// Colours of strokes, 0x00BBGGRR.
constexpr std::uint32_t formerColour = 0xB4B4B4;
constexpr std::uint32_t sameColour = 0x000000;
constexpr std::uint32_t otherColour = 0xE04000;

constexpr const char* legend =
    ": the former grey, the new black where equal and blue where not, rings around changes";

/// A place on a side that is ringed.
struct Ring {
  ViewSide side;  ///< code of the group, or the top side for offsets and anchors
  Place place;
};

std::vector<Ring> RingsOf(const Differences& differences)
{
  std::vector<Ring> rings;
  for (const ShapeDifference& shape : differences.shapes) {
    for (const VertexDifference& vertex : shape.vertices) {
      const bool removed = vertex.number.current == 0;
      rings.push_back({shape.side, removed ? vertex.place.former : vertex.place.current});
    }
  }
  for (const OffsetDifference& offset : differences.offsets) {
    rings.push_back({ViewSide::Top, offset.place.current});
  }
  for (const AnchorDifference& difference : differences.anchors) {
    const auto& [former, current] = difference.anchor;
    rings.push_back({ViewSide::Top, current ? current->place : former->place});
  }
  return rings;
}

/// Where offsets and anchors stood that are elsewhere now, or nowhere.
std::vector<Place> FormerPlaces(const Differences& differences)
{
  std::vector<Place> places;
  for (const OffsetDifference& offset : differences.offsets) {
    places.push_back(offset.place.former);
  }
  for (const AnchorDifference& difference : differences.anchors) {
    const auto& [former, current] = difference.anchor;
    if (former && (!current || difference.moved)) places.push_back(former->place);
  }
  return places;
}

/// Side, type and number of a shape, by which differences know it.
using ShapeName = std::tuple<ViewSide, ShapeType, std::size_t>;

/// Both designs upon each other, drawn side by side.
class Overlay {
public:
  explicit Overlay(const DiffPictureRequest& request)
      : request_(request),
        pictures_(pictureSize.width(), pictureSize.height()),
        rings_(RingsOf(request.differences))
  {
    for (const ShapeDifference& shape : request.differences.shapes) {
      changed_.former.insert({shape.side, shape.type, shape.number.former});
      changed_.current.insert({shape.side, shape.type, shape.number.current});
    }
    editor_.ShowGrid(false);
    if (request.symbols) TakeSymbols();
  }

  bool HasRoom() { return pictures_.HasRoom(); }

  bool Differs(ViewSide side) const
  {
    const bool hasSymbols = side == ViewSide::Top && (!request_.differences.offsets.empty() ||
                                                      !request_.differences.anchors.empty());
    return hasSymbols || std::ranges::any_of(request_.differences.shapes, [&](const auto& shape) {
             return IsSeenFrom(shape.side, side);
           });
  }

  void Paint(ViewSide side, QPainter& painter)
  {
    TakeShapes(side);
    editor_.ShowSide(side, pictureSize.width(), pictureSize.height(), Stretch(side));
    QPicture picture;
    pictures_.PaintOn(picture);
    painter.drawPicture(QPoint(0, 0), picture);
    painter.setRenderHint(QPainter::Antialiasing);
    if (side == ViewSide::Top) PaintFormerPlaces(painter);
    PaintRings(side, painter);
  }

private:
  /// Whether the group of a code is what is seen from a side, in either design.
  bool IsSeenFrom(ViewSide group, ViewSide side) const
  {
    if (group == side) return true;
    return std::ranges::any_of(std::array{&request_.former, &request_.current}, [&](const auto* d) {
      const CShapes* const seen = FindViewGroup(d->shapeGroups, side);
      return seen != nullptr && seen->viewCode == group;
    });
  }

  void TakeSymbols()
  {
    CHullwrightApp& app = editor_.App();
    *app.offsetGps = *request_.current.offsetGps;
    *app.offsetTransducer = *request_.current.offsetTransducer;
    *app.offsetPivot = *request_.current.offsetPivot;
    app.anchors->AppendClones(*request_.current.anchors);
  }

  /// Puts the shapes of a side of both designs into the editor, the former ones below.
  void TakeShapes(ViewSide side)
  {
    CHullwrightApp& app = editor_.App();
    ClearGroups(app.shapeGroups);
    if (!request_.symbols) editor_.RemoveSymbols();
    CShapes& shapes = *GetShapes(app.shapeGroups, side);
    const auto addFormer = [&](const CShape& shape, bool isChanged) {
      std::unique_ptr<CShape> copy = shape.Clone();
      Convert(*copy);
      Add(std::move(copy), formerColour, isChanged, shapes);
    };
    const auto addCurrent = [&](const CShape& shape, bool isChanged) {
      Add(shape.Clone(), isChanged ? otherColour : sameColour, isChanged, shapes);
    };
    ForEachShape(request_.former, side, changed_.former, addFormer);
    ForEachShape(request_.current, side, changed_.current, addCurrent);
  }

  /// What did not change is as wide in both designs, so that the new one covers the former.
  static void Add(std::unique_ptr<CShape> shape, std::uint32_t colour, bool isChanged,
                  CShapes& shapes)
  {
    shape->style = std::make_unique<ShapeStyle>();
    shape->style->lineColour = colour;
    shape->style->lineWidth = isChanged ? 2.0F : 1.0F;
    shapes.shapes.push_back(std::move(shape));
  }

  /// Calls `visit` with each shape that is seen from a side, and whether it changed.
  template <class Visit>
  static void ForEachShape(const DesignState& design, ViewSide side,
                           const std::set<ShapeName>& changed, Visit visit)
  {
    const CShapes* const group = FindViewGroup(design.shapeGroups, side);
    if (group == nullptr) return;
    std::map<ShapeType, std::size_t> counts;
    ForEachEntry(group->shapes, [&](const CShape& shape) {
      const std::size_t number = ++counts[shape.type];
      visit(shape, changed.contains({side, shape.type, number}) ||
                       changed.contains({group->viewCode, shape.type, number}));
    });
  }

  /// Takes a former shape to the unit of the current design.
  void Convert(CShape& shape) const
  {
    std::vector<CShapeVertex*> vertices;
    shape.GetVertices(vertices);
    for (CShapeVertex* const vertex : vertices) {
      vertex->ConvertUnits(request_.former.unitCode, request_.current.unitCode);
    }
  }

  /// All that a side shows, with a margin.
  Extents Stretch(ViewSide side)
  {
    constexpr double margin = 1.0 / 6.0;
    CHullwrightApp& app = editor_.App();
    Extents box = ContentOf(app, side).box;
    if (side == ViewSide::Top && request_.symbols) {
      WidenBySymbols(app, box);
      for (const Place& place : FormerPlaces(request_.differences)) box.Widen(place.x, place.y);
    }
    if (box.IsEmpty()) return box;
    // A single place is shown with some of the world around it.
    const double reach = std::max(box.maxX - box.minX, box.maxY - box.minY);
    const double width = reach > 0.0 ? reach * margin : 1.0;
    return {box.minX - width, box.minY - width, box.maxX + width, box.maxY + width};
  }

  QPointF OnScreen(const Place& place)
  {
    const ScreenPoint point = editor_.App().viewPort->WorldToScreen(place.x, place.y);
    return {point.x, point.y};
  }

  /// A grey cross where something stood, as wide as the symbols.
  void PaintFormerPlaces(QPainter& painter)
  {
    constexpr double reach = 12.0;
    painter.setPen(QPen(QColor(0x96, 0x96, 0x96), 2.0));
    for (const Place& place : FormerPlaces(request_.differences)) {
      const QPointF centre = OnScreen(place);
      if (!Shows(centre)) continue;
      painter.drawLine(centre - QPointF(reach, reach), centre + QPointF(reach, reach));
      painter.drawLine(centre - QPointF(reach, -reach), centre + QPointF(reach, -reach));
    }
  }

  void PaintRings(ViewSide side, QPainter& painter)
  {
    constexpr double vertexRadius = 7.0;
    constexpr double symbolRadius = 20.0;
    painter.setPen(QPen(QColor(0xD0, 0x00, 0x20), 2.0));
    painter.setBrush(Qt::NoBrush);
    const std::size_t shapeRings =
        rings_.size() - request_.differences.offsets.size() - request_.differences.anchors.size();
    for (std::size_t i = 0; i < rings_.size(); ++i) {
      const bool isSymbol = i >= shapeRings;
      const bool isHere = isSymbol ? side == ViewSide::Top : IsSeenFrom(rings_[i].side, side);
      const QPointF centre = OnScreen(rings_[i].place);
      const double radius = isSymbol ? symbolRadius : vertexRadius;
      if (isHere && Shows(centre)) painter.drawEllipse(centre, radius, radius);
    }
  }

  static bool Shows(QPointF point)
  {
    return QRectF(QPointF(0.0, 0.0), pictureSize)
        .adjusted(-50.0, -50.0, 50.0, 50.0)
        .contains(point);
  }

  const DiffPictureRequest& request_;
  SidePictures pictures_;
  HeadlessEditor& editor_ = pictures_.Editor();
  FormerAndCurrent<std::set<ShapeName>> changed_;
  std::vector<Ring> rings_;  ///< of vertices, then of offsets and anchors
};

}  // namespace

std::string WriteDiffPicture(const DiffPictureRequest& request)
{
  StartToolkit();
  Overlay overlay(request);
  if (!overlay.HasRoom()) return "no memory for a picture of " + PixelsOf(pictureSize);
  std::vector<ViewSideEntry> sides;
  std::ranges::copy_if(request.sides, std::back_inserter(sides),
                       [&](const ViewSideEntry& side) { return overlay.Differs(side.code); });
  if (sides.empty()) sides.push_back(request.sides[0]);
  std::vector<std::string> captions;
  captions.reserve(sides.size());
  for (const ViewSideEntry& side : sides) captions.push_back(std::string(side.name) + legend);
  const SheetLayout layout(pictureSize, static_cast<int>(sides.size()));
  const auto paint = [&](QPaintDevice& device) {
    QPainter sheet(&device);
    PaintGround(sheet, layout);
    PaintPictures(sheet, layout, captions, [&](std::size_t i, QPoint corner) {
      sheet.translate(corner);
      overlay.Paint(sides[i].code, sheet);
    });
  };
  PictureFiles files;
  std::string problem =
      files.Add(request.output, MakePicture(PictureEnding(request.output), layout.Size(), paint));
  return problem.empty() ? files.Commit() : problem;
}

}  // namespace hullwright
