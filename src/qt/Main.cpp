#include <QApplication>
#include <QCommandLineParser>

#include "qt/Shell.h"

int main(int argc, char** argv)
{
  QApplication toolkit(argc, argv);
  QApplication::setApplicationName(QStringLiteral("hullwright"));
  QApplication::setApplicationVersion(QStringLiteral(HULLWRIGHT_VERSION));

  QCommandLineParser commandLine;
  commandLine.setApplicationDescription(
      QStringLiteral("Draws the outline of a survey vessel and records where its equipment sits."));
  commandLine.addHelpOption();
  commandLine.addVersionOption();
  commandLine.addPositionalArgument(QStringLiteral("file"), QStringLiteral("The design to open."),
                                    QStringLiteral("[FILE]"));
  commandLine.process(toolkit);

  hullwright::Shell shell(commandLine.positionalArguments().value(0));
  if (!shell.App().InitInstance(shell)) return 1;
  const int status = QApplication::exec();
  const int exitCode = shell.App().ExitInstance(shell);
  return status != 0 ? status : exitCode;
}
