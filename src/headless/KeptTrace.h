#pragma once

#include <string>
#include <vector>

#include "platform/Trace.h"

namespace hullwright {

/// Keeps the records of the log.
class KeptTrace : public ITrace {
public:
  struct Record {
    double elapsedSeconds;
    TraceLevel level;
    std::u16string category;
    std::u16string text;
  };

  void Trace(double elapsedSeconds, TraceLevel level, std::u16string_view category,
             std::u16string_view text) const override
  {
    records.push_back({elapsedSeconds, level, std::u16string(category), std::u16string(text)});
  }

  mutable std::vector<Record> records;
};

}  // namespace hullwright
