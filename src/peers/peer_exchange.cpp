#include "peers/peer_exchange.h"

#include "peers/messages/peer_message.h"

#include <QScopedValueRollback>

#include <utility>

namespace quorvin {

namespace {

constexpr int kMillisecondsBetweenTries = 200;

}  // namespace

PeerExchange::PeerExchange(ProgramState& state, MessageBoxes& messages, const QLocale& locale,
                           PeerHooks hooks, PeerServerLimits serverLimits, PeerClientLimits clientLimits,
                           QObject* parent)
    : QObject(parent),
      state_(state),
      messages_(messages),
      hooks_(std::move(hooks)),
      sndQTime_(state, queue_),
      sharing_(state, messages, locale, hooks_.processEvents, serverLimits),
      client_(state, queue_, sndQTime_, locale, clientLimits) {
  offer_.setInterval(kMillisecondsBetweenTries);
  connect(&client_, &PeerClient::ended, this, &PeerExchange::conversationEnded);
  connect(&offer_, &QTimer::timeout, this, &PeerExchange::offerWhenPossible);
}

void PeerExchange::getLists(const QString& peer) {
  const HostAndPort address = readHostAndPort(peer);
  if (address.host.isEmpty()) {
    messages_.inform(
        QStringLiteral("\"%1\" is not the name or address of a computer.").arg(shownPeerText(peer)));
  } else if (isBusy()) {
    messages_.inform(QStringLiteral("Lists are already being received."));
  } else {
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
  if (state_.QuitPending || !outcome_ || (hooks_.mayAsk && !hooks_.mayAsk())) return;
  offer_.stop();
  // Events run meanwhile, and may come here again.
  const PeerOutcome outcome = *std::exchange(outcome_, std::nullopt);
  bool added = false;
  {
    const QScopedValueRollback offering(isOffering_, true);
    added = offerReceivedLists(outcome, state_, messages_, hooks_.unpack);
  }
  if (added) Q_EMIT offlineSourcesAdded();
  Q_EMIT outcomeDealtWith();
}

}  // namespace quorvin
