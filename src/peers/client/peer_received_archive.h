// An archive that is being received, kept in a file.
#pragma once

#include "files/file_writer.h"

#include <QByteArrayView>
#include <QString>

#include <cstdint>
#include <memory>

namespace quorvin {

/// Written aside in its folder, and given its name when it is whole; without that nothing of it stays.
class PeerReceivedArchive {
 public:
  /// `folder` ends in a separator and is made with those above it; `name` is the archive's name without its
  /// ending, safe for a file. Throws RuntimeFault when the folder or the file cannot be made.
  PeerReceivedArchive(const QString& folder, const QString& name);
  ~PeerReceivedArchive();
  PeerReceivedArchive(const PeerReceivedArchive&) = delete;
  PeerReceivedArchive& operator=(const PeerReceivedArchive&) = delete;

  /// Throws RuntimeFault when the bytes cannot be written.
  void write(QByteArrayView bytes);
  std::int64_t size() const { return size_; }

  /// Gives the archive its name and returns its path. No file is replaced: where one of that name stands, the
  /// archive gets a number, unless that file holds the very same bytes and so is this archive already. Throws
  /// RuntimeFault when it cannot be put in place.
  QString keep();

  /// Closes the file, which stays aside as long as the object lives, and gives its path for reading. Throws
  /// RuntimeFault when the last bytes cannot be written.
  QString closeForReading();

 private:
  QString folder_;
  QString name_;
  QString asidePath_;
  std::unique_ptr<FileWriter> writer_;
  std::int64_t size_ = 0;
};

}  // namespace quorvin
