#include "app/search_form_network.h"

#include "peers/client/peer_unpacking.h"

#include <QApplication>
#include <QInputDialog>
#include <QScopedValueRollback>

#include <utility>

namespace quorvin {

SearchFormNetwork::SearchFormNetwork(ProgramState& state, MessageBoxes& messages,
                                     const UpdateWindows& windows, const SearchFormMenus& menus,
                                     const QLocale& locale, std::function<bool()> isAtWork)
    : state_(state),
      messages_(messages),
      owner_(windows.mainWindow),
      menus_(menus),
      locale_(locale),
      isAtWork_(std::move(isAtWork)),
      display_(windows),
      dataFile_(state, display_, messages),
      webUpdate_(state, display_, messages, web_, locale),
      peers_(state, messages, locale, peerHooks()) {
  connectPeers();
}

PeerHooks SearchFormNetwork::peerHooks() {
  PeerHooks hooks;
  hooks.processEvents = [] { QCoreApplication::processEvents(); };
  hooks.unpack = [this, unpack = unpackingShownIn(state_, display_)](const QString& archivePath,
                                                                     const QString& targetFolder) {
    const QScopedValueRollback taken(isProgressTaken_, true);
    return unpack(archivePath, targetFolder);
  };
  hooks.mayAsk = [this] {
    return !state_.QuitPending && QApplication::activeModalWidget() == nullptr && !isProgressTaken_ &&
           !isAtWork_();
  };
  return hooks;
}

void SearchFormNetwork::WebUpdate_Click() {
  if (isProgressTaken_) {
    return messages_.inform(QStringLiteral("An update can start when the unpacking has ended."));
  }
  const QScopedValueRollback taken(isProgressTaken_, true);
  webUpdate_.WebUpdate_Click();
}

void SearchFormNetwork::extractArchive(const QString& archivePath, const QString& targetFolder) {
  const QScopedValueRollback taken(isProgressTaken_, true);
  dataFile_.extractArchive(archivePath, targetFolder);
}

void SearchFormNetwork::connectPeers() {
  QObject::connect(&peers_, &PeerExchange::gettingBegan, &peers_, [this](const QString& peer) {
    menus_.GetLists->setEnabled(false);
    peerProgress().begin(peer);
  });
  QObject::connect(&peers_.client(), &PeerClient::progressed, &peers_,
                   [this] { peerProgress().showFigures(peers_.client().figures()); });
  QObject::connect(&peers_, &PeerExchange::gettingEnded, &peers_, [this] {
    if (peerProgress_) peerProgress_->hide();
  });
  QObject::connect(&peers_, &PeerExchange::outcomeDealtWith, &peers_,
                   [this] { menus_.GetLists->setEnabled(true); });
}

PeerProgress& SearchFormNetwork::peerProgress() {
  if (!peerProgress_) {
    peerProgress_ = new PeerProgress(locale_, &owner_);
    QObject::connect(peerProgress_, &PeerProgress::cancelled, &peers_.client(), &PeerClient::cancel);
  }
  return *peerProgress_;
}

void SearchFormNetwork::ShareLists_Click(bool share) {
  if (share) {
    peers_.sharing().start(listenerPort_, listenerAddress_);
  } else {
    peers_.sharing().stop();
  }
  menus_.ShareLists->setChecked(peers_.sharing().isSharing());
}

void SearchFormNetwork::setListenerPlace(const QHostAddress& address, std::uint16_t port) {
  listenerAddress_ = address;
  listenerPort_ = port;
}

void SearchFormNetwork::GetLists_Click() {
  bool confirmed = false;
  const QString peer =
      QInputDialog::getText(&owner_, QStringLiteral("Get Lists From Peer"),
                            QStringLiteral("&Peer (host or host:port):"), QLineEdit::Normal, {}, &confirmed);
  if (confirmed && !peer.trimmed().isEmpty()) peers_.getLists(peer);
}

void SearchFormNetwork::unload() {
  peers_.client().cancel();
  peers_.sharing().stop();
  if (peerProgress_) peerProgress_->hide();
}

}  // namespace quorvin
