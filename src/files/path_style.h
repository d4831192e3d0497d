// SPDX-License-Identifier: GPL-2.0-or-later

// Path arithmetic for both ways of writing paths. Every function takes the style as a parameter, so that the
// rules of both are tested on every machine.
#pragma once

#include <QChar>
#include <QString>
#include <QStringView>

namespace quorvin {

/// How paths are written on a system: the sign between folders, and how many characters a drive takes up at
/// the front ("D:" is 2; 0 where there are no drives).
struct PathStyle {
  QChar separator;
  int drivePrefixLength;

  bool operator==(const PathStyle&) const = default;
};

inline constexpr PathStyle kWindowsPaths{u'\\', 2};
inline constexpr PathStyle kUnixPaths{u'/', 0};

/// The style of the system that the program runs on.
PathStyle nativePathStyle();

/// `folder` with one separator at its end; unchanged when it ends in one already.
QString withTrailingSeparator(const QString& folder, PathStyle style);

/// The folder as it is in a listing: without the drive prefix, with backslashes. "D:\Music\" and
/// "/Music/" are both listed as "\Music\".
QString listedFolder(QStringView folder, PathStyle style);

/// Whether a data file's name is a whole path, to be used as it is, rather than a name inside the local
/// data folder: it contains a colon or two backslashes in a row, or, where there are no drives, begins with
/// the separator.
bool isTakenAsItStands(QStringView fileName, PathStyle style);

}  // namespace quorvin
