// SPDX-License-Identifier: GPL-2.0-or-later

// What views are told of volumes.
#include "catalogue/volumes/volumes_model.h"

#include <QAbstractItemModelTester>
#include <QPersistentModelIndex>
#include <gtest/gtest.h>

namespace quorvin::test {

namespace {

TEST(VolumesModelTest, IsAProperModel) {
  QString kept;
  VolumesModel model({QLocale::c(), [](const KnownVolume& volume) { return volume.note; },
                      [&kept](const KnownVolume& volume, const QString& note) {
                        kept = volume.name + u'=' + note;
                        return note != QStringLiteral("no");
                      }});
  const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
  model.show({{QStringLiteral("b"), QStringLiteral("1.txt")}, {QStringLiteral("a"), QStringLiteral("2.txt")}},
             QDate(2026, 3, 31));
  const QPersistentModelIndex b(model.index(0, 0));
  model.sort(0, Qt::AscendingOrder);
  EXPECT_EQ(b.row(), 1);
  const int noteColumn = static_cast<int>(VolumeColumn::Note);
  EXPECT_TRUE(model.setData(model.index(1, noteColumn), QStringLiteral(" box\n3 ")));
  EXPECT_EQ(kept, QStringLiteral("b=box 3"));
  EXPECT_EQ(model.index(1, noteColumn).data().toString(), QStringLiteral("box 3"));
  EXPECT_FALSE(model.setData(model.index(1, noteColumn), QStringLiteral("no")));
  EXPECT_EQ(model.index(1, noteColumn).data().toString(), QStringLiteral("box 3"));
  EXPECT_FALSE(model.setData(model.index(1, 0), QStringLiteral("another name")));
  EXPECT_FALSE(model.flags(model.index(0, 0)).testFlag(Qt::ItemIsEditable));
}

}  // namespace

}  // namespace quorvin::test
