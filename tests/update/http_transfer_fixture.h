// SPDX-License-Identifier: GPL-2.0-or-later

// Driving a transfer as the update does, by polling while events run.
#pragma once

#include "support/eventually.h"
#include "support/qt_printing.h"
#include "update/http_transfer.h"
#include "update/scripted_web_server.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <gtest/gtest.h>

#include <optional>

namespace quorvin::test {

class HttpTransferTest : public testing::Test {
 protected:
  struct Outcome {
    QByteArray body;
    /// The fault's number; 0 for none.
    int fault = 0;
    QString description;
  };

  /// Executes and reads to the end.
  static Outcome get(HttpTransfer& transfer, const QUrl& address) {
    Outcome outcome;
    transfer.execute(address);
    if (!eventually([&] { return !transfer.stillExecuting(); })) ADD_FAILURE() << "the headers never came";
    try {
      while (true) {
        if (!eventually([&] { return transfer.chunkIsReady(1024); })) ADD_FAILURE() << "the chunk never came";
        const QByteArray chunk = transfer.chunk(1024);
        if (chunk.isEmpty()) return outcome;
        outcome.body += chunk;
      }
    } catch (const RuntimeFault& fault) {
      outcome.fault = fault.number();
      outcome.description = fault.description();
    }
    return outcome;
  }

  /// For servers that fall silent; a busy machine may be as slow without any fault.
  static HttpLimits shortLimits() {
    HttpLimits limits;
    limits.silence = std::chrono::milliseconds(400);
    limits.headers = std::chrono::milliseconds(800);
    return limits;
  }

  Outcome get(std::vector<WebAnswer> answers, HttpLimits limits = {}) {
    server_.emplace(std::move(answers));
    HttpNetworkTransfer transfer(limits);
    return get(transfer, server_->address());
  }

  std::optional<ScriptedWebServer> server_;
};

}  // namespace quorvin::test
