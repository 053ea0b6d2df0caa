#include "qt/QtRecentFiles.h"

#include <QStringList>

#include "qt/QtText.h"

namespace hullwright {
namespace {

constexpr const char* key = "RecentFiles/Files";

}  // namespace

std::vector<std::u16string> QtRecentFiles::Read() const
{
  std::vector<std::u16string> paths;
  if (const QSettings* const file = settings_.File()) {
    for (const QString& path : file->value(QLatin1String(key)).toStringList()) {
      paths.push_back(ToWide(path));
    }
  }
  return paths;
}

void QtRecentFiles::Write(const std::vector<std::u16string>& paths)
{
  if (settings_.File() == nullptr) return;
  QStringList list;
  for (const std::u16string& path : paths) list.append(ToQString(path));
  settings_.File()->setValue(QLatin1String(key), list);
}

}  // namespace hullwright
