// SPDX-License-Identifier: GPL-2.0-or-later

// Unpacking an archive, and what has to hold whatever is in it.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <map>

namespace quorvin::fuzz {

/// Unpacks the archive into a folder of its own. Throws BrokenPromise when anything appears outside of that
/// folder, stays half-written in it, is not what the plan of the archive allows, or differs from `contents`,
/// the files that are known, by the paths that they should have.
void checkUnpacking(QByteArrayView archive, const std::map<QString, QByteArray>& contents = {});

}  // namespace quorvin::fuzz
