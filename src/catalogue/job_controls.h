// SPDX-License-Identifier: GPL-2.0-or-later

// Controls of the windows that do something long in another thread.
#pragma once

#include <QAbstractItemModel>
#include <QLabel>
#include <QPushButton>
#include <QString>
#include <QTreeView>
#include <QWidget>

#include <chrono>

namespace quorvin {

/// How often a window looks at what its thread does: often enough for the eye.
inline constexpr std::chrono::milliseconds kBetweenLooks{50};

/// What the button that starts something is called while that goes on.
QString stopCaption();

/// The button that starts something, as wide as stopCaption() needs too, so that nothing moves when it
/// changes.
QPushButton* makeStartButton(const QString& caption);

/// Gives a window whose rows have so many characters its first size, inside its screen.
void sizeForRows(QWidget& window, int characters);

/// A tree for what a thread has found; it does not take the model over.
QTreeView* makeTree(QAbstractItemModel* rows);
/// The same, sorted by a click on a title; the third click brings the order of the model back.
QTreeView* makeSortedTree(QAbstractItemModel* rows);

/// Makes each column as wide as what is seen of it, and none wider than is good for the others.
void fitTreeColumns(QTreeView& tree);

/// Puts the selected rows on the clipboard: tabs between the columns, a line for each row, in the order of
/// the tree.
void copySelectedRows(const QTreeView& tree);

/// A caption whose letter leads to the control.
QLabel* captionOf(QWidget* control, const QString& text);

}  // namespace quorvin
