// The icons of the help browser's toolbar.
#pragma once

#include <QColor>
#include <QIcon>
#include <QString>

namespace quorvin {

/// The image list `imlIcons`: the icon for the toolbar button `key` ("Back", "Forward", "Refresh", "Home",
/// "Search", "Stop"), drawn for screens of every usual scale in `colour`, and in `disabledColour` for a
/// button that cannot be pressed.
QIcon toolbarIcon(const QString& key, const QColor& colour, const QColor& disabledColour);

}  // namespace quorvin
