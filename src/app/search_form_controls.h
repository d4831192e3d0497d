// SPDX-License-Identifier: GPL-2.0-or-later

// The menus and controls of the main window, and their places.
#pragma once

#include "app/search_form_text.h"
#include "hits/hit_list.h"
#include "search/hit_table.h"

#include <QAbstractItemModel>
#include <QAction>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSize>
#include <QWidget>

#include <array>

namespace quorvin {

/// The controls inside the main window, below the menu bar. The window owns them; they are made once and
/// live as long as it does.
struct SearchFormControls {
  QFrame* MenuLine;
  QLabel* searchLabel;
  SearchTextEdit* SearchStr;
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
  /// Below the list, hidden until the filter is opened.
  QLabel* filterLabel;
  QLineEdit* FilterStr;
  QLabel* lblShown;
};

/// Makes the controls as children of `parent`, with their names, captions and tab order; they have no places
/// yet. The hit list shows `rows`.
SearchFormControls makeControls(QWidget* parent, QAbstractItemModel& rows);

/// The menus and their items; the menu bar owns them.
struct SearchFormMenus {
  QMenu* FileMenu;
  QAction* AddLocal;
  QAction* EditOffline;
  QAction* ReScan;
  QAction* ListingHistory;
  QAction* Copies;
  QAction* Compare;
  QAction* Volumes;
  QAction* Import;
  QAction* ExportHits;
  QAction* OptionsMenu;
  QAction* MenuQuit;
  QMenu* ViewMenu;
  /// Is checked while the filter is open.
  QAction* FilterHits;
  /// Can be checked; the one of the present order is.
  QAction* FoundOrder;
  std::array<QAction*, kHitColumnCount> SortBy;
  QMenu* ColumnsMenu;
  /// Are checked while their columns are visible.
  std::array<QAction*, kHitColumnCount> ShowColumn;
  QAction* ResetColumns;
  /// Can be checked.
  QAction* SearchWhileTyping;
  QAction* KeepSearchHistory;
  QAction* ClearSearchHistory;
  /// What can be done with the selected hits; it is filled by those who do it.
  QMenu* HitsMenu;
  QMenu* PeersMenu;
  /// Can be checked; is checked while lists are shared.
  QAction* ShareLists;
  QAction* GetLists;
  QMenu* HlpMnu;
  QAction* HlpGen;
  QAction* RelInfo;
  QAction* AboutMenu;
};

/// A new item at the end of `menu`, which owns it, with its object name. Nothing is connected.
QAction* addItem(QMenu* menu, const QString& name, const QString& caption);

/// Fills `bar`. Nothing is connected.
SearchFormMenus makeMenus(QMenuBar* bar);

/// The measures of windows are twips in the settings and in the rules of the layout.
inline constexpr int kTwipsPerPixel = 15;
constexpr double toTwips(int pixels) {
  return static_cast<double>(pixels) * kTwipsPerPixel;
}
/// The window is never smaller than this, in twips, measured over its frame.
inline constexpr int kLeastOuterWidth = 3000;
inline constexpr int kLeastOuterHeight = 1500;

/// The widths, in twips, of the columns that share what the other columns leave.
struct ColumnDivision {
  double volume;
  double folder;
  double name;
};

/// Divides a hit list of `width` twips whose columns "Match", "Size" and "Date" have these widths. The
/// result is negative where these leave no room.
ColumnDivision divideColumns(double width, double match, double size, double date);

/// Gives each control its place and size for the fonts in use; nothing that a control may show is clipped.
/// What stretches is left to stretchControls().
void placeControls(const SearchFormControls& controls);

/// Makes the columns "Match", "Size" and "Date" wide enough for their usual texts.
void setInitialColumnWidths(const SearchFormControls& controls, const QLocale& locale);

/// The inner size of the window when it is opened for the first time.
QSize initialInnerSize(const SearchFormControls& controls);

/// Puts the controls of the filter into the last line of a window of this inner size, and says how high that
/// line is: 0 while the filter is closed.
int placeFilter(const SearchFormControls& controls, QSize inner);

/// The layout of a window whose inner size is `inner`: what reaches to the edges is stretched to them, and
/// the columns of the hit list whose width the user has not set are divided again. No control is moved, but
/// for those of the filter: where these are open, they take the last line, and the list ends above.
void stretchControls(const SearchFormControls& controls, QSize inner);

}  // namespace quorvin
