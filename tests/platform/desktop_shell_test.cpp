// SPDX-License-Identifier: GPL-2.0-or-later

// The desktop's shell, on a session bus of the test's own, with a file manager and players of the test's own.
#include "platform/desktop_shell.h"

#include "support/eventually.h"
#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <QDBusConnection>
#include <QDBusError>
#include <QDesktopServices>
#include <QDir>
#include <QGuiApplication>
#include <QProcess>
#include <QTest>
#include <gtest/gtest.h>

namespace quorvin::test {

namespace {

/// Records what the desktop is asked to open, and where a program would be started.
class Desktop : public QObject {
  Q_OBJECT

 public:
  Desktop() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "take"); }
  ~Desktop() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }
  Desktop(const Desktop&) = delete;
  Desktop& operator=(const Desktop&) = delete;

  QStringList opened;
  QStringList workingFolders;

 public Q_SLOTS:
  void take(const QUrl& url) {
    opened.append(url.toLocalFile());
    workingFolders.append(QDir::currentPath());
  }
};

/// A file manager on the bus.
class FileManager : public QObject {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.FileManager1")

 public:
  FileManager()
      : bus_(QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("manager"))) {
    EXPECT_TRUE(bus_.registerObject(QStringLiteral("/org/freedesktop/FileManager1"), this,
                                    QDBusConnection::ExportAllSlots));
    EXPECT_TRUE(bus_.registerService(QStringLiteral("org.freedesktop.FileManager1")));
  }
  ~FileManager() override { QDBusConnection::disconnectFromBus(QStringLiteral("manager")); }
  FileManager(const FileManager&) = delete;
  FileManager& operator=(const FileManager&) = delete;

  QStringList shown;

 public Q_SLOTS:
  void ShowItems(const QStringList& uris, const QString& startupId) {
    shown.append(uris);
    EXPECT_EQ(startupId, QString());
  }

 private:
  QDBusConnection bus_;
};

/// What shows notifications, on the bus.
class Notifications : public QObject {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

 public:
  Notifications()
      : bus_(QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("notifications"))) {
    EXPECT_TRUE(bus_.registerObject(QStringLiteral("/org/freedesktop/Notifications"), this,
                                    QDBusConnection::ExportAllSlots));
    EXPECT_TRUE(bus_.registerService(QStringLiteral("org.freedesktop.Notifications")));
  }
  ~Notifications() override { QDBusConnection::disconnectFromBus(QStringLiteral("notifications")); }
  Notifications(const Notifications&) = delete;
  Notifications& operator=(const Notifications&) = delete;

  QStringList shown;

 public Q_SLOTS:
  uint Notify(const QString&, uint replaces, const QString&, const QString& title, const QString& text,
              const QStringList& actions, const QVariantMap&, int) {
    EXPECT_EQ(replaces, 0U);
    EXPECT_EQ(actions, QStringList());
    shown.append(title + u'|' + text);
    return 1;
  }

 private:
  QDBusConnection bus_;
};

QString withoutLastSeparator(const QString& folder) {
  return folder.left(folder.size() - 1);
}

class DesktopShellTest : public testing::Test {
 protected:
  /// A player that writes its working folder and its arguments to a file, a line each.
  void installPlayer(const QString& name) {
    const QString path =
        folder_.writeFile(name, "#!/bin/sh\nprintf '%s\\n' \"$PWD\" \"$@\" > '" +
                                    folder_.pathOf(QStringLiteral("part")).toUtf8() + "'\nmv '" +
                                    folder_.pathOf(QStringLiteral("part")).toUtf8() + "' '" +
                                    folder_.pathOf(QStringLiteral("played")).toUtf8() + "'\n");
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  }
  QString played() {
    const QString name = QStringLiteral("played");
    if (!eventually([&] { return folder_.has(name); })) return QStringLiteral("nothing was played");
    return QString::fromUtf8(folder_.readFile(name));
  }
  /// Programs are found only in the test's folder, and in the system's for the script itself.
  void searchProgramsInFolder() { qputenv("PATH", folder_.path().toUtf8() + ":/usr/bin:/bin"); }

  TemporaryFolder folder_;
  QString enqueueCommand_;
  Desktop desktop_;
  DesktopShell shell_{[this] { return enqueueCommand_; }};
};

TEST_F(DesktopShellTest, OpensAFileInItsWorkingFolder) {
  const QString before = QDir::currentPath();
  const QString file = folder_.pathOf(QStringLiteral("a #1?%20 b.txt"));
  shell_.open(file, folder_.path());
  EXPECT_EQ(desktop_.opened, QStringList(file));
  EXPECT_EQ(desktop_.workingFolders, QStringList(withoutLastSeparator(folder_.path())));
  EXPECT_EQ(QDir::currentPath(), before);
}

