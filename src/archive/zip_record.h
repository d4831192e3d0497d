// SPDX-License-Identifier: GPL-2.0-or-later

// The records that a zip archive consists of.
#pragma once

#include "faults/runtime_fault.h"

#include <QByteArrayView>
#include <QtEndian>

namespace quorvin {

/// What each record starts with.
inline constexpr QByteArrayView kZipFileHeader("PK\x03\x04", 4);
inline constexpr QByteArrayView kZipDirectoryEntry("PK\x01\x02", 4);
inline constexpr QByteArrayView kZipEndRecord("PK\x05\x06", 4);
/// For archives whose numbers are too large for the plain end record, which still comes last. The locator
/// before it says where the large record is.
inline constexpr QByteArrayView kZipLargeEndRecord("PK\x06\x06", 4);
inline constexpr QByteArrayView kZipLargeEndLocator("PK\x06\x07", 4);

/// Bytes of each record without names, comments and extensions.
inline constexpr qsizetype kZipFileHeaderSize = 30;
inline constexpr qsizetype kZipDirectoryEntrySize = 46;
inline constexpr qsizetype kZipEndRecordSize = 22;
inline constexpr qsizetype kZipLocatorSize = 20;
inline constexpr qsizetype kZipLargeEndRecordSize = 56;

/// A number that is too large for its place, and is given elsewhere.
inline constexpr quint32 kZipSeeLarge = 0xFFFFFFFFU;
inline constexpr quint16 kZipSeeLargeShort = 0xFFFFU;

/// Bytes of an archive, read at checked places. The bytes must outlive the object.
class ZipBytes {
 public:
  explicit ZipBytes(QByteArrayView bytes) : bytes_(bytes) {}

  /// The little-endian number at `place`. Throws fault 62 when it is not wholly in the bytes.
  template <typename Number>
  Number number(qsizetype place) const {
    return qFromLittleEndian<Number>(part(place, sizeof(Number)).data());
  }
  /// `count` bytes from `place` on. Throws fault 62 when they are not all there.
  QByteArrayView part(qsizetype place, qsizetype count) const {
    const bool isInside = place >= 0 && count >= 0 && place <= bytes_.size() - count;
    if (!isInside) throw RuntimeFault(FaultNumber::InputPastEnd);
    return bytes_.sliced(place, count);
  }
  /// Whether a record with this start is at `place`, which may lie outside of the bytes.
  bool has(QByteArrayView start, qsizetype place = 0) const {
    return place >= 0 && place <= bytes_.size() && bytes_.sliced(place).startsWith(start);
  }

 private:
  QByteArrayView bytes_;
};

}  // namespace quorvin
