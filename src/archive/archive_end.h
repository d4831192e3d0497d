// Where a zip archive ends, seen while its bytes arrive.
#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <cstdint>
#include <optional>

namespace quorvin {

/// Watches the bytes of an archive, from its first one on, for its end record: the one whose central
/// directory begins and ends where the record says, counted from the archive's own begin. An archive that
/// lies unpacked inside another has its own begin, so its end record is not taken for the end of the outer
/// one.
class PeerArchiveEnd {
 public:
  /// Whether an archive can begin with these bytes; nothing while there are too few to tell.
  static std::optional<bool> canBeginWith(QByteArrayView bytes);

  /// Takes the next bytes. Gives how many of them still belong to the archive once its end has been seen
  /// (0 to their count), nothing as long as it goes on. Not to be called after the end.
  std::optional<qsizetype> feed(QByteArrayView bytes);

 private:
  std::optional<std::int64_t> endInWindow();
  bool isEndRecord(qsizetype at) const;
  bool isEndOfLargeArchive(qsizetype at) const;

  /// The bytes seen last, and the place of their first one in the archive.
  QByteArray window_;
  std::int64_t windowStart_ = 0;
  /// Up to where the window has been searched.
  qsizetype searched_ = 0;
  /// The archive's length once its end record has been found; its comment may still be to come.
  std::optional<std::int64_t> length_;
};

}  // namespace quorvin
