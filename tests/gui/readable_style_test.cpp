// SPDX-License-Identifier: GPL-2.0-or-later

// Colours, frames and captions of the program's windows.
#include "app/readable_style.h"

#include "support/qt_printing.h"

#include <QApplication>
#include <QDialog>
#include <QImage>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QScopedPointer>
#include <QStyleFactory>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace quorvin::test {

namespace {

double luminanceOf(const QColor& colour) {
  const auto linear = [](double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

double contrastOf(const QColor& one, const QColor& other) {
  const auto [darker, lighter] = std::minmax({luminanceOf(one), luminanceOf(other)});
  return (lighter + 0.05) / (darker + 0.05);
}

/// Text, Base and Window of palettes of common desktops.
struct DesktopColours {
  QColor text;
  QColor base;
  QColor window;
};

TEST(ReadableStyle, QuietTextsCanBeReadOnLightDarkAndHighContrastDesktops) {
  for (const DesktopColours& colours :
       {DesktopColours{QColor(0, 0, 0), QColor(255, 255, 255), QColor(239, 239, 239)},
        DesktopColours{QColor(35, 38, 41), QColor(252, 252, 252), QColor(239, 240, 241)},
        DesktopColours{QColor(252, 252, 252), QColor(27, 30, 32), QColor(42, 46, 50)},
        DesktopColours{QColor(255, 255, 255), QColor(45, 45, 45), QColor(53, 53, 53)},
        DesktopColours{QColor(255, 255, 255), QColor(0, 0, 0), QColor(0, 0, 0)}}) {
    QPalette palette;
    palette.setColor(QPalette::Text, colours.text);
    palette.setColor(QPalette::Base, colours.base);
    palette.setColor(QPalette::Window, colours.window);
    const QColor quiet = withReadableTexts(palette).color(QPalette::PlaceholderText);
    EXPECT_GE(contrastOf(quiet, colours.base), 4.5) << colours.base.name().toStdString();
    EXPECT_GE(contrastOf(quiet, colours.window), 4.5) << colours.window.name().toStdString();
    EXPECT_NE(quiet, colours.text);
  }
}

TEST(ReadableStyle, TextsOfWhatCannotBeUsedAreSeenAndFainterThanOthers) {
  QPalette black;
  for (const auto role : {QPalette::Window, QPalette::Base, QPalette::Button})
    black.setColor(role, Qt::black);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    black.setColor(role, Qt::white);
    black.setColor(QPalette::Disabled, role, Qt::black);
  }
  const QPalette shown = withReadableTexts(black);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    EXPECT_EQ(shown.color(QPalette::Disabled, role), QColor(128, 128, 128)) << role;
    EXPECT_EQ(shown.color(QPalette::Active, role), QColor(Qt::white)) << role;
  }
  black.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(90, 90, 90));
  EXPECT_EQ(withReadableTexts(black).color(QPalette::Disabled, QPalette::ButtonText), QColor(90, 90, 90))
      << "seen as it is";
}

/// The colour of the left edge of `widget`, in its middle.
template <typename Widget>
QColor edgeOf(Widget& widget, const QColor& window, QStyle& style) {
  QPalette palette;
  palette.setColor(QPalette::Window, window);
  palette.setColor(QPalette::Base, window);
  palette.setColor(QPalette::Button, window);
  palette.setColor(QPalette::WindowText, Qt::white);
  widget.setPalette(palette);
  widget.setStyle(&style);
  widget.resize(120, 40);
  return widget.grab().toImage().pixelColor(0, 20);
}

TEST(FramesOnBlackWindows, AreSeenAroundBoxesAndButtons) {
  ReadableStyle frames(QStringLiteral("fusion"));
  QLineEdit box;
  QPushButton button(QStringLiteral("Save"));
  button.setAutoDefault(false);
  EXPECT_EQ(edgeOf(box, Qt::black, frames), QColor(128, 128, 128));
  EXPECT_EQ(edgeOf(button, Qt::black, frames), QColor(128, 128, 128));
}

TEST(FramesOnBlackWindows, AreSeenAroundMenusOnDarkOnesToo) {
  ReadableStyle frames(QStringLiteral("fusion"));
  QMenu menu;
  menu.addAction(QStringLiteral("Open"));
  // Half of the way from the window's colour to that of its texts.
  EXPECT_EQ(edgeOf(menu, QColor(45, 45, 45), frames), QColor(150, 150, 150));
}

TEST(FramesOnBlackWindows, AreThoseOfTheStyleOnOtherWindows) {
  ReadableStyle frames(QStringLiteral("fusion"));
  QScopedPointer<QStyle> plain(QStyleFactory::create(QStringLiteral("fusion")));
  QLineEdit box;
  QLineEdit other;
  EXPECT_EQ(edgeOf(box, QColor(45, 45, 48), frames), edgeOf(other, QColor(45, 45, 48), *plain));
}

