// SPDX-License-Identifier: GPL-2.0-or-later

// The command that puts a file into a player's queue.
#include "platform/shell.h"
#include "support/qt_printing.h"

#include <gtest/gtest.h>

namespace quorvin::test {

namespace {

const QString kFile = QStringLiteral("/m/-a %f $(b); \"c\".mp3");

QString lines(const PlayerCommand& command) {
  return (QStringList(command.program) + command.arguments).join(u'\n');
}

QString ofSetting(const char16_t* setting) {
  return lines(playerCommandOfSetting(QString::fromUtf16(setting), kFile));
}

QString withInstalled(const QStringList& names) {
  return lines(installedPlayerCommand(kFile, [&](const QString& name) {
    return names.contains(name) ? QStringLiteral("/bin/") + name : QString();
  }));
}

TEST(PlayerCommandOfSetting, TheFileComesLast) {
  EXPECT_EQ(ofSetting(u"mpv --append"), QStringLiteral("mpv\n--append\n") + kFile);
  EXPECT_EQ(ofSetting(u"mpv"), QStringLiteral("mpv\n") + kFile);
}

TEST(PlayerCommandOfSetting, TheFileTakesThePlaceThatIsMarked) {
  EXPECT_EQ(ofSetting(u"play --file=%f --queue"),
            QStringLiteral("play\n--file=") + kFile + QStringLiteral("\n--queue"));
  EXPECT_EQ(ofSetting(u"play %f"), QStringLiteral("play\n") + kFile);
}

TEST(PlayerCommandOfSetting, QuotesKeepBlanksTogether) {
  EXPECT_EQ(ofSetting(u"\"/opt/my player/run\" \"two words\""),
            QStringLiteral("/opt/my player/run\ntwo words\n") + kFile);
}

TEST(PlayerCommandOfSetting, SignsOfCommandInterpretersMeanNothing) {
  EXPECT_EQ(ofSetting(u"play $HOME;ls | `id` > x"),
            QStringLiteral("play\n$HOME;ls\n|\n`id`\n>\nx\n") + kFile);
}

TEST(PlayerCommandOfSetting, AnEmptySettingIsNoCommand) {
  EXPECT_TRUE(playerCommandOfSetting(QString(), kFile).isEmpty());
  EXPECT_TRUE(playerCommandOfSetting(QStringLiteral("  "), kFile).isEmpty());
}

TEST(InstalledPlayerCommand, EachKnownPlayerIsToldToAppend) {
  const auto expect = [](const char16_t* name, const char16_t* arguments) {
    const QString program = QString::fromUtf16(name);
    EXPECT_EQ(withInstalled({program}),
              QStringLiteral("/bin/") + program + u'\n' + QString::fromUtf16(arguments) + kFile);
  };
  expect(u"audacious", u"-e\n");
  expect(u"vlc", u"--one-instance\n--playlist-enqueue\n");
  expect(u"strawberry", u"--append\n");
  expect(u"clementine", u"--append\n");
  expect(u"deadbeef", u"--queue\n");
  expect(u"rhythmbox-client", u"--enqueue\n");
}

TEST(InstalledPlayerCommand, TheFirstThatIsInstalledIsTaken) {
  EXPECT_EQ(withInstalled({QStringLiteral("rhythmbox-client"), QStringLiteral("strawberry")}),
            QStringLiteral("/bin/strawberry\n--append\n") + kFile);
}

TEST(InstalledPlayerCommand, NoneIsEmpty) {
  EXPECT_EQ(withInstalled({QStringLiteral("mpv")}), QString());
}

}  // namespace

}  // namespace quorvin::test
