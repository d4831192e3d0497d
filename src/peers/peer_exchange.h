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

#include <functional>
#include <optional>

namespace quorvin {

/// Sharing and getting, which go on beside each other, and the timer `SndQTime`. One object for the program.
/// Neither goes on at first. User-interface thread only.
class PeerExchange : public QObject {
  Q_OBJECT

 public:
  /// `state`, `work` and `messages` must outlive the object. `mayAsk` says whether the user may be asked
  /// something now, that is no dialog is open: one might write back sources as they were before lists were
  /// added.
  PeerExchange(ProgramState& state, Work& work, MessageBoxes& messages, const QLocale& locale,
               std::function<bool()> mayAsk, PeerServerLimits serverLimits = {},
               PeerClientLimits clientLimits = {}, QObject* parent = nullptr);

  /// The timer that ends the program too; see SendTimer::setQuit().
  SendTimer& SndQTime() { return sndQTime_; }
  ListSharing& sharing() { return sharing_; }
  PeerClient& client() { return client_; }

  /// Gets all lists of the peer that the user has named, "host" or "host:port". A name that makes no sense is
  /// told, and so is that lists are being got already, or have come and are not dealt with yet.
  void getLists(const QString& peer);

 Q_SIGNALS:
  /// Lists are being got; `peer` as it may be shown.
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
  /// From the first word to the peer until what came has been offered.
  std::optional<Job> getting_;
};

}  // namespace quorvin
