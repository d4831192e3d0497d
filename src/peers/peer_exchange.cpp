// SPDX-License-Identifier: GPL-2.0-or-later
#include "peers/peer_exchange.h"

#include "peers/messages/peer_message.h"
#include "texts/texts.h"

#include <utility>

namespace quorvin {

PeerExchange::PeerExchange(ProgramState& state, Work& work, MessageBoxes& messages, const QLocale& locale,
                           std::function<bool()> mayAsk, PeerPace pace, QObject* parent)
    : QObject(parent),
      state_(state),
      work_(work),
      messages_(messages),
      mayAsk_(std::move(mayAsk)),
      sndQTime_(work, queue_, pace.sending),
      sharing_(state, work, messages, locale),
      client_(state, queue_, sndQTime_, locale) {
  offer_.setInterval(pace.offering);
  connect(&client_, &PeerClient::ended, this, &PeerExchange::conversationEnded);
  connect(&offer_, &QTimer::timeout, this, &PeerExchange::offerWhenPossible);
}

void PeerExchange::getLists(const QString& peer) {
  const HostAndPort address = readHostAndPort(peer);
  if (address.host.isEmpty()) {
    messages_.inform(Texts::tr("\"%1\" is not the name or address of a computer.").arg(shownPeerText(peer)));
  } else if (std::optional<Job> getting = work_.start(JobKind::Getting); !getting) {
    const QString refusal = work_.refusalOf(JobKind::Getting);
    if (!refusal.isEmpty()) messages_.inform(refusal);
  } else {
    getting_.emplace(*std::move(getting));
    client_.start(address);
    Q_EMIT gettingBegan(shownPeerText(address.text()));
  }
}

/// The user is not asked from inside the connection's own work.
void PeerExchange::conversationEnded(const PeerOutcome& outcome) {
  outcome_ = outcome;
  Q_EMIT gettingEnded();
  QTimer::singleShot(0, this, &PeerExchange::offerWhenPossible);
  offer_.start();
}

void PeerExchange::offerWhenPossible() {
  if (!outcome_ || !mayAsk_()) return;
  std::optional<Job> unpacking = work_.start(JobKind::Unpacking);
  if (!unpacking) return;
  // Events run from here on, and may come here again.
  if (!outcome_->listings) outcome_->listings = countListings(outcome_->received, *unpacking);
  if (!mayAsk_()) return;
  offer_.stop();
  const PeerOutcome outcome = *std::exchange(outcome_, std::nullopt);
  bool added = false;
  try {
    added = offerReceivedLists(outcome, state_, *unpacking, messages_, unpackingIn(*unpacking));
  } catch (...) {
    // What came stays in its folder, and lists can be got again.
    unpacking.reset();
    endGetting(false);
    throw;
  }
  unpacking.reset();
  endGetting(added);
  work_.wake();
}

void PeerExchange::endGetting(bool sourcesAdded) {
  getting_.reset();
  if (sourcesAdded) Q_EMIT offlineSourcesAdded();
  Q_EMIT outcomeDealtWith();
}

}  // namespace quorvin
