// What a screen reader reads of a window.
#pragma once

#include <QAccessible>
#include <QString>
#include <QWidget>

#include <vector>

namespace quorvin::test {

/// One thing of a window's accessible tree.
struct Reading {
  /// Empty for what is no object of its own, a row of a list for example.
  QString objectName;
  QAccessible::Role role = QAccessible::NoRole;
  QString name;
  bool isVisible = false;
};

/// Everything below `window` that a reader can come to, from top to bottom; other windows are left out.
std::vector<Reading> readingsOf(QWidget& window);

/// Whether what has this role only holds other things, or parts them, so that nothing is read for itself.
bool needsNoName(QAccessible::Role role);

/// For messages: "EditableText SearchStr: Search text".
std::string toText(const Reading& reading);

}  // namespace quorvin::test
