// SPDX-License-Identifier: GPL-2.0-or-later
#include "console/volume_rows.h"

#include "support/qt_printing.h"

#include <gtest/gtest.h>

namespace quorvin {
namespace {

KnownVolume volumeNamed(const QString& name, const QString& listing) {
  KnownVolume volume{name, listing};
  volume.sum.holds = {1, 5};
  return volume;
}

std::string tableOf(const std::vector<KnownVolume>& volumes, const std::vector<std::uint32_t>& order,
                    bool isForTerminal = false) {
  return volumeTable(volumes, order, isForTerminal, QDate(2026, 3, 31), QLocale::c());
}

TEST(VolumeTable, AlignsNumbersAndHasTheNoteBehindTheName) {
  KnownVolume large = volumeNamed(u"Music"_qs, u"/lists/Music.txt"_qs);
  large.sum = {{1'234'567, std::int64_t{3} << 40}, 0, {{38'001.5, "\\", "a"}}};
  large.listed = QDate(2026, 3, 19).startOfDay();
  large.freeBytes = 1'536;
  large.note = u"under the desk"_qs;
  EXPECT_EQ(tableOf({volumeNamed(u"CD 7"_qs, u"cd7.txt"_qs), large}, {1, 0}),
            "  Files     Size       Newest       Listed     Free  Volume\n"
            "1234567  3.00 TB  15 Jan 2004  12 days ago  1.50 kB  Music: under the desk\n"
            "      1  5 bytes                                     CD 7\n");
}

TEST(VolumeTable, NamesTheListingWhereVolumesHaveTheSameNameOrNone) {
  EXPECT_EQ(tableOf({volumeNamed(u"DATA"_qs, u"/x/a.txt"_qs), volumeNamed(u"DATA"_qs, u"b.txt"_qs),
                     volumeNamed(QString(), u"c.txt"_qs)},
                    {0, 1, 2}),
            "Files     Size  Newest  Listed  Free  Volume\n"
            "    1  5 bytes                        DATA (a.txt)\n"
            "    1  5 bytes                        DATA (b.txt)\n"
            "    1  5 bytes                        (c.txt)\n");
}

TEST(VolumeTable, LetsNoControlCharacterThrough) {
  KnownVolume volume = volumeNamed(u"a\x1B[31m\u009Bb"_qs, u"x.txt"_qs);
  volume.note = u"n\u009Bm"_qs;
  EXPECT_EQ(tableOf({volume}, {0}, true),
            "Files     Size  Newest  Listed  Free  Volume\n"
            "    1  5 bytes                        a [31m?b: n?m\n");
}

TEST(VolumeTable, IsEmptyWithoutVolumes) {
  EXPECT_EQ(tableOf({}, {}), "");
}

TEST(VolumeJson, LeavesOutWhatIsNotKnown) {
  std::string text;
  addVolumeJson(text, volumeNamed(u"a\tb\n\"c\""_qs, u"x.txt"_qs));
  EXPECT_EQ(
      text,
      "{\"volume\":\"a\\u0009b\\u000a\\\"c\\\"\",\"listing\":\"x.txt\",\"kind\":\"offline\",\"entries\":1,"
      "\"withoutSize\":0,\"size\":5}\n");
}

TEST(VolumeJson, HasEverythingElse) {
  KnownVolume volume = volumeNamed(u"Music"_qs, u"Music.txt"_qs);
  volume.kind = SourceKind::Online;
  volume.sum = {{2, 7}, 1, {{38'001.5, "\\a\\", "b"}}};
  volume.listed = QDateTime(QDate(2026, 3, 19), QTime(8, 30));
  volume.folder = u"/home/ann/Music/"_qs;
  volume.freeBytes = 1'536;
  volume.note = u"desk"_qs;
  std::string text;
  addVolumeJson(text, volume);
  EXPECT_EQ(text,
            "{\"volume\":\"Music\",\"listing\":\"Music.txt\",\"kind\":\"folder\",\"entries\":2,"
            "\"withoutSize\":1,\"size\":7,\"newest\":\"2004-01-15T12:00:00\",\"newestFolder\":\"\\\\a\\\\\","
            "\"newestName\":\"b\",\"listed\":\"2026-03-19T08:30:00\",\"path\":\"/home/ann/Music/\","
            "\"free\":1536,\"note\":\"desk\"}\n");
}

}  // namespace
}  // namespace quorvin
