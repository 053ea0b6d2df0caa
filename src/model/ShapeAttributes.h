#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "base/ClassSlabs.h"
#include "model/Walk.h"

namespace hullwright {

/// One name/value pair that an importer attaches to a shape.
struct ShapeAttribute final {
  static void* operator new(std::size_t) { return TakePlace<ShapeAttribute>(); }
  static void operator delete(void* place) { GiveBackPlace<ShapeAttribute>(place); }

  std::u16string name;
  std::u16string value;
};

/// The name/value pairs of a shape, in insertion order.
class CShapeAttributes final {
public:
  CShapeAttributes() = default;
  CShapeAttributes(const CShapeAttributes&) = delete;
  CShapeAttributes& operator=(const CShapeAttributes&) = delete;
  virtual ~CShapeAttributes() = default;

  static void* operator new(std::size_t) { return TakePlace<CShapeAttributes>(); }
  static void operator delete(void* place) { GiveBackPlace<CShapeAttributes>(place); }

  /// Appends a deep copy of every pair of `source` up to its first null entry, walking it with its
  /// own cursor; what is here stays.
  virtual CShapeAttributes& AppendFrom(const CShapeAttributes& source);

  /// Appends one pair.
  void Append(std::u16string_view name, std::u16string value);

  OwnedArray<ShapeAttribute> items;
  mutable std::uint32_t cursor = 0;
};

}  // namespace hullwright
