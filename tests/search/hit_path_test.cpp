// SPDX-License-Identifier: GPL-2.0-or-later

// From a hit back to its file, in both styles of paths.
#include "search/hit_path.h"

#include "files/file_lookup.h"
#include "support/fault_number.h"
#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <fstream>
#include <vector>

namespace quorvin::test {

namespace {

// The full folder path.

struct FolderCase {
  const char16_t* source;
  const char16_t* listed;
  const char16_t* full;
};

void expectFolders(const std::vector<FolderCase>& cases, PathStyle style) {
  for (const FolderCase& one : cases) {
    EXPECT_EQ(fullFolderPath(QString::fromUtf16(one.source), QString::fromUtf16(one.listed), style),
              QString::fromUtf16(one.full));
  }
}

TEST(FullFolderPath, JoinsTheSourceAndWhatLiesBelowItOnWindows) {
  expectFolders({{u"D:\\Music\\", u"\\Music\\Rock\\", u"D:\\Music\\Rock\\"},
                 {u"D:\\Music", u"\\Music\\Rock\\", u"D:\\Music\\Rock\\"},
                 {u"D:\\Music\\", u"\\Music\\", u"D:\\Music\\"},
                 {u"D:\\Music", u"\\Music\\", u"D:\\Music\\"},
                 {u"D:\\Music\\", u"\\Music\\Rock\\Live\\", u"D:\\Music\\Rock\\Live\\"},
                 {u"D:\\", u"\\", u"D:\\"},
                 {u"D:\\", u"\\Music\\", u"D:\\Music\\"},
                 {u"D:", u"\\Music\\", u"D:\\Music\\"},
                 {u"\\\\server\\share\\", u"server\\share\\Rock\\", u"\\\\server\\share\\Rock\\"}},
                kWindowsPaths);
}

TEST(FullFolderPath, JoinsTheSourceAndWhatLiesBelowItElsewhere) {
  expectFolders({{u"/home/ann/Music/", u"\\home\\ann\\Music\\Rock\\", u"/home/ann/Music/Rock/"},
                 {u"/home/ann/Music", u"\\home\\ann\\Music\\Rock\\", u"/home/ann/Music/Rock/"},
                 {u"/home/ann/Music/", u"\\home\\ann\\Music\\", u"/home/ann/Music/"},
                 {u"/home/ann/Music", u"\\home\\ann\\Music\\", u"/home/ann/Music/"},
                 {u"/", u"\\", u"/"},
                 {u"/", u"\\Music\\", u"/Music/"}},
                kUnixPaths);
}

TEST(FullFolderPath, IsTheReverseOfTheListedFolder) {
  const QString onWindows = QStringLiteral("D:\\Music\\Rock\\");
  const QString elsewhere = QStringLiteral("/home/ann/Music/Rock/");
  EXPECT_EQ(
      fullFolderPath(QStringLiteral("D:\\Music"), listedFolder(onWindows, kWindowsPaths), kWindowsPaths),
      onWindows);
  EXPECT_EQ(
      fullFolderPath(QStringLiteral("/home/ann/Music"), listedFolder(elsewhere, kUnixPaths), kUnixPaths),
      elsewhere);
}

TEST(FullFolderPath, AListedFolderThatEndsBeforeTheSourceAddsNothing) {
  expectFolders({{u"D:\\Music\\Rock\\", u"\\A\\", u"D:\\Music\\Rock\\"}}, kWindowsPaths);
  expectFolders({{u"/home/ann/Music", u"\\A\\", u"/home/ann/Music"}}, kUnixPaths);
}

TEST(FullFolderPath, ASourceShorterThanADriveIsFault5) {
  const auto join = [](const char16_t* source, PathStyle style) {
    return faultNumberOf(
        [&] { fullFolderPath(QString::fromUtf16(source), QStringLiteral("\\Music\\"), style); });
  };
  EXPECT_EQ(join(u"", kWindowsPaths), 5);
  EXPECT_EQ(join(u"D", kWindowsPaths), 5);
  EXPECT_EQ(join(u"D:", kWindowsPaths), 0);
  EXPECT_EQ(join(u"", kUnixPaths), 0);
}

// The source of a hit.

class FolderOfHit : public testing::Test {
 protected:
  void add(const QString& description, const QString& path) {
    state_.OnlineSources.set(++state_.OnlineSourceCount, description, path);
  }
  QString folderOf(const QString& volume, SourceKind kind = SourceKind::Online) {
    HitRow hit;
    hit.kind = kind;
    hit.volume = volume;
    hit.folder = QStringLiteral("\\m\\");
    return folderOfHit(state_, hit, kUnixPaths).value_or(QStringLiteral("none"));
  }

