#include "app/search_form_view.h"

#include "state/search_history.h"

namespace quorvin {

SearchFormView::SearchFormView(const SearchFormControls& controls, const SearchFormMenus& menus,
                               const QLocale& locale)
    : controls_(controls), menus_(menus), locale_(locale) {
  connect(menus.ResetColumns, &QAction::triggered, this, &SearchFormView::ResetColumns_Click);
  connectSearches();
  showSearches();
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

void SearchFormView::ResetColumns_Click() {
  setInitialColumnWidths(controls_, locale_);
  stretchControls(controls_, controls_.HitList->parentWidget()->size());
}

}  // namespace quorvin
