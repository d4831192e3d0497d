// Where the controls of the source editor stand.
#pragma once

#include "editors/local_loc_controls.h"

#include <QSize>

namespace quorvin {

/// Gives each control its place for the fonts in use, as the dialog opens in the mode for folders. The result
/// is the inner size that the controls take up; the dialog must not be made smaller.
QSize placeLocalLocControls(const LocalLocControls& controls);

/// How large the dialog is when it opens.
QSize initialLocalLocSize(const LocalLocControls& controls, QSize least);

/// Follows the dialog's inner size, which has grown by `growth`: the list and the path box take what there
/// is, the rest keeps its distance from the edges.
void stretchLocalLocControls(const LocalLocControls& controls, QSize growth);

/// Gives the room of the description box and its label to the path box, whose right edge stays where it is.
void widenPathOverDescription(const LocalLocControls& controls);

}  // namespace quorvin
