#include <gtest/gtest.h>

#include <QImage>

#include "app/Editor.h"
#include "headless/FileAnswers.h"
#include "headless/KeptMessages.h"
#include "headless/KeptPointer.h"
#include "headless/MemorySettings.h"
#include "headless/NoDialogs.h"
#include "headless/NoTree.h"
#include "headless/NoWidgets.h"
#include "paint/PaintSurface.h"
#include "paint/PaintTarget.h"
#include "support/AddLine.h"
#include "system/CommonDataPorts.h"

namespace hullwright {
namespace {

/// The editor over real pictures: what is drawn far in and far out goes through all arithmetic of
/// the painter.
class EndlessZoom : public testing::Test {
protected:
  EndlessZoom()
  {
    editor.frame.hasWindow = true;
    editor.view.OnCreate(&target);
    editor.view.OnSize(200, 150);
  }

  void SetSpacing(std::int32_t hundredths)
  {
    for (const char* key : {"SpacingShowX", "SpacingShowY", "SpacingSnapX", "SpacingSnapY"}) {
      settings.WriteInteger("Grid", key, hundredths);
    }
  }

  /// The picture of all shapes.
  QImage ShowAll()
  {
    editor.view.OnCommand(CommandId::ShowAll);
    return surface.Picture().copy();
  }

  /// Turns the wheel at a point, with the mouse moving there as well.
  void Zoom(int notches, int delta, ClientPoint at)
  {
    for (int i = 0; i < notches; ++i) {
      editor.view.OnMouseWheel(delta, at);
      editor.view.OnMouseMove(false, at);
    }
  }

  /// Turns the wheel that often in and out, and must find the picture of before each time.
  void ZoomAndComeBack(int notchesIn, int notchesOut, ClientPoint at)
  {
    const QImage fitted = ShowAll();
    Zoom(notchesIn, 120, at);
    EXPECT_TRUE(ShowAll() == fitted) << "in";
    Zoom(notchesOut, -120, at);
    EXPECT_TRUE(ShowAll() == fitted) << "out";
    Zoom(notchesOut, -120, at);
    Zoom(notchesOut + notchesIn, 120, at);
    EXPECT_TRUE(ShowAll() == fitted) << "there and back";
  }

  void ZoomEverywhere()
  {
    for (const std::int32_t spacing : {1, -1}) {
      SetSpacing(spacing);
      for (const ClientPoint at : {ClientPoint{100, 75}, {37, 140}}) ZoomAndComeBack(500, 500, at);
    }
    // On, until the edges of the view are infinite.
    ZoomAndComeBack(100, 2600, {100, 75});
  }

  MemorySettings settings;
  KeptMessages messages;
  NoDialogs dialogs;
  FileAnswers fileDialogs;
  NoWidgets widgets;
  NoTree tree;
  KeptPointer pointer;
  CommonDataPorts commonData{messages};
  PaintSurface surface{200, 150};
  PaintTarget target{surface};
  Editor editor{{.settings = settings,
                 .messages = messages,
                 .dialogs = dialogs,
                 .fileDialogs = fileDialogs,
                 .units = commonData.units,
                 .log = commonData.log,
                 .widgets = widgets,
                 .tree = tree,
                 .cursor = pointer,
                 .rubberBand = pointer,
                 .popupMenu = pointer}};
};

TEST_F(EndlessZoom, AroundAVesselComesBackToItsPicture)
{
  test::AddLine(editor.app, ViewSide::Top, {{-12, -3, 0}, {10, -3, 0}, {12, 0, 0}, {10, 3, 0}});
  ZoomEverywhere();
}

TEST_F(EndlessZoom, AroundEndlessCoordinatesComesBackToTheirPicture)
{
  test::AddLine(editor.app, ViewSide::Top, {{0, 0, 0}, {1e300, 1e300, 0}, {-1e300, 1e299, 0}});
  test::AddLine(editor.app, ViewSide::Top, {{1, 2, 0}, {30, 4, 0}});
  ZoomEverywhere();
}

}  // namespace
}  // namespace hullwright
