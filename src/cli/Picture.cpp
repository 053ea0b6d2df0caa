#include "cli/Picture.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QPicture>
#include <QSvgGenerator>
#include <algorithm>
#include <deque>
#include <filesystem>

#include "app/ImportText.h"
#include "base/Text.h"
#include "cli/CommandLine.h"
#include "cli/Sheet.h"
#include "paint/PaintSurface.h"
#include "paint/PaintTarget.h"
#include "paint/PaintText.h"
#include "resources/Strings.h"
#include "system/InputFile.h"
#include "system/OutputFile.h"

namespace hullwright {
namespace {

namespace fs = std::filesystem;

/// Fonts need the toolkit, but no display.
void StartToolkit()
{
  if (QCoreApplication::instance() != nullptr) return;
  // The toolkit's remarks on a machine without a desktop are nothing to the user of a command line.
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  static int count = 3;
  static char program[] = "hullwright-cli";
  static char option[] = "-platform";
  static char platform[] = "offscreen";
  static char* arguments[] = {program, option, platform, nullptr};
  static const QGuiApplication toolkit(count, arguments);
}

std::string EndingOf(const std::string& path)
{
  std::string ending = path == "-" ? ".png" : fs::path(path).extension().string();
  std::ranges::transform(ending, ending.begin(), [](char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
  });
  return ending;
}

/// The ending that decides the format.
std::string FormatOf(const PictureRequest& request)
{
  return request.ending.empty() ? EndingOf(request.output) : request.ending;
}

/// Sides of a design, drawn on whatever is wanted.
class SidePainter {
public:
  explicit SidePainter(const PictureRequest& request)
      : request_(request), surface_(request.width, request.height), editor_(target_)
  {
  }

  bool HasRoom() { return !surface_.Picture().isNull(); }

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
    // A drawing comes into a new design, whose offsets it doesn't have.
    if (!isDesign || !request_.symbols) editor_.RemoveSymbols();
    if (request_.grid) {
      GridSettings grid = editor_.App().LoadGridSettings();
      grid.show = *request_.grid ? 1 : 0;
      editor_.App().SaveGridSettings(grid);
    }
    return opened ? std::string() : input.Name() + ": " + Utf8FromWide(editor_.Problem());
  }

  /// Paints one side on a device of the picture's size.
  void Paint(const ViewSideEntry& side, QPaintDevice& device)
  {
    if (request_.stretch) {
      editor_.ShowSide(side.code, request_.width, request_.height, *request_.stretch);
    } else {
      editor_.ShowSide(side.code, request_.width, request_.height);
    }
    surface_.SetDevice(&device);
    editor_.Draw();
    surface_.SetDevice(nullptr);
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
  PaintSurface surface_;
  PaintTarget target_{surface_};
  HeadlessEditor editor_;
};

/// The bytes of a picture file of a size in pixels that `paint` paints on. Empty where there is no
/// memory for it.
template <class Paint>
QByteArray MakeFile(const std::string& ending, QSize size, Paint paint)
{
  const QString title = QString::fromLatin1(Strings::program);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  if (ending == ".svg") {
    QSvgGenerator svg;
    svg.setOutputDevice(&buffer);
    svg.setTitle(title);
    svg.setSize(size);
    svg.setViewBox(QRect(QPoint(0, 0), size));
    svg.setResolution(96);
    paint(svg);
  } else if (ending == ".pdf") {
    constexpr double pointsPerPixel = 72.0 / 96.0;
    QPdfWriter pdf(&buffer);
    pdf.setResolution(96);
    pdf.setTitle(title);
    pdf.setPageMargins(QMarginsF());
    pdf.setPageSize(QPageSize(QSizeF(size) * pointsPerPixel, QPageSize::Point, QString(),
                              QPageSize::ExactMatch));
    paint(pdf);
  } else {
    QImage picture(size, QImage::Format_RGB32);
    if (picture.isNull()) return {};
    picture.fill(Qt::white);
    paint(picture);
    // The first level of compression: two thirds of the time for a twentieth more bytes.
    constexpr int firstLevel = 80;  // of the toolkit's quality, where 100 is no compression
    picture.save(&buffer, "PNG", firstLevel);
  }
  return bytes;
}

std::string PixelsOf(QSize size)
{
  return std::to_string(size.width()) + "x" + std::to_string(size.height()) + " pixels";
}

/// Pictures that come to be all together, or none of them.
class PictureFiles {
public:
  /// Writes a picture beside its place. Empty on success, else what went wrong.
  std::string Add(const std::string& path, const QByteArray& bytes)
  {
    if (bytes.isEmpty()) return path + ": no memory for a picture of this size";
    OutputFile& file = files_.emplace_back(path);
    const bool written = file.Write({bytes.constData(), static_cast<std::size_t>(bytes.size())});
    return written ? std::string() : file.Problem();
  }

