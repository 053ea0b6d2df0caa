#pragma once

#include "platform/Framework.h"

namespace hullwright {

/// Widgets of a frame that show nothing; a base for what shows a part of it.
class NoWidgets : public IFrameWidgets {
public:
  void SetViewButtonImage(CommandId) override {}
  void InvalidateToolBar() override {}
  void ApplyLook(Look) override {}
  void ShowNote(std::u16string_view) override {}
  void StartProgress(std::string_view) override {}
  void ShowProgress(int) override {}
  void EndProgress() override {}
};

}  // namespace hullwright
