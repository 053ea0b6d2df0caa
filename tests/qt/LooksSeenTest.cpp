#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QStyleOptionButton>
#include <QToolBar>
#include <QToolButton>

#include "qt/Icons.h"
#include "support/DeskFixture.h"
#include "support/Pixels.h"

namespace hullwright {
namespace {

using test::ForEachLook;
using test::Picture;
using test::PixelsSeen;

/// Every look as it is seen: shapes and texts are measured in pictures of widgets.
class LooksSeen : public test::DeskFixture {
protected:
  LooksSeen()
  {
    Window().activateWindow();
    QApplication::processEvents();
  }

  static QColor Colour(QPalette::ColorRole role) { return QApplication::palette().color(role); }

  /// The indicator of a check box or radio button.
  static QRect Indicator(QAbstractButton& button, QStyle::SubElement element)
  {
    QStyleOptionButton option;
    option.initFrom(&button);
    return button.style()->subElementRect(element, &option, &button);
  }

  void ExpectIndicatorSeen(QAbstractButton& button, QStyle::SubElement element, int look)
  {
    button.resize(button.sizeHint());
    const QRect place = Indicator(button, element);
    button.setChecked(false);
    const QImage off = Picture(button);
    EXPECT_GE(PixelsSeen(off, place, Colour(QPalette::Window)), 20) << look;
    button.setChecked(true);
    const QImage on = Picture(button);
    int marked = 0;
    for (int y = place.top() + 3; y <= place.bottom() - 3; ++y) {
      for (int x = place.left() + 3; x <= place.right() - 3; ++x) {
        const bool differs = Contrast(on.pixelColor(x, y), off.pixelColor(x, y)) >= shapeContrast;
        marked += differs ? 1 : 0;
      }
    }
    EXPECT_GE(marked, 6) << look;
  }

