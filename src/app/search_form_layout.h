// Where the controls of the main window stand.
#pragma once

#include "app/search_form_controls.h"

#include <QSize>

namespace quorvin {

/// The measures of windows are twips in the settings and in the rules of the layout.
inline constexpr int kTwipsPerPixel = 15;
/// The window is never smaller than this, in twips, measured over its frame.
inline constexpr int kLeastOuterWidth = 3000;
inline constexpr int kLeastOuterHeight = 1500;

/// The widths, in twips, of the columns that share what the other columns leave.
struct ColumnDivision {
  double volume;
  double folder;
  double name;
};

/// Divides a hit list of `width` twips whose columns "Match", "Size" and "Date" are as wide as told. The
/// result is negative where these leave no room.
ColumnDivision divideColumns(double width, double match, double size, double date);

/// Gives each control its place and size for the fonts in use; nothing that a control may show is clipped.
/// What stretches is left to stretchControls().
void placeControls(const SearchFormControls& controls);

/// Makes the columns "Match", "Size" and "Date" wide enough for their usual texts.
void setInitialColumnWidths(const SearchFormControls& controls, const QLocale& locale);

/// The inner size of the window when it is opened for the first time.
QSize initialInnerSize(const SearchFormControls& controls);

/// The layout of a window whose inner size is `inner`: what reaches to the edges is stretched to them, and
/// the columns of the hit list are divided anew. No control is moved.
void stretchControls(const SearchFormControls& controls, QSize inner);

}  // namespace quorvin
