// SPDX-License-Identifier: GPL-2.0-or-later
#include "app/readable_style.h"

#include "hits/hit_list_delegate.h"
#include "platform/text_direction.h"

#include <QPainter>
#include <QStringList>
#include <QStyleOptionButton>
#include <QStyleOptionMenuItem>

#include <cmath>
#include <utility>

namespace quorvin {

namespace {

/// `share` is that of `one`, from 0 to 1.
QColor between(const QColor& one, const QColor& other, double share) {
  const auto mixed = [share](int of, int with) {
    return static_cast<int>(std::lround(share * of + (1 - share) * with));
  };
  return {mixed(one.red(), other.red()), mixed(one.green(), other.green()), mixed(one.blue(), other.blue())};
}

/// Desktops of high contrast have been met with black on black.
void makeUnusableTextsSeen(QPalette& palette) {
  constexpr double kSeen = 2;
  for (const auto& [text, background] :
       {std::pair(QPalette::WindowText, QPalette::Window), std::pair(QPalette::Text, QPalette::Base),
        std::pair(QPalette::ButtonText, QPalette::Button)}) {
    const QColor behind = palette.color(QPalette::Disabled, background);
    const QColor unusable = palette.color(QPalette::Disabled, text);
    if (shadeAgainst(unusable, behind, kSeen) == unusable) continue;
    palette.setColor(QPalette::Disabled, text, between(palette.color(QPalette::Active, text), behind, 0.5));
  }
}

bool isFrame(QStyle::PrimitiveElement element) {
  return element == QStyle::PE_FrameLineEdit || element == QStyle::PE_PanelMenu ||
         element == QStyle::PE_Frame || element == QStyle::PE_PanelButtonCommand;
}

/// Whether the window is so dark that no darker frame can be seen on it.
bool losesFrame(QStyle::PrimitiveElement element, const QPalette& palette) {
  constexpr int kDarkestWithFrames = 20;
  constexpr int kDarkestWithMenuFrames = 128;
  const int darkest = element == QStyle::PE_PanelMenu ? kDarkestWithMenuFrames : kDarkestWithFrames;
  return palette.color(QPalette::Window).lightness() < darkest;
}

/// What Enter presses, and what has the keys, has a frame in the selection's colour.
bool standsOut(const QStyleOption& option) {
  const auto* button = qstyleoption_cast<const QStyleOptionButton*>(&option);
  return option.state.testFlag(QStyle::State_HasFocus) ||
         (button && button->features.testFlag(QStyleOptionButton::DefaultButton));
}

QString captionWithin(Qt::LayoutDirection around, const QString& caption) {
  return caption.isRightToLeft() ? caption : englishWithin(around, caption);
}

}  // namespace

QPalette withReadableTexts(QPalette palette) {
  makeUnusableTextsSeen(palette);
  for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
    const QColor text = palette.color(group, QPalette::Text);
    const QColor base = palette.color(group, QPalette::Base);
    palette.setColor(group, QPalette::PlaceholderText, between(text, base, 0.7));
    const QColor selectedText = palette.color(group, QPalette::HighlightedText);
    palette.setColor(group, QPalette::Highlight,
                     shadeAgainst(palette.color(group, QPalette::Highlight), selectedText));
  }
  return palette;
}

void ReadableStyle::polish(QPalette& palette) {
  QProxyStyle::polish(palette);
  palette = withReadableTexts(palette);
}

void ReadableStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                  const QWidget* widget) const {
  QProxyStyle::drawPrimitive(element, option, painter, widget);
  if (!isFrame(element) || standsOut(*option) || !losesFrame(element, option->palette)) return;
  if (baseStyle()->name() != u"fusion") return;
  painter->save();
  painter->setBrush(Qt::NoBrush);
  painter->setPen(
      between(option->palette.color(QPalette::WindowText), option->palette.color(QPalette::Window), 0.5));
  painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
  painter->restore();
}

void ReadableStyle::drawItemText(QPainter* painter, const QRect& place, int flags, const QPalette& palette,
                                 bool enabled, const QString& text, QPalette::ColorRole role) const {
  QProxyStyle::drawItemText(painter, place, flags, palette, enabled,
                            captionWithin(painter->layoutDirection(), text), role);
}

/// Styles draw the texts of menu items by themselves.
void ReadableStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                                const QWidget* widget) const {
  const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
  if (element != CE_MenuItem || !item) return QProxyStyle::drawControl(element, option, painter, widget);
  // The caption, and the keys behind a tab.
  QStringList parts = item->text.split(u'\t');
  for (QString& part : parts) part = captionWithin(item->direction, part);
  QStyleOptionMenuItem shown(*item);
  shown.text = parts.join(u'\t');
  QProxyStyle::drawControl(element, &shown, painter, widget);
}

}  // namespace quorvin
