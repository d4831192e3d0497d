// The controls of the source editor.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeView>

namespace quorvin {

/// The list of entries: one row is selected at most, and the keys that mean something to the dialog stay in
/// it.
class SourceListView : public QTreeView {
  Q_OBJECT

 public:
  explicit SourceListView(QWidget* parent);

  /// The selected row, counted from 0; -1 when none is selected.
  int selectedRow() const;
  void selectRow(int row);

 Q_SIGNALS:
  void deletePressed();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
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
  QPushButton* OK;
  QPushButton* SaveOffLine;
  QPushButton* Cancel;
};

/// Makes the controls as children of `parent`, with their names, texts and tab order; they have no places
/// yet.
LocalLocControls makeLocalLocControls(QWidget* parent);

/// Sets the caption of `Label2`, and what a screen reader calls the box beside it.
void setPathCaption(const LocalLocControls& controls, const QString& caption);

}  // namespace quorvin
