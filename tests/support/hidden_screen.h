// SPDX-License-Identifier: GPL-2.0-or-later

// A screen that nobody sees, for programs with windows.
#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>

#include <csignal>
#include <stdexcept>
#include <sys/prctl.h>

namespace quorvin::test {

/// Makes `process` end with the process that starts it, however that ends.
inline void endWithTest(QProcess& process) {
  process.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
}

/// Starts `program` and gives the first line that it writes, by which it says that it is ready. Throws
/// std::runtime_error when none comes for half a minute.
inline QString startAndReadLine(QProcess& process, const QString& program, const QStringList& arguments) {
  constexpr int kPatienceMilliseconds = 30'000;
  endWithTest(process);
  process.start(program, arguments);
  while (!process.canReadLine()) {
    if (!process.waitForReadyRead(kPatienceMilliseconds)) {
      throw std::runtime_error(program.toStdString() + ": " + process.errorString().toStdString());
    }
  }
  return QString::fromUtf8(process.readLine()).trimmed();
}

/// The screen is there as long as the object.
class HiddenScreen {
 public:
  /// Throws std::runtime_error when the screen does not come up.
  HiddenScreen() {
    process_.setStandardErrorFile(QProcess::nullDevice());
    // The server picks a free number itself. It does not begin anew when its last client leaves, and no key
    // repeats, however late it is let go.
    display_ = u':' + startAndReadLine(
                          process_, QStringLiteral("Xvfb"),
                          {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                           QStringLiteral("0"), QStringLiteral("1280x1024x24"), QStringLiteral("-nolisten"),
                           QStringLiteral("tcp"), QStringLiteral("-noreset"), QStringLiteral("-r")});
  }
  ~HiddenScreen() {
    process_.kill();
    process_.waitForFinished();
  }
  HiddenScreen(const HiddenScreen&) = delete;
  HiddenScreen& operator=(const HiddenScreen&) = delete;

  /// What programs take from DISPLAY.
  const QString& display() const { return display_; }

 private:
  QProcess process_;
  QString display_;
};

}  // namespace quorvin::test
