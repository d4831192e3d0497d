// SPDX-License-Identifier: GPL-2.0-or-later
#include "editors/local_loc_controls.h"

#include "editors/source_list_model.h"
#include "platform/screen_room.h"
#include "platform/text_direction.h"
#include "texts/texts.h"

#include <QAccessible>
#include <QApplication>
#include <QFontMetrics>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QStyledItemDelegate>

#include <algorithm>
#include <initializer_list>

namespace quorvin {
namespace {

constexpr int kLeastListCharacters = 46;
constexpr int kInitialListCharacters = 84;
constexpr int kDescriptionCharacters = 18;
constexpr int kInitialRows = 16;

/// The distances of the layout follow the font, so that they grow with it.
struct Distances {
  explicit Distances(const QFontMetrics& metrics)
      : margin(metrics.height() * 3 / 4),
        between(metrics.height() / 2),
        besideLabel(metrics.height() / 4),
        betweenGroups(metrics.height()) {}
  int margin;
  int between;
  int besideLabel;
  int betweenGroups;
};

int widestOf(std::initializer_list<const QWidget*> widgets) {
  int width = 0;
  for (const QWidget* widget : widgets) width = std::max(width, widget->sizeHint().width());
  return width;
}

int tallestOf(std::initializer_list<const QWidget*> widgets) {
  int height = 0;
  for (const QWidget* widget : widgets) height = std::max(height, widget->sizeHint().height());
  return height;
}

int characters(const QWidget* widget, int count) {
  return widget->fontMetrics().averageCharWidth() * count;
}

void moveBy(std::initializer_list<QWidget*> widgets, int right, int down) {
  for (QWidget* widget : widgets) widget->move(widget->x() + right, widget->y() + down);
}

void growBy(QWidget* widget, int wider, int taller) {
  widget->resize(widget->width() + wider, widget->height() + taller);
}

/// Between text and background, for what is of less weight; still far above the contrast that text needs.
QColor quietColour(const QColor& text, const QColor& background) {
  const auto mix = [](int one, int other) { return (7 * one + 3 * other) / 10; };
  return {mix(text.red(), background.red()), mix(text.green(), background.green()),
          mix(text.blue(), background.blue())};
}

/// Rows with a little air between them, and what is known of a source behind its path.
class SourceRows : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const QString status = index.data(kSourceStatusRole).toString();
    if (status.isEmpty()) return QStyledItemDelegate::paint(painter, option, index);
    const int gap = option.fontMetrics.height() / 2;
    // One more, since the text may be wider than the whole number of pixels.
    const int wanted = option.fontMetrics.horizontalAdvance(status) + 2 * gap + 1;
    const int width = std::min(wanted, option.rect.width() * 3 / 5);
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const QStyle* style = cell.widget ? cell.widget->style() : QApplication::style();
    style->drawPrimitive(QStyle::PE_PanelItemViewItem, &cell, painter, cell.widget);
    QStyleOptionViewItem path = option;
    path.rect.setWidth(option.rect.width() - width);
    if (option.direction == Qt::RightToLeft) path.rect.moveRight(option.rect.right());
    QStyledItemDelegate::paint(painter, path, index);
    paintStatus(*painter, cell, status, width, gap);
  }

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const QSize usual = QStyledItemDelegate::sizeHint(option, index);
    return {usual.width(), std::max(usual.height(), option.fontMetrics.height() * 5 / 4)};
  }

 protected:
  /// A path begins with its separator wherever people start to read.
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    if (index.column() == 1) option->text = englishWithin(option->direction, option->text);
  }

 private:
  static void paintStatus(QPainter& painter, const QStyleOptionViewItem& cell, const QString& status,
                          int width, int gap) {
    QRect place = cell.rect.adjusted(cell.rect.width() - width + gap, 0, -gap, 0);
    place = QStyle::visualRect(cell.direction, cell.rect, place);
    const bool isSelected = cell.state.testFlag(QStyle::State_Selected);
    const bool isActive = cell.state.testFlag(QStyle::State_Active);
    const auto group = isActive ? QPalette::Active : QPalette::Inactive;
    const QColor text = cell.palette.color(group, QPalette::Text);
    painter.save();
    painter.setFont(cell.font);
    // English, whatever the direction of the desktop: "3 entries" would become "entries 3".
    painter.setLayoutDirection(Qt::LeftToRight);
    painter.setPen(isSelected ? cell.palette.color(group, QPalette::HighlightedText)
                              : quietColour(text, cell.palette.color(group, QPalette::Base)));
    painter.drawText(place,
                     static_cast<int>(QStyle::visualAlignment(cell.direction, Qt::AlignRight) |
                                      Qt::AlignVCenter | Qt::TextSingleLine),
                     cell.fontMetrics.elidedText(status, Qt::ElideRight, place.width()));
    painter.restore();
  }
};

