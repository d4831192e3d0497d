// SPDX-License-Identifier: GPL-2.0-or-later
#include "hits/hit_list.h"
#include "texts/texts.h"

#include <QAccessible>
#include <QAccessibleInterface>
#include <QAccessibleWidget>
#include <QHash>
#include <QPointer>

#include <deque>

namespace quorvin {

namespace {

/// One row. It reads the model each time it is asked and is identified by its number, so it stays right when
/// the rows are exchanged.
class RowAccessible : public QAccessibleInterface {
 public:
  RowAccessible(HitListView* view, int row) : view_(view), row_(row) {}

  bool isValid() const override { return view_ && view_->model() && row_ < view_->model()->rowCount(); }
  QObject* object() const override { return nullptr; }
  QWindow* window() const override { return view_ ? view_->window()->windowHandle() : nullptr; }
  QAccessibleInterface* parent() const override {
    return view_ ? QAccessible::queryAccessibleInterface(view_) : nullptr;
  }
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  void setText(QAccessible::Text, const QString&) override {}
  QAccessible::Role role() const override { return QAccessible::ListItem; }
  int row() const { return row_; }

  QString text(QAccessible::Text kind) const override {
    if (!isValid()) return {};
    if (kind == QAccessible::Name) return nameOfRow();
    if (kind != QAccessible::Description) return {};
    return cell(0).data(Qt::AccessibleDescriptionRole).toString();
  }

  QRect rect() const override {
    if (!isValid()) return {};
    const QRect inView = view_->rowRect(row_);
    if (inView.isEmpty()) return {};
    return {view_->viewport()->mapToGlobal(inView.topLeft()), inView.size()};
  }

  QAccessible::State state() const override {
    QAccessible::State state;
    if (!isValid()) {
      state.invalid = true;
      return state;
    }
    state.selectable = true;
    state.extSelectable = true;
    state.focusable = true;
    state.selected = view_->selectionModel()->isSelected(cell(0));
    state.focused = view_->hasFocus() && view_->currentIndex().row() == row_;
    state.offscreen = view_->rowRect(row_).isEmpty();
    return state;
  }

 private:
  QModelIndex cell(int column) const { return view_->model()->index(row_, column); }

  QString nameOfRow() const {
    const QAbstractItemModel* model = view_->model();
    const QHeaderView* header = view_->header();
    QStringList parts;
    for (int place = 0; place < header->count(); ++place) {
      const int column = header->logicalIndex(place);
      if (header->isSectionHidden(column)) continue;
      const QString title = model->headerData(column, Qt::Horizontal).toString();
      parts.append(title + QStringLiteral(" ") + cell(column).data().toString());
    }
    return parts.join(QStringLiteral(", "));
  }

  QPointer<HitListView> view_;
  int row_;
};

/// "Sorted by Name, ascending"; empty in found order.
QString orderOf(const HitListView& view) {
  const QHeaderView& header = *view.header();
  const int column = header.sortIndicatorSection();
  if (!view.model() || column < 0 || column >= view.model()->columnCount()) return {};
  const QString title = view.model()->headerData(column, Qt::Horizontal).toString();
  return header.sortIndicatorOrder() == Qt::AscendingOrder ? Texts::tr("Sorted by %1, ascending").arg(title)
                                                           : Texts::tr("Sorted by %1, descending").arg(title);
}

/// The list: its rows, which get their interfaces when they are asked for, and the buttons in an empty one.
/// A reader may go through millions of rows, so that interfaces of rows read long ago are let go of; such a
/// row gets a new one when it is asked for again.
class ListAccessible : public QAccessibleWidget {
 public:
  explicit ListAccessible(HitListView* view) : QAccessibleWidget(view, QAccessible::List), view_(view) {}
  ~ListAccessible() override {
    for (const QAccessible::Id id : std::as_const(rows_)) QAccessible::deleteAccessibleInterface(id);
  }
  ListAccessible(const ListAccessible&) = delete;
  ListAccessible& operator=(const ListAccessible&) = delete;

  /// Why it is empty, or how its rows are sorted, which others see by an arrow.
  QString text(QAccessible::Text kind) const override {
    const QString own = QAccessibleWidget::text(kind);
    return kind == QAccessible::Description && own.isEmpty() ? orderOf(*view_) : own;
  }

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.multiSelectable = true;
    return state;
  }

  int childCount() const override { return rowCount() + static_cast<int>(offers().size()); }

  QAccessibleInterface* child(int row) const override {
    if (row >= rowCount()) return QAccessible::queryAccessibleInterface(offers().value(row - rowCount()));
    if (row < 0) return nullptr;
    const auto known = rows_.constFind(row);
    if (known != rows_.constEnd()) return QAccessible::accessibleInterface(*known);
    letGoOfOldRows();
    auto* made = new RowAccessible(view_, row);
    rows_.insert(row, QAccessible::registerAccessibleInterface(made));
    oldestFirst_.push_back(row);
    return made;
  }

  int indexOfChild(const QAccessibleInterface* child) const override {
    if (const auto* row = dynamic_cast<const RowAccessible*>(child)) return row->row();
    const auto offer = offers().indexOf(qobject_cast<QWidget*>(child ? child->object() : nullptr));
    return offer < 0 ? -1 : rowCount() + static_cast<int>(offer);
  }

  QAccessibleInterface* childAt(int x, int y) const override {
    const QPoint place = view_->viewport()->mapFromGlobal(QPoint(x, y));
    if (QWidget* offer = view_->viewport()->childAt(place))
      return QAccessible::queryAccessibleInterface(offer);
    const QModelIndex index = view_->indexAt(place);
    return index.isValid() ? child(index.row()) : nullptr;
  }

  QAccessibleInterface* focusChild() const override {
    return view_->hasFocus() && view_->currentIndex().isValid() ? child(view_->currentIndex().row())
                                                                : nullptr;
  }

 private:
  int rowCount() const { return view_->model() ? view_->model()->rowCount() : 0; }

  /// What can be seen, and what has the keyboard, may be asked about at any time.
  bool isInUse(int row) const { return !view_->rowRect(row).isEmpty() || view_->currentIndex().row() == row; }

  void letGoOfOldRows() const {
    for (auto looks = oldestFirst_.size(); looks > 0 && rows_.size() >= kMostAccessibleRows; --looks) {
      const int row = oldestFirst_.front();
      oldestFirst_.pop_front();
      if (isInUse(row)) {
        oldestFirst_.push_back(row);
      } else {
        QAccessible::deleteAccessibleInterface(rows_.take(row));
      }
    }
  }

  /// What an empty list shows in the place of rows.
  QList<QWidget*> offers() const {
    QList<QWidget*> shown = view_->viewport()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    shown.removeIf([](const QWidget* widget) { return !widget->isVisible(); });
    return shown;
  }

  HitListView* view_;
  mutable QHash<int, QAccessible::Id> rows_;
  /// The rows in it, in the order in which they were asked for.
  mutable std::deque<int> oldestFirst_;
};

QAccessibleInterface* makeHitListAccessible(const QString&, QObject* object) {
  auto* view = qobject_cast<HitListView*>(object);
  return view ? new ListAccessible(view) : nullptr;
}

}  // namespace

void installHitListAccessible() {
  // The toolkit ignores a factory that it knows already.
  QAccessible::installFactory(&makeHitListAccessible);
}

}  // namespace quorvin
