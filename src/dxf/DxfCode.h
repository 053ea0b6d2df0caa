#pragma once

#include <cstdint>

namespace hullwright {

/// Codes of the groups that the readers know. What a code stands for depends on the record, so that
/// some have several names; a drawing may hold any other code as well.
enum class DxfCode : std::int32_t {
  Keyword = 0,  ///< ends a record: the keyword of the next one is its value
  Text = 1,
  Name = 2,
  TextChunk = 3,  ///< a piece of a long text, in front of its `Text`
  Handle = 5,
  LayerName = 8,

  // The points of a record: the y of each is 10 behind its x, the z 20.
  X = 10,
  SecondX = 11,  ///< an end, an axis, a direction, or a corner
  ThirdX = 12,
  FourthX = 13,
  Y = 20,
  SecondY = 21,

  Radius = 40,
  AxisRatio = 40,   ///< of the minor axis to the major one
  TextHeight = 40,  ///< in drawing units
  Width = 40,       ///< of a polyline, at its start
  StartParameter = 41,
  EndParameter = 42,
  ScaleX = 41,
  ScaleY = 42,
  ScaleZ = 43,
  Bulge = 42,
  ConstantWidth = 43,
  Rotation = 50,  ///< in degrees
  StartAngle = 50,
  EndAngle = 51,

  Colour = 62,
  PaperSpace = 67,  ///< 1 for what belongs to a sheet and not to the model
  Flags = 70,
  CurveType = 75,
  ApplicationData = 102,
  NormalX = 210,
  NormalZ = 230,
};

}  // namespace hullwright
