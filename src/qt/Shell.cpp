#include "qt/Shell.h"

#include <QApplication>
#include <QTimer>
#include <cstdio>
#include <utility>

#include "base/Text.h"
#include "file/SaxParser.h"
#include "qt/Icons.h"
#include "qt/QtText.h"
#include "resources/Strings.h"
#include "system/LibraryVersions.h"

namespace hullwright {

Shell::Shell(QString file) : file_(std::move(file))
{
  dialogs_.libraries = Libraries;
  commonData_.units.onProblem = [this](std::u16string_view reason) {
    // Later: the units are asked for in the middle of showing the panes that the note is one of.
    QTimer::singleShot(0, &window_,
                       [this, note = std::u16string(reason)] { window_.ShowNote(note); });
  };
}

void Shell::InitialiseControls()
{
  QApplication::setApplicationDisplayName(QString());
  QApplication::setDesktopFileName(QStringLiteral("hullwright"));
  QApplication::setWindowIcon(ApplicationIcon());
}

QString Shell::Libraries()
{
  const QString expat = QString::fromStdString(XmlLibraryVersion());
  const QString sqlite = QString::fromStdString(SqliteVersion());
  return QCoreApplication::translate("Shell", "Runs on Qt %1, Expat %2, SQLite %3.")
      .arg(QLatin1String(qVersion()), expat,
           sqlite.isEmpty() ? QCoreApplication::translate("Shell", "(not found)") : sqlite);
}

bool Shell::InitialiseLibraries() { return XmlLibraryFits(); }

void Shell::OpenUserStore(const char* maker, int recentFiles)
{
  settings_.Open(QString::fromLatin1(maker), QString::fromLatin1(Strings::program));
  recentFiles_ = static_cast<std::size_t>(recentFiles);
}

bool Shell::CreateDocumentTemplate()
{
  window_.LoadSettings(recentFiles_);
  return true;
}

bool Shell::ProcessCommandLine()
{
  if (file_.isEmpty()) {
    window_.Document().New();
    return true;
  }
  if (window_.Document().Open(ToWide(file_))) return true;
  // The process ends without a window; at least a terminal shows why.
  const QString problem =
      QCoreApplication::translate("Shell", "hullwright: cannot open the design '%1': %2\n")
          .arg(file_, ToQString(window_.OpenProblem()));
  std::fputs(problem.toLocal8Bit().constData(), stderr);
  return false;
}

void Shell::ShowMainWindow() { window_.ShowAsBefore(); }

void Shell::AcceptDroppedFiles() { window_.setAcceptDrops(true); }

}  // namespace hullwright
