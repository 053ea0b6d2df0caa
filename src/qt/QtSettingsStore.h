#pragma once

#include <QDateTime>
#include <QSettings>
#include <memory>

#include "platform/SettingsStore.h"

namespace hullwright {

/// The user's INI file, shared by all running programs: a refresh takes in what another one has
/// written. It stands in the system's configuration folder. `File` is open to the shell for what is
/// its own: recent files and the window's layout.
class QtSettingsStore : public ISettingsStore {
public:
  /// Until the store is opened, reads give the defaults and writes are lost. Settings that are a
  /// pipe or a device are not opened; where those of the system are, the user's are opened alone.
  void Open(const QString& maker, const QString& program);

  void Refresh() const override;
  std::int32_t ReadInteger(std::string_view section, std::string_view key,
                           std::int32_t fallback) const override;
  void WriteInteger(std::string_view section, std::string_view key, std::int32_t value) override;

  /// Null until the store is open, and where it was not opened; every caller asks.
  QSettings* File() const { return file_.get(); }

private:
  std::unique_ptr<QSettings> file_;
  mutable QDateTime lastRead_;  ///< time stamp of the file when it was read
};

}  // namespace hullwright