QAction* makeAction(QWidget* parent, const QString& name, const QString& caption,
                    const QList<QKeySequence>& keys) {
  auto* action = new QAction(caption, parent);
  action->setObjectName(name);
  action->setShortcuts(keys);
  action->setShortcutVisibleInContextMenu(true);
  action->setEnabled(false);
  parent->addAction(action);
  return action;
}

/// In a box the keys take back what was typed there, as long as there is anything of it.
class LeavesUndo : public QObject {
 public:
  using QObject::QObject;

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::ShortcutOverride) return false;
    const auto* edit = static_cast<const QLineEdit*>(watched);
    const auto* key = static_cast<QKeyEvent*>(event);
    const bool leaves = (key->matches(QKeySequence::Undo) && !edit->isUndoAvailable()) ||
                        (key->matches(QKeySequence::Redo) && !edit->isRedoAvailable());
    if (leaves) event->ignore();
    return leaves;
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
  const QString meaning = Texts::tr("Browse for a File Location Path");
  QPushButton* button = makeButton(parent, QStringLiteral("GetListName"), QStringLiteral("..."));
  button->setToolTip(meaning);
  button->setAccessibleName(meaning);
  return button;
}

}  // namespace

SourceListView::SourceListView(QWidget* parent) : QTreeView(parent) {
  setObjectName(QStringLiteral("Online"));
  setAccessibleName(Texts::tr("Search locations"));
  setRootIsDecorated(false);
  setUniformRowHeights(true);
  setItemDelegate(new SourceRows(this));
  setAllColumnsShowFocus(true);
  // Of a path both ends matter.
  setTextElideMode(Qt::ElideMiddle);
  setSelectionMode(QAbstractItemView::ExtendedSelection);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  // Tab leads to the next control, as everywhere in the dialog.
  setTabKeyNavigation(false);
  header()->setSectionsMovable(false);
}

std::vector<int> SourceListView::selectedRows() const {
  std::vector<int> rows;
  for (const QModelIndex& index : selectionModel()->selectedRows()) rows.push_back(index.row());
  std::sort(rows.begin(), rows.end());
  return rows;
}

void SourceListView::selectRows(const std::vector<int>& rows) {
  if (rows.empty()) return;
  QItemSelection selection;
  for (auto start = rows.begin(); start != rows.end();) {
    auto end = start + 1;
    while (end != rows.end() && *end == *(end - 1) + 1) ++end;
    selection.append(QItemSelectionRange(model()->index(*start, 0), model()->index(*(end - 1), 1)));
    start = end;
  }
  selectionModel()->setCurrentIndex(model()->index(rows.front(), 0), QItemSelectionModel::NoUpdate);
  selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

void SourceListView::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Delete:
      Q_EMIT deletePressed();
      return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      // The dialog would take it for its default button, and add what is in the boxes.
      return;
    default:
      QTreeView::keyPressEvent(event);
  }
  selectCurrentOf(event->key());
}

/// A row that is the current one already, such as the only one, is not selected by a key that leads to it.
void SourceListView::selectCurrentOf(int key) {
  const bool leadsToRow =
      key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_Home || key == Qt::Key_End;
  if (!leadsToRow || !currentIndex().isValid() || selectionModel()->hasSelection()) return;
  selectionModel()->select(currentIndex(), QItemSelectionModel::Select | QItemSelectionModel::Rows);
}

