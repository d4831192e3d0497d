// SPDX-License-Identifier: GPL-2.0-or-later

// What a screen reader reads of a window.
#pragma once

#include <QAccessible>
#include <QString>
#include <QStringList>
#include <QWidget>

#include <vector>

namespace quorvin::test {

/// One thing of a window's accessible tree.
struct Reading {
  /// Empty for what is not an object, for example a row of a list.
  QString objectName;
  QAccessible::Role role = QAccessible::NoRole;
  QString name;
  /// The name of the label that belongs to it; empty where there is none.
  QString label;
  /// What it shows as its own text, without the mark of the key.
  QString caption;
  bool isVisible = false;
};

/// Everything below `window` that a reader can come to, in the order of the tree; other windows are left out.
std::vector<Reading> readingsOf(QWidget& window);

/// The readings as lines, "EditableText SearchStr: Search text"; those of hidden controls end with
/// " (hidden)". What only holds other things and says nothing by itself is left out.
QString asLines(const std::vector<Reading>& readings);

/// What would leave a listener in the dark, one sentence each: a control without a name, or with one that
/// holds no word, or that only a programmer knows, or that another visible control of the kind has as well.
QStringList faultsOf(const std::vector<Reading>& readings);

}  // namespace quorvin::test
