// The icons of the help browser's toolbar.
#pragma once

#include <QColor>
#include <QIcon>
#include <QString>

namespace quorvin {

/// The image list `imlIcons`: the icon for the toolbar button `key` ("Back", "Forward", "Refresh", "Home",
/// "Search", "Stop"), drawn in `colour` for screens of every usual scale.
QIcon toolbarIcon(const QString& key, const QColor& colour);

}  // namespace quorvin
