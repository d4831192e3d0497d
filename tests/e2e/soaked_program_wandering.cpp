// SPDX-License-Identifier: GPL-2.0-or-later

// Keys and windows at random, and a message that comes when it likes.
#include "e2e/soaked_program.h"

namespace quorvin::test {

namespace {

const QString kAbout = QStringLiteral("About Quorvin Utility");

}  // namespace

void SoakedProgram::wander(Dice& dice) {
  note(QStringLiteral("wander"));
  static const std::vector<QString> kKeys = {QStringLiteral("End"),    QStringLiteral("Page_Up"),
                                             QStringLiteral("Home"),   QStringLiteral("Page_Down"),
                                             QStringLiteral("ctrl+a"), QStringLiteral("ctrl+shift+c"),
                                             QStringLiteral("Right"),  QStringLiteral("shift+Down")};
  press({QStringLiteral("ctrl+f"), QStringLiteral("shift+Tab")});
  for (int left = 5; left > 0; --left) press({dice.pick(kKeys)});
  waitUntilAtRest();
  desktop_.resize(program_->mainWindow(), 800 + dice.below(400), 400 + dice.below(500));
  desktop_.move(program_->mainWindow(), dice.below(100), 30 + dice.below(60));
  openAbout();
  waitUntilAtRest();
  closeAbout();
  waitUntilAtRest();
}

/// Copying paths may have named files that are gone since they were listed. That message may still be on its
/// way to the screen when the program is at rest, and then it gets the keys.
void SoakedProgram::openAbout() {
  const QStringList keys{QStringLiteral("alt+h"), QStringLiteral("a")};
  press(keys);
  waitUntil(
      QStringLiteral("for the about window or a message"),
      [&] { return isMessageShown() || desktop_.titleOf(desktop_.activeWindow()) == kAbout; },
      [this] { return messageShown(); });
  if (isMessageShown()) {
    answer({QStringLiteral("Return")});
    program_->waitForMainWindow();
    press(keys);
  }
  program_->waitForWindow(kAbout);
}

/// The same message may come over the about window, or when that has gone.
void SoakedProgram::closeAbout() {
  if (isMessageShown()) answer({QStringLiteral("Return")});
  press({QStringLiteral("Escape")});
  waitUntil(
      QStringLiteral("for the main window or a message"),
      [&] { return isMessageShown() || desktop_.activeWindow() == program_->mainWindow(); },
      [this] { return messageShown(); });
  if (isMessageShown()) answer({QStringLiteral("Return")});
  program_->waitForMainWindow();
}

}  // namespace quorvin::test
