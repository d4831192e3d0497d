// SPDX-License-Identifier: GPL-2.0-or-later

// A user with sources of their own, for what answers the search of the desktop.
#pragma once

#include "support/listing_lines.h"
#include "support/temporary_folder.h"

#include <QByteArray>
#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>
#include <gtest/gtest.h>

namespace quorvin::test {

/// Two own folders that are catalogued, "Music" with files that are there, and "Gone" whose drive is not.
class ProviderHome {
 public:
  ProviderHome() {
    music = folder.makeFolder(QStringLiteral("Music"));
    const QByteArray listed = QByteArray(music.toUtf8()).replace('/', '\\');
    for (const char* name : {"northern harbour.ogg", "southern lights.ogg"}) {
      folder.writeFile(QStringLiteral("Music/") + QString::fromLatin1(name), "tune");
    }
    folder.writeFile(
        QStringLiteral("data/Music.txt"),
        blockHead("Music", listed) + entryLine("northern harbour.ogg") + entryLine("southern lights.ogg"));
    folder.writeFile(
        QStringLiteral("data/Gone.txt"),
        blockHead("Gone", "\\gone\\harbour\\") + entryLine("northern.jpg") + entryLine("\x1b[31m.txt"));
    folder.writeFile(QStringLiteral("data/Locations.txt"),
                     "\"Music\",\"" + music.toUtf8() + "\"\r\n\"Gone\",\"/gone/\"\r\n");
    folder.writeFile(QStringLiteral("settings.ini"), "[Ketta%20Quorvin/Settings]\nLocalFolder=" +
                                                         folder.pathOf(QStringLiteral("data/")).toUtf8() +
                                                         "\nTextFile=main.txt\n");
    folder.writeFile(QStringLiteral("data/main.txt"),
                     blockHead("Main", "\\far\\") + entryLine("northern star.txt"));
    environment = QProcessEnvironment::systemEnvironment();
    const auto set = [this](const char* name, const QString& value) {
      environment.insert(QString::fromLatin1(name), value);
    };
    set("LC_ALL", QStringLiteral("C.UTF-8"));
    set("TZ", QStringLiteral("UTC0"));
    set("QUORVIN_SETTINGS", folder.pathOf(QStringLiteral("settings.ini")));
    set("XDG_CACHE_HOME", folder.pathOf(QStringLiteral("cache")));
    set("XDG_DATA_HOME", folder.pathOf(QStringLiteral("home")));
  }

  /// Searches as a user does, after which what was read of the listings is kept.
  void searchOnce() const {
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(QUORVIN_CLI),
                  {QStringLiteral("find"), QStringLiteral("--quiet"), QStringLiteral("nothing")});
    ASSERT_TRUE(process.waitForFinished(60000));
    ASSERT_EQ(process.exitCode(), 1) << process.readAllStandardError().toStdString();
  }

  TemporaryFolder folder;
  QString music;
  QProcessEnvironment environment;
};

}  // namespace quorvin::test
