#include "cli/Picture.h"

#include <QGuiApplication>
#include <QSaveFile>

#include "base/Text.h"
#include "cli/HeadlessEditor.h"
#include "paint/PaintBackEnd.h"
#include "paint/PaintSurface.h"

namespace hullwright {
namespace {

/// Fonts need the toolkit, but no display.
void StartToolkit()
{
  if (QCoreApplication::instance() != nullptr) return;
  // The toolkit's remarks on a machine without a desktop are nothing to the user of a command line.
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  static int count = 3;
  static char program[] = "hullwright-cli";
  static char option[] = "-platform";
  static char platform[] = "offscreen";
  static char* arguments[] = {program, option, platform, nullptr};
  static const QGuiApplication toolkit(count, arguments);
}

}  // namespace

std::string WritePicture(const PictureRequest& request)
{
  StartToolkit();
  PaintSurface surface(request.width, request.height);
  if (surface.Picture().isNull()) return "no memory for a picture of this size";
  PaintBackEnd drawing;
  HeadlessEditor editor(drawing, surface);
  if (!editor.Open(WideFromUtf8(request.design))) {
    return request.design + ": " + Utf8FromWide(editor.Problem());
  }
  editor.ShowSide(request.side, request.width, request.height);
  QSaveFile file(QString::fromStdString(request.output));
  if (!file.open(QIODevice::WriteOnly) || !surface.Picture().save(&file, "PNG") || !file.commit()) {
    return request.output + ": " + file.errorString().toStdString();
  }
  return {};
}

}  // namespace hullwright