TEST(ReadableStyle, SelectedTextsCanBeReadOnEverySelectionColour) {
  for (const QColor& selection : {QColor(48, 140, 198), QColor(61, 174, 233), QColor(233, 84, 32)}) {
    QPalette palette;
    palette.setColor(QPalette::Highlight, selection);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    const QColor shown = withReadableTexts(palette).color(QPalette::Highlight);
    EXPECT_GE(contrastOf(Qt::white, shown), 4.5) << selection.name().toStdString();
    EXPECT_LE(std::abs(shown.hslHue() - selection.hslHue()), 1) << selection.name().toStdString();
  }
  QPalette palette;
  palette.setColor(QPalette::Highlight, QColor(255, 255, 0));
  palette.setColor(QPalette::HighlightedText, Qt::black);
  EXPECT_EQ(withReadableTexts(palette).color(QPalette::Highlight), QColor(255, 255, 0));
}

TEST(ReadableStyle, ItsWindowsHaveReadableSelectedTexts) {
  EXPECT_GE(contrastOf(QApplication::palette().color(QPalette::HighlightedText),
                       QApplication::palette().color(QPalette::Highlight)),
            4.5);
}

TEST(ReadableStyle, ItsWindowsHaveReadableQuietTexts) {
  EXPECT_GE(contrastOf(QApplication::palette().color(QPalette::PlaceholderText),
                       QApplication::palette().color(QPalette::Base)),
            4.5);
}

/// Of a button in a dialog of its own, on the screen.
qint64 paletteOfAButton() {
  QDialog dialog;
  QPushButton button(&dialog);
  dialog.show();
  return button.palette().cacheKey();
}

TEST(ReadableStyle, DialogsShareOnePaletteSoThatWhatWasDrawnOfTheFirstServesTheNext) {
  const qint64 first = paletteOfAButton();
  EXPECT_EQ(paletteOfAButton(), first);
  EXPECT_EQ(QApplication::palette().resolveMask(), 0U) << "it is the desktop's, not one set by the program";
}

TEST(ReadableStyle, ADesktopThatTurnsDarkIsFollowed) {
  QPalette dark;
  dark.setColor(QPalette::Text, Qt::white);
  dark.setColor(QPalette::Base, Qt::black);
  QApplication::style()->polish(dark);
  EXPECT_EQ(dark.color(QPalette::PlaceholderText), QColor(179, 179, 179));
}

template <typename Widget>
QImage drawn(Widget& widget, QStyle& style) {
  widget.setStyle(&style);
  widget.ensurePolished();
  widget.resize(300, 40);
  return widget.grab().toImage();
}

QImage drawnButton(const QString& caption, QStyle& style) {
  QPushButton button(caption);
  return drawn(button, style);
}

QImage drawnMenu(const QString& caption, QStyle& style) {
  QMenu menu;
  menu.addAction(caption)->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_E));
  return drawn(menu, style);
}

/// On a desktop that is read from right to left.
class EnglishCaptionsTest : public testing::Test {
 protected:
  EnglishCaptionsTest() { QApplication::setLayoutDirection(Qt::RightToLeft); }
  ~EnglishCaptionsTest() override { QApplication::setLayoutDirection(Qt::LeftToRight); }

  static QString isolated(const QString& text) { return u'\u2066' + text + u'\u2069'; }

  QProxyStyle plain_;
  ReadableStyle captions_;
};

TEST_F(EnglishCaptionsTest, KeepTheirEndsWhereTheyAreReadFromRightToLeft) {
  const QString question = QStringLiteral("Web Update?");
  for (const auto& draw : {&drawnButton, &drawnMenu}) {
    EXPECT_EQ(draw(question, captions_), draw(isolated(question), plain_));
    EXPECT_NE(draw(question, captions_), draw(question, plain_)) << "the question mark would come first";
  }
}

TEST_F(EnglishCaptionsTest, ThatArePlainWordsAreDrawnAsEver) {
  EXPECT_EQ(drawnButton(QStringLiteral("Find"), captions_), drawnButton(QStringLiteral("Find"), plain_));
}

TEST_F(EnglishCaptionsTest, InOtherScriptsAreDrawnAsEver) {
  const QString shalom = QStringLiteral("\u05E9\u05DC\u05D5\u05DD?");
  EXPECT_EQ(drawnButton(shalom, captions_), drawnButton(shalom, plain_));
}

TEST_F(EnglishCaptionsTest, AreDrawnAsEverFromLeftToRight) {
  QApplication::setLayoutDirection(Qt::LeftToRight);
  const QString question = QStringLiteral("Web Update?");
  EXPECT_EQ(drawnButton(question, captions_), drawnButton(question, plain_));
}

}  // namespace

}  // namespace quorvin::test
