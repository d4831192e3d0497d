// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/volumes/space_map.h"

#include <QAccessible>
#include <QAccessibleInterface>
#include <QAccessibleWidget>
#include <QHash>
#include <QPointer>
#include <QWindow>

namespace quorvin {

namespace {

/// One rectangle. It asks the map each time and is known by its number.
class CellAccessible : public QAccessibleInterface {
 public:
  CellAccessible(SpaceMap* map, int cell) : map_(map), cell_(cell) {}

  bool isValid() const override { return map_ && cell_ < map_->count(); }
  QObject* object() const override { return nullptr; }
  QWindow* window() const override { return map_ ? map_->window()->windowHandle() : nullptr; }
  QAccessibleInterface* parent() const override {
    return map_ ? QAccessible::queryAccessibleInterface(map_) : nullptr;
  }
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  void setText(QAccessible::Text, const QString&) override {}
  QAccessible::Role role() const override { return QAccessible::ListItem; }
  int cell() const { return cell_; }

  QString text(QAccessible::Text kind) const override {
    return isValid() && kind == QAccessible::Name ? map_->textOf(cell_) : QString();
  }

  QRect rect() const override {
    if (!isValid()) return {};
    const QRect place = map_->placeOf(cell_);
    return {map_->mapToGlobal(place.topLeft()), place.size()};
  }

  QAccessible::State state() const override {
    QAccessible::State state;
    if (!isValid()) {
      state.invalid = true;
      return state;
    }
    state.focusable = true;
    state.selectable = true;
    state.selected = map_->current() == cell_;
    state.focused = state.selected && map_->hasFocus();
    return state;
  }

 private:
  QPointer<SpaceMap> map_;
  int cell_;
};

/// The map as a list of its rectangles.
class MapAccessible : public QAccessibleWidget {
 public:
  explicit MapAccessible(SpaceMap* map) : QAccessibleWidget(map, QAccessible::List), map_(map) {}
  ~MapAccessible() override {
    for (const QAccessible::Id id : std::as_const(cells_)) QAccessible::deleteAccessibleInterface(id);
  }
  MapAccessible(const MapAccessible&) = delete;
  MapAccessible& operator=(const MapAccessible&) = delete;

  int childCount() const override { return map_->count(); }

  QAccessibleInterface* child(int cell) const override {
    if (cell < 0 || cell >= map_->count()) return nullptr;
    const auto known = cells_.constFind(cell);
    if (known != cells_.constEnd()) return QAccessible::accessibleInterface(*known);
    auto* made = new CellAccessible(map_, cell);
    cells_.insert(cell, QAccessible::registerAccessibleInterface(made));
    return made;
  }

  int indexOfChild(const QAccessibleInterface* child) const override {
    const auto* cell = dynamic_cast<const CellAccessible*>(child);
    return cell ? cell->cell() : -1;
  }

  QAccessibleInterface* childAt(int x, int y) const override {
    return child(map_->cellAt(map_->mapFromGlobal(QPoint(x, y))));
  }

  QAccessibleInterface* focusChild() const override {
    return map_->hasFocus() ? child(map_->current()) : nullptr;
  }

 private:
  SpaceMap* map_;
  /// There are never more than the map draws.
  mutable QHash<int, QAccessible::Id> cells_;
};

QAccessibleInterface* makeSpaceMapAccessible(const QString&, QObject* object) {
  auto* map = qobject_cast<SpaceMap*>(object);
  return map ? new MapAccessible(map) : nullptr;
}

}  // namespace

void installSpaceMapAccessible() {
  // The toolkit ignores a factory that it knows already.
  QAccessible::installFactory(&makeSpaceMapAccessible);
}

}  // namespace quorvin
