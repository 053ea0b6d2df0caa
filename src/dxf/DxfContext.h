#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "dxf/CopyBudget.h"
#include "dxf/DxfLayers.h"
#include "dxf/FileDxfBlock.h"
#include "dxf/FileDxfVertex.h"
#include "dxf/ImportTally.h"
#include "dxf/OpenPolyline.h"
#include "dxf/VertexLimit.h"
#include "platform/Trace.h"

namespace hullwright {

/// How a drawing is read.
struct DxfOptions {
  std::int64_t copyBudget = std::int64_t{1} << 30;  ///< bytes for the copies of inserted shapes
  std::size_t mostVertices = VertexLimit::usual;
  bool ignoreExtrusion = false;  ///< takes points as they are
};

/// The blocks of a drawing by their names, which are compared byte by byte.
using DxfBlocks = std::map<std::string, std::unique_ptr<CFileDxfBlock>, std::less<>>;

/// What has been read of a drawing so far, for the readers of its records.
struct DxfContext {
  DxfContext(const ITrace& trace, const DxfOptions& options)
      : log(trace),
        copyBudget(options.copyBudget),
        limit(options.mostVertices),
        ignoreExtrusion(options.ignoreExtrusion)
  {
  }

  const ITrace& log;
  DxfLayers layers;
  DxfBlocks blocks;
  OpenPolyline polyline;
  std::vector<CFileDxfVertex> vertices;  ///< of the polyline in one record that is being read
  CopyBudget copyBudget;
  VertexLimit limit;
  ImportTally tally;
  const bool ignoreExtrusion;
};

}  // namespace hullwright
