// Replacing a file of the user's as a whole.
#pragma once

#include <QByteArrayView>
#include <QString>

namespace quorvin {

/// Writes `contents` beside the file at `path` and puts them in its place when every byte has been written;
/// the file's folder must exist. Throws RuntimeFault when anything fails; the file that was there before
/// stays as it was.
void replaceFile(const QString& path, QByteArrayView contents);

}  // namespace quorvin
