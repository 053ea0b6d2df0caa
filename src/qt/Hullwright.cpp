#include <QCommandLineParser>
#include <chrono>

#include "qt/Accessibility.h"
#include "qt/Application.h"
#include "qt/Looks.h"
#include "qt/QtText.h"
#include "qt/Shell.h"
#include "resources/Strings.h"
#include "system/SessionBus.h"

namespace {

void Describe(QCommandLineParser& commandLine)
{
  commandLine.setApplicationDescription(hullwright::ToQString(hullwright::Strings::description));
  commandLine.addHelpOption();
  commandLine.addVersionOption();
  commandLine.addPositionalArgument(
      QStringLiteral("file"), QCoreApplication::translate("CommandLine", "The design to open."),
      QStringLiteral("[FILE]"));
}

/// Help and version need no display; the toolkit's own options are not known yet and are no errors.
void AnswerWithoutDisplay(QCommandLineParser& commandLine, int argc, char** argv)
{
  const QCoreApplication toolkit(argc, argv);
  commandLine.parse(QCoreApplication::arguments());
  if (commandLine.isSet(QStringLiteral("help"))) commandLine.showHelp();
  if (commandLine.isSet(QStringLiteral("version"))) commandLine.showVersion();
}

}  // namespace

int main(int argc, char** argv)
{
  QCoreApplication::setApplicationName(QStringLiteral("hullwright"));
  QCoreApplication::setApplicationVersion(QStringLiteral(HULLWRIGHT_VERSION));
  QCommandLineParser commandLine;
  Describe(commandLine);
  AnswerWithoutDisplay(commandLine, argc, argv);
  hullwright::LeaveSilentSessionBus(std::chrono::seconds(3));
  hullwright::Application toolkit(argc, argv);
  commandLine.process(toolkit);
  hullwright::PrepareLooks();
  hullwright::InstallAccessibility();

  hullwright::Shell shell(commandLine.positionalArguments().value(0));
  toolkit.onMemoryEnded = [&shell] { shell.Window()->OnMemoryEnded(); };
  if (!shell.App().InitInstance(shell)) return 1;
  const int status = QApplication::exec();
  toolkit.onMemoryEnded = nullptr;
  const int exitCode = shell.App().ExitInstance(shell);
  return status != 0 ? status : exitCode;
}
