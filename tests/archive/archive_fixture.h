// Unpacking made archives into a folder of the test's own, which stands in another that must stay as it is.
#pragma once

#include "archive/archive_error.h"
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

class RecordingArchiveEvents : public ArchiveEvents {
 public:
  void archiveError(std::int32_t code, const QString& description) override {
    codes.push_back(static_cast<ArchiveErrorCode>(code));
    descriptions += description;
  }
  void percentDone(double percentage) override { percentages.push_back(percentage); }
  void idleTick(std::int32_t number) override {
    ticks = number;
    if (onTick) onTick();
  }
  void fileNotice(const QString& name, std::int64_t bytes) override {
    notices += QStringLiteral("%1 %2").arg(name).arg(bytes);
  }
  bool stopRequested() const override { return stops; }

  std::vector<ArchiveErrorCode> codes;
  QStringList descriptions;
  std::vector<double> percentages;
  std::int32_t ticks = 0;
  QStringList notices;
  bool stops = false;
  std::function<void()> onTick;
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
    events_ = {};
    archivePath_ = outer_.writeFile(QStringLiteral("lists.zip"), archive);
    return unpackArchive(archivePath_, target_, events_, limits);
  }

  UnpackingOutcome unpack(const std::vector<MadeEntry>& entries, const ArchiveLimits& limits = {}) {
    return unpack(archiveOf(entries), limits);
  }

  /// Unpacks what must be refused before anything is written, and gives the message.
  QString refusalOf(const QByteArray& archive, ArchiveErrorCode code, const ArchiveLimits& limits = {}) {
    const Tree before = treeOf(target_);
    EXPECT_EQ(unpack(archive, limits), UnpackingOutcome::Failed);
    EXPECT_THAT(events_.codes, testing::ElementsAre(code));
    EXPECT_EQ(treeOf(target_), before);
    EXPECT_THAT(outer_.names(), testing::UnorderedElementsAre(u"lists.zip"_qs, u"target"_qs));
    EXPECT_EQ(events_.notices, QStringList());
    return events_.descriptions.join(u'|');
  }
  QString refusalOf(const std::vector<MadeEntry>& entries, ArchiveErrorCode code,
                    const ArchiveLimits& limits = {}) {
    return refusalOf(archiveOf(entries), code, limits);
  }

  Tree tree() const { return treeOf(target_); }

  TemporaryFolder outer_;
  QString target_ = outer_.makeFolder(QStringLiteral("target"));
  QString archivePath_;
  RecordingArchiveEvents events_;
};

}  // namespace quorvin::test
