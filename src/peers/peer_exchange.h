// SPDX-License-Identifier: GPL-2.0-or-later

// The peer list exchange as a whole: what the menu "Peers" works with.
#pragma once

#include "peers/client/list_offer.h"
#include "peers/client/peer_client.h"
#include "peers/messages/send_queue.h"
#include "peers/server/list_sharing.h"
#include "platform/message_box.h"
#include "state/program_state.h"
#include "work/work.h"

#include <QLocale>
#include <QObject>
#include <QString>
#include <QTimer>

#include <chrono>
#include <functional>
#include <optional>

namespace quorvin {

/// How often something is due; a test may be in a hurry.
struct PeerPace {
  /// Between two ticks of `SndQTime`.
  std::chrono::milliseconds sending = SendTimer::kInterval;
  /// Between two attempts to offer what came, while the user must not be asked.
  std::chrono::milliseconds offering = std::chrono::milliseconds(200);
};

/// Sharing and getting, which may go on at the same time, and the timer `SndQTime`. One object for the
/// program. Both are off at first. User-interface thread only.
class PeerExchange : public QObject {
  Q_OBJECT

 public:
  /// `state`, `work` and `messages` must outlive the object. `mayAsk` says whether the user may be asked
  /// something now, that is, whether no dialog is open: one might write back the sources as they were before
  /// lists were added.
  PeerExchange(ProgramState& state, Work& work, MessageBoxes& messages, const QLocale& locale,
               std::function<bool()> mayAsk, PeerPace pace = {}, QObject* parent = nullptr);

  /// The timer that ends the program too; see SendTimer::setQuit().
  SendTimer& SndQTime() { return sndQTime_; }
  ListSharing& sharing() { return sharing_; }
  PeerClient& client() { return client_; }

  /// Gets all lists of the peer that the user has named, "host" or "host:port". A message says so when the
  /// name makes no sense, or when other lists are still being received or waiting to be offered.
  void getLists(const QString& peer);

 Q_SIGNALS:
  /// A conversation has started; `peer` as it may be shown.
  void gettingBegan(const QString& peer);
  /// No more lists are coming. What came is reported and offered next.
  void gettingEnded();
  /// What came has been reported and offered: other lists may be got.
  void outcomeDealtWith();
  /// Offline sources have been added.
  void offlineSourcesAdded();

 private:
  void conversationEnded(const PeerOutcome& outcome);
  void offerWhenPossible();
  void endGetting(bool sourcesAdded);

  ProgramState& state_;
  Work& work_;
  MessageBoxes& messages_;
  std::function<bool()> mayAsk_;
  SendQueue queue_;
  SendTimer sndQTime_;
  ListSharing sharing_;
  PeerClient client_;
  QTimer offer_;
  /// What came of a conversation, until it is reported and offered.
  std::optional<PeerOutcome> outcome_;
  /// From the first message to the peer until what came has been offered.
  std::optional<Job> getting_;
};

}  // namespace quorvin
