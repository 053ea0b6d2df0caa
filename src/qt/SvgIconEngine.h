#pragma once

#include <QIconEngine>
#include <QPixmap>
#include <QRgb>
#include <QString>
#include <map>
#include <optional>
#include <utility>

namespace hullwright {

/// The colours that an icon is drawn in.
struct IconColours {
  QRgb ink;
  QRgb accent;
  QRgb good;  ///< of the sign for yes
  QRgb bad;   ///< of the signs for no
};

/// The colours of the files.
constexpr IconColours drawnColours = {qRgb(0x30, 0x34, 0x38), qRgb(0x1f, 0x6f, 0xb2),
                                      qRgb(0x3c, 0x9a, 0x4c), qRgb(0xd0, 0x43, 0x3c)};

/// An icon that is drawn from its file in the size that is asked for, and once in each size: a
/// start needs few sizes of few icons, and drawing all of them would take longer than all the rest.
class SvgIconEngine : public QIconEngine {
public:
  /// Without colours for a chosen row, that mode is the style's to make, as are all others.
  SvgIconEngine(QString file, IconColours normal, std::optional<IconColours> selected);

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
  QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
  QIconEngine* clone() const override { return new SvgIconEngine(*this); }

  /// For window managers, which get them all when a window opens.
  QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override;

private:
  const QPixmap& Drawn(int side, bool selected);

  QString file_;
  IconColours normal_;
  std::optional<IconColours> selected_;
  std::map<std::pair<int, bool>, QPixmap> drawn_;  ///< by the length of a side and whether chosen
};

}  // namespace hullwright
