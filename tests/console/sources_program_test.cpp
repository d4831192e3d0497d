// SPDX-License-Identifier: GPL-2.0-or-later

// "quorvin-cli sources", and what "refresh" does with the names that it shows, as a user runs them.
#include "console/console_program.h"
#include "platform/ini_settings_store.h"
#include "support/qt_printing.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <memory>
#include <vector>

namespace quorvin {
namespace {

class SourcesProgram : public test::ConsoleProgramTest {
 protected:
  SourcesProgram() {
    folder.writeFile(u"Music/song.mp3"_qs, "12345");
    folder.writeFile(u"Films/film.avi"_qs, "12345");
    folder.writeFile(u"cd7.txt"_qs, "song\r\n");
    folder.writeFile(u"data/Locations.txt"_qs, records({u"Music"_qs}));
    IniSettingsStore(folder.pathOf(u"settings.ini"_qs))
        .write(u"Ketta Quorvin"_qs, u"Settings"_qs, u"LocalFolder"_qs, folder.pathOf(u"data/"_qs));
  }

  /// The records of folders that are described by their names.
  QByteArray records(const QStringList& folders) const {
    QByteArray text;
    for (const QString& name : folders) {
      text += "\"" + name.toUtf8() + "\",\"" + folder.pathOf(name + u'/').toUtf8() + "\"\r\n";
    }
    return text;
  }
  QByteArray folders() const { return folder.readFile(u"data/Locations.txt"_qs); }
  QByteArray offline() const { return folder.readFile(u"data/OfflineLocations.txt"_qs); }
  test::Ended sources(const QStringList& arguments) { return run(QStringList{u"sources"_qs} + arguments); }

