#pragma once

#include "platform/RecentFiles.h"
#include "qt/QtSettingsStore.h"

namespace hullwright {

/// The list of recent files in the user's settings.
class QtRecentFiles : public IRecentFiles {
public:
  explicit QtRecentFiles(QtSettingsStore& settings) : settings_(settings) {}

  std::vector<std::u16string> Read() const override;
  void Write(const std::vector<std::u16string>& paths) override;

private:
  QtSettingsStore& settings_;
};

}  // namespace hullwright
