// SPDX-License-Identifier: GPL-2.0-or-later
#include "help/help_view.h"

#include "platform/screen_room.h"
#include "texts/texts.h"

#include <QBuffer>
#include <QEvent>
#include <QFontMetrics>
#include <QHBoxLayout>
#include <QImageReader>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTextBrowser>
#include <QTextCursor>
#include <QToolButton>

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

constexpr int kTextCharacters = 30;
/// In pixels: the margins, and what is between the two halves of the find bar.
constexpr int kBetweenRows = 24;

QString continuedFrom(Qt::Edge edge) {
  return edge == Qt::BottomEdge ? Texts::tr("Continued from the bottom")
                                : Texts::tr("Continued from the top");
}

QTextDocument::FindFlags direction(bool backwards) {
  return backwards ? QTextDocument::FindBackward : QTextDocument::FindFlags();
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

FindBar::FindBar(QTextBrowser& page, QWidget* parent)
    : QWidget(parent), page_(page), text_(new QLineEdit(this)), outcome_(new QLabel(this)) {
  setObjectName(QStringLiteral("FindBar"));
  text_->setObjectName(QStringLiteral("FindText"));
  text_->setAccessibleName(Texts::tr("Find on this page"));
  text_->setClearButtonEnabled(true);
  if (auto* clear = text_->findChild<QToolButton*>()) clear->setAccessibleName(Texts::tr("Clear"));
  text_->setMinimumWidth(fontMetrics().averageCharWidth() * kTextCharacters);
  text_->installEventFilter(this);
  outcome_->setObjectName(QStringLiteral("FindOutcome"));
  auto* label = new QLabel(Texts::tr("Find on this &page:"), this);
  label->setBuddy(text_);

  QToolButton* previous = addButton(Texts::tr("P&revious"), Texts::tr("Previous match (Shift+F3)"));
  QToolButton* next = addButton(Texts::tr("&Next"), Texts::tr("Next match (F3)"));
  QToolButton* close = addButton(Texts::tr("Close"), Texts::tr("Close the find bar (Esc)"));

  auto* asked = new QHBoxLayout;
  asked->addWidget(label);
  asked->addWidget(text_);
  auto* found = new QHBoxLayout;
  for (QToolButton* button : {previous, next}) found->addWidget(button);
  found->addWidget(outcome_, 1);
  found->addWidget(close);
  // With large letters, a small screen has no room for all of it side by side.
  outcome_->setText(continuedFrom(Qt::BottomEdge));
  const int inOneRow = asked->sizeHint().width() + found->sizeHint().width() + kBetweenRows;
  outcome_->clear();
  const bool fits = inOneRow < largestInside(*screen()).width();
  auto* rows = new QBoxLayout(fits ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom, this);
  rows->setContentsMargins(4, 2, 4, 2);
  rows->addLayout(asked);
  rows->addLayout(found, 1);

  connect(text_, &QLineEdit::textEdited, this, &FindBar::findFromHere);
  connect(previous, &QToolButton::clicked, this, &FindBar::findPrevious);
  connect(next, &QToolButton::clicked, this, &FindBar::findNext);
  connect(close, &QToolButton::clicked, this, &FindBar::dismiss);
  hide();
}

QToolButton* FindBar::addButton(const QString& caption, const QString& toolTip) {
  auto* button = new QToolButton(this);
  button->setText(caption);
  button->setToolTip(toolTip);
  button->setAutoRaise(true);
  button->setFocusPolicy(Qt::TabFocus);
  return button;
}

void FindBar::open() {
  show();
  text_->setFocus(Qt::ShortcutFocusReason);
  text_->selectAll();
}

void FindBar::dismiss() {
  hide();
  page_.setFocus();
}

void FindBar::findNext() {
  find(false);
}

void FindBar::findPrevious() {
  find(true);
}

/// A longer text may be at the place where the shorter one was found.
void FindBar::findFromHere() {
  QTextCursor cursor = page_.textCursor();
  cursor.setPosition(cursor.selectionStart());
  page_.setTextCursor(cursor);
  find(false);
}

void FindBar::find(bool backwards) {
  outcome_->clear();
  if (text_->text().isEmpty()) return;
  if (page_.find(text_->text(), direction(backwards))) return;
  const QTextCursor before = page_.textCursor();
  page_.moveCursor(backwards ? QTextCursor::End : QTextCursor::Start);
  if (page_.find(text_->text(), direction(backwards))) {
    outcome_->setText(continuedFrom(backwards ? Qt::BottomEdge : Qt::TopEdge));
    return;
  }
  page_.setTextCursor(before);
  outcome_->setText(Texts::tr("Not on this page"));
}

bool FindBar::eventFilter(QObject* watched, QEvent* event) {
  if (watched != text_ || event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
  const auto* key = static_cast<QKeyEvent*>(event);
  if (key->key() != Qt::Key_Return && key->key() != Qt::Key_Enter) return false;
  find(key->modifiers().testFlag(Qt::ShiftModifier));
  return true;
}

}  // namespace quorvin
