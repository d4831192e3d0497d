// DirIO: the base name of a path.
#pragma once

#include "files/path_style.h"

#include <QString>

namespace quorvin {

/// The name between the last separator and the last "." of `path` ("music" for "D:\lists\music.txt"); the
/// path unchanged when that leaves nothing: no ".", the last "." before the last separator, or a name that
/// begins with its only ".".
QString BaseNameOf(const QString& path, PathStyle style);

}  // namespace quorvin
