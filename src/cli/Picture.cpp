#include "cli/Picture.h"

#include <QPainter>
#include <QPicture>
#include <algorithm>
#include <filesystem>

#include "app/ImportText.h"
#include "base/Paths.h"
#include "base/Text.h"
#include "cli/CommandLine.h"
#include "cli/PictureFile.h"
#include "cli/PictureName.h"
#include "cli/Sheet.h"
#include "cli/SidePictures.h"
#include "system/InputFile.h"

namespace hullwright {
namespace {

namespace fs = std::filesystem;

/// The ending that decides the format.
std::string FormatOf(const PictureRequest& request)
{
  return request.ending.empty() ? PictureEnding(request.output) : request.ending;
}

/// Sides of a design, drawn on whatever is wanted.
class SidePainter {
public:
  explicit SidePainter(const PictureRequest& request)
      : request_(request), pictures_(request.width, request.height)
  {
  }

  bool HasRoom() { return pictures_.HasRoom(); }

  /// Opens the design, or imports the drawing into each side that is asked for.
  std::string Open(const InputFile& input)
  {
    if (std::string problem = input.Problem(); !problem.empty()) return problem;
    const std::u16string path = WideFromUtf8(input.Path());
    const bool isDesign = input.IsDesign();
    bool opened = isDesign ? editor_.Open(path) : ImportIntoSides(path);
    if (opened && !isDesign && editor_.Tally().Shapes() == 0) {
      Remark(input.Name(), u"warning: " + DescribeShapes(editor_.Tally()));
    }
    if (IsIncomplete()) Remark(input.Name(), DescribePassedOver(editor_.Tally()));
    // A drawing comes into a new design, whose offsets it doesn't have.
    if (!isDesign || !request_.symbols) editor_.RemoveSymbols();
    if (request_.grid) editor_.ShowGrid(*request_.grid);
    return opened ? std::string() : input.Name() + ": " + Utf8FromWide(editor_.Problem());
  }

  /// Whether the import of the drawing was cut short.
  bool IsIncomplete() const { return editor_.Tally().IsIncomplete(); }

  /// Paints one side on a device of the picture's size.
  void Paint(const ViewSideEntry& side, QPaintDevice& device)
  {
    if (request_.stretch) {
      editor_.ShowSide(side.code, request_.width, request_.height, *request_.stretch);
    } else {
      editor_.ShowSide(side.code, request_.width, request_.height);
    }
    pictures_.PaintOn(device);
  }

  /// Width of the world that the last picture shows, in units of the design.
  double WorldWidth() { return editor_.App().viewPort->right - editor_.App().viewPort->left; }

  SheetFacts Facts(const QString& file) { return FactsOf(editor_.App(), file); }

private:
  bool ImportIntoSides(const std::u16string& path)
  {
    return std::ranges::all_of(request_.sides, [&](const ViewSideEntry& side) {
      editor_.App().activeView = side.code;
      return editor_.Import(path);
    });
  }

  const PictureRequest& request_;
  SidePictures pictures_;
  HeadlessEditor& editor_ = pictures_.Editor();
};

/// The layout of a sheet with a table of as many rows.
SheetLayout LayoutOf(const PictureRequest& request, qsizetype tableRows)
{
  return {QSize(request.width, request.height), static_cast<int>(request.sides.size()),
          static_cast<int>(tableRows)};
}

/// Paints all sides with their names, and what there is to tell beside them.
void PaintSheet(const PictureRequest& request, const SheetLayout& layout, const SheetFacts& facts,
                SidePainter& painter, QPaintDevice& device)
{
  QPainter sheet(&device);
  PaintGround(sheet, layout);
  PaintHeading(sheet, layout, facts);
  std::vector<std::string> names;
  for (const ViewSideEntry& side : request.sides) names.emplace_back(side.name);
  std::vector<double> widths;
  PaintPictures(sheet, layout, names, [&](std::size_t i, QPoint corner) {
    QPicture picture;
    painter.Paint(request.sides[i], picture);
    sheet.drawPicture(corner, picture);
    widths.push_back(painter.WorldWidth());
  });
  for (int i = 0; i < layout.Count(); ++i) {
    PaintScaleBar(sheet, layout, i, widths[static_cast<std::size_t>(i)], facts.unitShort);
  }
  PaintTable(sheet, layout, facts);
}

/// A table makes the sheet higher, so that it may be too large only now.
std::string AddSheet(const PictureRequest& request, const SheetFacts& facts, SidePainter& painter,
                     PictureFiles& files)
{
  const SheetLayout layout = LayoutOf(request, facts.rows.size());
  if (std::string problem = layout.Problem(); !problem.empty()) return problem;
  return files.Add(request.output,
                   MakePicture(FormatOf(request), layout.Size(), [&](QPaintDevice& device) {
                     PaintSheet(request, layout, facts, painter, device);
                   }));
}

std::string NameFor(const PictureRequest& request, const ViewSideEntry& side)
{
  if (!request.oneEach) return request.output;
  const fs::path path = PathOf(request.output);
  std::string name = TextOf(path.stem());
  name.append("-").append(side.name).append(TextOf(path.extension()));
  return TextOf(path.parent_path() / PathOf(name));
}

}  // namespace

std::string WritePictures(const PictureRequest& request, bool& isIncomplete)
{
  StartToolkit();
  if (request.sheet) {
    if (std::string problem = LayoutOf(request, 0).Problem(); !problem.empty()) return problem;
  }
  SidePainter painter(request);
  if (!painter.HasRoom()) {
    return "no memory for a picture of " + PixelsOf({request.width, request.height});
  }
  const InputFile input(request.input);
  if (std::string problem = painter.Open(input); !problem.empty()) return problem;
  isIncomplete = painter.IsIncomplete();
  PictureFiles files;
  std::string problem;
  if (request.sheet) {
    problem = AddSheet(
        request, painter.Facts(QString::fromStdString(TextOf(PathOf(input.Name()).filename()))),
        painter, files);
  } else {
    const QSize size(request.width, request.height);
    for (const ViewSideEntry& side : request.sides) {
      problem = files.Add(NameFor(request, side),
                          MakePicture(FormatOf(request), size,
                                      [&](QPaintDevice& device) { painter.Paint(side, device); }));
      if (!problem.empty()) break;
    }
  }
  return problem.empty() ? files.Commit() : problem;
}

}  // namespace hullwright
