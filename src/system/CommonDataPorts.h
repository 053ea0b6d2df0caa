#pragma once

#include <functional>
#include <string>
#include <utility>

#include "system/CommonDataFolder.h"
#include "system/SharedLibraries.h"
#include "system/TraceLog.h"
#include "system/UnitDatabase.h"

namespace hullwright {

/// What the application finds in the common data folders: the units of length and the log.
class CommonDataPorts {
public:
  /// `folder` returns where each is to be found, at each use; a library that is missing is reported
  /// in `messages`.
  explicit CommonDataPorts(IMessageBoxes& messages,
                           std::function<std::u16string(CommonData)> folder = CommonDataFinder())
      : folder_(std::move(folder)),
        units(libraries_, messages, [this] { return folder_(CommonData::UnitDatabase); }),
        log([this] { return folder_(CommonData::Logs); })
  {
  }
  CommonDataPorts(const CommonDataPorts&) = delete;
  CommonDataPorts& operator=(const CommonDataPorts&) = delete;
  ~CommonDataPorts() = default;

private:
  std::function<std::u16string(CommonData)> folder_;
  SharedLibraries libraries_;

public:
  UnitDatabase units;
  CTraceLog log;
};

}  // namespace hullwright
