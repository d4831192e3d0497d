// SPDX-License-Identifier: GPL-2.0-or-later

// Whether a window shows all of itself.
#pragma once

#include <QString>
#include <QWidget>

namespace quorvin::test {

/// Class and name of a widget, for messages.
QString described(const QWidget* widget);

/// The room that a caption takes, without the "&" in front of its letter.
int textWidth(const QWidget* widget, const QString& text);

/// With the frame of a usual desktop the window is on its screen.
void expectIsOnScreen(const QWidget& window);

/// The window is on its screen with the frame of a usual desktop, nothing of it is outside, no caption is
/// cut, and each letter of a caption leads to one control.
void expectFits(const QWidget& window);

}  // namespace quorvin::test
