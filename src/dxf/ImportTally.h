#pragma once

#include <cstddef>

#include "dxf/KeywordCounts.h"
#include "model/Extents.h"
#include "model/Shapes.h"

namespace hullwright {

/// What an import took in, and what it passed over. The content of a block counts where the block
/// is defined, however often it is inserted.
struct ImportTally {
  /// Counts the shapes of the group that is read into and takes them into the extents, but for
  /// those that it has counted before.
  void CountShapes(const CShapes& group);

  std::size_t Shapes() const { return polylines + points + areas + texts; }

  /// Whether the file can be a drawing: in text form and with sections, or at least with shapes.
  bool IsDrawing() const { return !isBinary && (hasSections || Shapes() != 0); }

  /// Whether the drawing holds more than came in, for want of memory or because of a limit.
  bool IsIncomplete() const { return cutInserts + withoutMemory + beyondLimit != 0; }

  std::size_t polylines = 0;
  std::size_t points = 0;
  std::size_t areas = 0;
  std::size_t texts = 0;

  Extents extents;          ///< of the shapes
  std::size_t counted = 0;  ///< entries of the group

  KeywordCounts entities;  ///< what the sections of entities hold
  KeywordCounts ignored;   ///< entities that nothing is made of, also those in blocks

  // Entities that a reader dropped.
  std::size_t onHiddenLayers = 0;
  std::size_t inPaperSpace = 0;
  std::size_t unknownBlocks = 0;  ///< inserts of a block that is not there
  std::size_t cutInserts = 0;     ///< inserts whose copies would have taken too much memory

  /// Entities, copies, or the rest of the drawing, once memory ended.
  std::size_t withoutMemory = 0;
  std::size_t beyondLimit = 0;  ///< records of entities beyond the limit of vertices
  std::size_t cutParts = 0;  ///< sections and blocks that a line too long ended before their time

  int readError = 0;         ///< the `errno` that ended the reading of the file; 0 for none
  bool isBinary = false;     ///< the file is a drawing in its binary form, which is not read
  bool hasSections = false;  ///< the file has a line that begins a section
};

}  // namespace hullwright
