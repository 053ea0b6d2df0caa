#include <QApplication>
#include <QDockWidget>
#include <QMainWindow>
#include <QMenuBar>
#include <QStatusBar>
#include <QToolBar>
#include <QTreeView>

/// The least that a Qt program with menu, tool bar, dock and status bar needs for its first frame.
int main(int argc, char** argv)
{
  const QApplication toolkit(argc, argv);
  QMainWindow window;
  QToolBar& bar = *window.addToolBar(QStringLiteral("Tools"));
  for (const char* menu : {"File", "Edit", "View", "Help"}) {
    QMenu& entries = *window.menuBar()->addMenu(QString::fromLatin1(menu));
    for (const char* entry : {"First", "Second", "Third"}) {
      bar.addAction(entries.addAction(QString::fromLatin1(entry)));
    }
  }
  QDockWidget dock(QStringLiteral("Objects"));
  dock.setWidget(new QTreeView);
  window.addDockWidget(Qt::LeftDockWidgetArea, &dock);
  window.setCentralWidget(new QWidget);
  window.statusBar()->showMessage(QStringLiteral("Ready"));
  window.resize(1340, 860);
  window.show();
  return QApplication::exec();
}