LocalLocControls makeLocalLocControls(QWidget* parent) {
  LocalLocControls made{};
  // In tab order.
  made.Online = new SourceListView(parent);
  made.MvUp = makeButton(parent, QStringLiteral("MvUp"), Texts::tr("Move Selected Up"));
  made.MvDn = makeButton(parent, QStringLiteral("MvDn"), Texts::tr("Move Selected Down"));
  made.LocDel = makeButton(parent, QStringLiteral("LocDel"), Texts::tr("Delete Selected"));
  made.Desc = makeEdit(parent, QStringLiteral("Desc"), QStringLiteral("Online"));
  made.LocalDataFolder = makeEdit(parent, QStringLiteral("LocalDataFolder"), {});
  made.GetListName = makeBrowseButton(parent);
  made.LocAdd = makeButton(parent, QStringLiteral("LocAdd"), Texts::tr("Add"));
  made.LocAdd->setDefault(true);
  made.AddSources = makeButton(parent, QStringLiteral("AddSources"), Texts::tr("Add Fol&ders..."));
  made.AddSources->setToolTip(Texts::tr("Pick folders, which are in the list at once"));
  made.Notice = makeLabel(parent, QStringLiteral("Notice"), nullptr);
  made.Notice->hide();
  made.OK = makeButton(parent, QStringLiteral("OK"), Texts::tr("Save"));
  made.SaveOffLine = makeButton(parent, QStringLiteral("SaveOffLine"), Texts::tr("Save"));
  made.SaveOffLine->hide();
  made.Cancel = makeButton(parent, QStringLiteral("Cancel"), Texts::tr("Cancel"));

  made.Label1 = makeLabel(parent, QStringLiteral("Label1"), made.Desc);
  made.Label1->setText(Texts::tr("Description"));
  made.Desc->setAccessibleName(Texts::tr("Description"));
  made.Label2 = makeLabel(parent, QStringLiteral("Label2"), made.LocalDataFolder);
  setPathCaption(made, Texts::tr("Path"));

  made.Undo = makeAction(parent, QStringLiteral("Undo"), Texts::tr("&Undo"), {Qt::CTRL | Qt::Key_Z});
  made.Redo = makeAction(parent, QStringLiteral("Redo"), Texts::tr("&Redo"),
                         {Qt::CTRL | Qt::SHIFT | Qt::Key_Z, Qt::CTRL | Qt::Key_Y});
  made.Online->addActions({made.Undo, made.Redo});
  made.Online->setContextMenuPolicy(Qt::ActionsContextMenu);
  auto* leavesUndo = new LeavesUndo(parent);
  made.Desc->installEventFilter(leavesUndo);
  made.LocalDataFolder->installEventFilter(leavesUndo);
  return made;
}

void setPathCaption(const LocalLocControls& controls, const QString& caption) {
  controls.Label2->setText(caption);
  controls.Label2->resize(controls.Label2->sizeHint());
  controls.LocalDataFolder->setAccessibleName(caption);
}

void setNotice(const LocalLocControls& controls, const QString& text) {
  QLabel* notice = controls.Notice;
  const bool isNew = notice->toolTip() != text;
  notice->setToolTip(text);
  notice->setAccessibleName(text);
  notice->setText(notice->fontMetrics().elidedText(text, Qt::ElideRight, notice->width()));
  notice->setVisible(!text.isEmpty());
  if (!isNew || text.isEmpty()) return;
  QAccessibleEvent said(notice, QAccessible::Alert);
  QAccessible::updateAccessibility(&said);
}

