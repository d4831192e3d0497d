// SPDX-License-Identifier: GPL-2.0-or-later
#include "gui/fitting.h"

#include <QAbstractScrollArea>
#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMap>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QStyle>
#include <QStyleOption>
#include <QToolButton>
#include <gtest/gtest.h>

#include <algorithm>

namespace quorvin::test {

QString described(const QWidget* widget) {
  const QString name = widget->objectName();
  return QString::fromLatin1(widget->metaObject()->className()) + u' ' + name;
}

int textWidth(const QWidget* widget, const QString& text) {
  return widget->fontMetrics().size(Qt::TextShowMnemonic, text).width();
}

namespace {

/// What a title bar and the frame around a window take on usual desktops. The frames of these tests take
/// less.
constexpr QSize kUsualFrame(8, 32);

/// What scrolls may be larger than what is seen of it.
bool scrolls(const QWidget* widget) {
  const auto* area = widget->parentWidget()
                         ? qobject_cast<const QAbstractScrollArea*>(widget->parentWidget()->parentWidget())
                         : nullptr;
  return area && area->viewport() == widget->parentWidget();
}

/// Whether a box to choose from, or to write into, is too narrow for what stands in it before anybody has
/// written.
bool isBoxCut(const QWidget* widget) {
  if (const auto* box = qobject_cast<const QComboBox*>(widget); box && !box->isEditable()) {
    QStyleOptionComboBox option;
    option.initFrom(box);
    const QRect place =
        box->style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, box);
    return box->toolTip().isEmpty() && textWidth(box, box->currentText()) > place.width();
  }
  const auto* line = qobject_cast<const QLineEdit*>(widget);
  if (!line || !line->text().isEmpty() || !line->toolTip().isEmpty()) return false;
  // Beside the text there are the cursor and a pixel or two of the frame.
  constexpr int kBesideText = 8;
  return line->fontMetrics().horizontalAdvance(line->placeholderText()) > line->width() - kBesideText;
}

/// Whether the text of a label or a button is wider than its place.
bool isCut(const QWidget* widget) {
  if (isBoxCut(widget)) return true;
  if (const auto* label = qobject_cast<const QLabel*>(widget)) {
    if (label->wordWrap() || !label->toolTip().isEmpty())
      return label->height() < label->heightForWidth(label->width());
    return label->textFormat() != Qt::RichText && textWidth(label, label->text()) > label->width();
  }
  if (const auto* button = qobject_cast<const QPushButton*>(widget)) {
    return textWidth(button, button->text()) > button->width() - 4;
  }
  if (const auto* button = qobject_cast<const QToolButton*>(widget)) {
    const bool hasText = button->toolButtonStyle() != Qt::ToolButtonIconOnly && button->icon().isNull();
    return hasText && textWidth(button, button->text()) > button->width();
  }
  if (const auto* box = qobject_cast<const QCheckBox*>(widget)) return box->sizeHint().width() > box->width();
  if (const auto* choice = qobject_cast<const QRadioButton*>(widget)) {
    return choice->sizeHint().width() > choice->width();
  }
  if (const auto* bar = qobject_cast<const QMenuBar*>(widget)) {
    return std::ranges::any_of(bar->actions(), [bar](QAction* menu) {
      const QRect place = bar->actionGeometry(menu);
      return textWidth(bar, menu->text()) > place.width() || !bar->rect().contains(place);
    });
  }
  if (const auto* header = qobject_cast<const QHeaderView*>(widget)) {
    // Where large letters leave the hit list less room than for forty, three columns share what there is.
    const bool isForHits = header->parentWidget()->objectName() == u"HitList";
    if (isForHits && header->width() < 40 * header->fontMetrics().height()) return false;
    for (int section = 0; section < header->count(); ++section) {
      const QString title = header->model()->headerData(section, Qt::Horizontal).toString();
      const bool isTooNarrow = textWidth(header, title) > header->sectionSize(section);
      if (!header->isSectionHidden(section) && isTooNarrow) return true;
    }
  }
  return false;
}

/// The letters that are typed with Alt; each caption that has one that is taken already fails the test.
void expectOwnLetter(QMap<QString, QString>& taken, const QString& caption) {
  const QString letter = QKeySequence::mnemonic(caption).toString();
  if (letter.isEmpty()) return;
  EXPECT_FALSE(taken.contains(letter))
      << '"' << caption.toStdString() << "\" and \"" << taken[letter].toStdString() << '"';
  taken[letter] = caption;
}

void expectOwnLetters(const QWidget& window) {
  QMap<QString, QString> ofWindow;
  for (const QWidget* widget : window.findChildren<QWidget*>()) {
    QMap<QString, QString> ofMenu;
    const auto* menu = qobject_cast<const QMenu*>(widget);
    if (menu) {
      for (const QAction* item : menu->actions()) expectOwnLetter(ofMenu, item->text());
    }
    if (menu || !widget->isVisible() || widget->window() != &window) continue;
    const auto* label = qobject_cast<const QLabel*>(widget);
    if (label && label->buddy()) expectOwnLetter(ofWindow, label->text());
    const auto* button = qobject_cast<const QAbstractButton*>(widget);
    if (button) expectOwnLetter(ofWindow, button->text());
    const auto* bar = qobject_cast<const QMenuBar*>(widget);
    if (!bar) continue;
    for (const QAction* item : bar->actions()) expectOwnLetter(ofWindow, item->text());
  }
}

}  // namespace

void expectIsOnScreen(const QWidget& window) {
  const QSize screen = window.screen()->availableGeometry().size();
  QSize outer = window.frameGeometry().size();
  // The main window makes itself smaller by the frame that it gets.
  if (!qobject_cast<const QMainWindow*>(&window)) outer = outer.expandedTo(window.size() + kUsualFrame);
  EXPECT_LE(outer.width(), screen.width()) << described(&window).toStdString();
  EXPECT_LE(outer.height(), screen.height()) << described(&window).toStdString();
}

void expectFits(const QWidget& window) {
  expectIsOnScreen(window);
  expectOwnLetters(window);
  int looked = 0;
  for (const QWidget* widget : window.findChildren<QWidget*>()) {
    if (!widget->isVisible() || widget->window() != &window || scrolls(widget)) continue;
    ++looked;
    EXPECT_TRUE(widget->geometry().isEmpty() || widget->parentWidget()->rect().contains(widget->geometry()))
        << described(widget).toStdString() << " in " << described(widget->parentWidget()).toStdString();
    EXPECT_FALSE(isCut(widget)) << described(widget).toStdString();
  }
  EXPECT_GT(looked, 0) << described(&window).toStdString();
}

}  // namespace quorvin::test
