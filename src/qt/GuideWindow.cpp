#include "qt/GuideWindow.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QImage>
#include <QKeyEvent>
#include <QPushButton>
#include <QTextTable>
#include <QVBoxLayout>

#include "qt/ScreenSize.h"

namespace hullwright {
namespace {

bool IsPage(const QUrl& url)
{
  const QFileInfo file(url.toLocalFile());
  return url.isLocalFile() && file.suffix() == QLatin1String("md") && file.isFile();
}

void GiveTablesRoom(const QTextDocument& page)
{
  constexpr double padding = 4.0;
  for (QTextFrame* const frame : page.rootFrame()->childFrames()) {
    auto* const table = qobject_cast<QTextTable*>(frame);
    if (table == nullptr) continue;
    QTextTableFormat format = table->format();
    format.setCellPadding(padding);
    format.setBorderCollapse(true);
    table->setFormat(format);
  }
}

}  // namespace

GuidePage::GuidePage(QWidget* parent) : QTextBrowser(parent)
{
  constexpr double margin = 16.0;
  document()->setDocumentMargin(margin);
  setOpenLinks(false);
  setAccessibleName(tr("Guide"));
  // Pictures are made as wide as the page, which must not change with their height.
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  connect(this, &QTextBrowser::sourceChanged, this, [this] { GiveTablesRoom(*document()); });
  connect(this, &QTextBrowser::anchorClicked, this, [this](const QUrl& link) { Follow(link); });
}

void GuidePage::Follow(const QUrl& link)
{
  const QUrl page = source().resolved(link);
  if (IsPage(page)) setSource(page);
}

QVariant GuidePage::loadResource(int type, const QUrl& name)
{
  const QUrl url = source().resolved(name);
  if (!url.isLocalFile()) return {};
  if (type != QTextDocument::ImageResource) return QTextBrowser::loadResource(type, name);
  QImage image(url.toLocalFile());
  const int room = viewport()->width() - qRound(2 * document()->documentMargin());
  if (image.width() <= room || room <= 0) return image;
  image = image.scaledToWidth(qRound(room * devicePixelRatioF()), Qt::SmoothTransformation);
  image.setDevicePixelRatio(devicePixelRatioF());
  return image;
}

void GuidePage::resizeEvent(QResizeEvent* event)
{
  QTextBrowser::resizeEvent(event);
  // Pictures are as wide as the window was when the page was made.
  if (!source().isEmpty() && event->size().width() != event->oldSize().width()) reload();
}

void GuidePage::changeEvent(QEvent* event)
{
  QTextBrowser::changeEvent(event);
  // The colour of links is fixed when the page is made.
  if (event->type() == QEvent::PaletteChange && !source().isEmpty()) reload();
}

GuideWindow::GuideWindow(const QString& folder, QWidget* parent)
    : QWidget(parent, Qt::Window), page_(new GuidePage(this))
{
  setWindowTitle(tr("Guide"));
  const QUrl contents = QUrl::fromLocalFile(Contents(folder));
  auto* const row = new QHBoxLayout;
  const auto add = [this, row](const QString& text, const QKeySequence& key) {
    auto* const button = new QPushButton(text, this);
    button->setShortcut(key);
    button->setToolTip(key.toString(QKeySequence::NativeText));
    row->addWidget(button);
    return button;
  };
  auto* const back = add(tr("Back"), QKeySequence(Qt::ALT | Qt::Key_Left));
  auto* const forward = add(tr("Forward"), QKeySequence(Qt::ALT | Qt::Key_Right));
  auto* const home = add(tr("Contents"), QKeySequence(Qt::ALT | Qt::Key_Home));
  row->addStretch(1);
  for (QPushButton* const button : {back, forward}) button->setEnabled(false);
  connect(back, &QPushButton::clicked, page_, &QTextBrowser::backward);
  connect(forward, &QPushButton::clicked, page_, &QTextBrowser::forward);
  connect(home, &QPushButton::clicked, page_, [this, contents] { page_->setSource(contents); });
  connect(page_, &QTextBrowser::backwardAvailable, back, &QWidget::setEnabled);
  connect(page_, &QTextBrowser::forwardAvailable, forward, &QWidget::setEnabled);
  auto* const column = new QVBoxLayout(this);
  column->addLayout(row);
  column->addWidget(page_, 1);
  ResizeOnScreen(*this, QSize(960, 760));
  page_->setSource(contents);
  page_->setFocus();
}

QString GuideWindow::Folder()
{
  return QDir::cleanPath(QCoreApplication::applicationDirPath() +
                         QStringLiteral("/../share/doc/hullwright/guide"));
}

QString GuideWindow::Contents(const QString& folder)
{
  return folder + QStringLiteral("/README.md");
}

void GuideWindow::keyPressEvent(QKeyEvent* event)
{
  if (event->matches(QKeySequence::Cancel)) {
    close();
  } else {
    QWidget::keyPressEvent(event);
  }
}

}  // namespace hullwright
