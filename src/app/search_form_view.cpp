#include "app/search_form_view.h"

namespace quorvin {

SearchFormView::SearchFormView(const SearchFormControls& controls, const SearchFormMenus& menus,
                               const QLocale& locale)
    : controls_(controls), locale_(locale) {
  connect(menus.ResetColumns, &QAction::triggered, this, &SearchFormView::ResetColumns_Click);
}

void SearchFormView::change(const std::function<void(ViewSettings&)>& change) {
  const ViewSettings before = settings_;
  change(settings_);
  if (settings_ != before && changeHandler_) changeHandler_();
}

void SearchFormView::ResetColumns_Click() {
  setInitialColumnWidths(controls_, locale_);
  stretchControls(controls_, controls_.HitList->parentWidget()->size());
}

}  // namespace quorvin
