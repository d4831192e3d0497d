// SPDX-License-Identifier: GPL-2.0-or-later

// Using a dialog as a person does.
#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include <functional>

namespace quorvin::test {

inline void click(QAbstractButton* button) {
  QTest::mouseClick(button, Qt::LeftButton);
}

/// Types `text` over what is in `edit`, key by key.
inline void type(QLineEdit* edit, const QString& text) {
  edit->setFocus();
  edit->selectAll();
  QTest::keyClick(edit, Qt::Key_Delete);
  QTest::keyClicks(edit, text);
}

inline void showAndActivate(QWidget& window) {
  window.show();
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
}

/// Runs `open`, which shows a dialog modally, and does `action` with the dialog once it is up. A dialog that
/// is still open afterwards is closed, so that a failing test ends. False when the dialog did not come up.
template <typename Dialog>
bool duringModal(const std::function<void()>& open, const std::function<void(Dialog&)>& action) {
  bool cameUp = false;
  QTimer::singleShot(0, [&] {
    auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
    if (!dialog) return;
    cameUp = true;
    action(*dialog);
    if (dialog->isVisible()) dialog->reject();
  });
  open();
  return cameUp;
}

}  // namespace quorvin::test
