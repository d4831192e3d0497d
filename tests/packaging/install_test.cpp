// SPDX-License-Identifier: GPL-2.0-or-later

// What "cmake --install" puts where.
#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <QDirIterator>
#include <QProcess>
#include <gmock/gmock.h>

namespace quorvin::test {
namespace {

/// The files below `folder`, sorted.
QStringList filesBelow(const QString& folder) {
  QStringList files;
  QDirIterator all(folder, QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
  while (all.hasNext()) files += QDir(folder).relativeFilePath(all.next());
  files.sort();
  return files;
}

class Installed : public testing::Test {
 protected:
  void install(const QString& prefix, const QStringList& options = {}) const {
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(
        QStringLiteral(QUORVIN_CMAKE),
        QStringList{u"--install"_qs, QStringLiteral(QUORVIN_BUILD_FOLDER), u"--prefix"_qs, prefix} + options);
    ASSERT_TRUE(process.waitForFinished(120'000));
    ASSERT_EQ(process.exitCode(), 0) << process.readAll().toStdString();
  }

  TemporaryFolder folder_;
};

const QStringList kConsoleFiles = {
    u"bin/quorvin-cli"_qs,
    u"share/bash-completion/completions/quorvin-cli"_qs,
    u"share/fish/vendor_completions.d/quorvin-cli.fish"_qs,
    u"share/man/de/man1/quorvin-cli.1"_qs,
    u"share/man/es/man1/quorvin-cli.1"_qs,
    u"share/man/fr/man1/quorvin-cli.1"_qs,
    u"share/man/man1/quorvin-cli.1"_qs,
    u"share/zsh/site-functions/_quorvin-cli"_qs,
};

const QStringList kWindowFiles = {
    u"bin/quorvin"_qs,
    u"libexec/quorvin/quorvin-metafile"_qs,
    u"libexec/quorvin/quorvin-search-provider"_qs,
    u"share/applications/quorvin.desktop"_qs,
    u"share/dbus-1/services/org.quorvin.utility.SearchProvider.service"_qs,
    u"share/gnome-shell/search-providers/org.quorvin.utility.search-provider.ini"_qs,
    u"share/icons/hicolor/128x128/apps/quorvin.png"_qs,
    u"share/icons/hicolor/16x16/apps/quorvin.png"_qs,
    u"share/icons/hicolor/22x22/apps/quorvin.png"_qs,
    u"share/icons/hicolor/24x24/apps/quorvin.png"_qs,
    u"share/icons/hicolor/256x256/apps/quorvin.png"_qs,
    u"share/icons/hicolor/32x32/apps/quorvin.png"_qs,
    u"share/icons/hicolor/48x48/apps/quorvin.png"_qs,
    u"share/icons/hicolor/512x512/apps/quorvin.png"_qs,
    u"share/icons/hicolor/64x64/apps/quorvin.png"_qs,
    u"share/icons/hicolor/scalable/apps/quorvin.svg"_qs,
    u"share/icons/hicolor/symbolic/apps/quorvin-symbolic.svg"_qs,
    u"share/kio/servicemenus/quorvin-search-folder.desktop"_qs,
    u"share/krunner/dbusplugins/quorvin-runner.desktop"_qs,
    u"share/man/de/man1/quorvin.1"_qs,
    u"share/man/es/man1/quorvin.1"_qs,
    u"share/man/fr/man1/quorvin.1"_qs,
    u"share/man/man1/quorvin.1"_qs,
    u"share/metainfo/org.quorvin.utility.metainfo.xml"_qs,
    u"share/mime/packages/quorvin.xml"_qs,
    u"share/quorvin/nautilus-scripts/Search with Quorvin"_qs,
};

QStringList manualFiles() {
  QStringList files;
  for (const QString& page : filesBelow(QStringLiteral(QUORVIN_PROJECT_FOLDER "/src/help/pages"))) {
    files += u"share/quorvin/help/"_qs + page;
  }
  return files;
}

QStringList sorted(QStringList files) {
  files.sort();
  return files;
}

TEST_F(Installed, EverythingIsInItsPlaceAndNothingElseIs) {
  install(folder_.pathOf(u"usr"_qs));
  ASSERT_TRUE(manualFiles().contains(u"share/quorvin/help/genhelp.htm"_qs));
  EXPECT_EQ(filesBelow(folder_.pathOf(u"usr"_qs)), sorted(kConsoleFiles + kWindowFiles + manualFiles()));
}

TEST_F(Installed, EachPartCanBeInstalledAlone) {
  install(folder_.pathOf(u"usr"_qs), {u"--component"_qs, u"console"_qs});
  EXPECT_EQ(filesBelow(folder_.pathOf(u"usr"_qs)), sorted(kConsoleFiles));
  install(folder_.pathOf(u"usr"_qs), {u"--component"_qs, u"common"_qs});
  EXPECT_EQ(filesBelow(folder_.pathOf(u"usr"_qs)), sorted(kConsoleFiles + manualFiles()));
  install(folder_.pathOf(u"usr"_qs), {u"--component"_qs, u"window"_qs});
  EXPECT_EQ(filesBelow(folder_.pathOf(u"usr"_qs)), sorted(kConsoleFiles + manualFiles() + kWindowFiles));
}

TEST_F(Installed, TheBusFindsTheSearchProvider) {
  install(folder_.pathOf(u"usr"_qs));
  const QByteArray service =
      folder_.readFile(u"usr/share/dbus-1/services/org.quorvin.utility.SearchProvider.service"_qs);
  EXPECT_EQ(service, "[D-BUS Service]\nName=org.quorvin.utility.SearchProvider\nExec=" +
                         folder_.pathOf(u"usr/libexec/quorvin/quorvin-search-provider"_qs).toUtf8() + "\n");
}

TEST_F(Installed, TheConsoleCompanionRunsFromThere) {
  install(folder_.pathOf(u"usr"_qs));
  QProcess process;
  process.start(folder_.pathOf(u"usr/bin/quorvin-cli"_qs), {u"--version"_qs});
  ASSERT_TRUE(process.waitForFinished(60'000));
  EXPECT_EQ(process.exitCode(), 0);
  EXPECT_THAT(process.readAllStandardOutput().toStdString(), testing::HasSubstr(QUORVIN_VERSION));
}

}  // namespace
}  // namespace quorvin::test
