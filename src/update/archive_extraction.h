// Unpacking the archive of the main data file.
#pragma once

#include <QString>

namespace quorvin {

/// Unpacks archives for the user to see: it shows the main window and the progress window, and takes the
/// progress window away again when it is through.
class ArchiveExtraction {
 public:
  virtual ~ArchiveExtraction() = default;

  /// Unpacks every entry of the archive at `archivePath` into `targetFolder` (which ends in a separator),
  /// replacing files of the same names, and returns when that is done. Throws RuntimeFault when it fails.
  virtual void extractArchive(const QString& archivePath, const QString& targetFolder) = 0;
};

}  // namespace quorvin
