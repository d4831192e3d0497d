// SPDX-License-Identifier: GPL-2.0-or-later
#include "app/search_form_view.h"

#include "app/status_texts.h"
#include "platform/text_direction.h"
#include "state/search_history.h"
#include "texts/texts.h"

#include <QActionGroup>
#include <QKeySequence>
#include <QString>

namespace quorvin {

namespace {

QAction* addCheckItem(QMenu* menu, const QString& name, const QString& caption,
                      const QKeySequence& keys = {}) {
  QAction* item = menu->addAction(caption);
  item->setObjectName(name);
  item->setCheckable(true);
  item->setShortcut(keys);
  return item;
}

/// Captions of the columns, each with a letter of its own in the View menu.
struct ColumnCaption {
  const char* name;
  const char* text;
};
constexpr std::array<ColumnCaption, kHitColumnCount> kColumnCaptions = {
    {{"Match", QT_TRANSLATE_NOOP("Texts", "&Match")},
     {"Volume", QT_TRANSLATE_NOOP("Texts", "&Volume")},
     {"Folder", QT_TRANSLATE_NOOP("Texts", "Fol&der")},
     {"Name", QT_TRANSLATE_NOOP("Texts", "&Name")},
     {"Size", QT_TRANSLATE_NOOP("Texts", "&Size")},
     {"Date", QT_TRANSLATE_NOOP("Texts", "D&ate")}}};

QString sortCaption(std::size_t column) {
  return Texts::tr("Sort by %1").arg(Texts::tr(kColumnCaptions[column].text));
}

}  // namespace

void addViewItems(SearchFormMenus& made) {
  made.FilterHits = addCheckItem(made.ViewMenu, QStringLiteral("FilterHits"), Texts::tr("&Filter Hits"),
                                 QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_F));
  made.ViewMenu->addSeparator();
  made.FoundOrder = addCheckItem(made.ViewMenu, QStringLiteral("FoundOrder"), Texts::tr("F&ound Order"),
                                 QKeySequence(Qt::CTRL | Qt::Key_0));
  auto* orders = new QActionGroup(made.ViewMenu);
  orders->addAction(made.FoundOrder);
  made.ColumnsMenu = new QMenu(Texts::tr("&Columns"), made.ViewMenu);
  for (std::size_t column = 0; column < kColumnCaptions.size(); ++column) {
    const QString name = QString::fromLatin1(kColumnCaptions[column].name);
    made.SortBy[column] = addCheckItem(made.ViewMenu, QStringLiteral("SortBy") + name, sortCaption(column),
                                       QKeySequence(Qt::CTRL | (Qt::Key_1 + static_cast<int>(column))));
    orders->addAction(made.SortBy[column]);
    made.ShowColumn[column] = addCheckItem(made.ColumnsMenu, QStringLiteral("Show") + name,
                                           Texts::tr(kColumnCaptions[column].text));
  }
  made.ViewMenu->addSeparator();
  made.ViewMenu->addMenu(made.ColumnsMenu);
  made.ColumnsMenu->setObjectName(QStringLiteral("ColumnsMenu"));
  made.ColumnsMenu->setAccessibleName(Texts::tr("Columns"));
  made.ColumnsMenu->menuAction()->setObjectName(QStringLiteral("ColumnsMenu"));
  made.ColumnsMenu->addSeparator();
  made.ResetColumns = made.ColumnsMenu->addAction(Texts::tr("&Reset Columns"));
  made.ResetColumns->setObjectName(QStringLiteral("ResetColumns"));
}

SearchFormView::SearchFormView(const SearchFormControls& controls, const SearchFormMenus& menus,
                               HitListModel& rows, const QLocale& locale)
    : controls_(controls), menus_(menus), rows_(rows), order_(*controls.HitList, rows), locale_(locale) {
  connectOrder();
  connectColumns();
  connectFilter();
  connectSearches();
  showOrder();
  showColumns();
  showSearches();
}

void SearchFormView::connectOrder() {
  connect(menus_.FoundOrder, &QAction::triggered, this, [this] {
    rows_.order().sortBy({});
    showOrder();
  });
  for (int column = 0; column < kHitColumnCount; ++column) {
    connect(menus_.SortBy[static_cast<std::size_t>(column)], &QAction::triggered, this, [this, column] {
      rows_.order().sortBy(orderAfterClick(rows_.order().order(), static_cast<HitColumn>(column)));
      showOrder();
    });
  }
  connect(&rows_.order(), &RowOrder::orderChanged, this, &SearchFormView::showOrder);
  connect(&order_, &HitListOrder::selectionLetGo, this, &SearchFormView::selectionLetGo);
}

void SearchFormView::connectColumns() {
  HitListColumns& columns = controls_.HitList->columns();
  for (int number = 0; number < kHitColumnCount; ++number) {
    const auto column = static_cast<HitColumn>(number);
    QAction* item = menus_.ShowColumn[static_cast<std::size_t>(number)];
    connect(item, &QAction::triggered, this,
            [&columns, column](bool isChecked) { columns.setVisible(column, isChecked); });
  }
  connect(menus_.ResetColumns, &QAction::triggered, this, &SearchFormView::ResetColumns_Click);
  connect(controls_.HitList, &HitListView::columnMenuRequested, menus_.ColumnsMenu,
          [this](const QPoint& place) { menus_.ColumnsMenu->popup(place); });
  connect(&columns, &HitListColumns::divisionNeeded, this, [this] {
    showColumns();
    layOut();
  });
  connect(&columns, &HitListColumns::changed, this, [this, &columns] {
    change([&columns](ViewSettings& settings) { settings.columns = columns.text(); });
  });
}

