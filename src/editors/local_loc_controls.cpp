#include "editors/local_loc_controls.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QStyledItemDelegate>

#include <algorithm>

namespace quorvin {

namespace {

/// Rows with a little air between them.
class RoomyRows : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const QSize usual = QStyledItemDelegate::sizeHint(option, index);
    return {usual.width(), std::max(usual.height(), option.fontMetrics.height() * 5 / 4)};
  }
};

QPushButton* makeButton(QWidget* parent, const QString& name, const QString& caption) {
  auto* button = new QPushButton(caption, parent);
  button->setObjectName(name);
  return button;
}

QLabel* makeLabel(QWidget* parent, const QString& name, QLineEdit* buddy) {
  auto* label = new QLabel(parent);
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  label->setBuddy(buddy);
  return label;
}

QLineEdit* makeEdit(QWidget* parent, const QString& name, const QString& text) {
  auto* edit = new QLineEdit(text, parent);
  edit->setObjectName(name);
  return edit;
}

QPushButton* makeBrowseButton(QWidget* parent) {
  const QString meaning = QStringLiteral("Browse for a File Location Path");
  QPushButton* button = makeButton(parent, QStringLiteral("GetListName"), QStringLiteral("..."));
  button->setToolTip(meaning);
  button->setAccessibleName(meaning);
  return button;
}

}  // namespace

SourceListView::SourceListView(QWidget* parent) : QTreeView(parent) {
  setObjectName(QStringLiteral("Online"));
  setAccessibleName(QStringLiteral("Search locations"));
  setRootIsDecorated(false);
  setUniformRowHeights(true);
  setItemDelegate(new RoomyRows(this));
  setAllColumnsShowFocus(true);
  // Of a path both ends matter.
  setTextElideMode(Qt::ElideMiddle);
  setSelectionMode(QAbstractItemView::SingleSelection);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  // Tab leads to the next control, as everywhere in the dialog.
  setTabKeyNavigation(false);
  header()->setSectionsMovable(false);
}

int SourceListView::selectedRow() const {
  const QModelIndexList rows = selectionModel()->selectedRows();
  return rows.isEmpty() ? -1 : rows.first().row();
}

void SourceListView::selectRow(int row) {
  setCurrentIndex(model()->index(row, 0));
}

void SourceListView::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Delete:
      Q_EMIT deletePressed();
      return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      // The dialog would take it for its default button, and add what stands in the boxes.
      return;
    default:
      QTreeView::keyPressEvent(event);
  }
}

LocalLocControls makeLocalLocControls(QWidget* parent) {
  LocalLocControls made{};
  // In tab order.
  made.Online = new SourceListView(parent);
  made.MvUp = makeButton(parent, QStringLiteral("MvUp"), QStringLiteral("Move Selected Up"));
  made.MvDn = makeButton(parent, QStringLiteral("MvDn"), QStringLiteral("Move Selected Down"));
  made.LocDel = makeButton(parent, QStringLiteral("LocDel"), QStringLiteral("Delete Selected"));
  made.Desc = makeEdit(parent, QStringLiteral("Desc"), QStringLiteral("Online"));
  made.LocalDataFolder = makeEdit(parent, QStringLiteral("LocalDataFolder"), {});
  made.GetListName = makeBrowseButton(parent);
  made.LocAdd = makeButton(parent, QStringLiteral("LocAdd"), QStringLiteral("Add"));
  made.LocAdd->setDefault(true);
  made.OK = makeButton(parent, QStringLiteral("OK"), QStringLiteral("Save"));
  made.SaveOffLine = makeButton(parent, QStringLiteral("SaveOffLine"), QStringLiteral("Save"));
  made.SaveOffLine->hide();
  made.Cancel = makeButton(parent, QStringLiteral("Cancel"), QStringLiteral("Cancel"));

  made.Label1 = makeLabel(parent, QStringLiteral("Label1"), made.Desc);
  made.Label1->setText(QStringLiteral("Description"));
  made.Desc->setAccessibleName(QStringLiteral("Description"));
  made.Label2 = makeLabel(parent, QStringLiteral("Label2"), made.LocalDataFolder);
  setPathCaption(made, QStringLiteral("Path"));
  return made;
}

void setPathCaption(const LocalLocControls& controls, const QString& caption) {
  controls.Label2->setText(caption);
  controls.Label2->resize(controls.Label2->sizeHint());
  controls.LocalDataFolder->setAccessibleName(caption);
}

}  // namespace quorvin
