// SPDX-License-Identifier: GPL-2.0-or-later

// Two real programs, each with settings and folders of its own, exchange their lists over TCP.
#include "e2e/running_program.h"
#include "e2e/source_records.h"
#include "support/listing_lines.h"
#include "support/qt_printing.h"
#include "support/sweep.h"

#include <QDirIterator>
#include <QFileInfo>
#include <gtest/gtest.h>

namespace quorvin::test {

namespace {

const qsizetype kListingBytes = sweep<qsizetype>(200'000'000, 20'000'000);
const QString kAskForPeer = QStringLiteral("Get Lists From Peer");
const QString kReceived = QStringLiteral("data/Received/127.0.0.1/");

QByteArray longListing() {
  QByteArray listing;
  listing.reserve(kListingBytes + 1000);
  listing += blockHead("Far disk", "\\far\\");
  for (int number = 0; listing.size() < kListingBytes; ++number) {
    listing += entryLine("straw " + QByteArray::number(number, 36) + ".mp3", QByteArray::number(number));
  }
  return listing + entryLine("needle in the stack.mp3");
}

class TwoPrograms : public testing::Test {
 protected:
  TwoPrograms() {
    sharer_.writeSettings();
    getter_.writeSettings();
  }
  /// The bytes of all files of both programs: it changes as long as anything is packed, sent or unpacked.
  qint64 bytesInFiles() const {
    qint64 bytes = 0;
    for (const ProgramHome* home : {&sharer_, &getter_}) {
      QDirIterator files(home->folder.pathOf(QStringLiteral("data")), QDir::Files | QDir::Hidden,
                         QDirIterator::Subdirectories);
      while (files.hasNext()) {
        files.next();
        bytes += files.fileInfo().size();
      }
    }
    return bytes;
  }
  static qint64 sizeOf(const ProgramHome& home, const QString& name) {
    return QFileInfo(home.folder.pathOf(name)).size();
  }

  ProgramHome sharer_;
  ProgramHome getter_;
  Desktop desktop_;
};

TEST_F(TwoPrograms, ALongListingComesWholeAndIsFoundIn) {
  const QByteArray listing = longListing();
  sharer_.folder.writeFile(QStringLiteral("data/Disk.txt"), listing);
  sharer_.folder.writeFile(QStringLiteral("data/Locations.txt"),
                           listFile({{QStringLiteral("Disk"), QStringLiteral("/far/")}}));

  RunningProgram sharer(desktop_, sharer_);
  sharer.press({QStringLiteral("alt+p"), QStringLiteral("s")});
  // The message that tells the address to give away.
  const auto progress = [this] { return bytesInFiles(); };
  sharer.waitForWindow(kTitle, progress);
  sharer.press({QStringLiteral("Return")});
  sharer.waitForMainWindow();
  waitUntil(
      QStringLiteral("for the archive"), [this] { return sharer_.hasData(QStringLiteral("Disk.zip")); }, {},
      progress);

  RunningProgram getter(desktop_, getter_);
  getter.press({QStringLiteral("alt+p"), QStringLiteral("g")});
  getter.waitForWindow(kAskForPeer);
  getter.type(QStringLiteral("127.0.0.1"));
  getter.press({QStringLiteral("Return")});
  // The question whether what came is to be searched from now on.
  getter.waitForWindow(kTitle, progress);
  EXPECT_TRUE(getter_.folder.readFile(kReceived + QStringLiteral("Disk.zip")) ==
              sharer_.dataFile(QStringLiteral("Disk.zip")));
  getter.press({QStringLiteral("alt+y")});
  waitUntil(
      QStringLiteral("for the whole listing"),
      [&] { return sizeOf(getter_, kReceived + QStringLiteral("Disk/Disk.txt")) == listing.size(); }, {},
      progress);
  getter.waitForMainWindow();
  EXPECT_TRUE(getter_.folder.readFile(kReceived + QStringLiteral("Disk/Disk.txt")) == listing);

  getter.find(QStringLiteral("needle stack"));
  getter.waitForHits(
      {QStringLiteral("100%\tFar disk\t\\far\\\tneedle in the stack.mp3\t0.00mb\tJan, 15 04")});
  for (RunningProgram* program : {&getter, &sharer}) {
    program->comeToFront();
    const ProgramEnd end = program->endBy({QStringLiteral("ctrl+q")});
    EXPECT_TRUE(end.isExit);
    EXPECT_EQ(end.code, 0);
    EXPECT_EQ(end.errors, u"");
  }
  EXPECT_EQ(getter_.dataFile(QStringLiteral("OfflineLocations.txt")),
            listFile({{QStringLiteral("Disk from 127.0.0.1"),
                       getter_.folder.pathOf(kReceived + QStringLiteral("Disk/Disk.txt"))}}));
}

}  // namespace

}  // namespace quorvin::test
