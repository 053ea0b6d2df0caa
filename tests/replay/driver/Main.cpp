#include <QCoreApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <cstdio>
#include <fstream>
#include <iostream>

#include "cli/Json.h"
#include "replay/driver/Player.h"
#include "replay/driver/Script.h"

// hullwright-replay SCRIPT [--work DIR] [--full]: plays a script and prints what each step does.
namespace {

using namespace hullwright;
using namespace hullwright::replay;
namespace fs = std::filesystem;

constexpr int exitFailed = 1;
constexpr int exitUsage = 2;

struct Options {
  QString script;
  QString work;
  bool full = false;
};

bool ReadOptions(const QStringList& words, Options& options)
{
  for (qsizetype i = 1; i < words.size(); ++i) {
    if (words[i] == u"--full") {
      options.full = true;
    } else if (words[i] == u"--work" && i + 1 < words.size()) {
      options.work = words[++i];
    } else if (options.script.isEmpty() && !words[i].startsWith(u'-')) {
      options.script = words[i];
    } else {
      return false;
    }
  }
  return !options.script.isEmpty();
}

QString SqlText(const QJsonValue& value)
{
  if (value.isNull()) return QStringLiteral("NULL");
  if (value.isDouble()) return QString::number(value.toInteger());
  return u'\'' + value.toString().replace(u'\'', QLatin1String("''")) + u'\'';
}

/// Makes the unit database of a script, or copies the program's own.
void MakeUnits(const QJsonObject& header, const fs::path& work)
{
  const fs::path database = work / "Sondaris" / "Database" / "geo.db";
  fs::create_directories(database.parent_path());
  if (!header.contains(u"units")) {
    fs::copy_file(HULLWRIGHT_UNIT_DATABASE, database, fs::copy_options::overwrite_existing);
    return;
  }
  QString sql = QStringLiteral("CREATE TABLE other (id);\n");
  if (header[u"units"].isArray()) {
    sql += QStringLiteral("CREATE TABLE tblUnits (numId, strUnit, strUnitShort, numDimension);\n");
  }
  for (const QJsonValue& row : header[u"units"].toArray()) {
    QStringList values;
    for (const QJsonValue& value : row.toArray()) values.append(SqlText(value));
    sql += QStringLiteral("INSERT INTO tblUnits VALUES (%1);\n").arg(values.join(u','));
  }
  const std::string command = "\"" HULLWRIGHT_SQLITE3 "\" \"" + database.string() + "\"";
  std::FILE* const shell = popen(command.c_str(), "w");
  if (shell == nullptr) return;
  const QByteArray bytes = sql.toUtf8();
  std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), shell);
  pclose(shell);
}

void PrepareWork(const QJsonObject& header, ReplayEditor& editor)
{
  fs::create_directories(editor.work / "Sondaris" / "Tracing");
  MakeUnits(header, editor.work);
  const QJsonObject settings = header[u"settings"].toObject();
  for (auto key = settings.begin(); key != settings.end(); ++key) {
    editor.settings.values[SettingOf(key.key().toStdString())] =
        static_cast<std::int32_t>(key.value().toInteger());
  }
  const QJsonObject files = header[u"files"].toObject();
  for (auto file = files.begin(); file != files.end(); ++file) {
    const fs::path path = editor.work / file.key().toStdString();
    fs::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << BytesOf(file.value());
  }
}

/// Puts numbers that are minus zero in quotes: the toolkit's parser takes them for integers, which
/// have no sign there, and a number may be a text as well.
QByteArray KeepMinusZeros(const QByteArray& line)
{
  static const QRegularExpression tokens(
      QStringLiteral(R"re("(?:[^"\\]++|\\.)*+"|(-0(?:\.0*)?(?:[eE][+-]?\d+)?)(?=\s*[,\]}]))re"));
  const QString text = QString::fromUtf8(line);
  QString out;
  qsizetype copied = 0;
  for (auto all = tokens.globalMatch(text); all.hasNext();) {
    const QRegularExpressionMatch match = all.next();
    if (match.captured(1).isEmpty()) continue;
    out += text.mid(copied, match.capturedStart(1) - copied) + QStringLiteral("\"-0.0\"");
    copied = match.capturedEnd(1);
  }
  return (out + text.mid(copied)).toUtf8();
}

/// The lines of a script; false with a word on standard error where one is no object.
bool ReadScript(const QString& path, std::vector<QJsonObject>& lines)
{
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    std::fprintf(stderr, "hullwright-replay: %s: can't be read\n", qPrintable(path));
    return false;
  }
  int number = 0;
  for (const QByteArray& line : file.readAll().split('\n')) {
    ++number;
    const QByteArray trimmed = line.trimmed();
    if (trimmed.isEmpty() || trimmed.startsWith('#')) continue;
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(KeepMinusZeros(trimmed), &error);
    if (!document.isObject()) {
      std::fprintf(stderr, "hullwright-replay: %s:%d: %s\n", qPrintable(path), number,
                   qPrintable(error.errorString()));
      return false;
    }
    lines.push_back(document.object());
  }
  return true;
}

void Play(const std::vector<QJsonObject>& lines, const fs::path& work, bool full)
{
  const bool hasHeader = !lines.empty() && !lines.front().contains(u"do");
  const QJsonObject header = hasHeader ? lines.front() : QJsonObject();
  ReplayEditor editor(work);
  PrepareWork(header, editor);
  editor.Start(header.contains(u"open")
                   ? std::optional<std::string>(header[u"open"].toString().toStdString())
                   : std::nullopt);
  Player player(editor);
  JsonWriter json(stdout);
  for (std::size_t i = hasHeader ? 1 : 0; i < lines.size(); ++i) {
    player.Play(lines[i], full ? Detail::Full : Detail::Hash).Write(json);
    json.EndLine();
  }
}

}  // namespace

int main(int argc, char** argv)
{
  const QCoreApplication application(argc, argv);
  Options options;
  if (!ReadOptions(QCoreApplication::arguments(), options)) {
    std::fputs("Usage: hullwright-replay SCRIPT [--work DIR] [--full]\n", stderr);
    return exitUsage;
  }
  std::vector<QJsonObject> lines;
  if (!ReadScript(options.script, lines)) return exitFailed;
  const QTemporaryDir temporary;
  const QString work = options.work.isEmpty() ? temporary.path() : options.work;
  fs::create_directories(work.toStdString());
  Play(lines, work.toStdString(), options.full);
  return 0;
}
