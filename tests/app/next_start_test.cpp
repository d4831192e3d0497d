// SPDX-License-Identifier: GPL-2.0-or-later

// What a run leaves for the next one.
#include "app/shutdown_fixture.h"
#include "app/start_up_fixture.h"
#include "support/qt_printing.h"

namespace quorvin {
namespace {

const QString kSet = QStringLiteral("Ketta Quorvin");
const QString kPlace = QStringLiteral("10 20 800 600");

class NextStart : public StartUpTest {
 protected:
  NextStart() {
    data_.writeFile(u"any.txt"_qs, "x");
    saved(u"LocalFolder"_qs, data_.path());
  }

  void end() {
    Shutdown(state_, store_, boxes_, window_, conditions_.locale).Form_Unload();
    state_.ShuttingDown = false;
  }
  QString kept(const QString& key) const { return store_.stored(kSet, key); }

  LoggingWindows window_;
};

TEST_F(NextStart, AMaximizedWindowKeepsWhereItGoesBackTo) {
  start();
  window_.maximized = kPlace;
  end();
  EXPECT_EQ(kept(u"Maximized"_qs), kPlace);
  EXPECT_EQ(kept(u"Top"_qs), u"15.5"_qs);
  EXPECT_EQ(readMaximized(store_, state_), kPlace);
}

TEST_F(NextStart, AWindowThatIsNoLongerMaximizedIsKnownAsSuch) {
  saved(u"Maximized"_qs, kPlace);
  start();
  end();
  EXPECT_EQ(kept(u"Maximized"_qs), QString());
}

TEST_F(NextStart, AMinimizedWindowComesBackMaximizedAsBefore) {
  saved(u"Maximized"_qs, kPlace);
  start();
  window_.minimized = true;
  end();
  EXPECT_EQ(kept(u"Maximized"_qs), kPlace);
}

TEST_F(NextStart, AWindowThatWasNeverMaximizedKeepsNothingMore) {
  start();
  end();
  EXPECT_FALSE(store_.has(kSet, u"Maximized"_qs));
  EXPECT_EQ(store_.writes.size(), 10U);
}

TEST_F(NextStart, ATypingErrorOnTheCommandLineIsGoneAtTheNextStart) {
  startWithCommandLine(u"/lists/dsik.txt"_qs, kUnixPaths);
  end();
  EXPECT_FALSE(store_.has(kSet, u"TextFile"_qs));

  conditions_.commandLine.clear();
  ProgramState again;
  startOf(again);
  EXPECT_EQ(again.TextFile, QString());
}

TEST_F(NextStart, AFileThatTheUserChoosesInPlaceOfAMissingOneIsStored) {
  startWithCommandLine(u"/lists/dsik.txt"_qs, kUnixPaths);
  state_.TextFile = u"disk.txt"_qs;
  end();
  EXPECT_EQ(kept(u"TextFile"_qs), u"disk.txt"_qs);
}

}  // namespace
}  // namespace quorvin
