#include "help/frm_browser_view.h"

#include <QBuffer>
#include <QEvent>
#include <QFontMetrics>
#include <QImageReader>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTextCursor>

#include <algorithm>
#include <array>

namespace quorvin {

namespace {

/// Larger pictures would take the memory of the whole machine to unpack.
constexpr int kWidestPicture = 8000;

/// Only these are tried, whatever else the system could read.
constexpr std::array kPictureFormats = {"png", "jpeg", "gif"};

QImage decodedPicture(const QByteArray& bytes) {
  QBuffer buffer;
  buffer.setData(bytes);
  for (const char* format : kPictureFormats) {
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, format);
    const QSize size = reader.canRead() ? reader.size() : QSize();
    const bool sensible =
        !size.isEmpty() && size.width() <= kWidestPicture && size.height() <= kWidestPicture;
    if (sensible) return reader.read();
    buffer.close();
  }
  return {};
}

/// Stands where a picture cannot be shown.
QImage emptyPicture() {
  QImage image(1, 1, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  return image;
}

QString colourName(const QPalette& palette, QPalette::ColorRole role) {
  return palette.color(QPalette::Active, role).name();
}

}  // namespace

HelpView::HelpView(const HelpFiles& files, QWidget* parent) : QTextBrowser(parent), files_(files) {
  setOpenLinks(false);
  setUndoRedoEnabled(false);
  // A bar that comes and goes would change the room for pictures, and with it the need for the bar.
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  document()->setDocumentMargin(fontMetrics().height());
  styleDocument();
}

void HelpView::styleDocument() {
  document()->setDefaultStyleSheet(QStringLiteral("a { color: %1 } code, kbd, pre { background-color: %2 }"
                                                  "table { border-collapse: collapse; border-style: solid; "
                                                  "border-color: %3; margin-top: 8px; margin-bottom: 8px }"
                                                  "li { margin-bottom: 3px }"
                                                  "th { text-align: left; background-color: %2 }")
                                       .arg(colourName(palette(), QPalette::Link),
                                            colourName(palette(), QPalette::AlternateBase),
                                            colourName(palette(), QPalette::Mid)));
}

void HelpView::showPage(const Page& page) {
  page_ = page;
  setPageText();
  moveCursor(QTextCursor::Start);
  showPlace(page.address.fragment());
}

void HelpView::setPageText() {
  pictures_.clear();
  fittedTo_ = roomForPictures();
  if (page_.kind == PageKind::PlainText) {
    setPlainText(page_.text);
  } else {
    setHtml(page_.text);
  }
}

void HelpView::showPlace(const QString& fragment) {
  if (fragment.isEmpty()) {
    goTo(0);
  } else {
    scrollToAnchor(fragment);
  }
}

void HelpView::showNothing() {
  page_ = {};
  pictures_.clear();
  clear();
}

int HelpView::position() const {
  return verticalScrollBar()->value();
}

void HelpView::goTo(int position) {
  verticalScrollBar()->setValue(position);
}

void HelpView::backward() {
  Q_EMIT backWished();
}

void HelpView::forward() {
  Q_EMIT forwardWished();
}

void HelpView::home() {
  Q_EMIT homeWished();
}

void HelpView::reload() {
  Q_EMIT reloadWished();
}

QVariant HelpView::loadResource(int type, const QUrl& name) {
  if (type == QTextDocument::ImageResource) return fitted(picture(name));
  return QByteArray("\n");
}

QImage HelpView::picture(const QUrl& name) {
  const auto known = pictures_.constFind(name);
  if (known != pictures_.constEnd()) return *known;
  QImage image;
  if (page_.address.isLocalFile()) {
    const HelpFile file = files_.read(page_.address.resolved(name), HelpFileKind::Picture);
    if (file.state == HelpFileState::Read) image = decodedPicture(file.bytes);
  }
  if (image.isNull()) image = emptyPicture();
  pictures_.insert(name, image);
  return image;
}

/// Scaled here and to the screen's own pixels: the text layout would scale by dropping pixels.
QImage HelpView::fitted(const QImage& picture) const {
  const qreal scale = devicePixelRatioF();
  const int width = std::min(picture.width(), std::max(1, roomForPictures()));
  QImage image = picture.scaledToWidth(std::max(1, qRound(width * scale)), Qt::SmoothTransformation);
  image.setDevicePixelRatio(scale);
  return image;
}

int HelpView::roomForPictures() const {
  return viewport()->width() - 2 * static_cast<int>(document()->documentMargin());
}

void HelpView::resizeEvent(QResizeEvent* event) {
  if (fittedTo_ != roomForPictures()) {
    fittedTo_ = roomForPictures();
    for (auto known = pictures_.constBegin(); known != pictures_.constEnd(); ++known) {
      document()->addResource(QTextDocument::ImageResource, known.key(), fitted(known.value()));
    }
    if (!pictures_.isEmpty()) document()->markContentsDirty(0, document()->characterCount());
  }
  QTextBrowser::resizeEvent(event);
}

void HelpView::changeEvent(QEvent* event) {
  QTextBrowser::changeEvent(event);
  if (event->type() != QEvent::PaletteChange) return;
  const int readTo = position();
  styleDocument();
  setPageText();
  goTo(readTo);
}

void HelpView::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::BackButton) return backward();
  if (event->button() == Qt::ForwardButton) return forward();
  QTextBrowser::mousePressEvent(event);
}

}  // namespace quorvin
