// SPDX-License-Identifier: GPL-2.0-or-later

// A folder with files, its listing, and their checksums.
#pragma once

#include "catalogue/checksums/checksum_writing.h"
#include "catalogue/checksums/verification.h"
#include "catalogue/compared_place.h"
#include "files/file_aside.h"
#include "support/temporary_folder.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

namespace quorvin::test {

class CheckedFolder : public testing::Test {
 protected:
  CheckedFolder() { folder_.makeFolder(QStringLiteral("disk")); }

  QString disk() const { return folder_.pathOf(QStringLiteral("disk")); }
  QString listing() const { return folder_.pathOf(QStringLiteral("disk.txt")); }

  /// Writes a file that was last changed at that second of 2004.
  void write(const QString& name, const QByteArray& content, int second = 0) {
    const QString path = QStringLiteral("disk/") + name;
    QDir().mkpath(QFileInfo(folder_.pathOf(path)).path());
    folder_.writeFile(path, content);
    setTime(name, second);
  }
  void setTime(const QString& name, int second) {
    QFile file(disk() + u'/' + name);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    const QDateTime time = QDateTime::fromSecsSinceEpoch(1'074'162'030 + second);
    ASSERT_TRUE(file.setFileTime(time, QFileDevice::FileModificationTime));
  }
  void remove(const QString& name) { ASSERT_TRUE(QFile::remove(disk() + u'/' + name)); }

  ChecksumWriting writing() const {
    ChecksumWriting::Parts parts;
    parts.folder = disk();
    parts.listing = listing();
    parts.locale = QLocale::c();
    return ChecksumWriting(std::move(parts));
  }

  /// As the console does it.
  void takeChecksums() {
    ChecksumWriting writing = this->writing();
    FileAside manifest(manifestOf(listing()));
    ASSERT_TRUE(writing.write(manifest.writer()));
    manifest.commit();
    EXPECT_EQ(writing.unread(), QStringList());
    const FolderAsItIs now(
        disk(), QStringLiteral("DISK"), QLocale::c(), [] { return false; }, [](const QString&) {});
    QFile::remove(listing());
    ASSERT_TRUE(QFile::copy(now.path(), listing()));
  }

  /// The manifest says that it is of the listing that stands there now.
  void bindChecksums() {
    const QString manifest = QStringLiteral("disk.txt.sha256");
    const QByteArray remark = QByteArray::fromStdString(listingRemark(listingIdentity(listing())));
    folder_.writeFile(manifest, folder_.readFile(manifest) + remark);
  }

  Verification::Parts parts() const {
    Verification::Parts parts;
    parts.listing = listing();
    parts.locale = QLocale::c();
    return parts;
  }

  /// Each as "word path".
  static std::vector<std::string> textsOf(const Verification& verification) {
    std::vector<std::string> texts;
    for (const FileFinding& finding : verification.findings()) {
      texts.push_back(std::string(wordOf(finding.verdict)) + ' ' + finding.path);
    }
    return texts;
  }
  std::vector<std::string> verified() {
    Verification verification(parts());
    EXPECT_TRUE(verification.run());
    return textsOf(verification);
  }

  TemporaryFolder folder_;
};

}  // namespace quorvin::test
