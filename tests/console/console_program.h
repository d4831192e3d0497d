// SPDX-License-Identifier: GPL-2.0-or-later

// The console program as a user runs it, in folders of the test's own.
#pragma once

#include "support/temporary_folder.h"

#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>
#include <gtest/gtest.h>

#include <csignal>

namespace quorvin::test {

struct Ended {
  int status;
  QByteArray output;
  QString errors;
};

class ConsoleProgramTest : public ::testing::Test {
 protected:
  ConsoleProgramTest() {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    environment.insert(QStringLiteral("TZ"), QStringLiteral("UTC0"));
    environment.insert(QStringLiteral("QUORVIN_SETTINGS"), folder.pathOf(QStringLiteral("settings.ini")));
    environment.insert(QStringLiteral("XDG_CACHE_HOME"), folder.pathOf(QStringLiteral("cache")));
    environment.insert(QStringLiteral("XDG_DATA_HOME"), folder.pathOf(QStringLiteral("home")));
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(folder.path());
    process.setProgram(QStringLiteral(QUORVIN_CLI));
    // A shell that runs the tests in the background has them ignore it.
    process.setChildProcessModifier([] { std::signal(SIGINT, SIG_DFL); });
  }

  void start(const QStringList& arguments) {
    process.setArguments(arguments);
    process.start();
    ASSERT_TRUE(process.waitForStarted(60000)) << process.errorString().toStdString();
  }

  Ended end() {
    EXPECT_TRUE(process.waitForFinished(60000)) << process.errorString().toStdString();
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    return {process.exitCode(), process.readAllStandardOutput(),
            QString::fromUtf8(process.readAllStandardError())};
  }

  Ended run(const QStringList& arguments) {
    start(arguments);
    return end();
  }

  TemporaryFolder folder;
  QProcess process;
};

}  // namespace quorvin::test
