#pragma once

#include "platform/TreeControl.h"

namespace hullwright {

/// An object tree that is not shown; a base for what keeps a part of it.
class NoTree : public ITreeControl {
public:
  void BeforeRebuild() override {}
  void Rebuilt() override {}
  void ImagesChanged() override {}
  void ShowMenu(std::span<const PopupEntry>) override {}
};

}  // namespace hullwright
