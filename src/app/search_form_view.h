// SPDX-License-Identifier: GPL-2.0-or-later

// How the hits are seen: the View menu of the main window, the order, the columns and the filter.
#pragma once

#include "app/search_form_controls.h"
#include "hits/hit_list_model.h"
#include "hits/hit_list_order.h"
#include "state/view_settings.h"

#include <QLocale>
#include <QObject>

#include <cstdint>
#include <functional>
#include <utility>

namespace quorvin {

/// Makes the items of `menus.ViewMenu`.
void addViewItems(SearchFormMenus& menus);

/// Does what the items of the View menu say, and knows the view settings.
class SearchFormView : public QObject {
  Q_OBJECT

 public:
  /// The controls and menus that these name must outlive the object; so must `rows`, the model of the hit
  /// list.
  SearchFormView(const SearchFormControls& controls, const SearchFormMenus& menus, HitListModel& rows,
                 const QLocale& locale);

  const ViewSettings& settings() const { return settings_; }
  /// What the last run kept; shows it.
  void take(const ViewSettings& settings);
  /// Changes the settings on behalf of the user, so that they are kept.
  void change(const std::function<void(ViewSettings&)>& change);
  /// The user has searched for `text`: keeps it, where such texts are kept.
  void keepSearch(const QString& text);
  /// What is to happen whenever the user has changed a setting.
  void setChangeHandler(std::function<void()> handler) { changeHandler_ = std::move(handler); }

  /// What Esc does: it closes the filter, at first where the focus is in it, or gives up a sort. False where
  /// it is for the run instead.
  bool stop(bool isRunning);

 Q_SIGNALS:
  /// So many hits are no longer selected: see HitListOrder.
  void selectionLetGo(std::int64_t hits);

 private:
  void connectSearches();
  void connectOrder();
  void connectColumns();
  void connectFilter();
  void ResetColumns_Click();
  void showSearches();
  void openFilter();
  void closeFilter();
  void showFilter(bool isShown);
  void showOrder();
  void showColumns();
  void showCount();
  void layOut();

  SearchFormControls controls_;
  SearchFormMenus menus_;
  HitListModel& rows_;
  HitListOrder order_;
  QLocale locale_;
  ViewSettings settings_;
  std::function<void()> changeHandler_;
};

}  // namespace quorvin
