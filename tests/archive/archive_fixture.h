// SPDX-License-Identifier: GPL-2.0-or-later

// Unpacking made archives into a folder of the test, inside another one that must stay as it is.
#pragma once

#include "archive/archive_maker.h"
#include "archive/archive_unpacking.h"
#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <QDirIterator>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <vector>

namespace quorvin::test {

/// Keeps what an unpacking reports, and stops it when asked to.
struct RecordedUnpacking {
  ArchivePause pause() {
    return [this](int percent) {
      if (percentages.empty() || percentages.back() != percent) percentages.push_back(percent);
      ++pauses;
      if (onPause) onPause();
      return stops;
    };
  }

  /// Each percentage once.
  std::vector<int> percentages;
  int pauses = 0;
  std::vector<ArchiveErrorCode> codes;
  QStringList descriptions;
  bool stops = false;
  std::function<void()> onPause;
};

/// Every file and link below `folder`, hidden ones too, with its content; folders end in "/".
inline std::map<QString, QByteArray> treeOf(const QString& folder) {
  std::map<QString, QByteArray> tree;
  QDirIterator names(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                     QDirIterator::Subdirectories);
  while (names.hasNext()) {
    const QFileInfo file(names.next());
    const QString name = QDir(folder).relativeFilePath(file.filePath());
    if (file.isDir() && !file.isSymLink()) {
      tree[name + u'/'] = {};
      continue;
    }
    QFile content(file.filePath());
    tree[name] = content.open(QIODevice::ReadOnly) ? content.readAll() : QByteArray("(unreadable)");
  }
  return tree;
}

class ArchiveTest : public testing::Test {
 protected:
  using Tree = std::map<QString, QByteArray>;

  UnpackingOutcome unpack(const QByteArray& archive, const ArchiveLimits& limits = {}) {
    archivePath_ = outer_.writeFile(QStringLiteral("lists.zip"), archive);
    record_ = {};
    return unpackFile(archivePath_, target_, limits);
  }

  UnpackingOutcome unpack(const std::vector<MadeEntry>& entries, const ArchiveLimits& limits = {}) {
    return unpack(archiveOf(entries), limits);
  }

  UnpackingOutcome unpackFile(const QString& archivePath, const QString& target,
                              const ArchiveLimits& limits = {}, std::int64_t length = -1) {
    const UnpackingResult result =
        unpackArchive(archivePath, target, record_.pause(), {.limits = limits, .archiveLength = length});
    if (result.outcome == UnpackingOutcome::Failed) {
      record_.codes.push_back(result.errorCode);
      record_.descriptions += result.error;
    }
    return result.outcome;
  }

  /// Unpacks what must be refused before anything is written, and gives the message.
  QString refusalOf(const QByteArray& archive, ArchiveErrorCode code, const ArchiveLimits& limits = {}) {
    const Tree before = treeOf(target_);
    EXPECT_EQ(unpack(archive, limits), UnpackingOutcome::Failed);
    EXPECT_THAT(record_.codes, testing::ElementsAre(code));
    EXPECT_EQ(treeOf(target_), before);
    EXPECT_THAT(outer_.names(), testing::UnorderedElementsAre(u"lists.zip"_qs, u"target"_qs));
    return record_.descriptions.join(u'|');
  }
  QString refusalOf(const std::vector<MadeEntry>& entries, ArchiveErrorCode code,
                    const ArchiveLimits& limits = {}) {
    return refusalOf(archiveOf(entries), code, limits);
  }

  Tree tree() const { return treeOf(target_); }

  TemporaryFolder outer_;
  QString target_ = outer_.makeFolder(QStringLiteral("target"));
  QString archivePath_;
  RecordedUnpacking record_;
};

}  // namespace quorvin::test
