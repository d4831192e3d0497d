// SPDX-License-Identifier: GPL-2.0-or-later
#include "preview/metafile_child.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>

namespace quorvin {

namespace {

/// A request to stop is seen after at most this time.
constexpr int kMillisecondsBetweenLooks = 50;

/// Ends the process in whichever way the waiting ends.
class ChildProcess {
 public:
  explicit ChildProcess(const QString& program) {
    process_.setProgram(program);
    process_.setStandardErrorFile(QProcess::nullDevice());
    process_.start(QIODevice::ReadWrite | QIODevice::Unbuffered);
  }
  ~ChildProcess() {
    process_.kill();
    process_.waitForFinished(-1);
  }
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;

  QProcess& operator*() { return process_; }
  QProcess* operator->() { return &process_; }

 private:
  QProcess process_;
};

QByteArray answerOf(ChildProcess& process, std::chrono::milliseconds patience, const std::stop_token& stop) {
  QElapsedTimer clock;
  clock.start();
  QByteArray answer;
  while (process->state() != QProcess::NotRunning) {
    if (stop.stop_requested()) throw MetafileFault(QT_TRANSLATE_NOOP("Texts", "its loading was cancelled"));
    if (clock.hasExpired(patience.count())) {
      throw MetafileFault(QT_TRANSLATE_NOOP("Texts", "drawing it takes too long"));
    }
    process->waitForReadyRead(kMillisecondsBetweenLooks);
    answer += process->readAllStandardOutput();
    if (answer.size() > kLongestMetafileAnswer) break;
  }
  return answer + process->readAllStandardOutput();
}

}  // namespace

MetafileChild usualMetafileChild() {
  const QString folder = QCoreApplication::applicationDirPath();
  const QString beside = folder + QStringLiteral("/quorvin-metafile");
  const QString installed = folder + QStringLiteral("/../libexec/quorvin/quorvin-metafile");
  return {QFileInfo::exists(beside) ? beside : installed};
}

MetafilePicture drawInChild(const MetafileChild& child, const QByteArray& metafile,
                            const std::stop_token& stop) {
  ChildProcess process(child.program);
  if (!process->waitForStarted()) {
    throw MetafileFault(QT_TRANSLATE_NOOP("Texts", "the program that draws metafiles cannot be started"));
  }
  process->write(metafile);
  process->closeWriteChannel();
  const QByteArray answer = answerOf(process, child.patience, stop);
  const bool hasEndedWell = process->exitStatus() == QProcess::NormalExit && process->exitCode() == 0;
  if (!hasEndedWell && answer.isEmpty()) {
    throw MetafileFault(
        QT_TRANSLATE_NOOP("Texts", "it is damaged, or drawing it needs too much memory or time"));
  }
  return pictureOfMetafileAnswer(answer);
}

}  // namespace quorvin
