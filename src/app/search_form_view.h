// How the hits are seen: the View menu of the main window.
#pragma once

#include "app/search_form_controls.h"
#include "state/view_settings.h"

#include <QLocale>
#include <QObject>

#include <functional>

namespace quorvin {

/// Does what the items of the View menu say, and knows the view settings.
class SearchFormView : public QObject {
  Q_OBJECT

 public:
  /// The controls and menus that these name must outlive the object.
  SearchFormView(const SearchFormControls& controls, const SearchFormMenus& menus, const QLocale& locale);

  const ViewSettings& settings() const { return settings_; }
  /// What the last run kept; shows it.
  void take(const ViewSettings& settings);
  /// Changes the settings on behalf of the user, so that they are kept.
  void change(const std::function<void(ViewSettings&)>& change);
  /// The user has searched for `text`: keeps it, where such texts are kept.
  void keepSearch(const QString& text);
  /// What is to happen whenever the user has changed a setting.
  void setChangeHandler(std::function<void()> handler) { changeHandler_ = std::move(handler); }

 private:
  void connectSearches();
  void ResetColumns_Click();
  void showSearches();

  SearchFormControls controls_;
  SearchFormMenus menus_;
  QLocale locale_;
  ViewSettings settings_;
  std::function<void()> changeHandler_;
};

}  // namespace quorvin
