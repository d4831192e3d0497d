// SPDX-License-Identifier: GPL-2.0-or-later

// A transfer where the test decides what comes, and when.
#pragma once

#include "help/page_transfer.h"

#include <utility>
#include <vector>

namespace quorvin::test {

class FakePageTransfer : public PageTransfer {
 public:
  void start(const QUrl& address, Done done) override {
    started.push_back(address.toString());
    done_ = std::move(done);
  }
  void stop() override {
    if (done_) ++stopped;
    done_ = {};
  }

  bool isWaiting() const { return static_cast<bool>(done_); }

  /// The page that is waited for comes.
  void deliver(const QByteArray& body, const QByteArray& contentType = "text/html") {
    finish({QUrl(started.back()), body, contentType, {}});
  }
  void deliverFrom(const QString& address, const QByteArray& body) {
    finish({QUrl(address), body, "text/html", {}});
  }
  void fail(const QString& why) { finish({QUrl(started.back()), {}, {}, why}); }

  std::vector<QString> started;
  /// How many transfers were ended before their page came.
  int stopped = 0;

 private:
  void finish(const TransferResult& result) {
    const Done done = std::exchange(done_, {});
    done(result);
  }

  Done done_;
};

}  // namespace quorvin::test
