// SPDX-License-Identifier: GPL-2.0-or-later

// The archives in which listings are shared.
#include "archive/archive_packing.h"

#include "archive/archive_reader.h"
#include "faults/runtime_fault.h"
#include "files/full_disk.h"
#include "support/fault_number.h"
#include "support/temporary_folder.h"

#include <QFile>
#include <gtest/gtest.h>

#include <algorithm>
#include <span>
#include <vector>

namespace quorvin::test {

namespace {

/// The one file in an archive: "NAME: CONTENT".
std::string contentOf(const QString& path) {
  const ArchiveReader archive(path, -1, 10);
  const ArchiveEntry entry = archive.entry(0);
  ArchiveContent content(archive, entry);
  std::string text(entry.size + 1, '\0');
  text.resize(content.read(std::span<char>(text.data(), text.size())));
  EXPECT_EQ(archive.entryCount(), 1U);
  return entry.name.toStdString() + ": " + text;
}

bool neverStop(int) {
  return false;
}

TEST(ArchivePacking, AnArchiveHoldsTheListing) {
  const TemporaryFolder folder;
  const QString listing = folder.writeFile(QStringLiteral("B\u00fccher.txt"), "a listing\r\n");
  const QString archive = folder.pathOf(QStringLiteral("x.zip"));
  EXPECT_EQ(packListing(listing, archive, neverStop), PackingOutcome::Packed);
  EXPECT_EQ(contentOf(archive),
            "B\xc3\xbc"
            "cher.txt: a listing\r\n");
  EXPECT_EQ(folder.names(), (QStringList{QStringLiteral("B\u00fccher.txt"), QStringLiteral("x.zip")}));
}

TEST(ArchivePacking, ProgramsThatKnowOnlyThePlainFormCanReadAnArchive) {
  const TemporaryFolder folder;
  packListing(folder.writeFile(QStringLiteral("a.txt"), "a listing"), folder.pathOf(QStringLiteral("a.zip")),
              neverStop);
  const QByteArray archive = folder.readFile(QStringLiteral("a.zip"));
  // The version needed to unpack: 2.0.
  EXPECT_EQ(archive.mid(4, 2), QByteArray("\x14\0", 2));
  EXPECT_FALSE(archive.contains("PK\x06\x06"));
}

TEST(ArchivePacking, AnEmptyListingIsPackedToo) {
  const TemporaryFolder folder;
  const QString listing = folder.writeFile(QStringLiteral("a.txt"), "");
  packListing(listing, folder.pathOf(QStringLiteral("a.zip")), neverStop);
  EXPECT_EQ(contentOf(folder.pathOf(QStringLiteral("a.zip"))), "a.txt: ");
}

TEST(ArchivePacking, StoppingLeavesTheArchiveThatWasThere) {
  const TemporaryFolder folder;
  const QString listing = folder.writeFile(QStringLiteral("a.txt"), QByteArray(10000000, 'x'));
  folder.writeFile(QStringLiteral("a.zip"), "old");
  int pauses = 0;
  const auto pause = [&pauses](int) { return ++pauses == 20; };
  EXPECT_EQ(packListing(listing, folder.pathOf(QStringLiteral("a.zip")), pause), PackingOutcome::Stopped);
  EXPECT_EQ(pauses, 20);
  EXPECT_EQ(folder.readFile(QStringLiteral("a.zip")), QByteArray("old"));
  EXPECT_EQ(folder.names(), (QStringList{QStringLiteral("a.txt"), QStringLiteral("a.zip")}));
}

TEST(ArchivePacking, AFullDiskLeavesTheArchiveThatWasThere) {
  const TemporaryFolder folder;
  QByteArray noise(3000000, '\0');
  unsigned value = 1;
  for (char& byte : noise) byte = static_cast<char>((value = value * 1664525U + 1013904223U) >> 24U);
  const QString listing = folder.writeFile(QStringLiteral("a.txt"), noise);
  folder.writeFile(QStringLiteral("a.zip"), "old");
  const FullDisk full(1000000);
  EXPECT_FAULT(packListing(listing, folder.pathOf(QStringLiteral("a.zip")), neverStop), 61);
  EXPECT_EQ(folder.readFile(QStringLiteral("a.zip")), QByteArray("old"));
  EXPECT_EQ(folder.names(), (QStringList{QStringLiteral("a.txt"), QStringLiteral("a.zip")}));
}

TEST(ArchivePacking, OnlyItsOwnArchivesAndEmptyFilesMayBeReplaced) {
  const TemporaryFolder folder;
  const QString listing = folder.writeFile(QStringLiteral("a.txt"), "x");
  const QString archive = folder.pathOf(QStringLiteral("a.zip"));
  EXPECT_TRUE(mayBeReplacedByPacking(archive));
  packListing(listing, archive, neverStop);
  EXPECT_TRUE(mayBeReplacedByPacking(archive));
  EXPECT_TRUE(mayBeReplacedByPacking(folder.writeFile(QStringLiteral("empty.zip"), "")));
  EXPECT_FALSE(mayBeReplacedByPacking(folder.writeFile(QStringLiteral("text.zip"), "mine")));
  EXPECT_FALSE(mayBeReplacedByPacking(folder.makeFolder(QStringLiteral("folder.zip")).chopped(1)));
  ASSERT_TRUE(QFile::link(archive, folder.pathOf(QStringLiteral("link.zip"))));
  EXPECT_FALSE(mayBeReplacedByPacking(folder.pathOf(QStringLiteral("link.zip"))));
  const QByteArray unmarked("PK\x05\x06\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0", 22);
  EXPECT_FALSE(mayBeReplacedByPacking(folder.writeFile(QStringLiteral("other.zip"), unmarked)));
}

TEST(ArchivePacking, KnowsWhatItHasMade) {
  const TemporaryFolder folder;
  const QString archive = folder.pathOf(QStringLiteral("a.zip"));
  EXPECT_FALSE(isMadeByPacking(archive));
  packListing(folder.writeFile(QStringLiteral("a.txt"), "x"), archive, neverStop);
  EXPECT_TRUE(isMadeByPacking(archive));
  ASSERT_TRUE(QFile::link(archive, folder.pathOf(QStringLiteral("link.zip"))));
  EXPECT_FALSE(isMadeByPacking(folder.pathOf(QStringLiteral("link.zip"))));
  EXPECT_FALSE(isMadeByPacking(folder.writeFile(QStringLiteral("empty.zip"), "")));
  EXPECT_FALSE(isMadeByPacking(folder.writeFile(QStringLiteral("text.zip"), "mine")));
}

TEST(ArchivePacking, ReportsHowMuchHasBeenPacked) {
  const TemporaryFolder folder;
  const QString listing = folder.writeFile(QStringLiteral("a.txt"), QByteArray(10000000, 'x'));
  std::vector<int> percentages;
  const auto pause = [&percentages](int percent) {
    percentages.push_back(percent);
    return false;
  };
  packListing(listing, folder.pathOf(QStringLiteral("a.zip")), pause);
  EXPECT_EQ(percentages.front(), 0);
  EXPECT_EQ(percentages.back(), 100);
  EXPECT_TRUE(std::is_sorted(percentages.begin(), percentages.end()));
}

}  // namespace

}  // namespace quorvin::test