  /// Puts the pictures in their places. Empty on success, else what went wrong.
  std::string Commit()
  {
    for (OutputFile& file : files_) {
      if (!file.Commit()) return file.Problem();
    }
    return {};
  }

private:
  std::deque<OutputFile> files_;
};

/// The layout of a sheet with a table of as many rows.
SheetLayout LayoutOf(const PictureRequest& request, qsizetype tableRows)
{
  return {QSize(request.width, request.height), static_cast<int>(request.sides.size()),
          static_cast<int>(tableRows)};
}

/// Why there is no sheet of this size; empty where there is.
std::string SheetProblem(const SheetLayout& layout)
{
  constexpr int largest = 32767;  // of the toolkit's pictures
  const QSize size = layout.Size();
  if (size.width() <= largest && size.height() <= largest) return {};
  return "the sheet would have " + PixelsOf(size) + ", more than " + std::to_string(largest) +
         " one way; a smaller --size makes a smaller sheet";
}

/// Paints one side in its place, with its name and a scale bar below it.
void PaintSide(QPainter& sheet, const SheetLayout& layout, int i, const ViewSideEntry& side,
               SidePainter& painter, const QString& unit)
{
  const QRect area = layout.Picture(i);
  QPicture picture;
  painter.Paint(side, picture);
  sheet.save();
  sheet.setClipRect(area);
  sheet.drawPicture(area.topLeft(), picture);
  sheet.restore();
  PaintCaption(sheet, layout.Caption(i),
               QString::fromUtf8(side.name.data(), static_cast<qsizetype>(side.name.size())));
  PaintScaleBar(sheet, layout, i, painter.WorldWidth(), unit);
}

/// Paints all sides with their names, and what there is to tell beside them. A table makes the
/// sheet higher, so that it may be too large only now.
std::string AddSheet(const PictureRequest& request, const SheetFacts& facts, SidePainter& painter,
                     PictureFiles& files)
{
  const SheetLayout layout = LayoutOf(request, facts.rows.size());
  if (std::string problem = SheetProblem(layout); !problem.empty()) return problem;
  const auto paint = [&](QPaintDevice& device) {
    QPainter sheet(&device);
    sheet.fillRect(QRect(QPoint(0, 0), layout.Size()), Qt::white);
    PaintHeading(sheet, layout, facts);
    for (int i = 0; i < layout.Count(); ++i) {
      PaintSide(sheet, layout, i, request.sides[static_cast<std::size_t>(i)], painter,
                facts.unitShort);
    }
    PaintTable(sheet, layout, facts);
  };
  return files.Add(request.output, MakeFile(FormatOf(request), layout.Size(), paint));
}

std::string NameFor(const PictureRequest& request, const ViewSideEntry& side)
{
  if (!request.oneEach) return request.output;
  const fs::path path(request.output);
  std::string name = path.stem().string();
  name.append("-").append(side.name).append(path.extension().string());
  return (path.parent_path() / name).string();
}

}  // namespace

bool IsPictureName(const std::string& path)
{
  const std::string ending = EndingOf(path);
  return ending == ".png" || ending == ".svg" || ending == ".pdf";
}

std::string WritePictures(const PictureRequest& request)
{
  StartToolkit();
  if (request.sheet) {
    if (std::string problem = SheetProblem(LayoutOf(request, 0)); !problem.empty()) return problem;
  }
  SidePainter painter(request);
  if (!painter.HasRoom()) {
    return "no memory for a picture of " + PixelsOf({request.width, request.height});
  }
  const InputFile input(request.input);
  if (std::string problem = painter.Open(input); !problem.empty()) return problem;
  PictureFiles files;
  std::string problem;
  if (request.sheet) {
    problem = AddSheet(
        request, painter.Facts(QString::fromStdString(fs::path(input.Name()).filename().string())),
        painter, files);
  } else {
    const QSize size(request.width, request.height);
    for (const ViewSideEntry& side : request.sides) {
      problem = files.Add(NameFor(request, side),
                          MakeFile(FormatOf(request), size,
                                   [&](QPaintDevice& device) { painter.Paint(side, device); }));
      if (!problem.empty()) break;
    }
  }
  return problem.empty() ? files.Commit() : problem;
}

}  // namespace hullwright
