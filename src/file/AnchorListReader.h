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

  void StartElement(std::string_view name, SaxAttributes attributes) override;
  void EndElement(std::string_view name) override;
  void Characters(std::string_view text) override;

private:
  CAnchors& anchors_;
  std::unique_ptr<CAnchor> current_;  ///< the anchor being read
  std::string element_;               ///< the element that started or ended last
};

}  // namespace hullwright
