// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/ini_settings_store.h"

#include "e2e/ordinary_user.h"
#include "faults/runtime_fault.h"
#include "files/full_disk.h"
#include "support/fault_number.h"
#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <thread>

namespace quorvin {

namespace {

const QString kApp = QStringLiteral("Quorvin Utility");
const QString kSection = QStringLiteral("Settings");
const QString kFile = QStringLiteral("quorvin/settings.ini");

int faultOfWriting(IniSettingsStore& store, const QString& value) {
  try {
    store.write(kApp, kSection, QStringLiteral("Key"), value);
  } catch (const RuntimeFault& fault) {
    return fault.number();
  }
  return 0;
}

QString valueIn(const IniSettingsStore& store, const char* key) {
  return store.read(kApp, kSection, QString::fromLatin1(key), QStringLiteral("fallback"));
}

}  // namespace

TEST(IniSettingsStore, GivesTheFallbackForWhatIsNotStored) {
  const TemporaryFolder folder;
  const IniSettingsStore store(folder.pathOf(kFile));
  EXPECT_EQ(valueIn(store, "Top"), u"fallback");
  EXPECT_EQ(folder.names(), QStringList());
}

TEST(IniSettingsStore, KeepsValuesFromRunToRun) {
  const TemporaryFolder folder;
  {
    IniSettingsStore store(folder.pathOf(kFile));
    store.write(kApp, kSection, QStringLiteral("LocalFolder"), QStringLiteral("/home/ann/Müsic, old/"));
    store.write(kApp, kSection, QStringLiteral("NickName"), QString());
    EXPECT_EQ(valueIn(store, "LocalFolder"), QStringLiteral("/home/ann/Müsic, old/"));
  }
  const IniSettingsStore store(folder.pathOf(kFile));
  EXPECT_EQ(valueIn(store, "LocalFolder"), QStringLiteral("/home/ann/Müsic, old/"));
  EXPECT_EQ(valueIn(store, "NickName"), u"");
}

TEST(IniSettingsStore, IsATextThatPeopleCanRead) {
  const TemporaryFolder folder;
  IniSettingsStore store(folder.pathOf(kFile));
  store.write(kApp, kSection, QStringLiteral("Top"), QStringLiteral("120"));
  EXPECT_EQ(folder.readFile(kFile), QByteArray("[Quorvin%20Utility/Settings]\nTop=120\n"));
}

TEST(IniSettingsStore, KeepsApplicationsAndSectionsApart) {
  const TemporaryFolder folder;
  IniSettingsStore store(folder.pathOf(kFile));
  const QString listing = QStringLiteral("/media/cd/my list.txt");
  store.write(kApp, kSection, QStringLiteral("Top"), QStringLiteral("1"));
  store.write(listing, kSection, QStringLiteral("Top"), QStringLiteral("2"));
  store.write(kApp, QStringLiteral("Other"), QStringLiteral("Top"), QStringLiteral("3"));
  store.write(QStringLiteral("D:\\lists\\[a]=b.txt"), kSection, QStringLiteral("Top"), QStringLiteral("4"));
  EXPECT_EQ(store.read(kApp, kSection, QStringLiteral("Top"), {}), u"1");
  EXPECT_EQ(store.read(listing, kSection, QStringLiteral("Top"), {}), u"2");
  EXPECT_EQ(store.read(kApp, QStringLiteral("Other"), QStringLiteral("Top"), {}), u"3");
  EXPECT_EQ(store.read(QStringLiteral("D:\\lists\\[a]=b.txt"), kSection, QStringLiteral("Top"), {}), u"4");
}

TEST(IniText, AValueMayStartWithAByteOrderMark) {
  const QString value = QStringLiteral("\uFEFFAnn");
  IniText text(
      "[a]\nb=\xEF\xBB\xBF"
      "Bob\n");
  EXPECT_EQ(text.value(QStringLiteral("a"), QStringLiteral("b")), QStringLiteral("\uFEFFBob"));
  text.setValue(QStringLiteral("a"), QStringLiteral("b"), value);
  EXPECT_EQ(IniText(text.text()).value(QStringLiteral("a"), QStringLiteral("b")), value);
}

TEST(IniText, SeveralByteOrderMarksAtTheFrontAreAllSkipped) {
  IniText text("\xEF\xBB\xBF\xEF\xBB\xBF[a]\nb=c\n");
  EXPECT_EQ(text.value(QStringLiteral("a"), QStringLiteral("b")), QStringLiteral("c"));
  EXPECT_EQ(text.text(), QByteArray("[a]\nb=c\n"));
}

TEST(IniText, ALineThatEndsInSeveralReturnsIsReadAlikeBeforeAndAfterAWrite) {
  IniText text("[a]\nb=c\r\r\n");
  EXPECT_EQ(text.value(QStringLiteral("a"), QStringLiteral("b")), QStringLiteral("c"));
  text.setValue(QStringLiteral("a"), QStringLiteral("d"), QStringLiteral("e"));
  EXPECT_EQ(IniText(text.text()).value(QStringLiteral("a"), QStringLiteral("b")), QStringLiteral("c"));
}

TEST(IniSettingsStore, ProgramsThatSaveAtOnceKeepEachOthersValues) {
  const TemporaryFolder folder;
  const auto saveMany = [&folder](const QString& prefix) {
    IniSettingsStore store(folder.pathOf(kFile));
    for (int i = 0; i < 25; ++i) store.write(kApp, kSection, prefix + QString::number(i), QString::number(i));
  };
  std::thread first(saveMany, QStringLiteral("a"));
  std::thread second(saveMany, QStringLiteral("b"));
  first.join();
  second.join();
  const IniSettingsStore store(folder.pathOf(kFile));
  for (int i = 0; i < 25; ++i) {
    EXPECT_EQ(valueIn(store, ("a" + std::to_string(i)).c_str()), QString::number(i));
    EXPECT_EQ(valueIn(store, ("b" + std::to_string(i)).c_str()), QString::number(i));
  }
}

TEST(IniSettingsStore, AFullDiskLeavesTheStoredValues) {
  const TemporaryFolder folder;
  IniSettingsStore store(folder.pathOf(kFile));
  store.write(kApp, kSection, QStringLiteral("Key"), QStringLiteral("old"));
  {
    const FullDisk disk(4096);
    EXPECT_EQ(faultOfWriting(store, QString(10'000, u'x')), 61);
  }
  EXPECT_EQ(valueIn(store, "Key"), u"old");
  EXPECT_EQ(faultOfWriting(store, QStringLiteral("new")), 0);
  EXPECT_EQ(valueIn(store, "Key"), u"new");
}

TEST(IniSettingsStore, APlaceThatCannotBeWrittenIsAFault) {
  const TemporaryFolder folder;
  folder.writeFile(QStringLiteral("quorvin"), "a file where the folder should be");
  IniSettingsStore store(folder.pathOf(kFile));
  EXPECT_EQ(faultOfWriting(store, QStringLiteral("x")), 75);
  EXPECT_EQ(valueIn(store, "Key"), u"fallback");
}

TEST(IniSettingsStore, AStoreThatCannotBeReadIsNotReplaced) {
  const TemporaryFolder folder;
  folder.makeFolder(kFile);
  IniSettingsStore store(folder.pathOf(kFile));
  EXPECT_EQ(faultOfWriting(store, QStringLiteral("x")), 75);
  EXPECT_TRUE(QFileInfo(folder.pathOf(kFile)).isDir());
}

TEST(IniSettingsStore, AStoreThatIsThereAndCannotBeReadIsAFault) {
  const TemporaryFolder folder;
  folder.makeFolder(QStringLiteral("folder.ini"));
  const QString pipe = folder.pathOf(QStringLiteral("pipe.ini"));
  ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
  for (const char* name : {"folder.ini", "pipe.ini"}) {
    IniSettingsStore store(folder.pathOf(QString::fromLatin1(name)));
    EXPECT_FAULT(valueIn(store, "Key"), 75) << name;
    EXPECT_EQ(faultOfWriting(store, QStringLiteral("x")), 75) << name;
  }
}

TEST(IniSettingsStore, AStoreWithoutPermissionIsAFault) {
  const test::OrdinaryUser user;
  const TemporaryFolder folder;
  const QString path = folder.writeFile(QStringLiteral("settings.ini"), "[a/b]\nKey=old\n");
  ASSERT_TRUE(QFile::setPermissions(path, {}));
  IniSettingsStore store(path);
  EXPECT_FAULT(valueIn(store, "Key"), 70);
  EXPECT_EQ(faultOfWriting(store, QStringLiteral("x")), 70);
  ASSERT_TRUE(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner));
  EXPECT_EQ(folder.readFile(QStringLiteral("settings.ini")), "[a/b]\nKey=old\n");
}

TEST(IniSettingsStore, AByteOrderMarkHidesNothing) {
  const TemporaryFolder folder;
  const QString path =
      folder.writeFile(QStringLiteral("settings.ini"), "\xEF\xBB\xBF[Quorvin%20Utility/Settings]\nKey=old\n");
  IniSettingsStore store(path);
  EXPECT_EQ(valueIn(store, "Key"), u"old");
  EXPECT_EQ(faultOfWriting(store, QStringLiteral("new")), 0);
  EXPECT_EQ(folder.readFile(QStringLiteral("settings.ini")), "[Quorvin%20Utility/Settings]\nKey=new\n");
}

TEST(UserSettingsPath, IsInTheUsersConfigurationFolder) {
  const TemporaryFolder folder;
  const QByteArray before = qgetenv("XDG_CONFIG_HOME");
  qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder.path()));
  const QString path = userSettingsPath();
  before.isNull() ? qunsetenv("XDG_CONFIG_HOME") : qputenv("XDG_CONFIG_HOME", before);
  EXPECT_EQ(QDir::cleanPath(path), folder.pathOf(QStringLiteral("quorvin/settings.ini")));
}

}  // namespace quorvin