  ProgramState state_;
};

TEST_F(FolderOfHit, ComesFromTheFirstSourceOfThatDescription) {
  add(QStringLiteral("Other"), QStringLiteral("/o/"));
  add(QStringLiteral("Music"), QStringLiteral("/m/"));
  add(QStringLiteral("Music"), QStringLiteral("/n/"));
  EXPECT_EQ(folderOf(QStringLiteral("Music")), QStringLiteral("/m/"));
}

TEST_F(FolderOfHit, TheDescriptionMustBeEqualCharacterByCharacter) {
  add(QStringLiteral("Music"), QStringLiteral("/m/"));
  EXPECT_EQ(folderOf(QStringLiteral("music")), QStringLiteral("none"));
  EXPECT_EQ(folderOf(QStringLiteral("Music ")), QStringLiteral("none"));
  EXPECT_EQ(folderOf(QStringLiteral("Musi")), QStringLiteral("none"));
  EXPECT_EQ(folderOf(QString()), QStringLiteral("none"));
}

TEST_F(FolderOfHit, RowsBehindTheCountAreNoSources) {
  add(QStringLiteral("Music"), QStringLiteral("/m/"));
  state_.OnlineSourceCount = 0;
  EXPECT_EQ(folderOf(QStringLiteral("Music")), QStringLiteral("none"));
}

TEST_F(FolderOfHit, HitsOfOtherListingsHaveNoneEvenWithTheVolumeOfAnOnlineSource) {
  add(QStringLiteral("Music"), QStringLiteral("/m/"));
  EXPECT_EQ(folderOf(QStringLiteral("Music"), SourceKind::MainDataFile), QStringLiteral("none"));
  EXPECT_EQ(folderOf(QStringLiteral("Music"), SourceKind::Offline), QStringLiteral("none"));
}

// The name, looked up in a folder that exists only here.

class FileOfEntry : public testing::Test {
 protected:
  QString find(const QString& entryText, PathStyle style = kUnixPaths) {
    asked_.clear();
    const QString folder = style == kUnixPaths ? QStringLiteral("/m/") : QStringLiteral("D:\\m\\");
    return fileOfEntry(folder, entryText, style, [&](const QString& pattern) {
      asked_.push_back(pattern);
      const QString wanted = pattern.mid(folder.size());
      for (const QString& name : names_) {
        if (fitsWildcards(name, wanted)) return name;
      }
      return QString();
    });
  }

