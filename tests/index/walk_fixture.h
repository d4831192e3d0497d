// SPDX-License-Identifier: GPL-2.0-or-later

// What the tests of the walk share.
#pragma once

#include "files/file_aside.h"
#include "index/dir_io.h"
#include "index/recording_index_display.h"
#include "support/fake_folders.h"
#include "support/qt_printing.h"
#include "support/recording_message_boxes.h"
#include "support/temporary_folder.h"
#include "support/time_zone.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <stdexcept>
#include <sys/stat.h>

namespace quorvin::test {

/// 15 January 2004, 10:20:30 UTC.
inline constexpr std::int64_t kMoment = 1'074'162'030;

/// Gives the file or folder at `path` this time of its last change.
inline void setModified(const QString& path, std::int64_t seconds) {
  const timespec times[2] = {{seconds, 0}, {seconds, 0}};
  if (::utimensat(AT_FDCWD, path.toUtf8().constData(), times, 0) != 0) throw std::runtime_error("utimensat");
}

/// Walks real or made-up folders and gives the bytes of the listing.
class WalkTest : public testing::Test {
 protected:
  QByteArray walk(FolderReader& folders, QString path, PathStyle style, int flags = kToOutput1,
                  const QString& pattern = QStringLiteral("*.*")) {
    const TimeZone zone(kUtc);
    std::optional<Job> job = work.start(JobKind::Refresh);
    IndexProgress progress(*job, QLocale::c());
    DirIO dirIO(state, folders, progress, messages, QLocale::c(), style);
    FileAside listing(out_.pathOf(QStringLiteral("listing")));
    result = dirIO.walk(path, pattern, {&listing.writer(), nullptr}, QStringLiteral("DATA1"), flags);
    listing.commit();
    pathAfterwards = path;
    counts = dirIO.counts();
    return out_.readFile(QStringLiteral("listing"));
  }

  /// Real folders.
  QByteArray walk(const QString& path, int flags = kToOutput1,
                  const QString& pattern = QStringLiteral("*.*")) {
    const auto folders = makeFolderReader();
    return walk(*folders, path, nativePathStyle(), flags, pattern);
  }

  /// The folder of the temporary tree as it is in a listing.
  QByteArray listed(const QString& path) { return listedFolder(path, nativePathStyle()).toUtf8(); }

  ProgramState state;
  RecordingIndexDisplay view;
  Work work{state, view};
  RecordingMessageBoxes messages;
  TemporaryFolder tree;
  WalkResult result;
  QString pathAfterwards;
  IndexCounts counts;

 private:
  TemporaryFolder out_;
};

/// The head of a block of the label DATA1.
inline QByteArray head(const QByteArray& folder) {
  return "\r\nVolume:    DATA1\r\nDirectory: " + folder + "\r\n\r\n";
}

/// The entry line of one of FakeFolders' files.
inline QByteArray fakeFile(const QByteArray& name, const QByteArray& size = "1,000",
                           const QByteArray& date = "1 Jan 1970") {
  return name.leftJustified(65) + size.rightJustified(16) + " bytes " + date + "\r\n";
}

}  // namespace quorvin::test
