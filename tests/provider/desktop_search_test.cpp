// SPDX-License-Identifier: GPL-2.0-or-later

// The real program on a bus of its own, started by the bus and asked as desktops do.
#include "provider/desktop_search.h"

#include "provider/provider_home.h"
#include "support/eventually.h"
#include "support/hidden_screen.h"
#include "support/qt_printing.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusReply>
#include <gmock/gmock.h>

namespace quorvin::test {
namespace {

using testing::ElementsAre;
using testing::SizeIs;

const QString kService = QStringLiteral("org.quorvin.utility.SearchProvider");
const QString kConnection = QStringLiteral("the bus of the test");

/// Installed as packages do, beside programs that only note how they were started.
class ProviderProgram : public testing::Test {
 protected:
  ProviderProgram() {
    home_.searchOnce();
    installNoting(u"prefix/bin/quorvin"_qs);
    installNoting(u"path/xdg-open"_qs);
    home_.folder.makeFolder(u"prefix/libexec/quorvin"_qs);
    home_.folder.makeFolder(u"prefix/share/quorvin/help"_qs);
    EXPECT_TRUE(QFile::copy(QStringLiteral(QUORVIN_SEARCH_PROVIDER), provider()));
    home_.environment.insert(u"PATH"_qs, home_.folder.pathOf(u"path:"_qs) + qEnvironmentVariable("PATH"));
    startBus("600");
  }
  ~ProviderProgram() override {
    QDBusConnection::disconnectFromBus(kConnection);
    bus_.terminate();
    if (!bus_.waitForFinished(60000)) bus_.kill();
  }

  QString provider() const {
    return home_.folder.pathOf(u"prefix/libexec/quorvin/quorvin-search-provider"_qs);
  }

