// SPDX-License-Identifier: GPL-2.0-or-later
#include "failing_system/failing_program.h"

#include "support/temporary_folder.h"

#include <QProcess>
#include <QProcessEnvironment>

#include <thread>

namespace quorvin::test {

namespace {

/// Far beyond what a run takes on the slowest machine; it only ends what hangs.
constexpr int kHangs = 120000;

QProcessEnvironment environmentIn(const QString& folder) {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
  environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
  environment.insert(QStringLiteral("TZ"), QStringLiteral("UTC0"));
  environment.insert(QStringLiteral("QUORVIN_SETTINGS"), folder + QStringLiteral("settings.ini"));
  environment.insert(QStringLiteral("XDG_CACHE_HOME"), folder + QStringLiteral("cache"));
  environment.insert(QStringLiteral("XDG_DATA_HOME"), folder + QStringLiteral("home"));
  return environment;
}

/// Waits for the end of `process`, and says how it ended.
FailedRun endOf(QProcess& process) {
  if (!process.waitForFinished(kHangs)) {
    process.kill();
    process.waitForFinished();
  }
  FailedRun run;
  run.crashed = process.exitStatus() != QProcess::NormalExit;
  run.status = process.exitCode();
  run.output = process.readAllStandardOutput();
  run.errors = QString::fromUtf8(process.readAllStandardError());
  return run;
}

}  // namespace

FailedRun runFailing(const QString& folder, const QStringList& command, const SystemFailure& failure,
                     int number) {
  const TemporaryFolder aside;
  QProcessEnvironment environment = environmentIn(folder);
  environment.insert(QStringLiteral("LD_PRELOAD"), QStringLiteral(QUORVIN_FAILING_CALLS));
  // In a build with sanitizers: this library may come before theirs.
  environment.insert(QStringLiteral("ASAN_OPTIONS"), QStringLiteral("verify_asan_link_order=0"));
  environment.insert(QStringLiteral("QUORVIN_FAIL_CALL"), QString::fromLatin1(failure.call));
  environment.insert(QStringLiteral("QUORVIN_FAIL_AT"), QString::number(number));
  environment.insert(QStringLiteral("QUORVIN_FAIL_BELOW"), folder);
  environment.insert(QStringLiteral("QUORVIN_FAIL_HOW"), failure.how);
  environment.insert(QStringLiteral("QUORVIN_FAIL_ABOVE"), QString::number(failure.above));
  environment.insert(QStringLiteral("QUORVIN_FAIL_REPORT"), aside.pathOf(QStringLiteral("failed")));

  QProcess process;
  process.setProcessEnvironment(environment);
  process.setWorkingDirectory(folder);
  process.start(command.first(), command.mid(1));
  FailedRun run = endOf(process);
  run.failed = aside.has(QStringLiteral("failed"));
  return run;
}

FailedRun runKilled(const QString& folder, const QStringList& command, std::chrono::microseconds after) {
  QProcess process;
  process.setProcessEnvironment(environmentIn(folder));
  process.setWorkingDirectory(folder);
  process.start(command.first(), command.mid(1));
  process.waitForStarted(kHangs);
  std::this_thread::sleep_for(after);
  process.kill();
  return endOf(process);
}

}  // namespace quorvin::test
