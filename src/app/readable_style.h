// SPDX-License-Identifier: GPL-2.0-or-later

// How the program's windows are drawn beyond what the desktop's style does.
#pragma once

#include <QPalette>
#include <QProxyStyle>

namespace quorvin {

/// `palette` with a colour for quiet texts (PlaceholderText) that lies between text and background and can be
/// read on Base and on Window. Desktops give one of too little contrast, or, with dark palettes, none. What
/// is selected has a background on which its text can be read, of the hue that the desktop has chosen. Texts
/// of what cannot be used are fainter than others, but can be seen.
QPalette withReadableTexts(QPalette palette);

/// The desktop's style (or the one that its base is) with colours, frames and captions that can be read:
///
/// - The program's palette is withReadableTexts() of the desktop's, also after that has changed. It is the
/// style that
///   gives it, not QApplication::setPalette(): each window would have a palette of its own then, and the
///   toolkit keeps for ever under which names it has drawn parts of controls, of which a palette is a part.
/// - Frames that the toolkit's own style draws in a darker shade of the windows, so that nobody sees them,
/// are seen:
///   those of menus with dark palettes, and on black windows, for high contrast, also those of boxes, buttons
///   and lists. Other styles find colours of their own.
/// - English captions keep their ends on desktops that are read from right to left, where the full stops and
/// question
///   marks would be drawn at their starts ("?Web Update"). The captions themselves stay as they are; texts in
///   other scripts are drawn as ever.
class ReadableStyle : public QProxyStyle {
  Q_OBJECT

 public:
  using QProxyStyle::QProxyStyle;

  using QProxyStyle::polish;
  void polish(QPalette& palette) override;
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawItemText(QPainter* painter, const QRect& place, int flags, const QPalette& palette, bool enabled,
                    const QString& text, QPalette::ColorRole role) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
};

}  // namespace quorvin
