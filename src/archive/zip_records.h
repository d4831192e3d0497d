// Records of zip archives, as far as the end of an archive is told by them. Numbers are little-endian.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QtEndian>

namespace quorvin {

inline constexpr QByteArrayView kZipFileStart("PK\x03\x04", 4);
inline constexpr QByteArrayView kZipEndRecord("PK\x05\x06", 4);
/// Of archives whose numbers are too large for the plain end record, which still comes last; the locator
/// before it tells where the large record is.
inline constexpr QByteArrayView kZipLargeEndRecord("PK\x06\x06", 4);
inline constexpr QByteArrayView kZipLargeEndLocator("PK\x06\x07", 4);

/// Bytes of each record without comments and extensions.
inline constexpr qsizetype kZipEndRecordSize = 22;
inline constexpr qsizetype kZipLocatorSize = 20;
inline constexpr qsizetype kZipLargeEndRecordSize = 56;
inline constexpr qsizetype kZipDirectoryEntrySize = 46;

/// The number at `at`, all of whose bytes are in `bytes`.
template <typename Number>
Number zipNumberAt(const QByteArray& bytes, qsizetype at) {
  return qFromLittleEndian<Number>(bytes.constData() + at);
}

/// Whether `record` begins at `at`, which may lie before the bytes or behind them.
inline bool zipRecordIsAt(const QByteArray& bytes, qsizetype at, QByteArrayView record) {
  return at >= 0 && at <= bytes.size() && QByteArrayView(bytes).sliced(at).startsWith(record);
}

}  // namespace quorvin