void SearchFormView::connectFilter() {
  connect(menus_.FilterHits, &QAction::triggered, this, [this](bool isChecked) {
    isChecked || !controls_.FilterStr->hasFocus() ? openFilter() : closeFilter();
  });
  connect(controls_.FilterStr, &QLineEdit::textChanged, &rows_.order(), &RowOrder::setFilter);
  connect(&rows_.order(), &RowOrder::countChanged, this, &SearchFormView::showCount);
}

void SearchFormView::connectSearches() {
  connect(menus_.SearchWhileTyping, &QAction::triggered, this, [this](bool isOn) {
    change([isOn](ViewSettings& settings) { settings.searchWhileTyping = isOn; });
  });
  connect(menus_.KeepSearchHistory, &QAction::triggered, this, [this](bool isOn) {
    change([isOn](ViewSettings& settings) {
      settings.keepSearchHistory = isOn;
      if (!isOn) settings.searches.clear();
    });
  });
  connect(menus_.ClearSearchHistory, &QAction::triggered, this,
          [this] { change([](ViewSettings& settings) { settings.searches.clear(); }); });
}

void SearchFormView::take(const ViewSettings& settings) {
  settings_ = settings;
  controls_.HitList->columns().take(settings_.columns);
  showSearches();
}

void SearchFormView::keepSearch(const QString& text) {
  change([&](ViewSettings& settings) {
    if (settings.keepSearchHistory) addSearch(settings.searches, text);
  });
}

void SearchFormView::showSearches() {
  menus_.SearchWhileTyping->setChecked(settings_.searchWhileTyping);
  menus_.KeepSearchHistory->setChecked(settings_.keepSearchHistory);
  controls_.SearchStr->setHistory(settings_.searches);
}

void SearchFormView::change(const std::function<void(ViewSettings&)>& change) {
  const ViewSettings before = settings_;
  change(settings_);
  showSearches();
  if (settings_ != before && changeHandler_) changeHandler_();
}

bool SearchFormView::stop(bool isRunning) {
  if (isRunning && !controls_.FilterStr->hasFocus()) return false;
  if (rows_.order().isSorting() && !controls_.FilterStr->hasFocus()) {
    rows_.order().stopSorting();
  } else if (menus_.FilterHits->isChecked()) {
    closeFilter();
  }
  return true;
}

/// The present order's item is the checked one, and says the direction.
void SearchFormView::showOrder() {
  const HitOrder& order = rows_.order().order();
  menus_.FoundOrder->setChecked(!order.column);
  for (std::size_t column = 0; column < menus_.SortBy.size(); ++column) {
    const bool isPresent = order.column == static_cast<HitColumn>(column);
    const QString direction = order.isDescending ? Texts::tr("%1 (descending)") : Texts::tr("%1 (ascending)");
    const QString caption = sortCaption(column);
    menus_.SortBy[column]->setChecked(isPresent);
    menus_.SortBy[column]->setText(isPresent ? direction.arg(caption) : caption);
  }
}

void SearchFormView::showColumns() {
  const HitListColumns& columns = controls_.HitList->columns();
  for (std::size_t number = 0; number < menus_.ShowColumn.size(); ++number) {
    const bool isVisible = columns.isVisible(static_cast<HitColumn>(number));
    menus_.ShowColumn[number]->setChecked(isVisible);
    menus_.ShowColumn[number]->setEnabled(!isVisible || columns.visibleCount() > 1);
  }
}

void SearchFormView::ResetColumns_Click() {
  controls_.HitList->columns().reset();
  setInitialColumnWidths(controls_, locale_);
  layOut();
  change([](ViewSettings& settings) { settings.columns.clear(); });
}

void SearchFormView::openFilter() {
  showFilter(true);
  controls_.FilterStr->setFocus(Qt::ShortcutFocusReason);
  controls_.FilterStr->selectAll();
}

void SearchFormView::closeFilter() {
  const bool hadFocus = controls_.FilterStr->hasFocus();
  controls_.FilterStr->clear();
  if (hadFocus) controls_.HitList->setFocus(Qt::OtherFocusReason);
  showFilter(false);
}

void SearchFormView::showFilter(bool isShown) {
  menus_.FilterHits->setChecked(isShown);
  for (QWidget* widget :
       {static_cast<QWidget*>(controls_.filterLabel), static_cast<QWidget*>(controls_.FilterStr),
        static_cast<QWidget*>(controls_.lblShown)}) {
    widget->setVisible(isShown);
  }
  showCount();
  layOut();
}

void SearchFormView::showCount() {
  const RowOrder& order = rows_.order();
  controls_.lblShown->setText(englishWithin(controls_.lblShown->layoutDirection(),
                                            shownText(order.count(), order.knownRows(), locale_)));
  placeFilter(controls_, controls_.HitList->parentWidget()->size());
}

void SearchFormView::layOut() {
  stretchControls(controls_, controls_.HitList->parentWidget()->size());
}

}  // namespace quorvin
