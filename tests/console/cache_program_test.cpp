// SPDX-License-Identifier: GPL-2.0-or-later

// "quorvin-cli cache" as a user runs it.
#include "console/console_program.h"
#include "support/listing_lines.h"
#include "support/qt_printing.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

namespace quorvin {
namespace {

class CacheProgram : public test::ConsoleProgramTest {
 protected:
  /// Has a listing searched, so that it is kept.
  QString kept(const QString& name) {
    const QString listing = folder.writeFile(name, test::entryLine("song"));
    EXPECT_EQ(run({u"find"_qs, u"--count"_qs, u"song"_qs, listing}).output, "1\n");
    return listing;
  }
};

TEST_F(CacheProgram, WhatBelongsToNoListingIsMarkedAndCanBeRemovedAlone) {
  const QString stays = kept(u"stays.lst"_qs);
  const QString goes = kept(u"goes.lst"_qs);
  ASSERT_TRUE(QFile::remove(goes));
  folder.writeFile(u"cache/quorvin/0123456789abcdef.qimage"_qs, "old");
  const test::Ended unused = run({u"cache"_qs, u"--unused"_qs});
  EXPECT_TRUE(unused.output.contains('\t' + goes.toUtf8() + "\t(gone)\n")) << unused.output.toStdString();
  EXPECT_TRUE(unused.output.endsWith("\n3\t(of an earlier version)\n")) << unused.output.toStdString();
  EXPECT_EQ(unused.output.count('\n'), 2);
  EXPECT_EQ(run({u"cache"_qs, u"--clear"_qs, u"--unused"_qs}).status, 0);
  const test::Ended left = run({u"cache"_qs});
  EXPECT_TRUE(left.output.endsWith('\t' + stays.toUtf8() + '\n')) << left.output.toStdString();
  EXPECT_EQ(left.output.count('\n'), 1);
}

TEST_F(CacheProgram, JsonSaysTheSame) {
  const QString goes = kept(u"goes.lst"_qs);
  ASSERT_TRUE(QFile::remove(goes));
  const QJsonObject row = QJsonDocument::fromJson(run({u"cache"_qs, u"--json"_qs}).output).object();
  EXPECT_EQ(row[u"listing"].toString(), goes);
  EXPECT_EQ(row[u"remark"].toString(), u"gone"_qs);
  EXPECT_GT(row[u"size"].toInt(), 0);
  EXPECT_EQ(row[u"size"].toInt(), QFile(row[u"file"].toString()).size());
}

}  // namespace
}  // namespace quorvin