  void expectRefused(const QStringList& arguments, const QString& sentence) {
    const QByteArray before = folders();
    const test::Ended ended = sources(arguments);
    EXPECT_EQ(ended.status, 2) << arguments.join(u' ').toStdString();
    EXPECT_EQ(ended.errors.section(u'\n', 0, 0), u"quorvin-cli: "_qs + sentence);
    EXPECT_EQ(folders(), before);
    EXPECT_FALSE(folder.has(u"data/OfflineLocations.txt"_qs));
  }
};

TEST_F(SourcesProgram, ShowsThemInTheOrderInWhichTheyAreSearched) {
  folder.writeFile(u"data/OfflineLocations.txt"_qs, "\"Offline\",\"/gone/cd.txt\"\r\n");
  IniSettingsStore(folder.pathOf(u"settings.ini"_qs))
      .write(u"Ketta Quorvin"_qs, u"Settings"_qs, u"TextFile"_qs, u"all.txt"_qs);
  const QByteArray data = folder.pathOf(u"data/"_qs).toUtf8();
  const test::Ended ended = sources({});
  EXPECT_EQ(ended.output, "folder\tMusic\t" + folder.pathOf(u"Music/"_qs).toUtf8() + '\t' + data +
                              "Music.txt\tthere\nmain\tall.txt\t" + data + "all.txt\t" + data +
                              "all.txt\tgone\noffline\tOffline\t/gone/cd.txt\t/gone/cd.txt\tgone\n");
  EXPECT_EQ(ended.errors, u"The data folder is "_qs + QString::fromUtf8(data) + u'\n');
  EXPECT_EQ(ended.status, 0);
  const test::Ended json = sources({u"--json"_qs, u"--quiet"_qs});
  const QJsonObject first = QJsonDocument::fromJson(json.output.split('\n').first()).object();
  EXPECT_EQ(first[u"description"].toString(), u"Music"_qs);
  EXPECT_TRUE(first[u"there"].isBool() && first[u"there"].toBool());
  EXPECT_EQ(json.errors, QString());
}

TEST_F(SourcesProgram, FoldersAndListingsAreAddedAtTheEndsOfTheirLists) {
  EXPECT_EQ(sources({u"add"_qs, u"Films"_qs, u"cd7.txt"_qs}).status, 0);
  EXPECT_EQ(folders(), records({u"Music"_qs, u"Films"_qs}));
  EXPECT_EQ(offline(), "\"Offline\",\"" + folder.pathOf(u"cd7.txt"_qs).toUtf8() + "\"\r\n");
}

TEST_F(SourcesProgram, ADescriptionIsTakenAsTheEditorsTakeIt) {
  EXPECT_EQ(sources({u"add"_qs, u"--name"_qs, u"My \"Films\""_qs, u"Films/"_qs}).status, 0);
  EXPECT_EQ(folders(),
            records({u"Music"_qs}) + "\"My 'Films'\",\"" + folder.pathOf(u"Films/"_qs).toUtf8() + "\"\r\n");
}

TEST_F(SourcesProgram, WhatTheEditorsRefuseIsRefusedWhole) {
  const QString music = folder.pathOf(u"Music/"_qs);
  expectRefused({u"add"_qs, u"Films"_qs, u"Music"_qs}, music + u" is in the list already."_qs);
  expectRefused({u"add"_qs, u"gone"_qs},
                folder.pathOf(u"gone"_qs) + u" is neither a folder nor a listing file"_qs);
  expectRefused({u"add"_qs, u"--name"_qs, u"a/b"_qs, u"Films"_qs},
                u"Description must not be left blank or contain the characters /?\\:|*"_qs);
  expectRefused({u"add"_qs, u"--name"_qs, u"Music"_qs, u"Films"_qs},
                u"\"Music\" is there twice; both would share one listing."_qs);
  expectRefused({u"add"_qs, u"--name"_qs, u"Locations"_qs, u"Films"_qs},
                u"\"Locations\" is a file of the program; it needs another description."_qs);
  expectRefused({u"add"_qs, u"--name"_qs, u"x"_qs, u"Films"_qs, u"cd7.txt"_qs},
                u"--name is for one source at a time"_qs);
  expectRefused({u"add"_qs}, u"sources add needs a folder or a listing"_qs);
}

TEST_F(SourcesProgram, OnesAreRemovedByDescriptionOrPath) {
  folder.writeFile(u"data/Locations.txt"_qs, records({u"Music"_qs, u"Films"_qs, u"data"_qs}));
  EXPECT_EQ(sources({u"remove"_qs, u"Films"_qs, u"Music/"_qs, u"Films"_qs}).status, 0);
  EXPECT_EQ(folders(), records({u"data"_qs}));
  EXPECT_TRUE(folder.has(u"Music/song.mp3"_qs));
}

TEST_F(SourcesProgram, OneThatIsNotMeantClearlyIsNotTouched) {
  expectRefused({u"remove"_qs, u"Books"_qs},
                u"there is no source \"Books\"; quorvin-cli sources shows them"_qs);
  folder.writeFile(u"data/Locations.txt"_qs, records({u"Music"_qs}) + "\"Music\",\"/m/\"\r\n");
  expectRefused({u"remove"_qs, u"Music"_qs},
                u"2 sources are called \"Music\"; please name the path of one"_qs);
}

TEST_F(SourcesProgram, OneIsMovedToAnotherPlace) {
  folder.writeFile(u"data/Locations.txt"_qs, records({u"Music"_qs, u"Films"_qs, u"data"_qs}));
  EXPECT_EQ(sources({u"move"_qs, u"data"_qs, u"1"_qs}).status, 0);
  EXPECT_EQ(folders(), records({u"data"_qs, u"Music"_qs, u"Films"_qs}));
  EXPECT_EQ(sources({u"move"_qs, u"data"_qs, u"3"_qs}).status, 0);
  EXPECT_EQ(folders(), records({u"Music"_qs, u"Films"_qs, u"data"_qs}));
  expectRefused({u"move"_qs, u"data"_qs, u"4"_qs}, u"the list has places 1 to 3"_qs);
  expectRefused({u"move"_qs, u"data"_qs}, u"sources move needs a source and its place"_qs);
  expectRefused({u"move"_qs, u"data"_qs, u"up"_qs}, u"the place of sources move is a number from 1"_qs);
}

TEST_F(SourcesProgram, CommandsAtTheSameMomentLoseNothing) {
  std::vector<std::unique_ptr<QProcess>> others;
  for (const QString& name : {u"a"_qs, u"b"_qs, u"c"_qs, u"d"_qs}) {
    folder.makeFolder(name);
    auto& other = *others.emplace_back(std::make_unique<QProcess>());
    other.setProcessEnvironment(process.processEnvironment());
    other.setWorkingDirectory(folder.path());
    other.start(process.program(), {u"sources"_qs, u"add"_qs, folder.pathOf(name)});
  }
  for (const auto& other : others) {
    ASSERT_TRUE(other->waitForFinished(60000));
    EXPECT_EQ(other->exitCode(), 0) << other->readAllStandardError().toStdString();
  }
  EXPECT_EQ(folders().count('\n'), 5);
  EXPECT_FALSE(folder.has(u"data/Locations.txt.kept"_qs));
}

TEST_F(SourcesProgram, RefreshOfNamesLeavesTheOthersAlone) {
  folder.writeFile(u"data/Locations.txt"_qs, records({u"Music"_qs, u"Films"_qs}));
  const test::Ended ended = run({u"refresh"_qs, u"--json"_qs, u"films"_qs});
  EXPECT_EQ(ended.status, 0);
  EXPECT_TRUE(folder.has(u"data/Films.txt"_qs));
  EXPECT_FALSE(folder.has(u"data/Music.txt"_qs));
  EXPECT_EQ(
      ended.output,
      "{\"made\":1,\"kept\":0,\"missing\":0,\"entries\":1,\"added\":1,\"gone\":0,\"leftOut\":0,\"stopped\":"
      "false}\n");
  EXPECT_EQ(folders(), records({u"Music"_qs, u"Films"_qs}));
}

TEST_F(SourcesProgram, RefreshOfANameThatIsNotThereDoesNothing) {
  const test::Ended ended = run({u"refresh"_qs, u"Music"_qs, u"Books"_qs});
  EXPECT_EQ(ended.status, 2);
  EXPECT_EQ(ended.errors,
            u"quorvin-cli: there is no folder of your own with the description \"Books\"; quorvin-cli "
            "sources shows them\n"_qs);
  EXPECT_FALSE(folder.has(u"data/Music.txt"_qs));
}

}  // namespace
}  // namespace quorvin