  std::vector<QString> names_;
  std::vector<QString> asked_;
};

TEST_F(FileOfEntry, IsTheFileOfThatName) {
  names_ = {QStringLiteral("a.txt"), QStringLiteral("song.mp3")};
  EXPECT_EQ(find(QStringLiteral("song.mp3")), QStringLiteral("song.mp3"));
  EXPECT_EQ(find(QStringLiteral("song.mp3"), kWindowsPaths), QStringLiteral("song.mp3"));
}

TEST_F(FileOfEntry, AWholeNameIsLookedUpOnce) {
  names_ = {QStringLiteral("song.mp3")};
  EXPECT_EQ(find(QStringLiteral("song.mp3")), QStringLiteral("song.mp3"));
  EXPECT_EQ(asked_, std::vector{QStringLiteral("/m/song.mp3")});
}

TEST_F(FileOfEntry, TheWholeNameComesBeforeALongerOne) {
  names_ = {QStringLiteral("song.mp3.txt"), QStringLiteral("song.mp3")};
  EXPECT_EQ(find(QStringLiteral("song.mp3")), QStringLiteral("song.mp3"));
}

TEST_F(FileOfEntry, WithoutTheWholeNameTheFirstThatBeginsWithItIsTaken) {
  names_ = {QStringLiteral("other"), QStringLiteral("song.mp3.part"), QStringLiteral("song.mp3.txt")};
  EXPECT_EQ(find(QStringLiteral("song.mp3")), QStringLiteral("song.mp3.part"));
  EXPECT_EQ(asked_, (std::vector{QStringLiteral("/m/song.mp3"), QStringLiteral("/m/song.mp3*"),
                                 QStringLiteral("/m/song.mp3.part")}));
}

TEST_F(FileOfEntry, IsEmptyWhenNothingFits) {
  names_ = {QStringLiteral("other"), QStringLiteral("Song.mp3")};
  EXPECT_EQ(find(QStringLiteral("song.mp3")), QString());
}

TEST_F(FileOfEntry, ANameCutAt65CharactersIsFound) {
  const QString whole = QString(70, u'n') + QStringLiteral(".mp3");
  names_ = {whole};
  EXPECT_EQ(find(whole.left(65)), whole);
}

TEST_F(FileOfEntry, AQuestionMarkStandsForTheCharacterThatCouldNotBeListed) {
  names_ = {QStringLiteral("a\\b.txt")};
  EXPECT_EQ(find(QStringLiteral("a?b.txt")), QStringLiteral("a\\b.txt"));
}

TEST_F(FileOfEntry, AnEntryBeyond65CharactersLosesTheDigitOfALargeSize) {
  names_ = {QStringLiteral("film.mkv")};
  EXPECT_EQ(find(QStringLiteral("film.mkv").leftJustified(68) + u'1'), QStringLiteral("film.mkv"));
}

TEST_F(FileOfEntry, ACutNameWithTheDigitOfALargeSizeIsFound) {
  const QString whole = QString(80, u'n') + QStringLiteral(".mkv");
  names_ = {whole};
  EXPECT_EQ(find(whole.left(65) + QStringLiteral("   4")), whole);
}

TEST_F(FileOfEntry, The65CharactersAreCharactersNotUnits) {
  // A clef takes up two units.
  const QString clefs = QString::fromUcs4(U"\U0001D11E").repeated(65);
  names_ = {clefs};
  EXPECT_EQ(find(clefs + QStringLiteral("   1")), clefs);
  EXPECT_EQ(asked_.back(), QStringLiteral("/m/") + clefs);
}

TEST_F(FileOfEntry, A69CharacterNameIsLookedUpWholeFirst) {
  const QString whole(69, u'n');
  names_ = {QString(65, u'n'), whole};
  EXPECT_EQ(find(whole), whole);
}

TEST_F(FileOfEntry, UpTo65CharactersAreLookedUpOnlyAsTheyStand) {
  names_ = {};
  EXPECT_EQ(find(QString(65, u'n')), QString());
  EXPECT_EQ(asked_.size(), 2U);
}

TEST_F(FileOfEntry, ATextThatLeadsOutOfTheFolderFindsNothing) {
  names_ = {QStringLiteral("secret")};
  EXPECT_EQ(find(QStringLiteral("../secret")), QString());
  EXPECT_EQ(find(QStringLiteral("sub/secret")), QString());
  EXPECT_EQ(find(QStringLiteral("..\\secret"), kWindowsPaths), QString());
  EXPECT_EQ(find(QStringLiteral("../secret"), kWindowsPaths), QString());
  EXPECT_TRUE(asked_.empty());
}

TEST_F(FileOfEntry, ABackslashIsAnOrdinaryCharacterOffWindows) {
  names_ = {QStringLiteral("..\\x")};
  EXPECT_EQ(find(QStringLiteral("..\\x")), QStringLiteral("..\\x"));
}

TEST_F(FileOfEntry, AnEmptyTextStandsForNoFile) {
  names_ = {QStringLiteral("any")};
  EXPECT_EQ(find(QString()), QString());
  EXPECT_EQ(find(QString(68, u' ') + u'1'), QString());
}

TEST_F(FileOfEntry, AFolderWithoutSeparatorHoldsNothing) {
  const auto any = [](const QString&) { return QStringLiteral("musical.mp3"); };
  EXPECT_EQ(fileOfEntry(QStringLiteral("/m/musi"), QStringLiteral("cal"), kUnixPaths, any), QString());
}

TEST_F(FileOfEntry, WhatNoNameCanHoldIsFault52) {
  const auto faultOf = [&](const QString& text, PathStyle style) {
    return faultNumberOf([&] { find(text, style); });
  };
  const QString withNul = QStringLiteral("a") + QChar(u'\0') + u'b';
  EXPECT_EQ(faultOf(withNul, kUnixPaths), 52);
  EXPECT_EQ(faultOf(withNul, kWindowsPaths), 52);
  EXPECT_EQ(faultOf(QStringLiteral("a:b"), kWindowsPaths), 52);
  EXPECT_EQ(faultOf(QStringLiteral("a\"b"), kWindowsPaths), 52);
  EXPECT_EQ(faultOf(QStringLiteral("a<b>|"), kWindowsPaths), 52);
  EXPECT_EQ(faultOf(QStringLiteral("a:b\"<>|"), kUnixPaths), 0);
}

// On the disk.

TEST(HitPathOnDisk, NamesThatLookLikePatternsAreFoundAsTheyStand) {
  const TemporaryFolder folder;
  const std::vector<QString> names = {QStringLiteral("a*b"), QStringLiteral("aXb"), QStringLiteral("what?"),
                                      QStringLiteral("-rf"), QStringLiteral("[ab]")};
  for (const QString& name : names) folder.writeFile(name, "x");
  for (const QString& name : names) {
    EXPECT_EQ(fileOfEntry(folder.path(), name, nativePathStyle(), findOrdinaryFile), name);
  }
}

TEST(HitPathOnDisk, FoldersAndHiddenFilesAreNoFiles) {
  const TemporaryFolder folder;
  folder.makeFolder(QStringLiteral("sub"));
  folder.writeFile(QStringLiteral(".hidden"), "x");
  const auto find = [&](const char16_t* text) {
    return fileOfEntry(folder.path(), QString::fromUtf16(text), nativePathStyle(), findOrdinaryFile);
  };
  EXPECT_EQ(find(u"sub"), QString());
  EXPECT_EQ(find(u".hidden"), QString());
  EXPECT_EQ(find(u".."), QString());
}

TEST(HitPathOnDisk, ANameThatNoTextCanHoldLeadsToNoOtherFile) {
  const TemporaryFolder folder;
  std::ofstream((folder.path().toStdString() + "caf\xE9.mp3")) << 'x';
  const auto find = [&] {
    return fileOfEntry(folder.path(), QStringLiteral("caf?.mp3"), nativePathStyle(), findOrdinaryFile);
  };
  EXPECT_EQ(find(), QString());
}

TEST(HitPathOnDisk, AFolderThatIsGoneHoldsNothing) {
  const TemporaryFolder folder;
  EXPECT_EQ(fileOfEntry(folder.pathOf(QStringLiteral("gone/")), QStringLiteral("a"), nativePathStyle(),
                        findOrdinaryFile),
            QString());
}

}  // namespace

}  // namespace quorvin::test
