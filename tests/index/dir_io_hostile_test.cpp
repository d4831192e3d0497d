// SPDX-License-Identifier: GPL-2.0-or-later

// The walk over names that a file system allows and nobody expects.
#include "index/hostile_names.h"
#include "index/walk_fixture.h"
#include "platform/text_encoding.h"
#include "support/scan_of.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <fcntl.h>
#include <unistd.h>

namespace quorvin {
namespace {

using test::head;

bool holdsAny(const QByteArray& name, const std::vector<const char*>& marks) {
  return std::any_of(marks.begin(), marks.end(), [&name](const char* mark) { return name.contains(mark); });
}

bool continuesCharacter(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

qsizetype charactersIn(const QByteArray& text) {
  return text.size() - std::count_if(text.begin(), text.end(), continuesCharacter);
}

// What the tests know of names: their own reading of the rules, not the walk's.
QByteArray shown(const QByteArray& name) {
  QByteArray text;
  for (qsizetype i = 0; i < name.size();) {
    qsizetype length = 4;
    while (length > 0 && !(i + length <= name.size() && name.mid(i, length).isValidUtf8() &&
                           charactersIn(name.mid(i, length)) == 1)) {
      --length;
    }
    const QByteArray character = name.mid(i, std::max<qsizetype>(length, 1));
    text += length == 0 || character == "\r" || character == "\n" || character == "\\" ? "?" : character;
    i += std::max<qsizetype>(length, 1);
  }
  return text;
}

QByteArray cut(QByteArray shownName) {
  while (charactersIn(shownName) > 65) {
    while (continuesCharacter(shownName.back())) shownName.chop(1);
    shownName.chop(1);
  }
  return shownName;
}

bool isUnlistable(const QByteArray& name) {
  return shown(name).contains('?');
}

const std::vector<const char*> kFileMarks = {"Volume:", "Directory:", "<DIR>", "---------------"};
const std::vector<const char*> kFolderMarks = {"Volume:", "Directory:"};

bool breaksItsLine(const QByteArray& name) {
  return holdsAny(cut(shown(name)), kFileMarks);
}

class DirIOHostile : public test::WalkTest {
 protected:
  void makeFile(const QByteArray& name) {
    const QByteArray path = tree.path().toUtf8() + name;
    const int file = ::open(path.constData(), O_WRONLY | O_CREAT | O_EXCL, 0600);
    ASSERT_GE(file, 0) << name.constData();
    ASSERT_EQ(::write(file, "12345", 5), 5);
    const timespec times[2] = {{test::kMoment, 0}, {test::kMoment, 0}};
    ASSERT_EQ(::futimens(file, times), 0);
    ::close(file);
  }

  void makeFolder(const QByteArray& name) {
    const QByteArray path = tree.path().toUtf8() + name;
    ASSERT_EQ(::mkdir(path.constData(), 0700), 0) << name.constData();
    const int file = ::open((path + "/inside.txt").constData(), O_WRONLY | O_CREAT | O_EXCL, 0600);
    ASSERT_GE(file, 0);
    ::close(file);
  }

  // Whether the error log has a line for the name, which it shows as the listing does.
  bool isLogged(const QByteArray& name) const {
    const QString line = tree.path() + QString::fromUtf8(shown(name));
    return state.errorLog.contains(line + u" Contains unsuported"_qs) ||
           state.errorLog.contains(line + u" holds \""_qs);
  }

  void removeTree() {
    for (const QByteArray& name : test::hostileNames()) {
      const QByteArray path = tree.path().toUtf8() + name;
      ::unlink((path + "/inside.txt").constData());
      ::rmdir(path.constData());
      ::unlink(path.constData());
    }
  }

  ~DirIOHostile() override { removeTree(); }
};

TEST_F(DirIOHostile, EveryFileHasOneLineInItsColumns) {
  for (const QByteArray& name : test::hostileNames()) makeFile(name);
  QByteArray listing = walk(tree.path());
  const QByteArray top = head(listed(tree.path()));
  ASSERT_TRUE(listing.startsWith(top));
  listing.remove(0, top.size());
  std::vector<QByteArray> lines;
  for (qsizetype end = listing.indexOf("\r\n"); end >= 0; end = listing.indexOf("\r\n")) {
    lines.push_back(listing.left(end));
    listing.remove(0, end + 2);
  }
  EXPECT_EQ(listing, "");

  std::vector<QByteArray> expected;
  for (const QByteArray& name : test::hostileNames()) {
    const QByteArray text = cut(shown(name));
    const qsizetype columns = charactersIn(text);
    expected.push_back(text + QByteArray(65 - columns, ' ') +
                       (isUnlistable(name) ? "              -1 bytes 00:00:00"
                                           : "               5 bytes 15 Jan 2004 10:20:30"));
  }
  EXPECT_THAT(lines, testing::UnorderedElementsAreArray(expected));
}

TEST_F(DirIOHostile, WhatAListingCannotHoldOrAReaderWillMisreadIsLogged) {
  for (const QByteArray& name : test::hostileNames()) makeFile(name);
  walk(tree.path());
  int told = 0;
  for (const QByteArray& name : test::hostileNames()) {
    const bool hasLine = isUnlistable(name) || breaksItsLine(name);
    EXPECT_EQ(isLogged(name), hasLine) << name.constData();
    told += (isUnlistable(name) ? 1 : 0) + (breaksItsLine(name) ? 1 : 0);
  }
  EXPECT_EQ(state.errorLog.count(u"\r\n"_qs), told) << state.errorLog.toStdString();
  EXPECT_TRUE(state.errorLog.contains(
      tree.path() + u"caf?.txt Contains unsuported characters represented by the ?\r\n"_qs));
  EXPECT_TRUE(state.errorLog.contains(tree.path() +
                                      u"<DIR> fake holds \"<DIR>\"; a search misreads its line\r\n"_qs));
  EXPECT_TRUE(messages.askedOfFaults.empty());
}

TEST_F(DirIOHostile, EveryOtherFileIsReadBackWithNameFolderSizeAndDate) {
  std::vector<QByteArray> expected;
  for (const QByteArray& name : test::hostileNames()) {
    if (breaksItsLine(name)) continue;
    makeFile(name);
    QByteArray text = cut(shown(name));
    while (text.endsWith(' ')) text.chop(1);
    expected.push_back(text);
  }
  // The folder's path is a word of it, so that every entry is a hit.
  const test::ReferenceResult found =
      test::scanOf(walk(tree.path()), simpleLowerCase(QString::fromUtf8(listed(tree.path()))), 99);
  std::vector<QByteArray> names;
  for (const test::ReferenceHit& hit : found.hits) {
    EXPECT_EQ(hit.volume, u"DATA1"_qs);
    EXPECT_EQ(hit.folder, QString::fromUtf8(listed(tree.path())));
    names.push_back(hit.name.toUtf8());
    if (hit.name.contains(u'?')) continue;
    EXPECT_EQ(hit.size, 5) << hit.name.toStdString();
    EXPECT_EQ(generalDateText(hit.date, QLocale::c()), u"15 Jan 2004 10:20:30"_qs);
  }
  EXPECT_THAT(names, testing::UnorderedElementsAreArray(expected));
}

TEST_F(DirIOHostile, FoldersAreWalkedOrLogged) {
  for (const QByteArray& name : test::hostileNames()) makeFolder(name);
  const QByteArray listing = walk(tree.path());
  qsizetype walked = 0;
  qsizetype told = 0;
  for (const QByteArray& name : test::hostileNames()) {
    const QByteArray subFolder = "<DIR> " + name + "\r\n";
    const QByteArray block = head(listed(tree.path()) + name + "\\") + "inside.txt ";
    EXPECT_EQ(listing.contains(subFolder), !isUnlistable(name)) << name.constData();
    EXPECT_EQ(listing.contains(block), !isUnlistable(name)) << name.constData();
    walked += isUnlistable(name) ? 0 : 1;
    const bool isMisread = !isUnlistable(name) && holdsAny(name, kFolderMarks);
    told += isUnlistable(name) || isMisread ? 1 : 0;
    EXPECT_EQ(isLogged(name), isUnlistable(name) || isMisread) << name.constData();
  }
  EXPECT_EQ(listing.count("inside.txt "), walked);
  EXPECT_EQ(state.errorLog.count(u"\r\n"_qs), told) << state.errorLog.toStdString();
}

TEST_F(DirIOHostile, ATopWithALineEndOrAMarkIsLogged) {
  test::FakeFolders folders('/');
  folders.addFolder("/a\nVolume: b/");
  const QByteArray listing = walk(folders, u"/a\nVolume: b/"_qs, kUnixPaths);
  EXPECT_EQ(listing, head("\\a?Volume: b\\"));
  EXPECT_EQ(state.errorLog,
            u"/a?Volume: b/ Contains unsuported characters represented by the ?\r\n"
            "/a?Volume: b/ holds \"Volume:\"; a search misreads its line\r\n"_qs);
}

TEST_F(DirIOHostile, ASizeThatDoesNotFitIsLogged) {
  test::FakeFolders folders('/');
  folders.addFolder("/a/", {"huge"});
  folders.targets["/a/huge"] = {NameKind::File, 10'000'000'000'000, test::kMoment};
  EXPECT_TRUE(walk(folders, u"/a/"_qs, kUnixPaths).contains("   9999999999999 bytes "));
  EXPECT_EQ(state.errorLog,
            u"/a/huge is too large for a listing; its size was written as 9999999999999\r\n"_qs);
}

TEST_F(DirIOHostile, APathOfAMillionBytesIsListedAndOneByteMoreIsNot) {
  test::FakeFolders folders('/');
  folders.addFolder("/a/");
  // With the separators around "a" and the one at the end.
  const std::string longest(1'000'000 - 4, 'x');
  folders.addFolder("/a/" + longest + "/");
  folders.addFolder("/a/" + longest + "y/");
  const QByteArray listing = walk(folders, u"/a/"_qs, kUnixPaths);
  EXPECT_EQ(listing.count("Directory: "), 2);
  EXPECT_TRUE(listing.contains("Directory: \\a\\" + QByteArray::fromStdString(longest) + "\\\r\n"));
  EXPECT_EQ(state.errorLog.count(u"\r\n"_qs), 1);
}

TEST_F(DirIOHostile, AFolderWhosePathIsTooLongForALineIsLeftOutAndLogged) {
  test::FakeFolders folders('/');
  const std::string part(250'000, 'x');
  std::string path = "/a/";
  folders.addFolder(path);
  for (int i = 0; i < 5; ++i) folders.addFolder(path += part + '/');
  const QByteArray listing = walk(folders, u"/a/"_qs, kUnixPaths);
  EXPECT_EQ(listing.count("Directory: "), 4);
  EXPECT_TRUE(state.errorLog.endsWith(u" was left out: its path is too long for a listing\r\n"_qs));
  EXPECT_EQ(state.errorLog.count(u"\r\n"_qs), 1);
}

}  // namespace
}  // namespace quorvin
