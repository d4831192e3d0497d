// The local data folder.
#pragma once

#include <QString>

namespace quorvin {

/// Whether `folder`, which ends in a separator, can be the local data folder: at least one ordinary file is
/// in it.
bool isValidDataFolder(const QString& folder);

}  // namespace quorvin
