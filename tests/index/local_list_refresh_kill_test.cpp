// SPDX-License-Identifier: GPL-2.0-or-later

// A refresh that is killed at any moment leaves every listing as the old or the new one, whole.
#include "index/refresh_fixture.h"
#include "support/system_call_watch.h"

#include <csignal>
#include <map>
#include <set>
#include <sys/wait.h>
#include <unistd.h>

namespace quorvin {
namespace {

class KilledRefresh : public test::RefreshTest {
 protected:
  KilledRefresh() {
    for (const QString& source : kSources) {
      addSource(source, u"new file"_qs);
      const QString folder = u"source %1/"_qs.arg(state.OnlineSourceCount);
      // Enough for several writes of the listing's buffer.
      for (int i = 0; i < 800; ++i) folders.writeFile(folder + u"file %1"_qs.arg(i), "");
    }
    refresh();
    for (const QString& source : kSources) whole_[source] = data.readFile(source + u".txt"_qs);
    putOldListings();
  }

  void putOldListings() {
    for (const QString& source : kSources) {
      // The last source has no listing yet.
      if (source == kSources.last()) {
        QFile::remove(data.pathOf(source + u".txt"_qs));
      } else {
        data.writeFile(source + u".txt"_qs, oldListing(source));
      }
    }
  }

  static QByteArray oldListing(const QString& source) {
    return "\r\nVolume:    " + source.toUtf8() + "\r\nDirectory: \\old\\\r\n\r\nold file\r\n";
  }

  // Runs a refresh in a child that is killed at its n-th moment. Gives false when the child came to its end.
  bool killAt(int number) {
    const pid_t child = ::fork();
    if (child == 0) {
      int moment = 0;
      test::systemCallWatcher() = [&](const std::string&) {
        if (++moment == number) ::raise(SIGKILL);
      };
      refresh();
      ::_exit(messages.informed.empty() ? 0 : 1);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    if (WIFSIGNALED(status)) {
      EXPECT_EQ(WTERMSIG(status), SIGKILL);
      return true;
    }
    EXPECT_EQ(WEXITSTATUS(status), 0);
    return false;
  }

  const QStringList kSources = {u"Music"_qs, u"Films"_qs, u"New"_qs};
  std::map<QString, QByteArray> whole_;
};

TEST_F(KilledRefresh, AListingIsOnTheDiskBeforeItReplacesAnother) {
  // A machine that fails keeps what was renamed, but not always what was written.
  qsizetype synced = 0;
  test::systemCallWatcher() = [&](const std::string& moment) {
    if (moment != "after fsync") return;
    const QString source = kSources[synced++];
    EXPECT_EQ(data.readFile(source + u".txt"_qs), oldListing(source));
  };
  refresh();
  test::systemCallWatcher() = nullptr;
  // The last source had no listing.
  EXPECT_EQ(synced, 2);
  for (const QString& source : kSources) EXPECT_EQ(data.readFile(source + u".txt"_qs), whole_[source]);
}

TEST_F(KilledRefresh, LeavesEveryListingOldOrNewAndWhole) {
  int number = 1;
  std::set<int> replaced;
  for (; killAt(number); ++number) {
    int newListings = 0;
    for (const QString& source : kSources) {
      const QString name = source + u".txt"_qs;
      if (!data.has(name)) {
        EXPECT_EQ(source, kSources.last()) << "killed at moment " << number;
        continue;
      }
      const QByteArray bytes = data.readFile(name);
      const bool isNew = bytes == whole_[source];
      const bool isOld = bytes == oldListing(source) && source != kSources.last();
      EXPECT_TRUE(isNew || isOld) << source.toStdString() << ", killed at moment " << number;
      newListings += isNew ? 1 : 0;
    }
    replaced.insert(newListings);
    putOldListings();
  }
  // Each source has its temporary file opened, written twice, closed and renamed, two of them also synced.
  EXPECT_GE(number, 3 * (2 + 2 * 3 + 2 + 2) + 2 * 2);
  EXPECT_EQ(replaced, (std::set<int>{0, 1, 2, 3}));
}

TEST_F(KilledRefresh, TheNextRefreshGoesThroughWithWhatWasLeft) {
  ASSERT_TRUE(killAt(20));
  refresh();
  for (const QString& source : kSources) EXPECT_EQ(data.readFile(source + u".txt"_qs), whole_[source]);
  EXPECT_EQ(data.names().size(), 4);
  EXPECT_TRUE(data.has(u"history"_qs));
}

}  // namespace
}  // namespace quorvin
