#include "cli/Report.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QHashSeed>
#include <filesystem>
#include <optional>

#include "base/Code.h"
#include "base/Numbers.h"
#include "base/Paths.h"
#include "base/Text.h"
#include "base/VisibleText.h"
#include "cli/CommandLine.h"
#include "cli/DesignContent.h"
#include "cli/PictureFile.h"
#include "cli/ReportPages.h"
#include "cli/ReportSides.h"
#include "cli/TerminalProgress.h"
#include "model/OffsetPoints.h"
#include "system/BaseFolders.h"
#include "system/InputFile.h"

namespace hullwright {
namespace {

/// How much of a name or a field is printed: a page and more of a single name helps nobody.
constexpr std::size_t longestText = 300;

QString Text(const std::string& text) { return QString::fromStdString(text); }

QString Shown(std::u16string_view text)
{
  const bool isLong = text.size() > longestText;
  return Text(VisibleText(isLong ? text.substr(0, longestText) : text)) +
         (isLong ? QStringLiteral("\u2026") : QString());
}

QString Number(double value) { return Text(FormatFixed(value, 3)); }

QString DateText(const QDateTime& date)
{
  return date.toUTC().toString(QStringLiteral("yyyy-MM-dd HH:mm")) + QStringLiteral(" UTC");
}

/// The time that the environment sets for what is to come out the same each time.
std::optional<QDateTime> FixedTime()
{
  bool isNumber = false;
  const std::string text = Environment("SOURCE_DATE_EPOCH", "");
  const qint64 seconds = QByteArray::fromStdString(text).toLongLong(&isNumber);
  if (!isNumber) return std::nullopt;
  return QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC);
}

QString HashOf(const std::string& path)
{
  QFile file(QFile::decodeName(QByteArray::fromStdString(path)));
  QCryptographicHash hash(QCryptographicHash::Sha256);
  if (!file.open(QIODevice::ReadOnly) || !hash.addData(&file)) return QStringLiteral("unknown");
  return QString::fromLatin1(hash.result().toHex());
}

void AddOffsets(ReportPages& pages, const CHullwrightApp& app)
{
  std::vector<ReportRow> rows;
  for (const OffsetPoint& point : offsetPoints) {
    const CShapeVertex& place = *(app.*point.place);
    rows.push_back({QLatin1String(point.name.data(), static_cast<qsizetype>(point.name.size())),
                    Number(place.x), Number(place.y), Number(place.z)});
  }
  pages.AddHeading(QStringLiteral("Offsets"));
  pages.AddTable({{QStringLiteral("offset"), 500.0},
                  {QStringLiteral("X"), 400.0, true},
                  {QStringLiteral("Y"), 400.0, true},
                  {QStringLiteral("Z"), 400.0, true}},
                 rows);
}

void AddAnchors(ReportPages& pages, const CHullwrightApp& app)
{
  std::vector<ReportRow> rows;
  ForEachEntry(app.anchors->items, [&](const CAnchor& anchor) {
    rows.push_back({QString::number(anchor.id), Shown(anchor.name), Number(anchor.attachmentX),
                    Number(anchor.attachmentY)});
  });
  pages.AddHeading(QStringLiteral("Anchors"));
  if (rows.empty()) return pages.AddLine(QStringLiteral("The design has no anchors."));
  pages.AddTable({{QStringLiteral("number"), 250.0, true},
                  {QStringLiteral("name"), 750.0},
                  {QStringLiteral("X"), 350.0, true},
                  {QStringLiteral("Y"), 350.0, true}},
                 rows);
}

/// What the document says of the file itself.
void AddFile(ReportPages& pages, const InputFile& input, HeadlessEditor& editor,
             const std::optional<QDateTime>& fixed)
{
  const UnitCode unit = editor.App().unitCode;
  const std::u16string name = WideFromUtf8(TextOf(PathOf(input.Name()).filename()));
  pages.AddTitle(Shown(WideFromUtf8(TextOf(PathOf(input.Name()).stem()))));
  pages.AddField(QStringLiteral("File"), Shown(name));
  if (input.Path() == input.Name()) {
    const QFileInfo info(QFile::decodeName(QByteArray::fromStdString(input.Path())));
    const QDateTime saved = info.lastModified();
    pages.AddField(QStringLiteral("Saved"), DateText(fixed ? std::min(*fixed, saved) : saved));
  }
  pages.AddField(QStringLiteral("SHA-256"), HashOf(input.Path()));
  pages.AddField(QStringLiteral("Unit"),
                 Text(UnitNameOf(editor.App()) + " (EPSG " + std::to_string(NumberOf(unit)) + ")"));
  if (!HasUnitFactor(unit)) {
    pages.AddField(QString(), QStringLiteral("The unit has no factor: lengths count as metres."));
  }
}

}  // namespace

std::string WriteReport(const std::string& design, const std::string& output)
{
  const std::optional<QDateTime> fixed = FixedTime();
  // The toolkit's tables, by which it orders fonts in a file, are shuffled otherwise.
  if (fixed) QHashSeed::setDeterministicGlobalSeed();
  StartToolkit();
  const InputFile input(design);
  ShowStep("reading the design");
  ReportSides sides;
  HeadlessEditor& editor = sides.Editor();
  if (std::string problem = OpenDesign(input, editor); !problem.empty()) return problem;
  const QDateTime made = fixed ? *fixed : QDateTime::currentDateTimeUtc();
  ReportPages pages;
  AddFile(pages, input, editor, fixed);
  pages.AddField(QStringLiteral("Report made"), DateText(made));
  AddOffsets(pages, editor.App());
  AddAnchors(pages, editor.App());
  pages.StartPage();
  for (const ViewSideEntry& side : viewSides) {
    ShowStep(("drawing the side " + std::string(side.name)).c_str());
    sides.Add(pages, side, Text(UnitNameOf(editor.App())));
  }
  const QString name = Shown(WideFromUtf8(TextOf(PathOf(input.Name()).filename())));
  PictureFiles files;
  ShowStep("writing the report");
  std::string problem = files.Add(output, pages.Write(name, name, made));
  ClearTerminalLine();
  return problem.empty() ? files.Commit() : problem;
}

}  // namespace hullwright
