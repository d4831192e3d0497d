// SPDX-License-Identifier: GPL-2.0-or-later

// The controls of the source editor, and their places.
#pragma once

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSize>
#include <QTreeView>

#include <vector>

namespace quorvin {

/// The list of entries, any number of which may be selected. Keys that mean something to the dialog stay in
/// it.
class SourceListView : public QTreeView {
  Q_OBJECT

 public:
  explicit SourceListView(QWidget* parent);

  /// The selected rows, counted from 0, in ascending order.
  std::vector<int> selectedRows() const;
  /// Selects just these rows, which are there and ascend, and goes to the first.
  void selectRows(const std::vector<int>& rows);

 Q_SIGNALS:
  void deletePressed();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void selectCurrentOf(int key);
};

/// The controls of `LocalLoc`; the window owns them.
struct LocalLocControls {
  SourceListView* Online;
  QPushButton* MvUp;
  QPushButton* MvDn;
  QPushButton* LocDel;
  QLabel* Label1;
  QLineEdit* Desc;
  QLabel* Label2;
  QLineEdit* LocalDataFolder;
  QPushButton* GetListName;
  QPushButton* LocAdd;
  /// Picks sources and puts them into the list at once.
  QPushButton* AddSources;
  QLabel* Notice;
  QPushButton* OK;
  QPushButton* SaveOffLine;
  QPushButton* Cancel;
  /// In the context menu of the list; their keys work in the whole dialog.
  QAction* Undo;
  QAction* Redo;
};

/// Makes the controls as children of `parent`, with their names, texts and tab order; they are not placed
/// yet.
LocalLocControls makeLocalLocControls(QWidget* parent);

/// Sets the caption of `Label2`, and what a screen reader calls the box beside it.
void setPathCaption(const LocalLocControls& controls, const QString& caption);

/// Shows `text` as one line between the boxes and the ways out, its end left out where it is too long, and
/// has screen readers say it; empty for none.
void setNotice(const LocalLocControls& controls, const QString& text);

/// Gives each control its place for the fonts in use, as the dialog opens in the mode for folders. The result
/// is the inner size that the controls take up; the dialog must not be made smaller.
QSize placeLocalLocControls(const LocalLocControls& controls);

/// How large the dialog is when it opens.
QSize initialLocalLocSize(const LocalLocControls& controls, QSize least);

/// Follows the dialog's inner size, which has grown by `growth`: the list and the path box take what there
/// is, the rest keeps its distance from the edges.
void stretchLocalLocControls(const LocalLocControls& controls, QSize growth);

/// Where the desktop is written from right to left, exchanges left and right in a dialog of that inner width:
/// what was placed as the other functions do is then as it is shown, and the other way round.
void mirrorLocalLocControls(const LocalLocControls& controls, int width);

/// Gives the room of the description box and its label to the path box, whose right edge stays where it is.
void widenPathOverDescription(const LocalLocControls& controls);

}  // namespace quorvin
