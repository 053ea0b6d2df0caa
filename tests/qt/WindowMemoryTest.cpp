#include <gtest/gtest.h>

#include <QResizeEvent>
#include <QScreen>

#include "qt/Application.h"
#include "support/CoordinateBits.h"
#include "support/DeskFixture.h"
#include "support/FailingNew.h"
#include "support/PaintCounter.h"

// What the toolkit's own loop does to the design view, once with each of the allocations failing.
// Not the layout of the window: memory that ends there ends in the middle of the toolkit.
namespace hullwright {
namespace {

class WindowShortOfMemory : public test::DeskFixture {
protected:
  WindowShortOfMemory()
  {
    Toolkit().onMemoryEnded = [this] {
      ++ended;
      Window().OnMemoryEnded();
    };
    View().setFocus();
    QApplication::processEvents();
  }
  ~WindowShortOfMemory() override { Toolkit().onMemoryEnded = nullptr; }

  static Application& Toolkit() { return *static_cast<Application*>(qApp); }

  /// What the screen shows of the design view.
  QImage Shown()
  {
    const QPoint corner = View().mapTo(&Window(), QPoint(0, 0));
    return Window()
        .screen()
        ->grabWindow(Window().winId(), corner.x(), corner.y(), View().width(), View().height())
        .toImage();
  }

  /// Has the view repainted by the program and painted by the toolkit.
  void Repaint()
  {
    shell->App().mainFrame->Notify(Notification::RepaintDesign);
    QApplication::processEvents();
  }

  /// Does something in an event of its own, with the allocation of that number failing; whether
  /// there was one.
  template <class Act>
  static bool Fails(std::size_t which, Act act)
  {
    const test::FailingNew memory(which);
    Application::Deliver(
        [&] {
          act();
          return true;
        },
        Toolkit().onMemoryEnded);
    return test::FailingNew::Stop();
  }

  int ended = 0;  ///< events that memory ended in
};

TEST_F(WindowShortOfMemory, APaintIsWholeTheNextTime)
{
  Repaint();
  const QImage whole = Shown();
  ASSERT_FALSE(whole.isNull());
  EXPECT_EQ(whole.pixel(2, 2), qRgb(255, 255, 224));
  const auto before = test::CoordinateBits(shell->App());
  const auto paint = [this] {
    View().update();
    QApplication::processEvents();
  };
  std::size_t which = 1;
  for (; Fails(which, paint); ++which) {
    paint();
    ASSERT_EQ(Shown(), whole) << "allocation " << which;
  }
  EXPECT_GT(which, 2U);
  EXPECT_EQ(test::CoordinateBits(shell->App()), before);
}

TEST_F(WindowShortOfMemory, ARepaintIsWholeTheNextTime)
{
  Repaint();
  const QImage whole = Shown();
  const auto before = test::CoordinateBits(shell->App());
  std::size_t which = 1;
  for (; Fails(which, [this] { Repaint(); }); ++which) {
    Repaint();
    ASSERT_EQ(Shown(), whole) << "allocation " << which;
    ASSERT_EQ(test::CoordinateBits(shell->App()), before) << "allocation " << which;
  }
  EXPECT_GT(which, 10U);
  EXPECT_GT(ended, 0);
}

TEST_F(WindowShortOfMemory, AnotherSizeOfTheViewIsPaintedWholeTheNextTime)
{
  Repaint();
  const QImage whole = Shown();
  const auto take = [this] {
    QResizeEvent event(View().size(), View().size() / 2);
    QApplication::sendEvent(&View(), &event);
  };
  std::size_t which = 1;
  for (; Fails(which, take); ++which) {
    Repaint();
    ASSERT_EQ(Shown(), whole) << "allocation " << which;
  }
  EXPECT_GT(which, 10U);
}

}  // namespace
}  // namespace hullwright
