// The controls of the main window.
#pragma once

#include "app/hit_list.h"

#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QWidget>

namespace quorvin {

/// A line edit whose frame stands a little away from the control's right edge, so that the control itself can
/// reach to the edge of the window.
class EdgeLineEdit : public QLineEdit {
  Q_OBJECT

 public:
  using QLineEdit::QLineEdit;
  void setEdgeMargin(int pixels);

 protected:
  void initStyleOption(QStyleOptionFrame* option) const override;

 private:
  int edgeMargin_ = 0;
};

/// The controls inside the main window, below the menu bar. The window owns them; they are made once and
/// live as long as it does.
struct SearchFormControls {
  QFrame* MenuLine;
  QLabel* searchLabel;
  EdgeLineEdit* SearchStr;
  QLabel* matchLabel;
  QLineEdit* DesMatch;
  QPushButton* Find;
  QLabel* foundLabel;
  QLabel* lblFound;
  QLabel* searchedLabel;
  QLabel* lblSearched;
  QPushButton* WebUpdate;
  QLabel* lblVer;
  HitListView* HitList;
};

/// Makes the controls as children of `parent`, with their names, captions and tab order; they have no places
/// yet.
SearchFormControls makeControls(QWidget* parent);

}  // namespace quorvin
