#pragma once

#include <QHash>
#include <QList>
#include <QObject>
#include <array>

class QMainWindow;
class QToolBar;

namespace hullwright {

/// How tightly the buttons of a toolbar stand: as the style has them or compact, first with their
/// labels, then without.
enum class Density { Wide, Compact, Icons, CompactIcons };

/// Keeps every button of the toolbars in sight: a line of toolbars that is longer than the window
/// gets compact, and wide again as soon as there is room.
class ToolBarFit : public QObject {
public:
  explicit ToolBarFit(QMainWindow& window);

  /// The toolbars, which have been made anew.
  void SetBars(const QList<QToolBar*>& bars);

  /// Chooses the density of every line.
  void Fit();

protected:
  bool eventFilter(QObject* object, QEvent* event) override;

private:
  /// Toolbars that stand in one line, and how long that is.
  struct Line {
    QList<QToolBar*> bars;
    int length = 0;
  };

  static constexpr int unknown = -1;

  QList<Line> Lines() const;
  void FitLine(const Line& line);

  /// The length that a toolbar takes; measured once.
  int Needed(QToolBar& bar, Density density);
  void Forget();

  QMainWindow& window_;
  QList<QToolBar*> bars_;
  QHash<const QToolBar*, std::array<int, 4>> needed_;
};

/// The names of the buttons that are not those of one command.
inline constexpr const char* sideButtonName = "SideButton";
inline constexpr const char* customizeButtonName = "CustomizeButton";

}  // namespace hullwright