  void ExpectRowImageSeen(const QString& what, int look)
  {
    const QModelIndex row = Tree().model()->index(0, 0, Tree().model()->index(0, 0));
    Tree().setCurrentIndex(row);
    QApplication::processEvents();
    const QRect place = Tree().visualRect(row);
    const QImage image = Picture(*Tree().viewport());
    const QColor chosen = image.pixelColor(place.right() - 1, place.center().y());
    const QRect icon(place.topLeft(), QSize(18, place.height()));
    EXPECT_GE(PixelsSeen(image, icon, chosen), 10) << look << what.toStdString();
    const QRect text = place.adjusted(20, 0, 0, 0);
    EXPECT_GE(PixelsSeen(image, text, chosen, textContrast), 5) << look << what.toStdString();
  }
};

TEST_F(LooksSeen, AButtonThatIsDownHasAnEdgeThatOneThatIsUpLacks)
{
  ForEachLook([](int look) {
    QToolBar bar;
    QAction* const action = bar.addAction(QStringLiteral("Snap"));
    action->setCheckable(true);
    bar.show();
    QWidget& button = *bar.widgetForAction(action);
    const QColor window = Colour(QPalette::Window);
    const QRect edge(0, 3, 1, button.height() - 6);
    EXPECT_EQ(PixelsSeen(Picture(button), edge, window), 0) << look;
    action->setChecked(true);
    const QImage down = Picture(button);
    EXPECT_EQ(PixelsSeen(down, edge, window), edge.height()) << look;
    // The label on it can be read.
    const QColor fill = down.pixelColor(3, 3);
    EXPECT_NE(fill, window) << look;
    EXPECT_GE(PixelsSeen(down, down.rect().adjusted(3, 3, -3, -3), fill, textContrast), 10) << look;
  });
}

TEST_F(LooksSeen, RadioButtonsAndCheckBoxesAndTheirMarksAreSeen)
{
  ForEachLook([this](int look) {
    QRadioButton radio(QStringLiteral("Rotate"));
    radio.setAutoExclusive(false);
    ExpectIndicatorSeen(radio, QStyle::SE_RadioButtonIndicator, look);
    QCheckBox check(QStringLiteral("Show Grid"));
    ExpectIndicatorSeen(check, QStyle::SE_CheckBoxIndicator, look);
  });
}

TEST_F(LooksSeen, TheEdgeOfACheckBoxIsThin)
{
  ForEachLook([](int look) {
    QCheckBox check(QStringLiteral("Show Grid"));
    check.resize(check.sizeHint());
    const QRect place = Indicator(check, QStyle::SE_CheckBoxIndicator);
    const QImage image = Picture(check);
    const QColor inside = image.pixelColor(place.center());
    EXPECT_EQ(image.pixelColor(place.left() + 2, place.center().y()), inside) << look;
  });
}

TEST_F(LooksSeen, TheEdgeOfADisabledCheckBoxIsPalerButThere)
{
  ForEachLook([](int look) {
    QCheckBox check(QStringLiteral("Show Grid"));
    check.resize(check.sizeHint());
    const QRect place = Indicator(check, QStyle::SE_CheckBoxIndicator);
    const QPoint edge(place.center().x(), place.top());
    const QColor window = Colour(QPalette::Window);
    const double enabled = Contrast(Picture(check).pixelColor(edge), window);
    check.setEnabled(false);
    const double disabled = Contrast(Picture(check).pixelColor(edge), window);
    EXPECT_LT(disabled, enabled) << look;
    EXPECT_GT(disabled, 1.25) << look;
  });
}

TEST_F(LooksSeen, TheEdgesOfAnEditFieldAreSeenWithAndWithoutTheKeyboard)
{
  ForEachLook([](int look) {
    QDialog dialog;
    QLineEdit field(&dialog);
    QLineEdit other(&dialog);
    other.move(0, 40);
    dialog.show();
    dialog.activateWindow();
    QApplication::processEvents();
    for (QLineEdit* const focused : {&other, &field}) {
      focused->setFocus();
      ASSERT_EQ(field.hasFocus(), focused == &field);
      const QImage image = Picture(field);
      const int width = image.width();
      const int height = image.height();
      // Two pixels, for a sunken field's edge is dark on the inside.
      const QColor window = Colour(QPalette::Window);
      EXPECT_GE(PixelsSeen(image, QRect(0, 0, 2, height), window), height - 6) << look;
      EXPECT_GE(PixelsSeen(image, QRect(0, 0, width, 2), window), width - 6) << look;
    }
  });
}

TEST_F(LooksSeen, TheSliderOfAScrollBarIsSeenInItsGroove)
{
  ForEachLook([](int look) {
    for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
      QScrollBar bar(orientation);
      bar.setRange(0, 100);
      bar.setPageStep(50);
      bar.resize(orientation == Qt::Horizontal ? QSize(200, 16) : QSize(16, 200));
      QStyleOptionSlider option;
      option.initFrom(&bar);
      option.subControls = QStyle::SC_All;
      option.orientation = orientation;
      option.maximum = 100;
      option.pageStep = 50;
      if (orientation == Qt::Horizontal) option.state |= QStyle::State_Horizontal;
      const QRect slider = bar.style()->subControlRect(QStyle::CC_ScrollBar, &option,
                                                       QStyle::SC_ScrollBarSlider, &bar);
      const QImage image = Picture(bar);
      const QColor groove = image.pixelColor(
          slider.bottomRight() + (orientation == Qt::Horizontal ? QPoint(20, -8) : QPoint(-8, 20)));
      EXPECT_GE(PixelsSeen(image, slider, groove), qMax(slider.width(), slider.height())) << look;
    }
  });
}

TEST_F(LooksSeen, TextsCanBeReadOnWhatTheyStandOn)
{
  ForEachLook([](int look) {
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
      const QPalette palette = QApplication::palette();
      const auto contrast = [&](QPalette::ColorRole text, QPalette::ColorRole on) {
        return Contrast(palette.color(group, text), palette.color(group, on));
      };
      EXPECT_GE(contrast(QPalette::WindowText, QPalette::Window), textContrast) << look;
      EXPECT_GE(contrast(QPalette::Text, QPalette::Base), textContrast) << look;
      EXPECT_GE(contrast(QPalette::ButtonText, QPalette::Button), textContrast) << look;
      EXPECT_GE(contrast(QPalette::HighlightedText, QPalette::Highlight), textContrast) << look;
      EXPECT_GE(contrast(QPalette::ToolTipText, QPalette::ToolTipBase), textContrast) << look;
      EXPECT_GE(contrast(QPalette::Link, QPalette::Base), textContrast) << look;
    }
    QLabel label(QStringLiteral("Offsets"));
    label.resize(label.sizeHint());
    const QImage image = Picture(label);
    EXPECT_GE(PixelsSeen(image, image.rect(), image.pixelColor(0, 0), textContrast), 20) << look;
  });
}

