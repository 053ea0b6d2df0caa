#include "qt/QtSettingsStore.h"

#include <QFileInfo>

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

/// Whether the user's settings can be read. The toolkit reads them as soon as a store is made, so
/// their place is that of a maker who has none.
bool CanBeRead(const QString& maker, const QString& program)
{
  const QSettings nobodys(QSettings::IniFormat, QSettings::UserScope,
                          QStringLiteral("hullwright-nobody"));
  const QString folder = QFileInfo(nobodys.fileName()).path() + QLatin1Char('/') + maker;
  const QString ending = QStringLiteral(".ini");
  return IsFileOrNothing(folder + ending) &&
         IsFileOrNothing(folder + QLatin1Char('/') + program + ending);
}

}  // namespace

void QtSettingsStore::Open(const QString& maker, const QString& program)
{
  if (!CanBeRead(maker, program)) return;
  file_ = std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope, maker, program);
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
