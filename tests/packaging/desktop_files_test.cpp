// SPDX-License-Identifier: GPL-2.0-or-later

// What desktops read of the program: kinds of files, and how file managers start it on a folder.
#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <QMimeDatabase>
#include <QProcess>
#include <QProcessEnvironment>
#include <gmock/gmock.h>

namespace quorvin::test {
namespace {

using testing::ElementsAre;

const QString kPackaging = QStringLiteral(QUORVIN_PROJECT_FOLDER "/packaging/");

QByteArray bytesOf(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error("could not read " + path.toStdString());
  return file.readAll();
}

/// The toolkit reads what kinds there are once, when it is first asked: all is in one test.
TEST(KindOfListings, IsKnownByTheirContentsWhereTheirNameSaysNothing) {
  const TemporaryFolder folder;
  folder.writeFile(u"share/mime/packages/quorvin.xml"_qs, bytesOf(kPackaging + u"mime/quorvin.xml"_qs));
  qputenv("XDG_DATA_HOME", folder.pathOf(u"share"_qs).toUtf8());
  const QMimeDatabase kinds;
  const auto kindOf = [&](const QString& name, const QByteArray& bytes) {
    return kinds.mimeTypeForFile(folder.writeFile(name, bytes)).name();
  };
  const QByteArray listing = "\r\nVolume:    DATA1\r\nDirectory: \\Music\\\r\n\r\nsong\r\n";
  const QByteArray sample = bytesOf(QStringLiteral(QUORVIN_PROJECT_FOLDER "/samples/sample-catalogue.txt"));
  EXPECT_EQ(kindOf(u"disk"_qs, listing), u"text/x-quorvin-listing"_qs);
  EXPECT_EQ(kindOf(u"disk.lst"_qs, listing), u"text/x-quorvin-listing"_qs);
  EXPECT_EQ(kindOf(u"disk 2"_qs, "Volume: A\nDirectory: \\\n"), u"text/x-quorvin-listing"_qs);
  EXPECT_EQ(kindOf(u"sample"_qs, sample), u"text/x-quorvin-listing"_qs);
  EXPECT_TRUE(kinds.mimeTypeForName(u"text/x-quorvin-listing"_qs).inherits(u"text/plain"_qs));
  // Other texts stay what they are, by any name.
  EXPECT_EQ(kindOf(u"notes.txt"_qs, "About the Volume: loud\n"), u"text/plain"_qs);
  EXPECT_EQ(kindOf(u"notes"_qs, "The Volume: loud\n"), u"text/plain"_qs);
  EXPECT_EQ(kindOf(u"disk.txt"_qs, listing), u"text/plain"_qs)
      << "as every .txt; the program is offered for these, too";
  qunsetenv("XDG_DATA_HOME");
}

/// A value of a desktop entry, as it is written.
QString entryOf(const QString& file, const QString& group, const QString& key) {
  bool isInGroup = false;
  for (const QByteArray& line : bytesOf(file).split('\n')) {
    if (line.startsWith('[')) isInGroup = line == "[" + group.toUtf8() + "]";
    if (isInGroup && line.startsWith(key.toUtf8() + "=")) return QString::fromUtf8(line.mid(key.size() + 1));
  }
  return {};
}

TEST(DesktopEntry, TheProgramIsOfferedForListingsAndForTexts) {
  const QString entry = kPackaging + u"desktop/quorvin.desktop"_qs;
  EXPECT_EQ(entryOf(entry, u"Desktop Entry"_qs, u"MimeType"_qs), u"text/x-quorvin-listing;text/plain;"_qs);
  EXPECT_EQ(entryOf(entry, u"Desktop Entry"_qs, u"Exec"_qs), u"quorvin %f"_qs);
  EXPECT_EQ(entryOf(entry, u"Desktop Entry"_qs, u"Actions"_qs), u"Rescan;Manual;"_qs);
  EXPECT_EQ(entryOf(entry, u"Desktop Action Rescan"_qs, u"Exec"_qs), u"quorvin --rescan"_qs);
  EXPECT_EQ(entryOf(entry, u"Desktop Action Manual"_qs, u"Exec"_qs), u"quorvin --manual"_qs);
}

TEST(DesktopEntry, WhatItSaysIsTranslated) {
  const QString entry = kPackaging + u"desktop/quorvin.desktop"_qs;
  const QString menu = kPackaging + u"service-menus/quorvin-search-folder.desktop"_qs;
  for (const QString& language : {u"de"_qs, u"es"_qs, u"fr"_qs}) {
    const QString ending = u'[' + language + u']';
    for (const char* key : {"GenericName", "Comment", "Keywords"}) {
      EXPECT_NE(entryOf(entry, u"Desktop Entry"_qs, QString::fromLatin1(key) + ending), QString()) << key;
    }
    for (const char* group : {"Desktop Action Rescan", "Desktop Action Manual"}) {
      EXPECT_NE(entryOf(entry, QString::fromLatin1(group), u"Name"_qs + ending), QString()) << group;
    }
    EXPECT_NE(entryOf(menu, u"Desktop Action SearchWithQuorvin"_qs, u"Name"_qs + ending), QString());
  }
}

/// File managers put the path in the place of a "%f" that stands alone, as one argument, whatever is in it.
/// Within quotation marks it would be a part of a text, and names with such marks would end that.
TEST(ServiceMenu, TheFolderIsOneArgument) {
  const QString menu = kPackaging + u"service-menus/quorvin-search-folder.desktop"_qs;
  EXPECT_EQ(entryOf(menu, u"Desktop Entry"_qs, u"MimeType"_qs), u"inode/directory;"_qs);
  EXPECT_EQ(entryOf(menu, u"Desktop Action SearchWithQuorvin"_qs, u"Exec"_qs), u"quorvin --folder %f"_qs);
}

/// Runs the script for Nautilus in a folder, beside a program that notes its arguments.
class NautilusScript : public testing::Test {
 protected:
  NautilusScript() {
    const QString program = folder_.writeFile(u"path/quorvin"_qs, "#!/bin/sh\nprintf '%s\\0' \"$@\"\n");
    QFile::setPermissions(program, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  }

  QList<QByteArray> argumentsFor(const QString& current, const QStringList& selected) const {
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"PATH"_qs, folder_.pathOf(u"path:"_qs) + qEnvironmentVariable("PATH"));
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(current);
    process.start(kPackaging + u"service-menus/Search with Quorvin"_qs, selected);
    EXPECT_TRUE(process.waitForFinished(60'000));
    EXPECT_EQ(process.readAllStandardError().toStdString(), "");
    QList<QByteArray> arguments = process.readAllStandardOutput().split('\0');
    arguments.removeLast();
    return arguments;
  }

  TemporaryFolder folder_;
};

TEST_F(NautilusScript, SearchesInTheSelectedFolderWhateverItIsCalled) {
  for (const QString& name : {u"Music"_qs, u"two  blanks "_qs, u"it's \"loud\""_qs, u"line\nfeed\n"_qs,
                              u"-n"_qs, u"$(id) `id` *"_qs, u"\\back\\"_qs, u"h\u00e4rbour"_qs}) {
    folder_.makeFolder(u"music/"_qs + name);
    EXPECT_THAT(argumentsFor(folder_.pathOf(u"music"_qs), {name}),
                ElementsAre("--folder", (folder_.pathOf(u"music/"_qs) + name).toUtf8()));
  }
}

TEST_F(NautilusScript, SearchesInTheShownFolderWhenNothingOrAFileIsSelected) {
  const QString music = folder_.pathOf(u"mu\nsic"_qs);
  folder_.writeFile(u"mu\nsic/song"_qs, "x");
  EXPECT_THAT(argumentsFor(music, {}), ElementsAre("--folder", music.toUtf8()));
  EXPECT_THAT(argumentsFor(music, {u"song"_qs}), ElementsAre("--folder", music.toUtf8()));
  EXPECT_THAT(argumentsFor(u"/"_qs, {music}), ElementsAre("--folder", music.toUtf8()));
}

}  // namespace
}  // namespace quorvin::test