TEST_F(DesktopShellTest, ShowsTheFileInTheFileManager) {
  FileManager manager;
  shell_.openFolder(folder_.path(), QStringLiteral("a #1?%20 b.txt"));
  ASSERT_TRUE(eventually([&] { return !manager.shown.isEmpty(); }));
  EXPECT_EQ(manager.shown, QStringList(QStringLiteral("file://") + folder_.path() +
                                       QStringLiteral("a%20%231%3F%2520%20b.txt")));
  QTest::qWait(50);
  EXPECT_TRUE(desktop_.opened.isEmpty());
}

TEST_F(DesktopShellTest, WithoutAFileManagerOnTheBusTheFolderItselfIsOpened) {
  shell_.openFolder(folder_.path(), QStringLiteral("a.txt"));
  ASSERT_TRUE(eventually([&] { return !desktop_.opened.isEmpty(); }));
  EXPECT_EQ(desktop_.opened, QStringList(withoutLastSeparator(folder_.path())));
  EXPECT_EQ(desktop_.workingFolders, QStringList(withoutLastSeparator(folder_.path())));
}

TEST_F(DesktopShellTest, ShowsANotificationWhoseTextIsNoMarkup) {
  Notifications notifications;
  shell_.notify(QStringLiteral("Done"), QStringLiteral("3 listings <b>"));
  EXPECT_EVENTUALLY(!notifications.shown.isEmpty());
  EXPECT_EQ(notifications.shown, QStringList(QStringLiteral("Done|3 listings &lt;b&gt;")));
}

TEST_F(DesktopShellTest, EnqueuesByTheCommandOfTheUser) {
  installPlayer(QStringLiteral("my player"));
  enqueueCommand_ = u'"' + folder_.pathOf(QStringLiteral("my player")) + QStringLiteral("\" --add %f --end");
  const QString file = folder_.pathOf(QStringLiteral("-song $HOME.mp3"));
  EXPECT_EQ(shell_.enqueue(file, folder_.path()), EnqueueOutcome::HandedOver);
  EXPECT_EQ(played(), withoutLastSeparator(folder_.path()) + QStringLiteral("\n--add\n") + file +
                          QStringLiteral("\n--end\n"));
}

TEST_F(DesktopShellTest, EnqueuesByAPlayerThatIsInstalled) {
  searchProgramsInFolder();
  installPlayer(QStringLiteral("vlc"));
  const QString file = folder_.pathOf(QStringLiteral("-song.mp3"));
  EXPECT_EQ(shell_.enqueue(file, folder_.path()), EnqueueOutcome::HandedOver);
  EXPECT_EQ(played(), withoutLastSeparator(folder_.path()) +
                          QStringLiteral("\n--one-instance\n--playlist-enqueue\n") + file + u'\n');
}

TEST_F(DesktopShellTest, ARelativeNameIsNotTakenForAnOption) {
  searchProgramsInFolder();
  installPlayer(QStringLiteral("deadbeef"));
  EXPECT_EQ(shell_.enqueue(QStringLiteral("-song.mp3"), folder_.path()), EnqueueOutcome::HandedOver);
  EXPECT_EQ(played(), withoutLastSeparator(folder_.path()) + QStringLiteral("\n--queue\n") +
                          QDir::currentPath() + QStringLiteral("/-song.mp3\n"));
}

TEST_F(DesktopShellTest, TellsThatThereIsNoPlayer) {
  qputenv("PATH", folder_.path().toUtf8());
  EXPECT_EQ(shell_.enqueue(folder_.pathOf(QStringLiteral("a.mp3")), folder_.path()),
            EnqueueOutcome::NoPlayer);
}

TEST_F(DesktopShellTest, TellsThatThePlayerOfTheUserCannotBeStarted) {
  enqueueCommand_ = folder_.pathOf(QStringLiteral("no-such-player"));
  EXPECT_EQ(shell_.enqueue(folder_.pathOf(QStringLiteral("a.mp3")), folder_.path()),
            EnqueueOutcome::NotStarted);
}

/// Runs a session bus as long as the tests run and gives its address.
class SessionBus {
 public:
  SessionBus() {
    daemon_.start(QStringLiteral(QUORVIN_DBUS_DAEMON),
                  {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--nopidfile"),
                   QStringLiteral("--print-address")});
    if (daemon_.waitForStarted() && daemon_.waitForReadyRead()) address_ = daemon_.readLine().trimmed();
  }
  ~SessionBus() {
    daemon_.terminate();
    daemon_.waitForFinished();
  }
  SessionBus(const SessionBus&) = delete;
  SessionBus& operator=(const SessionBus&) = delete;

  const QByteArray& address() const { return address_; }

 private:
  QProcess daemon_;
  QByteArray address_;
};

}  // namespace

}  // namespace quorvin::test

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const quorvin::test::SessionBus bus;
  qputenv("DBUS_SESSION_BUS_ADDRESS", bus.address());
  const QGuiApplication application(argc, argv);
  return RUN_ALL_TESTS();
}

#include "desktop_shell_test.moc"
