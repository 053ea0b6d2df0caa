#pragma once

#include <array>
#include <cstddef>
#include <initializer_list>
#include <string_view>

#include "base/Numbers.h"
#include "file/DesignElements.h"

namespace hullwright {

/// Spells an element that holds a place as a save does: `<gps x="1.000" y="-2.500" z="0.000" />`
/// and a line break. Files are made of such lines, so what stands around the numbers is joined
/// once.
class CoordinateLine {
  /// Is copied whole, which takes less time than counting; what follows is written over the rest.
  struct Piece {
    std::array<char, 16> text{};
    std::size_t length = 0;
  };

public:
  static constexpr std::size_t longest =
      coordinates.size() * (sizeof(Piece::text) + longestFixed3) + sizeof(Piece::text);

  constexpr explicit CoordinateLine(const DesignElement& element);

  /// Writes the line of a place; the end of it. Room for `longest` characters must be there.
  char* Write(char* at, const CShapeVertex& place) const;

  /// How much of each line is not attributes with the blanks behind them.
  constexpr std::size_t TagLength() const { return tagLength_; }

private:
  static constexpr Piece Joined(std::initializer_list<std::string_view> parts);

  std::array<Piece, coordinates.size()> before_;  ///< what stands before each number
  Piece end_;
  std::size_t tagLength_;
};

constexpr CoordinateLine::Piece CoordinateLine::Joined(
    std::initializer_list<std::string_view> parts)
{
  Piece piece;
  for (const std::string_view part : parts) {
    for (const char c : part) piece.text.at(piece.length++) = c;
  }
  return piece;
}

constexpr CoordinateLine::CoordinateLine(const DesignElement& element)
    : before_{Joined({"<", element.name, " ", coordinates[0].Name(), "=\""}),
              Joined({"\" ", coordinates[1].Name(), "=\""}),
              Joined({"\" ", coordinates[2].Name(), "=\""})},
      end_(Joined({"\" />\n"})),
      tagLength_(std::string_view("< />\n").size() + element.name.size())
{
}

}  // namespace hullwright
