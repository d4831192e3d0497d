// SPDX-License-Identifier: GPL-2.0-or-later

// Using the program by keys alone.
#pragma once

#include "support/eventually.h"

#include <QAccessible>
#include <QApplication>
#include <QPointer>
#include <QStringList>
#include <QTest>
#include <QTimer>
#include <QWidget>
#include <gtest/gtest.h>

#include <functional>

namespace quorvin::test {

/// Where the window system sends a key: an open menu takes it, else what has the focus, else the window.
inline QWidget* keyTarget() {
  if (QWidget* menu = QApplication::activePopupWidget()) return menu;
  if (QWidget* focus = QApplication::focusWidget()) return focus;
  return QApplication::activeWindow();
}

inline void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, int times = 1) {
  for (int time = 0; time < times; ++time) {
    ASSERT_NE(keyTarget(), nullptr) << "no window takes the key";
    QTest::keyClick(keyTarget(), key, modifiers);
  }
}

inline void typeText(const QString& text) {
  ASSERT_NE(keyTarget(), nullptr) << "no window takes the keys";
  QTest::keyClicks(keyTarget(), text);
}

/// Types `text` over what is in the box that has the focus.
inline void typeOver(const QString& text) {
  press(Qt::Key_A, Qt::ControlModifier);
  typeText(text);
}

/// What has the focus, by the name that the program knows it by, else by the one that is read.
inline QString focusName() {
  QWidget* focus = QApplication::focusWidget();
  if (!focus) return QStringLiteral("(nothing)");
  if (!focus->objectName().isEmpty()) return focus->objectName();
  return QAccessible::queryAccessibleInterface(focus)->text(QAccessible::Name);
}

/// Where Tab leads, from where the focus is until it comes back there.
inline QString tabStops() {
  constexpr int kMostStops = 60;
  QStringList stops = {focusName()};
  const QWidget* first = QApplication::focusWidget();
  for (int step = 0; step < kMostStops; ++step) {
    press(Qt::Key_Tab);
    if (QApplication::focusWidget() == first) return stops.join(u' ');
    if (stops.last() != focusName()) stops.append(focusName());
  }
  return stops.join(u' ') + QStringLiteral(" (and never back)");
}

/// Presses Tab until the control of this name has the focus.
inline void tabTo(const char* name) {
  constexpr int kMostSteps = 60;
  for (int step = 0; step < kMostSteps && focusName() != QString::fromLatin1(name); ++step)
    press(Qt::Key_Tab);
  ASSERT_EQ(focusName(), QString::fromLatin1(name));
}

/// Brings `window` to the front, as choosing it by the keys of the desktop does.
inline void activate(QWidget& window) {
  window.show();
  window.activateWindow();
  ASSERT_TRUE(eventually([&window] { return QApplication::activeWindow() == &window; }));
}

/// Runs `open`, which shows a dialog modally, and does `action` as soon as the dialog takes keys. A dialog
/// that is still open afterwards is a failure, and is closed so that the test ends.
template <typename Dialog>
void inDialog(const std::function<void()>& open, const std::function<void(Dialog&)>& action) {
  bool cameUp = false;
  const QPointer<QWidget> owner = QApplication::activeWindow();
  QTimer watch;
  QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
    auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
    if (!dialog || QApplication::activeWindow() != dialog) return;
    watch.stop();
    cameUp = true;
    action(*dialog);
    EXPECT_FALSE(dialog->isVisible()) << "the keys have not closed the dialog";
    if (dialog->isVisible()) dialog->reject();
  });
  watch.start(1);
  open();
  EXPECT_TRUE(cameUp) << "the keys have opened no such dialog";
  // There is no desktop here that would give the keys back to the window before.
  if (owner && owner->isVisible()) activate(*owner);
}

}  // namespace quorvin::test
