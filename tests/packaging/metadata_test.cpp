// SPDX-License-Identifier: GPL-2.0-or-later

// What packages say of the program is the same everywhere.
#include "support/qt_printing.h"

#include <QFile>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QString>
#include <gtest/gtest.h>

#include <set>

namespace quorvin::test {
namespace {

QString textOf(const QString& name) {
  QFile file(QStringLiteral(QUORVIN_PROJECT_FOLDER "/") + name);
  if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error("could not read " + name.toStdString());
  return QString::fromUtf8(file.readAll());
}

/// What the first part in parentheses of `pattern` holds where it fits first.
QString firstOf(const QString& name, const QString& pattern) {
  return QRegularExpression(pattern, QRegularExpression::MultilineOption).match(textOf(name)).captured(1);
}

TEST(Metadata, TheVersionIsTheSameEverywhere) {
  const QString version = QStringLiteral(QUORVIN_VERSION);
  EXPECT_EQ(firstOf(u"CHANGELOG.md"_qs, u"^## (?:Unreleased \\()?([0-9.]+)"_qs), version);
  EXPECT_EQ(firstOf(u"debian/changelog"_qs, u"^quorvin \\(([0-9.]+)-1\\)"_qs), version);
  EXPECT_EQ(firstOf(u"packaging/desktop/quorvin.metainfo.xml"_qs, u"<release version=\"([0-9.]+)\""_qs),
            version);
  EXPECT_EQ(firstOf(u"packaging/rpm/quorvin.spec"_qs, u"^Version: +([0-9.]+)"_qs), version);
  for (const QString& language : {u""_qs, u"de/"_qs, u"es/"_qs, u"fr/"_qs}) {
    EXPECT_EQ(firstOf(u"packaging/man/"_qs + language + u"quorvin.1"_qs, u"Quorvin Utility ([0-9.]+)"_qs),
              version);
  }
}

/// The long options that `text` names.
std::set<QString> optionsIn(const QString& text) {
  std::set<QString> options;
  const QRegularExpression option(u"(?<![-a-z])--[a-z]+"_qs);
  for (const QRegularExpressionMatch& found : option.globalMatch(text)) options.insert(found.captured());
  return options;
}

TEST(Metadata, TheManualPagesOfTheWindowHaveTheOptionsThatItHas) {
  QProcess program;
  program.start(QStringLiteral(QUORVIN_PROGRAM), {u"--help"_qs});
  ASSERT_TRUE(program.waitForFinished(60000)) << program.errorString().toStdString();
  const std::set<QString> options = optionsIn(QString::fromUtf8(program.readAllStandardOutput()));
  EXPECT_GE(options.size(), 6U);
  for (const QString& language : {u""_qs, u"de/"_qs, u"es/"_qs, u"fr/"_qs}) {
    QString page = textOf(u"packaging/man/"_qs + language + u"quorvin.1"_qs).remove(u'\\');
    EXPECT_EQ(optionsIn(page), options) << language.toStdString();
  }
}

TEST(Metadata, TheDesktopAndTheBusKnowTheProgramByTheSameNames) {
  const QString bus = u"org.quorvin.utility.SearchProvider"_qs;
  const QString folder = u"packaging/search-provider/"_qs;
  EXPECT_EQ(firstOf(folder + u"org.quorvin.utility.SearchProvider.service.in"_qs, u"^Name=(.*)$"_qs), bus);
  EXPECT_EQ(firstOf(folder + u"org.quorvin.utility.search-provider.ini"_qs, u"^BusName=(.*)$"_qs), bus);
  EXPECT_EQ(firstOf(folder + u"quorvin-runner.desktop"_qs, u"^X-Plasma-DBusRunner-Service=(.*)$"_qs), bus);
  EXPECT_EQ(firstOf(folder + u"org.quorvin.utility.search-provider.ini"_qs, u"^DesktopId=(.*)$"_qs),
            u"quorvin.desktop"_qs);
  EXPECT_EQ(firstOf(u"packaging/desktop/quorvin.metainfo.xml"_qs,
                    u"<launchable type=\"desktop-id\">(.*)</launchable>"_qs),
            u"quorvin.desktop"_qs);
  EXPECT_EQ(firstOf(u"packaging/desktop/quorvin.metainfo.xml"_qs, u"<id>(.*)</id>"_qs),
            u"org.quorvin.utility"_qs);
}

TEST(Metadata, EachIconHasTheSizeOfItsName) {
  for (const int side : {16, 22, 24, 32, 48, 64, 128, 256, 512}) {
    const QImage icon(QStringLiteral(QUORVIN_PROJECT_FOLDER "/packaging/icon/quorvin-%1.png").arg(side));
    EXPECT_EQ(icon.size(), QSize(side, side));
    EXPECT_TRUE(icon.hasAlphaChannel()) << side;
    EXPECT_EQ(icon.pixelColor(0, 0).alpha() < 255, true) << side << ": the corners are round";
  }
}

}  // namespace
}  // namespace quorvin::test
