#pragma once

#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "file/FileVessel.h"

namespace hullwright {

/// What opening and saving a design file can lose or change.
enum class LossKind {
  UnknownElement,
  MisplacedElement,
  RepeatedElement,  ///< one that comes once; the last one counts
  UnknownAttribute,
  TextBetweenElements,
  TextAfterLineBreak,
  Comment,  ///< or a processing instruction
  CoordinateIsNoNumber,
  Decimals,
  UnitChanges,
  UnitIsZero,
  GroupWithoutView,
  GroupOfNoSide,
  GroupsOfOneView,
  GroupBehindOneOfAllSides,
  AnchorWithoutNumber,
  AnchorNumberChanges,
  AnchorVessel,
  RepeatedAnchorField,
  ReplacedAnchorField,  ///< by tabs behind its close tag
  NameOfBlanks,
  NameBehindLineBreak,  ///< the name begins with a line break, and nothing of it is kept
  NameThatDoesNotOpen,
};

/// Where a loss stands, as far as its kind has such a thing; in UTF-8.
struct LossPlace {
  bool operator==(const LossPlace&) const = default;

  std::string element = {};
  std::string parent = {};
  std::string attribute = {};
  std::string text = {};   ///< as the file has it
  std::string saved = {};  ///< as a save writes it
};

/// All losses of one kind.
struct Loss {
  std::size_t count = 0;
  LossPlace first;
};

/// Reads a design file as any open does and gathers what a save of it would lose or change. Groups
/// are not kept.
class CSaveLosses : public CFileVessel {
public:
  using CFileVessel::CFileVessel;

  void StartElement(std::string_view name, SaxAttributes attributes) override;
  void EndElement(std::string_view name) override;
  void Characters(std::string_view text) override;
  void PassOver(std::string_view markup) override;

  /// Ends the reading: losses are told whole or not at all.
  bool GoOnWithout(std::string_view) noexcept override { return false; }

  /// What is lost or changed; call it after the reading.
  const std::map<LossKind, Loss>& Found() const { return found_; }

  /// The elements that a save adds to what was read.
  std::vector<std::string_view> Missing() const;

private:
  void Add(LossKind kind, const LossPlace& place);
  std::string_view Parent() const;
  void CheckAttributes(const DesignElement& element, SaxAttributes attributes);
  void CheckCoordinate(const DesignElement& element, std::string_view attribute,
                       std::string_view text);
  void CheckUnit(const DesignElement& element, std::string_view text);
  void CheckView(const DesignElement& element, std::string_view text);
  void CheckAnchorField(const DesignElement& field, std::string_view text);
  void ReadBehindField(std::string_view text);

  std::vector<std::string> path_;  ///< names of the open elements
  std::map<LossKind, Loss> found_;
  std::map<ViewSide, int> groups_;      ///< how often a view code came
  std::map<std::string, int> singles_;  ///< how often an element came that should come once
  std::set<std::string> anchorFields_;  ///< of the anchor being read
  bool nameBehindLineBreak_ = false;    ///< so far, of the name being read
};

}  // namespace hullwright
