#include "qt/QtSettingsStore.h"

#include <QFileInfo>

#include "qt/QtText.h"

namespace hullwright {
namespace {

QString Path(std::string_view section, std::string_view key)
{
  return ToQString(section) + QLatin1Char('/') + ToQString(key);
}

}  // namespace

void QtSettingsStore::Open(const QString& maker, const QString& program)
{
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
  if (!file_) return;
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
