#pragma once

#include <memory>
#include <string>

#include "file/FileSax.h"
#include "model/Anchors.h"

namespace hullwright {

/// Reads a stand-alone anchor list, which knows more keys than the design file, and appends what it
/// finds to a list.
class CAnchorListReader : public CFileSax {
public:
  CAnchorListReader(CAnchors& anchors, IMessageBoxes& messages);
  ~CAnchorListReader() override;

  void StartElement(std::u16string_view name, const AttributeMap& attributes) override;
  void EndElement(std::u16string_view name) override;
  void Characters(std::u16string_view text) override;

private:
  CAnchors& anchors_;
  std::unique_ptr<CAnchor> current_;  ///< the anchor being read
  std::u16string element_;            ///< the element that started or ended last
};

}  // namespace hullwright
