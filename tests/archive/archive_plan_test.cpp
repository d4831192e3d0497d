// SPDX-License-Identifier: GPL-2.0-or-later

// Archives made to do harm: each is refused with a message, and nothing is written outside or inside.
#include "archive/archive_plan.h"

#include "archive/archive_fixture.h"

#include <QElapsedTimer>

namespace quorvin::test {
namespace {

using testing::ElementsAre;

MadeEntry named(const QByteArray& name) {
  MadeEntry entry;
  entry.name = name;
  entry.content = "harm";
  return entry;
}

MadeEntry ofMode(std::uint32_t mode) {
  MadeEntry entry = named("thing");
  entry.content = "../../etc/passwd";
  entry.mode = mode;
  return entry;
}

struct BadName {
  const char* what;
  QByteArray name;
  QString message;
};

void PrintTo(const BadName& bad, std::ostream* out) {
  *out << bad.what;
}

QString refused(const QString& why, const QString& name) {
  return QStringLiteral("The archive has an entry whose name %1: \"%2\". Nothing was unpacked.")
      .arg(why, name);
}

class ArchiveBadName : public ArchiveTest, public testing::WithParamInterface<BadName> {};

TEST_P(ArchiveBadName, IsRefused) {
  // The honest entry before it is not written either.
  const QString message = refusalOf({named("good.txt"), named(GetParam().name)}, ArchiveErrorCode::BadName);
  EXPECT_EQ(message, GetParam().message);
}

const QString kOut = QStringLiteral("leads out of the folder");
const QString kAbsolute = QStringLiteral("is an absolute path");
const QString kDrive = QStringLiteral("has a drive");
const QString kControl = QStringLiteral("holds control characters");

INSTANTIATE_TEST_SUITE_P(
    Every, ArchiveBadName,
    testing::Values(
        BadName{"parent", "../evil.txt", refused(kOut, u"../evil.txt"_qs)},
        BadName{"parents", "../../../../tmp/evil.txt", refused(kOut, u"../../../../tmp/evil.txt"_qs)},
        BadName{"parent inside", "a/../../evil.txt", refused(kOut, u"a/../../evil.txt"_qs)},
        BadName{"parent that comes back", "a/../b.txt", refused(kOut, u"a/../b.txt"_qs)},
        BadName{"parent at the end", "a/..", refused(kOut, u"a/.."_qs)},
        BadName{"parent folder", "../", refused(kOut, u"../"_qs)},
        BadName{"parent alone", "..", refused(kOut, u".."_qs)},
        BadName{"parent after dots and separators", ".//./..//evil.txt",
                refused(kOut, u".//./..//evil.txt"_qs)},
        BadName{"parent with backslashes", "..\\evil.txt", refused(kOut, u"..\\evil.txt"_qs)},
        BadName{"parent with both separators", "a\\../..\\evil.txt", refused(kOut, u"a\\../..\\evil.txt"_qs)},
        BadName{"absolute", "/tmp/evil.txt", refused(kAbsolute, u"/tmp/evil.txt"_qs)},
        BadName{"absolute twice", "//tmp/evil.txt", refused(kAbsolute, u"//tmp/evil.txt"_qs)},
        BadName{"root", "/", refused(kAbsolute, u"/"_qs)},
        BadName{"absolute with backslash", "\\evil.txt", refused(kAbsolute, u"\\evil.txt"_qs)},
        BadName{"network share", "\\\\server\\share\\evil.txt",
                refused(kAbsolute, u"\\\\server\\share\\evil.txt"_qs)},
        BadName{"device path", "\\\\?\\C:\\evil.txt", refused(kAbsolute, u"\\\\?\\C:\\evil.txt"_qs)},
        BadName{"drive", "C:\\evil.txt", refused(kDrive, u"C:\\evil.txt"_qs)},
        BadName{"drive with slash", "c:/evil.txt", refused(kDrive, u"c:/evil.txt"_qs)},
        BadName{"drive without separator", "C:evil.txt", refused(kDrive, u"C:evil.txt"_qs)},
        BadName{"drive inside", "a/C:/evil.txt", refused(kDrive, u"a/C:/evil.txt"_qs)},
        BadName{"drive after a dot", "./C:/evil.txt", refused(kDrive, u"./C:/evil.txt"_qs)},
        BadName{"line end", "evil\r\n.txt", refused(kControl, u"evil??.txt"_qs)},
        BadName{"escape", "evil\x1B[2J.txt", refused(kControl, u"evil?[2J.txt"_qs)},
        BadName{"tab", "evil\t.txt", refused(kControl, u"evil?.txt"_qs)},
        BadName{"empty", "", refused(u"is empty"_qs, QString())},
        BadName{"too long", QByteArray(256, 'x'),
                refused(u"is too long"_qs, QString(80, u'x') + u"..."_qs + QString(40, u'x'))}));

class ArchiveRefused : public ArchiveTest {};

TEST_F(ArchiveRefused, NameWithANulIsNoPathToElsewhere) {
  const QByteArray name("good.txt\0/../../evil.txt", 24);
  EXPECT_EQ(refusalOf({named(name)}, ArchiveErrorCode::BadName),
            refused(kControl, u"good.txt?/../../evil.txt"_qs));
}

TEST_F(ArchiveRefused, LinkIsRefused) {
  EXPECT_EQ(refusalOf({ofMode(kLinkMode)}, ArchiveErrorCode::NotAFile),
            u"The archive holds a link: \"thing\". Nothing was unpacked."_qs);
}

TEST_F(ArchiveRefused, LinkToAFolderWithAFileBehindItIsRefused) {
  MadeEntry link = ofMode(kLinkMode);
  link.content = "/tmp";
  refusalOf({link, named("thing/evil.txt")}, ArchiveErrorCode::NotAFile);
}

TEST_F(ArchiveRefused, DevicesAndSocketsAreRefused) {
  for (const std::uint32_t mode : {kCharacterDeviceMode, kBlockDeviceMode, kSocketMode}) {
    EXPECT_EQ(refusalOf({ofMode(mode)}, ArchiveErrorCode::NotAFile),
              u"The archive holds a device or a socket: \"thing\". Nothing was unpacked."_qs);
  }
}

TEST_F(ArchiveRefused, FolderWithContentIsRefused) {
  EXPECT_EQ(refusalOf({named("sub/")}, ArchiveErrorCode::NotAFile),
            u"The archive holds a folder with content: \"sub/\". Nothing was unpacked."_qs);
}

TEST_F(ArchiveRefused, SameNameTwiceIsRefused) {
  EXPECT_EQ(refusalOf({named("a.txt"), named("a.txt")}, ArchiveErrorCode::DuplicateName),
            u"The archive \"lists.zip\" holds two entries of the same name. Nothing was unpacked."_qs);
}

TEST_F(ArchiveRefused, SamePlaceUnderTwoNamesIsRefused) {
  for (const char* other : {"./a.txt", "a.txt/.", ".\\a.txt", ".//a.txt"}) {
    refusalOf({named("a.txt"), named(other)},
              QByteArray(other).endsWith('.') ? ArchiveErrorCode::NotAFile : ArchiveErrorCode::DuplicateName);
  }
  EXPECT_EQ(refusalOf({named("sub/a.txt"), named("sub\\a.txt")}, ArchiveErrorCode::DuplicateName),
            u"The archive holds two entries of the same name: \"sub\\a.txt\". Nothing was unpacked."_qs);
}

TEST_F(ArchiveRefused, FileAndFolderOfTheSameNameAreRefused) {
  EXPECT_EQ(refusalOf({named("a"), named("a/b.txt")}, ArchiveErrorCode::DuplicateName),
            u"In the archive a file and a folder have the same name: \"a/b.txt\". Nothing was unpacked."_qs);
  refusalOf({named("a/b.txt"), named("a")}, ArchiveErrorCode::DuplicateName);
}

TEST_F(ArchiveRefused, EncryptedEntryIsRefused) {
  MadeEntry entry = named("a.txt");
  entry.flags = 1;
  entry.packed = QByteArray(12, 'k') + "harm";
  EXPECT_EQ(refusalOf({named("b.txt"), entry}, ArchiveErrorCode::Encrypted),
            u"\"a.txt\" in the archive is encrypted. Nothing was unpacked."_qs);
}

TEST_F(ArchiveRefused, EntryPackedByAnotherMethodIsRefused) {
  MadeEntry entry = named("a.txt");
  constexpr std::uint16_t kLzma = 14;
  constexpr std::uint16_t kBzip2 = 12;
  for (const std::uint16_t method : {kLzma, kBzip2, std::uint16_t{9}}) {
    entry.method = method;
    entry.packed = "harm";
    EXPECT_EQ(refusalOf({entry}, ArchiveErrorCode::UnknownMethod),
              u"\"a.txt\" in the archive is packed in a way that this program does not know. "
              u"Nothing was unpacked."_qs);
  }
}

TEST_F(ArchiveRefused, EntryFarDownIsRefused) {
  QByteArray name;
  for (int i = 0; i < 5000; ++i) name += "d/";
  EXPECT_EQ(refusalOf({named("good.txt"), named(name + "evil.txt")}, ArchiveErrorCode::TooDeep),
            u"The archive has an entry that is more than 64 folders deep: \""_qs +
                QString::fromLatin1(name.first(80)) + u"..."_qs +
                QString::fromLatin1((name + "evil.txt").last(40)) + u"\". Nothing was unpacked."_qs);
}

TEST_F(ArchiveRefused, EntryAtTheDeepestLevelIsTaken) {
  QByteArray folders;
  for (int i = 0; i < 64; ++i) folders += "d/";
  EXPECT_EQ(unpack({named(folders + "a.txt")}), UnpackingOutcome::Unpacked);
  EXPECT_EQ(tree().size(), 65U);
  refusalOf({named(folders + "d/a.txt")}, ArchiveErrorCode::TooDeep);
}

TEST_F(ArchiveRefused, MoreEntriesThanAllowedAreRefused) {
  std::vector<MadeEntry> entries;
  for (int i = 0; i < 50'001; ++i) entries.push_back(named("f" + QByteArray::number(i)));
  EXPECT_EQ(refusalOf(entries, ArchiveErrorCode::TooManyEntries),
            u"The archive \"lists.zip\" holds more than 50000 entries. Nothing was unpacked."_qs);
}

TEST_F(ArchiveRefused, AbsurdNumberOfEntriesIsRefusedBeforeMemoryIsTaken) {
  ArchiveForm form;
  form.largeEnd = true;
  for (const std::uint64_t told : {std::uint64_t{1} << 40, ~std::uint64_t{0}}) {
    form.toldCount = told;
    refusalOf(archiveOf({named("a.txt")}, form), ArchiveErrorCode::TooManyEntries);
  }
}

TEST_F(ArchiveRefused, WrongNumberOfEntriesIsRefused) {
  ArchiveForm form;
  form.toldCount = 3;
  refusalOf(archiveOf({named("a.txt")}, form), ArchiveErrorCode::Contradictory);
}

TEST_F(ArchiveRefused, ADirectoryOf64MebibytesIsTakenAndALargerOneRefused) {
  // 512 descriptions of 131,072 bytes: 46, a name of 3, and the rest.
  MadeEntry entry;
  entry.directoryExtra = QByteArray("\xFE\xCA\xFB\xFF", 4) + QByteArray(65531, 'x');
  entry.comment = QByteArray(65488, 'c');
  std::vector<MadeEntry> entries(512, entry);
  for (int i = 0; i < 512; ++i) entries[static_cast<std::size_t>(i)].name = QByteArray::number(100 + i);
  EXPECT_EQ(unpack(entries), UnpackingOutcome::Unpacked);
  EXPECT_EQ(tree().size(), 512U);
  entries.back().comment += 'c';
  refusalOf(entries, ArchiveErrorCode::Contradictory);
}

TEST_F(ArchiveRefused, FlatBombIsRefused) {
  // A megabyte of packed zeros is a gigabyte.
  MadeEntry bomb = named("a.txt");
  bomb.method = kDeflated;
  bomb.packed = QByteArray(1 << 20, '\0');
  bomb.toldSize = std::uint64_t{1} << 30;
  std::vector<MadeEntry> bombs;
  for (int i = 0; i < 5; ++i) {
    bomb.name = QByteArray::number(i);
    bombs.push_back(bomb);
  }
  EXPECT_EQ(refusalOf(bombs, ArchiveErrorCode::TooLarge),
            u"The archive would unpack to more than 4.0 GiB. Nothing was unpacked."_qs);
}

TEST_F(ArchiveRefused, SizesThatWouldOverflowTheirSumAreRefused) {
  MadeEntry huge = named("a.txt");
  huge.isLarge = true;
  huge.method = kDeflated;
  huge.toldSize = (std::uint64_t{1} << 63) - 1;
  MadeEntry other = huge;
  other.name = "b.txt";
  refusalOf({huge, other, named("c.txt")}, ArchiveErrorCode::TooLarge);
}

TEST_F(ArchiveRefused, BombThatHidesItsSizeIsStoppedAtTheToldSize) {
  outer_.writeFile(u"target/a.txt"_qs, "earlier");
  MadeEntry bomb = named("a.txt");
  bomb.method = kDeflated;
  bomb.packed = deflated(QByteArray(64 << 20, 'x'));
  bomb.toldSize = 1000;
  EXPECT_EQ(unpack({bomb}), UnpackingOutcome::Failed);
  EXPECT_THAT(record_.codes, ElementsAre(ArchiveErrorCode::DamagedEntry));
  EXPECT_TRUE(record_.descriptions[0].startsWith(u"\"a.txt\" in the archive is damaged: "_qs));
  EXPECT_EQ(tree(), (Tree{{u"a.txt"_qs, "earlier"}}));
}

TEST_F(ArchiveRefused, BombsInsideAreNotUnpackedFurther) {
  QByteArray inner = archiveOf("zeros.txt", QByteArray(10 << 20, '\0'));
  for (int level = 0; level < 5; ++level) inner = archiveOf("level.zip", inner);
  EXPECT_EQ(unpack(archiveOf("bomb.zip", inner)), UnpackingOutcome::Unpacked);
  EXPECT_EQ(tree(), (Tree{{u"bomb.zip"_qs, inner}}));
}

TEST_F(ArchiveRefused, EntriesThatShareTheirBytesAreRefused) {
  MadeEntry kernel = named("0");
  kernel.content = QByteArray(100'000, 'x');
  std::vector<MadeEntry> entries = {kernel};
  for (int i = 1; i < 100; ++i) {
    MadeEntry other = kernel;
    other.name = QByteArray::number(i);
    other.sharesBytesOf = 0;
    entries.push_back(other);
  }
  // Each name in the directory has another before the shared bytes.
  refusalOf(entries, ArchiveErrorCode::Contradictory);
}

TEST_F(ArchiveRefused, EntriesThatHoldTheOnesBehindThemAreRefused) {
  // Each stored entry covers all that follow, with their headers, so that every name is right.
  EXPECT_EQ(refusalOf(nestedOverlapOf(20, QByteArray(1000, 'x')), ArchiveErrorCode::Overlapping),
            u"The entries of the archive overlap; it was made to do harm. Nothing was unpacked."_qs);
}

TEST_F(ArchiveRefused, NameThatDiffersInsideIsRefused) {
  MadeEntry entry = named("good.txt");
  entry.innerName = "evil.txt";
  EXPECT_EQ(
      refusalOf({entry}, ArchiveErrorCode::Contradictory),
      u"The archive \"lists.zip\" is damaged: its parts contradict each other. Nothing was unpacked."_qs);
}

TEST_F(ArchiveRefused, PackedSizeThatDiffersInsideIsRefused) {
  MadeEntry entry = named("good.txt");
  entry.headerPackedSize = 3;
  refusalOf({entry}, ArchiveErrorCode::Contradictory);
}

TEST_F(ArchiveRefused, ContentThatReachesIntoTheDirectoryIsRefused) {
  MadeEntry entry = named("good.txt");
  entry.toldPackedSize = 5;
  entry.toldSize = 5;
  refusalOf({entry}, ArchiveErrorCode::Contradictory);
}

TEST_F(ArchiveRefused, WrongChecksumLeavesTheEarlierFile) {
  outer_.writeFile(u"target/a.txt"_qs, "earlier");
  for (const std::uint16_t method : {kStored, kDeflated}) {
    MadeEntry entry = named("a.txt");
    entry.method = method;
    entry.toldChecksum = 0x12345678;
    EXPECT_EQ(unpack({entry}), UnpackingOutcome::Failed);
    EXPECT_EQ(
        record_.descriptions,
        QStringList{u"\"a.txt\" in the archive is damaged: its checksum is wrong. Nothing was unpacked."_qs});
    EXPECT_EQ(tree(), (Tree{{u"a.txt"_qs, "earlier"}}));
  }
}

TEST_F(ArchiveRefused, FilesBeforeADamagedOneAreTold) {
  MadeEntry damaged = named("c.txt");
  damaged.toldChecksum = 1;
  EXPECT_EQ(unpack({named("a.txt"), damaged}), UnpackingOutcome::Failed);
  EXPECT_EQ(record_.descriptions,
            QStringList{u"\"c.txt\" in the archive is damaged: its checksum is wrong. "
                        u"One file before it was unpacked, nothing else was changed."_qs});
  EXPECT_EQ(unpack({named("a.txt"), named("b.txt"), damaged}), UnpackingOutcome::Failed);
  EXPECT_EQ(record_.descriptions,
            QStringList{u"\"c.txt\" in the archive is damaged: its checksum is wrong. "
                        u"The 2 files before it were unpacked, nothing else was changed."_qs});
}

TEST_F(ArchiveRefused, NamesInMessagesCannotBreakThem) {
  const QString message = refusalOf({named("<b>evil</b>\n../x")}, ArchiveErrorCode::BadName);
  EXPECT_EQ(message, refused(kControl, u"<b>evil</b>?../x"_qs));
}

TEST_F(ArchiveRefused, HtmlIsNoArchive) {
  EXPECT_EQ(refusalOf(QByteArray("<html><body>Not here</body></html>"), ArchiveErrorCode::NotAnArchive),
            u"\"lists.zip\" is no zip archive, or its end is missing. Nothing was unpacked."_qs);
}

TEST_F(ArchiveRefused, NothingIsNoArchive) {
  refusalOf(QByteArray(), ArchiveErrorCode::NotAnArchive);
}

}  // namespace
}  // namespace quorvin::test
