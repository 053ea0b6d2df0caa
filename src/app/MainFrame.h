#pragma once

#include <array>
#include <string_view>

#include "platform/Framework.h"
#include "platform/MainWindowPort.h"
#include "view/HullwrightView.h"

namespace hullwright {

class CHullwrightApp;
class CHullwrightDoc;
class CObjectView;

/// The main frame without its widgets: the switchboard of the notifications, the routing of
/// commands and what they answer about themselves. The editor makes it and sets document and views.
class CMainFrame : public IMainWindow {
public:
  /// `listener` gets every notification and flag before the frame acts on it; may be null.
  CMainFrame(CHullwrightApp& app, IFrameWidgets& widgets, IMainWindow* listener = nullptr);

  bool HasWindow() const override { return hasWindow; }

  /// The switchboard: the tree's code stays here, any other goes on to the view.
  void Notify(Notification code) override;
  void SetModifiedFlag(bool modified) override;
  void StartProgress(std::string_view text) override;
  void ShowProgress(int percent) override;
  void EndProgress() override;

  /// Carries out a command of the view, one of the looks, or one of the application; false for an
  /// id without a handler.
  bool OnCommand(CommandId id);

  /// How a command looks at the moment; one without a handler is disabled.
  CommandState QueryCommand(CommandId id) const;

  /// Selects a look, shows it and stores it.
  void OnApplicationLook(Look look);

  /// The image that the side drop-down bears.
  void SetViewButtonImage(CommandId command);
  void InvalidateToolBar();

  /// Shows in the status bar what came of a command, until the next one.
  void ShowNote(std::u16string_view text) { widgets_.ShowNote(text); }

  CHullwrightDoc* document = nullptr;
  CHullwrightView* view = nullptr;
  CObjectView* objectView = nullptr;
  bool hasWindow = false;

  /// The command whose image the side drop-down bears.
  CommandId viewButtonImage = CommandId::SelectView;

private:
  CHullwrightApp& app_;
  IFrameWidgets& widgets_;
  IMainWindow* listener_;
};

/// Widths of the three status panes for a client width: two of 250, the prompt takes the rest,
/// which is negative in a window narrower than 500.
constexpr std::array<int, 3> PaneWidths(int clientWidth)
{
  constexpr int pane = 250;
  // Without a sign: a width near the least number wraps around, which is no error this way.
  const auto rest = static_cast<unsigned>(clientWidth) - 2U * static_cast<unsigned>(pane);
  return {static_cast<int>(rest), pane, pane};
}

}  // namespace hullwright
