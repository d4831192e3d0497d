// SPDX-License-Identifier: GPL-2.0-or-later

// Windows as a screen reader finds them: what tests of them have in common.
#pragma once

#include "accessibility/readings.h"
#include "editors/dialog_driving.h"
#include "gui/search_form_fixture.h"

#include <QAccessible>
#include <QDialog>

#include <functional>
#include <vector>

namespace quorvin::test {

class ReadWindows : public SearchFormTest {
 protected:
  static void expectReadings(QWidget& window, const QString& lines) {
    const std::vector<Reading> readings = readingsOf(window);
    EXPECT_EQ(asLines(readings).toStdString(), lines.toStdString());
    EXPECT_EQ(faultsOf(readings).join(u'\n').toStdString(), "");
  }
  static QAccessible::Role roleOf(QWidget& window) {
    return QAccessible::queryAccessibleInterface(&window)->role();
  }
  /// Shows a dialog by `open` and looks at it.
  void expectReadingsOfDialog(const std::function<void()>& open, const QString& objectName,
                              const QString& title, const QString& lines) {
    // Showing the main window lets events run, which would be taken for those of the dialog.
    form();
    EXPECT_TRUE(duringModal<QDialog>(open, [&](QDialog& dialog) {
      EXPECT_EQ(dialog.objectName(), objectName);
      EXPECT_EQ(dialog.windowTitle(), title);
      expectReadings(dialog, lines);
    }));
  }
};

}  // namespace quorvin::test
