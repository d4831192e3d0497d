// SPDX-License-Identifier: GPL-2.0-or-later

// A desktop of a test's own with buses: a session bus, and the accessibility bus on it.
#pragma once

#include "e2e/desktop.h"
#include "support/temporary_folder.h"

#include <QProcess>
#include <QProcessEnvironment>
#include <QString>

namespace quorvin::test {

/// Programs started in its environment touch neither the user's screen, buses, settings nor home folder. All
/// its processes have ended when the object has. Throws std::runtime_error when one cannot be started.
class TestDesktop {
 public:
  TestDesktop();
  ~TestDesktop();
  TestDesktop(const TestDesktop&) = delete;
  TestDesktop& operator=(const TestDesktop&) = delete;

  const QProcessEnvironment& environment() const { return environment_; }
  /// Its keyboard and clipboard.
  const Desktop& screen() const { return screen_; }
  /// Where to connect to hear what screen readers hear.
  const QString& accessibilityBus() const { return accessibilityBus_; }

 private:
  void startSessionBus();
  void startAccessibilityBus();

  TemporaryFolder home_;
  Desktop screen_;
  QProcessEnvironment environment_;
  QProcess sessionBus_;
  QString accessibilityBus_;
};

/// Asks `process` to end, and ends it when it does not within some seconds.
void endProcess(QProcess& process);

}  // namespace quorvin::test
