#pragma once

#include <QTextBrowser>
#include <QUrl>
#include <QWidget>

namespace hullwright {

/// A page of the guide: Markdown from the disk with its pictures, none of them wider than the
/// window. A link opens another page; one that leads elsewhere than to a page on the disk does
/// nothing, since no network is used.
class GuidePage : public QTextBrowser {
  Q_OBJECT

public:
  explicit GuidePage(QWidget* parent);

  QVariant loadResource(int type, const QUrl& name) override;

protected:
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

private:
  void Follow(const QUrl& link);
};

/// The guide in a window of its own, beside which the program goes on.
class GuideWindow : public QWidget {
  Q_OBJECT

public:
  /// Opens at the contents; `folder` has a guide.
  GuideWindow(const QString& folder, QWidget* parent);

  /// Where the guide lies beside the program, installed as well as built.
  static QString Folder();

  /// The file that the guide begins with; there is a guide where it is.
  static QString Contents(const QString& folder);

protected:
  void keyPressEvent(QKeyEvent* event) override;

private:
  GuidePage* page_;
};

}  // namespace hullwright