TEST_F(LooksSeen, TheImageAndTheTextOfAChosenRowAreSeenWithAndWithoutTheKeyboard)
{
  // Small letters of some fonts are paler than their colour, because their strokes are thinner than
  // a pixel.
  QFont large = Tree().font();
  large.setPixelSize(28);
  Tree().setFont(large);
  ForEachLook([this](int look) {
    Tree().setFocus();
    ExpectRowImageSeen(QStringLiteral(" with"), look);
    View().setFocus();
    ExpectRowImageSeen(QStringLiteral(" without"), look);
  });
}

TEST_F(LooksSeen, TheImageOfAChosenEntryOfAMenuIsSeen)
{
  ForEachLook([](int look) {
    QMenu menu;
    QAction* const action =
        menu.addAction(ThemedIcon("file-save", QApplication::palette()), QStringLiteral("Save"));
    menu.popup(QPoint(10, 10));
    menu.setActiveAction(action);
    QApplication::processEvents();
    const QImage image = Picture(menu);
    const QRect row = menu.actionGeometry(action);
    const QColor chosen = image.pixelColor(row.right() - 4, row.center().y());
    EXPECT_EQ(chosen, Colour(QPalette::Highlight)) << look;
    EXPECT_GE(PixelsSeen(image, QRect(row.topLeft(), QSize(24, row.height())), chosen), 10) << look;
    menu.close();
  });
}

TEST_F(LooksSeen, TheImageOfAChosenRowOfAListIsSeen)
{
  ForEachLook([](int look) {
    QListWidget list;
    auto* const item = new QListWidgetItem(ThemedIcon("file-save", QApplication::palette()),
                                           QStringLiteral("Save"), &list);
    list.setCurrentItem(item);
    list.show();
    const QRect row = list.visualItemRect(item);
    const QImage image = Picture(*list.viewport());
    const QColor chosen = image.pixelColor(row.right() - 2, row.center().y());
    EXPECT_GE(PixelsSeen(image, QRect(row.topLeft(), QSize(20, row.height())), chosen), 10) << look;
  });
}

TEST_F(LooksSeen, TheTreeHasLinesAlsoAtItsRootsAndBoxesThatOpenAndCloseANode)
{
  ForEachLook([this](int look) {
    QApplication::processEvents();
    const QModelIndex root = Tree().model()->index(0, 0);
    const QModelIndex anchors = Tree().model()->index(1, 0);
    const QRect place = Tree().visualRect(root);
    const QImage image = Picture(*Tree().viewport());
    const QColor base = Colour(QPalette::Base);
    const QRect branch(0, place.top(), place.left(), place.height());
    EXPECT_GE(PixelsSeen(image, branch, base), 20) << look;  // the box
    // The line from the one root down to the other.
    const int middle = branch.center().x();
    const QRect between(middle, place.bottom() + 1, 1,
                        Tree().visualRect(anchors).top() - place.bottom() - 1);
    EXPECT_GT(between.height(), 20);
    EXPECT_EQ(PixelsSeen(image, between, base, 1.5), between.height()) << look;
    // A closed node's sign has an upright arm that an open one's lacks.
    const QModelIndex side = Tree().model()->index(0, 0, root);
    const QRect node = Tree().visualRect(side);
    const QPoint arm(node.left() - Tree().indentation() / 2, node.center().y());
    EXPECT_GT(Tree().model()->rowCount(side), 0);
    Tree().collapse(side);
    const QImage closed = Picture(*Tree().viewport());
    Tree().expand(side);
    const QImage open = Picture(*Tree().viewport());
    const QRect box(arm - QPoint(4, 4), QSize(9, 9));
    EXPECT_GT(PixelsSeen(closed, box, base), PixelsSeen(open, box, base)) << look;
    Tree().collapse(side);
  });
}

