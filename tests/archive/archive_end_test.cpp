// SPDX-License-Identifier: GPL-2.0-or-later

// Where an archive ends.
#include "archive/archive_end.h"

#include "archive/archive_maker.h"
#include "files/file_reader.h"
#include "support/temporary_folder.h"

#include <QtEndian>
#include <gtest/gtest.h>

namespace quorvin::test {

namespace {

/// How many bytes belong to the archive when they come in pieces of `piece`; -1 when the end was not seen.
qsizetype endIn(const QByteArray& bytes, qsizetype piece) {
  ArchiveEnd end;
  for (qsizetype at = 0; at < bytes.size(); at += piece) {
    const QByteArray part = bytes.mid(at, piece);
    const std::optional<qsizetype> taken = end.feed(part);
    if (taken) return at + *taken;
  }
  return -1;
}

template <typename Number>
QByteArray little(Number number) {
  QByteArray bytes(sizeof number, '\0');
  qToLittleEndian(number, bytes.data());
  return bytes;
}

/// An end record for a directory of `size` bytes at `offset`.
QByteArray endRecord(quint32 offset, quint32 size, quint16 entries, const QByteArray& comment = {}) {
  return QByteArray("PK\x05\x06\0\0\0\0", 8) + little(entries) + little(entries) + little(size) +
         little(offset) + little(static_cast<quint16>(comment.size())) + comment;
}

/// The archive that a stored file `content` makes; its checksum is nobody's concern here.
QByteArray stored(const QByteArray& content, const QByteArray& comment = {}) {
  const QByteArray name = "a.txt";
  const auto size = static_cast<quint32>(content.size());
  const QByteArray sizes = little(quint32{0}) + little(size) + little(size);
  const QByteArray nameSize = little(static_cast<quint16>(name.size()));
  const QByteArray local = QByteArray("PK\x03\x04\x0a\0\0\0\0\0\0\0\0\0", 14) + sizes + nameSize +
                           little(quint16{0}) + name + content;
  const QByteArray directory = QByteArray("PK\x01\x02\x0a\0\x0a\0\0\0\0\0\0\0\0\0", 16) + sizes + nameSize +
                               QByteArray(16, '\0') + name;
  return local + directory +
         endRecord(static_cast<quint32>(local.size()), static_cast<quint32>(directory.size()), 1, comment);
}

TEST(ArchiveEnd, IsSeenHoweverTheBytesCome) {
  const QByteArray archive = archiveOf("list.txt", "a listing");
  const QByteArray more = archive + "List: next.zip" + archive;
  for (qsizetype piece = 1; piece <= more.size(); ++piece) {
    EXPECT_EQ(endIn(more, piece), archive.size()) << piece;
  }
}

TEST(ArchiveEnd, IsSeenBehindContentThatComesInManyPieces) {
  const QByteArray archive = stored(QByteArray(300'000, 'x'));
  EXPECT_EQ(endIn(archive + "List: next.zip", 1000), archive.size());
  EXPECT_EQ(endIn(archive + "List: next.zip", 4093), archive.size());
}

TEST(ArchiveEnd, ACommentOfTheGreatestLengthBelongsToTheArchive) {
  const TemporaryFolder folder;
  const QByteArray archive = stored("some text", QByteArray(65535, 'c'));
  const RandomAccessFile file(folder.writeFile(QStringLiteral("a.zip"), archive));
  const std::optional<EndRecord> end = endRecordOf(file, archive.size());
  ASSERT_TRUE(end);
  EXPECT_EQ(end->place, archive.size() - 65535 - 22);
  EXPECT_EQ(end->entries, 1U);
}

TEST(ArchiveEnd, TheCommentBelongsToTheArchive) {
  const QByteArray archive = stored("some text", "a comment");
  EXPECT_EQ(endIn(archive + "x", archive.size() + 1), archive.size());
  for (qsizetype piece = 1; piece <= archive.size(); ++piece)
    EXPECT_EQ(endIn(archive, piece), archive.size());
  EXPECT_EQ(endIn(archive.chopped(1), 7), -1);
}

TEST(ArchiveEnd, AnArchiveWithoutEntriesIsItsEndRecord) {
  EXPECT_EQ(endIn(endRecord(0, 0, 0) + "List: x.zip", 5), 22);
  const TemporaryFolder folder;
  const RandomAccessFile file(folder.writeFile(QStringLiteral("a.zip"), endRecord(0, 0, 0)));
  const std::optional<EndRecord> end = endRecordOf(file, 22);
  ASSERT_TRUE(end);
  EXPECT_EQ(end->place, 0);
}

TEST(ArchiveEnd, RecordsBehindTheRealOneArePassedOver) {
  // One that points elsewhere, and one that is cut short.
  const QByteArray archive = stored("some text", endRecord(7, 7, 7) + "PK\x05\x06");
  const TemporaryFolder folder;
  const RandomAccessFile file(folder.writeFile(QStringLiteral("a.zip"), archive));
  const std::optional<EndRecord> end = endRecordOf(file, archive.size());
  ASSERT_TRUE(end);
  EXPECT_EQ(end->place, archive.size() - 26 - 22);
  EXPECT_EQ(end->entries, 1U);
}

TEST(ArchiveEnd, AnArchiveInsideAnotherIsNotItsEnd) {
  const QByteArray inner = stored("some text");
  const QByteArray outer = stored(inner + inner);
  EXPECT_EQ(endIn(outer, 3), outer.size());
  EXPECT_EQ(endIn(stored(outer), 1000), stored(outer).size());
}

TEST(ArchiveEnd, AnEndRecordThatPointsElsewhereIsNone) {
  EXPECT_EQ(endIn("PK\x03\x04" + endRecord(1, 4, 0), 100), -1);
  EXPECT_EQ(endIn("PK\x03\x04" + endRecord(0xFFFFFFFF, 5, 0), 100), -1);
  EXPECT_EQ(endIn("PK\x03\x04" + endRecord(0, 4, 1), 100), -1);
}

/// The three records at the end of an archive beyond the limits of the plain one.
QByteArray largeEnd(quint64 offset, quint64 size, quint64 recordPlace, const QByteArray& comment = {}) {
  const QByteArray record = QByteArray("PK\x06\x06", 4) + little(quint64{44}) + little(quint16{45}) +
                            little(quint16{45}) + little(quint32{0}) + little(quint32{0}) +
                            little(quint64{1}) + little(quint64{1}) + little(size) + little(offset);
  const QByteArray locator =
      QByteArray("PK\x06\x07", 4) + little(quint32{0}) + little(recordPlace) + little(quint32{1});
  return record + locator + endRecord(0xFFFFFFFF, 0xFFFFFFFF, 0xFFFF, comment);
}

TEST(ArchiveEnd, ALargeArchiveIsKnownByItsLargeRecord) {
  const QByteArray start = "PK\x03\x04" + QByteArray(200, 'x');
  const QByteArray archive = start + largeEnd(104, 100, 204);
  for (const qsizetype piece : {1, 2, 3, 7, 50, 1000}) {
    EXPECT_EQ(endIn(archive + "more", piece), archive.size()) << piece;
  }
}

TEST(ArchiveEnd, ALargeArchiveMayHaveACommentOfTheGreatestLength) {
  const QByteArray directory = "PK\x01\x02" + QByteArray(96, '\0');
  const QByteArray archive =
      QByteArray(104, 'x') + directory + largeEnd(104, 100, 204, QByteArray(65535, 'c'));
  const TemporaryFolder folder;
  const RandomAccessFile file(folder.writeFile(QStringLiteral("a.zip"), archive));
  const std::optional<EndRecord> end = endRecordOf(file, archive.size());
  ASSERT_TRUE(end);
  EXPECT_EQ(end->place, 204);
  EXPECT_EQ(end->entries, 1U);
}

TEST(ArchiveEnd, ALargeRecordThatPointsElsewhereIsNone) {
  const QByteArray start = "PK\x03\x04" + QByteArray(200, 'x');
  EXPECT_EQ(endIn(start + largeEnd(105, 100, 204), 1000), -1);
  EXPECT_EQ(endIn(start + largeEnd(104, 100, 203), 1000), -1);
  EXPECT_EQ(endIn(start + largeEnd(104, 100, 0xFFFFFFFFFFFFFFF0U), 1000), -1);
  EXPECT_EQ(endIn(start + largeEnd(0xFFFFFFFFFFFFFFF0U, 0x10000000000000DCU, 204), 1000), -1);
}

TEST(ArchiveEnd, KnowsWhatAnArchiveStartsWith) {
  EXPECT_EQ(ArchiveEnd::canStartWith("PK\x03\x04..."), true);
  EXPECT_EQ(ArchiveEnd::canStartWith("PK\x05\x06"), true);
  EXPECT_EQ(ArchiveEnd::canStartWith("PK"), std::nullopt);
  EXPECT_EQ(ArchiveEnd::canStartWith("PK\x03x"), false);
  EXPECT_EQ(ArchiveEnd::canStartWith("List: "), false);
}

}  // namespace

}  // namespace quorvin::test