  /// Notes its arguments, each ended by a zero.
  void installNoting(const QString& name) const {
    const QString program = home_.folder.writeFile(
        name, "#!/bin/sh\nprintf '%s\\0' \"${0##*/}\" \"$@\" \"${XDG_ACTIVATION_TOKEN:-}\" >'" +
                  noted().toUtf8() + ".part'\nmv '" + noted().toUtf8() + ".part' '" + noted().toUtf8() +
                  "'\n");
    QFile::setPermissions(program, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  }
  QString noted() const { return home_.folder.pathOf(u"noted"_qs); }

  /// The bus knows the program by the file that is installed, here with arguments: so many seconds it is to
  /// stay without a question, and each may take its time on a busy machine.
  void startBus(const QByteArray& seconds) {
    QFile service(
        QStringLiteral(QUORVIN_PACKAGING "/search-provider/org.quorvin.utility.SearchProvider.service.in"));
    ASSERT_TRUE(service.open(QIODevice::ReadOnly));
    QByteArray text = service.readAll().trimmed();
    text.replace("@QUORVIN_LIBEXEC@", home_.folder.pathOf(u"prefix/libexec/quorvin"_qs).toUtf8());
    home_.folder.writeFile(u"services/org.quorvin.utility.SearchProvider.service"_qs,
                           text + " " + seconds + " 100000\n");
    const QString config = home_.folder.writeFile(
        u"bus.conf"_qs,
        "<busconfig><type>session</type><listen>unix:path=" + home_.folder.pathOf(u"bus"_qs).toUtf8() +
            "</listen><servicedir>" + home_.folder.pathOf(u"services"_qs).toUtf8() +
            "</servicedir><policy context=\"default\"><allow send_destination=\"*\"/><allow own=\"*\"/>"
            "<allow receive_sender=\"*\"/></policy></busconfig>");
    bus_.setProcessEnvironment(home_.environment);
    bus_.setStandardErrorFile(QProcess::nullDevice());
    const QString address = startAndReadLine(
        bus_, u"dbus-daemon"_qs, {u"--nofork"_qs, u"--print-address=1"_qs, u"--config-file="_qs + config});
    QDBusConnection::connectToBus(address, kConnection);
  }

  QDBusMessage call(const QString& path, const QString& interface, const QString& method,
                    const QVariantList& arguments) const {
    QDBusMessage message = QDBusMessage::createMethodCall(kService, path, interface, method);
    message.setArguments(arguments);
    QDBusMessage answer = QDBusConnection(kConnection).call(message, QDBus::Block, 180'000);
    EXPECT_EQ(answer.type(), QDBusMessage::ReplyMessage) << answer.errorMessage().toStdString();
    return answer;
  }
  QDBusMessage callShell(const QString& method, const QVariantList& arguments) const {
    return call(u"/org/quorvin/utility/SearchProvider"_qs, u"org.gnome.Shell.SearchProvider2"_qs, method,
                arguments);
  }
  QDBusMessage callRunner(const QString& method, const QVariantList& arguments) const {
    return call(u"/org/quorvin/utility/Runner"_qs, u"org.kde.krunner1"_qs, method, arguments);
  }
  QStringList identifiersFor(const QStringList& terms) const {
    return callShell(u"GetInitialResultSet"_qs, {terms}).arguments().value(0).toStringList();
  }

  /// What was started next.
  QList<QByteArray> started() const {
    EXPECT_EVENTUALLY(QFile::exists(noted()));
    QList<QByteArray> words = home_.folder.readFile(u"noted"_qs).split('\0');
    words.removeLast();
    QFile::remove(noted());
    return words;
  }

  ProviderHome home_;
  QProcess bus_;
};

TEST_F(ProviderProgram, AnswersGnomeShell) {
  qDBusRegisterMetaType<QList<QVariantMap>>();
  const QStringList identifiers = identifiersFor({u"northern"_qs, u"harbour"_qs});
  ASSERT_EQ(identifiers.size(), 2);
  const QDBusReply<QList<QVariantMap>> metas = callShell(u"GetResultMetas"_qs, {identifiers});
  ASSERT_TRUE(metas.isValid()) << metas.error().message().toStdString();
  ASSERT_THAT(metas.value(), SizeIs(2));
  EXPECT_EQ(metas.value()[0],
            (QVariantMap{{u"id"_qs, identifiers[0]},
                         {u"name"_qs, u"northern harbour.ogg"_qs},
                         {u"description"_qs, u"Music: "_qs + QString(home_.music).replace(u'/', u'\\')},
                         {u"gicon"_qs, metas.value()[0][u"gicon"_qs]}}));
  EXPECT_EQ(metas.value()[1][u"name"_qs], u"northern.jpg"_qs);
  const QStringList fewer =
      callShell(u"GetSubsearchResultSet"_qs, {identifiers, QStringList{u"northern.jpg"_qs}})
          .arguments()
          .value(0)
          .toStringList();
  EXPECT_EQ(fewer, QStringList{identifiers[1]});
  EXPECT_TRUE(identifiersFor({u"nowhere"_qs}).isEmpty());
}

TEST_F(ProviderProgram, OpensAFileThatIsThereAndTheWindowForOneThatIsNot) {
  const QStringList terms{u"northern"_qs, u"harbour"_qs};
  const QStringList identifiers = identifiersFor(terms);
  ASSERT_EQ(identifiers.size(), 2);
  callShell(u"ActivateResult"_qs, {identifiers[0], terms, 17U});
  EXPECT_THAT(started(), ElementsAre("xdg-open", home_.music.toUtf8() + "northern harbour.ogg",
                                     "quorvin-search_TIME17"));
  callShell(u"ActivateResult"_qs, {identifiers[1], terms, 0U});
  EXPECT_THAT(started(), ElementsAre("quorvin", "--search", "northern harbour", ""));
  callShell(u"LaunchSearch"_qs, {QStringList{u"it's"_qs, u"\"so\""_qs}, 0U});
  EXPECT_THAT(started(), ElementsAre("quorvin", "--search", "it's \"so\"", ""));
}

TEST_F(ProviderProgram, AnswersKRunner) {
  qDBusRegisterMetaType<RunnerMatch>();
  qDBusRegisterMetaType<QList<RunnerMatch>>();
  const QDBusMessage answer = callRunner(u"Match"_qs, {u"northern harbour"_qs});
  EXPECT_EQ(answer.signature(), u"a(sssuda{sv})"_qs);
  const auto matches = qdbus_cast<QList<RunnerMatch>>(answer.arguments().value(0));
  ASSERT_THAT(matches, SizeIs(2));
  EXPECT_EQ(matches[0].text, u"northern harbour.ogg"_qs);
  EXPECT_GT(matches[0].relevance, matches[1].relevance);
  EXPECT_EQ(matches[1].properties, (QVariantMap{{u"subtext"_qs, u"Gone: \\gone\\harbour\\"_qs}}));
  EXPECT_EQ(callRunner(u"Actions"_qs, {}).signature(), u"a(sss)"_qs);

  callRunner(u"SetActivationToken"_qs, {u"token 1"_qs});
  callRunner(u"Run"_qs, {matches[0].id, QString()});
  EXPECT_THAT(started(), ElementsAre("xdg-open", home_.music.toUtf8() + "northern harbour.ogg", "token 1"));
  callRunner(u"Run"_qs, {matches[1].id, QString()});
  EXPECT_THAT(started(), ElementsAre("quorvin", "--search", "northern harbour", ""));
}

TEST_F(ProviderProgram, StaysWhileItIsAskedAndEndsWhenNobodyAsks) {
  QDBusConnection::disconnectFromBus(kConnection);
  bus_.terminate();
  ASSERT_TRUE(bus_.waitForFinished(60000));
  startBus("1");
  identifiersFor({u"northern"_qs});
  EXPECT_EVENTUALLY(!QDBusConnection(kConnection).interface()->isServiceRegistered(kService).value());
  EXPECT_EQ(identifiersFor({u"northern"_qs}).size(), 3) << "the bus starts it anew";
}

TEST_F(ProviderProgram, EndsWithTheBus) {
  identifiersFor({u"northern"_qs});
  const uint process = QDBusConnection(kConnection).interface()->servicePid(kService).value();
  // One that has ended and that nobody has asked about yet has no command line any more.
  const auto commandLine = [process] {
    QFile file(u"/proc/%1/cmdline"_qs.arg(process));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  };
  ASSERT_TRUE(commandLine().contains("quorvin-search-provider"));
  bus_.terminate();
  ASSERT_TRUE(bus_.waitForFinished(60000));
  EXPECT_EVENTUALLY(commandLine().isEmpty());
}

}  // namespace
}  // namespace quorvin::test
