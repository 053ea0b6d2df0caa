#pragma once

#include <memory>
#include <string>

#include "file/FileSax.h"
#include "model/Anchors.h"
#include "model/ShapePolyline.h"
#include "model/Shapes.h"

namespace hullwright {

class CoordinateLine;
struct DesignElement;

/// The design file, for one open or one save. It has its own copies of offsets, unit and anchors;
/// the groups it reads go straight into the array that `groups` points at. Elements are
/// distinguished by name alone: any may stand anywhere, and unknown ones are ignored.
class CFileVessel : public CFileSax {
public:
  explicit CFileVessel(IMessageBoxes& messages);
  ~CFileVessel() override;

  /// Groups that hold no polyline.
  enum class EmptyGroups { Written, LeftOut };

  /// Composes the document in the block, anew.
  void Compose(const OwnedArray<CShapes>& shapeGroups,
               EmptyGroups emptyGroups = EmptyGroups::Written);

  /// Composes the document and writes it. 0 on success, -1 as `Flush`, and -1 with nothing written
  /// where memory ended (`LostBlock`).
  int Save(std::u16string_view path, const OwnedArray<CShapes>& shapeGroups);

  void StartElement(std::string_view name, SaxAttributes attributes) override;
  void EndElement(std::string_view name) override;
  void Characters(std::string_view text) override;

  /// Counts the part, and the reading goes on: a group or polyline without its start has no content
  /// either, and an anchor is read whole or not at all. Without unit or offset it does not.
  bool GoOnWithout(std::string_view startedElement) noexcept override;

  /// Parts of the file for which memory had ended when they were read.
  std::size_t LeftOutParts() const { return leftOutParts_; }

  UnitCode unitCode = UnitCode::Metre;
  std::unique_ptr<CShapeVertex> gps = std::make_unique<CShapeVertex>();
  std::unique_ptr<CShapeVertex> txd = std::make_unique<CShapeVertex>();
  std::unique_ptr<CShapeVertex> piv = std::make_unique<CShapeVertex>();
  std::unique_ptr<CAnchors> anchors = std::make_unique<CAnchors>();
  OwnedArray<CShapes>* groups = nullptr;  ///< set before reading

protected:
  /// Called behind each shape of a group, whether or not the text holds it: a class that saves a
  /// design for the last time may empty it.
  virtual void OnPassed(CShape&) {}

  /// The anchor being read; null outside any.
  const CAnchor* CurrentAnchor() const { return currentAnchor_.get(); }

  /// The element that started or ended last.
  const std::string& LastElement() const { return tagName_; }

private:
  /// Where in the document the reader stands. Transitions are not checked: a start tag enters its
  /// state from any other.
  enum class State { Start, Between, InGroup, InPolyline, InAnchor };

  void WritePart(const DesignElement& element, const OwnedArray<CShapes>& shapeGroups,
                 EmptyGroups emptyGroups);
  void WriteGroup(const DesignElement& element, const CShapes& group);
  void WritePolyline(const CShape& polyline);
  void WriteCoordinates(const CoordinateLine& line, const CShapeVertex& place);
  void WriteAnchor(const CAnchor& anchor);
  const DesignElement* ElementOfTag(std::string_view name);

  std::string tagName_;                        ///< of the start or end tag that came last
  const DesignElement* tagElement_ = nullptr;  ///< what it stands for; null where it is unknown
  State state_ = State::Start;
  std::size_t leftOutParts_ = 0;
  std::unique_ptr<CAnchor> currentAnchor_;
  std::unique_ptr<CShapePolyline> currentPolyline_;
  std::unique_ptr<CShapes> currentGroup_;
};

}  // namespace hullwright
