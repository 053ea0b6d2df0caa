#include "qt/QtSettingsStore.h"

#include <QFileInfo>
#include <QLibraryInfo>
#include <QStandardPaths>
#include <QStringList>
#include <algorithm>

#include "qt/QtText.h"

namespace hullwright {
namespace {

QString Path(std::string_view section, std::string_view key)
{
  return ToQString(section) + QLatin1Char('/') + ToQString(key);
}

/// Whether a path can be read as settings: reading a pipe would wait for somebody to write.
bool IsFileOrNothing(const QString& path)
{
  const QFileInfo place(path);
  return !place.exists() || place.isFile();
}

/// The files in a folder that the toolkit reads the settings of a program from.
QStringList FilesIn(const QString& folder, const QString& maker, const QString& program)
{
  const QString ending = QStringLiteral(".ini");
  const QString makers = folder + QLatin1Char('/') + maker;
  return {makers + QLatin1Char('/') + program + ending, makers + ending};
}

/// The folder of the user's settings. The toolkit reads settings as soon as a store is made, so it
/// is that of a maker who has none.
QString UserFolder()
{
  const QSettings nobodys(QSettings::IniFormat, QSettings::UserScope,
                          QStringLiteral("hullwright-nobody"));
  return QFileInfo(nobodys.fileName()).path();
}

bool CanBeRead(const QStringList& files)
{
  return std::all_of(files.begin(), files.end(), IsFileOrNothing);
}

/// Whether all files can be read in which the system may have defaults for all users.
bool CanReadDefaults(const QString& maker, const QString& program)
{
  const QStringList folders =
      QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation)
      << QLibraryInfo::path(QLibraryInfo::SettingsPath);
  return std::all_of(folders.begin(), folders.end(), [&](const QString& folder) {
    return CanBeRead(FilesIn(folder, maker, program));
  });
}

}  // namespace

void QtSettingsStore::Open(const QString& maker, const QString& program)
{
  const QStringList users = FilesIn(UserFolder(), maker, program);
  if (!CanBeRead(users)) return;
  file_ =
      CanReadDefaults(maker, program)
          ? std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope, maker, program)
          : std::make_unique<QSettings>(users.front(), QSettings::IniFormat);
}

std::int32_t QtSettingsStore::ReadInteger(std::string_view section, std::string_view key,
                                          std::int32_t fallback) const
{
  if (!file_) return fallback;
  bool isInteger = false;
  const int value = file_->value(Path(section, key)).toString().toInt(&isInteger);
  return isInteger ? value : fallback;
}

void QtSettingsStore::Refresh() const
{
  if (!file_ || !IsFileOrNothing(file_->fileName())) return;
  const QDateTime stamp = QFileInfo(file_->fileName()).lastModified();
  if (stamp == lastRead_) return;
  file_->sync();
  lastRead_ = QFileInfo(file_->fileName()).lastModified();
}

void QtSettingsStore::WriteInteger(std::string_view section, std::string_view key,
                                   std::int32_t value)
{
  if (file_) file_->setValue(Path(section, key), value);
}

}  // namespace hullwright