QSize placeLocalLocControls(const LocalLocControls& controls) {
  const Distances distances(controls.Online->fontMetrics());
  const int buttonHeight = controls.LocAdd->sizeHint().height();
  const int boxHeight = tallestOf({controls.LocAdd, controls.Desc});
  const int labelHeight = controls.Label1->sizeHint().height();
  const int left = distances.margin;

  // The list with the buttons for it in a column at its right. With large letters it leaves them room on the
  // screen.
  const int screenWidth = largestInside(*controls.Online->screen()).width();
  const int captions = widestOf({controls.MvUp, controls.MvDn, controls.LocDel, controls.LocAdd});
  const int besideList = captions + distances.between + 2 * distances.margin;
  const int usualListWidth = characters(controls.Online, kLeastListCharacters);
  const bool isTight = usualListWidth + besideList + distances.between > screenWidth;
  const int sideWidth = captions + (isTight ? 0 : distances.between);
  const int listWidth = std::min(usualListWidth, screenWidth - besideList);
  const int listRight = left + listWidth;
  const int sideLeft = listRight + distances.between;
  const int listTop = distances.margin;
  int y = listTop;
  for (QPushButton* button : {controls.MvUp, controls.MvDn, controls.LocDel}) {
    button->setGeometry(sideLeft, y, sideWidth, buttonHeight);
    y += buttonHeight + distances.between;
  }
  controls.Online->setGeometry(left, listTop, listWidth, y - distances.between - listTop);
  const int descriptionWidth =
      std::max(controls.Label1->sizeHint().width(),
               std::min(characters(controls.Desc, kDescriptionCharacters), listWidth * 2 / 5));
  controls.Online->header()->resizeSection(0, descriptionWidth);

  // The boxes for a new entry, under their labels; the browse button ends where the list ends.
  y = controls.Online->geometry().bottom() + 1 + distances.betweenGroups;
  const int pathLeft = left + descriptionWidth + distances.between;
  controls.Label1->setGeometry(left, y, descriptionWidth, labelHeight);
  controls.Label2->setGeometry(pathLeft, y, controls.Label2->sizeHint().width(), labelHeight);
  y += labelHeight + distances.besideLabel;
  const int browseWidth = boxHeight * 5 / 4;
  const int browseLeft = listRight - browseWidth;
  controls.Desc->setGeometry(left, y, descriptionWidth, boxHeight);
  controls.LocalDataFolder->setGeometry(pathLeft, y, browseLeft - distances.besideLabel - pathLeft,
                                        boxHeight);
  controls.GetListName->setGeometry(browseLeft, y, browseWidth, boxHeight);
  controls.LocAdd->setGeometry(sideLeft, y, sideWidth, boxHeight);

  // A line that is there only when there is something to say.
  y += boxHeight + distances.besideLabel;
  controls.Notice->setGeometry(left, y, sideLeft + sideWidth - left, labelHeight);

  // The quick way to add many at the left, the ways out at the right; both buttons to save have one place.
  y += labelHeight + distances.between;
  const int wayOutWidth = widestOf({controls.OK, controls.SaveOffLine, controls.Cancel});
  const int cancelLeft = sideLeft + sideWidth - wayOutWidth;
  const int saveLeft = cancelLeft - distances.between - wayOutWidth;
  controls.AddSources->setGeometry(left, y, controls.AddSources->sizeHint().width(), buttonHeight);
  controls.OK->setGeometry(saveLeft, y, wayOutWidth, buttonHeight);
  controls.SaveOffLine->setGeometry(saveLeft, y, wayOutWidth, buttonHeight);
  controls.Cancel->setGeometry(cancelLeft, y, wayOutWidth, buttonHeight);
  return {sideLeft + sideWidth + distances.margin, y + buttonHeight + distances.margin};
}

QSize initialLocalLocSize(const LocalLocControls& controls, QSize least) {
  const int listWidth = characters(controls.Online, kInitialListCharacters);
  const int rowHeight = controls.Online->fontMetrics().height() * 5 / 4;
  const int listHeight = controls.Online->header()->sizeHint().height() + rowHeight * kInitialRows;
  const QSize growth(listWidth - controls.Online->width(), listHeight - controls.Online->height());
  return least + growth.expandedTo({0, 0});
}

void stretchLocalLocControls(const LocalLocControls& controls, QSize growth) {
  const int wider = growth.width();
  const int taller = growth.height();
  growBy(controls.Online, wider, taller);
  moveBy({controls.MvUp, controls.MvDn, controls.LocDel}, wider, 0);
  moveBy({controls.Label1, controls.Desc, controls.Label2, controls.LocalDataFolder}, 0, taller);
  growBy(controls.LocalDataFolder, wider, 0);
  moveBy({controls.Notice, controls.AddSources}, 0, taller);
  growBy(controls.Notice, wider, 0);
  moveBy({controls.GetListName, controls.LocAdd, controls.OK, controls.SaveOffLine, controls.Cancel}, wider,
         taller);
}

void mirrorLocalLocControls(const LocalLocControls& controls, int width) {
  for (QWidget* widget : std::initializer_list<QWidget*>{
           controls.Online, controls.MvUp, controls.MvDn, controls.LocDel, controls.Label1, controls.Desc,
           controls.Label2, controls.LocalDataFolder, controls.GetListName, controls.LocAdd,
           controls.AddSources, controls.Notice, controls.OK, controls.SaveOffLine, controls.Cancel}) {
    widget->setGeometry(
        QStyle::visualRect(widget->layoutDirection(), QRect(0, 0, width, 1), widget->geometry()));
  }
}

void widenPathOverDescription(const LocalLocControls& controls) {
  QLineEdit* path = controls.LocalDataFolder;
  growBy(path, path->x() - controls.Desc->x(), 0);
  controls.Label2->move(controls.Label1->x(), controls.Label2->y());
  path->move(controls.Desc->x(), path->y());
}

}  // namespace quorvin
