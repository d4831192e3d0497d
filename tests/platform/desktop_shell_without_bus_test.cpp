// SPDX-License-Identifier: GPL-2.0-or-later

// The desktop's shell where there is no session bus, as over a remote connection or under a bare window
// manager.
#include "platform/desktop_shell.h"
#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <QDesktopServices>
#include <QGuiApplication>
#include <QUrl>
#include <gtest/gtest.h>

namespace quorvin::test {

namespace {

class Desktop : public QObject {
  Q_OBJECT

 public:
  Desktop() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "take"); }
  ~Desktop() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }
  Desktop(const Desktop&) = delete;
  Desktop& operator=(const Desktop&) = delete;

  QStringList opened;

 public Q_SLOTS:
  void take(const QUrl& url) { opened.append(url.toLocalFile() + u'/'); }
};

TEST(DesktopShellWithoutBus, OpensTheFolderItselfAtOnce) {
  const TemporaryFolder folder;
  const Desktop desktop;
  DesktopShell shell([] { return QString(); });
  shell.openFolder(folder.path(), QStringLiteral("a.txt"));
  EXPECT_EQ(desktop.opened, QStringList(folder.path()));
}

}  // namespace

}  // namespace quorvin::test

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere/bus");
  const QGuiApplication application(argc, argv);
  return RUN_ALL_TESTS();
}

#include "desktop_shell_without_bus_test.moc"