TEST_F(LooksSeen, ASignalColourIsSeenOnEveryWindow)
{
  ForEachLook([](int look) {
    for (const char* name : {"dialog-ok", "dialog-cancel", "dialog-no"}) {
      const QImage sign = ThemedIcon(name, QApplication::palette()).pixmap(16).toImage();
      QImage onWindow(sign.size(), QImage::Format_RGB32);
      onWindow.fill(Colour(QPalette::Window));
      QPainter(&onWindow).drawImage(0, 0, sign);
      EXPECT_GE(PixelsSeen(onWindow, onWindow.rect(), Colour(QPalette::Window)), 15)
          << look << name;
    }
  });
}

TEST_F(LooksSeen, MessageBoxesBearTheProgramsOwnImages)
{
  const auto image = [](const QIcon& icon) { return icon.pixmap(16).toImage(); };
  const auto own = [image](const char* name) {
    return image(ThemedIcon(name, QApplication::palette()));
  };
  WhenAsked<QMessageBox>([&](QMessageBox& box) {
    EXPECT_EQ(image(box.button(QMessageBox::Yes)->icon()), own("dialog-ok"));
    EXPECT_EQ(image(box.button(QMessageBox::No)->icon()), own("dialog-no"));
    box.button(QMessageBox::No)->click();
  });
  EXPECT_FALSE(shell->App().AskYesNo(u"Really?"));
  WhenAsked<QMessageBox>([&](QMessageBox& box) {
    EXPECT_EQ(image(box.button(QMessageBox::Ok)->icon()), own("dialog-ok"));
    box.accept();
  });
  shell->App().ShowMessage(u"Note");
  WhenAsked<QMessageBox>([&](QMessageBox& box) {
    EXPECT_EQ(image(box.button(QMessageBox::Yes)->icon()), own("dialog-ok"));
    EXPECT_EQ(image(box.button(QMessageBox::No)->icon()), own("dialog-no"));
    EXPECT_EQ(image(box.button(QMessageBox::Cancel)->icon()), own("dialog-cancel"));
    box.button(QMessageBox::Cancel)->click();
  });
  shell->App().SetModifiedFlag(true);
  EXPECT_FALSE(Window().Document().MayLeave());
  shell->App().SetModifiedFlag(false);
  EXPECT_EQ(dialogs, 3);
}

TEST_F(LooksSeen, TheQuestionForANameOfAToolBarBearsTheProgramsOwnImages)
{
  Window().RunCommand(CommandId::Customize);
  auto& customize = *Window().findChild<CustomizeDialog*>();
  QIcon ok;
  QIcon cancel;
  WhenAsked<QInputDialog>([&](QInputDialog& input) {
    const auto* const buttons = input.findChild<QDialogButtonBox*>();
    ok = buttons->button(QDialogButtonBox::Ok)->icon();
    cancel = buttons->button(QDialogButtonBox::Cancel)->icon();
    input.reject();
  });
  for (auto* const button : customize.findChildren<QPushButton*>()) {
    if (button->text() == QStringLiteral("&New...")) button->click();
  }
  EXPECT_EQ(dialogs, 1);
  const auto image = [](const QIcon& icon) { return icon.pixmap(16).toImage(); };
  const QPalette palette = QApplication::palette();
  EXPECT_EQ(image(ok), image(ThemedIcon("dialog-ok", palette)));
  EXPECT_EQ(image(cancel), image(ThemedIcon("dialog-cancel", palette)));
  EXPECT_EQ(customize.findChild<QComboBox*>()->count(), 1);  // given up, there is no new one
}

TEST(Contrasts, AreThoseOfTheLuminances)
{
  EXPECT_NEAR(Contrast(Qt::black, Qt::white), 21.0, 1e-9);
  EXPECT_NEAR(Contrast(Qt::white, QColor(0x76, 0x76, 0x76)), 4.54, 0.01);
  EXPECT_EQ(Contrast(Qt::red, Qt::red), 1.0);
  EXPECT_GE(Contrast(WithContrast(QColor(240, 240, 240), Qt::white), Qt::white), shapeContrast);
  EXPECT_GE(Contrast(WithContrast(QColor(30, 30, 30), Qt::black), Qt::black), shapeContrast);
  EXPECT_EQ(WithContrast(Qt::blue, Qt::white), QColor(Qt::blue));
}

}  // namespace
}  // namespace hullwright
