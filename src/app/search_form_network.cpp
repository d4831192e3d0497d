#include "app/search_form_network.h"

#include "net/archive_unpacking.h"
#include "platform/runtime_fault.h"

#include <QApplication>
#include <QInputDialog>

namespace quorvin {

namespace {

/// Lets the windows live on while a received archive is unpacked, and keeps what was wrong with it.
class QuietUnpacking : public ArchiveEvents {
 public:
  explicit QuietUnpacking(const ProgramState& state) : state_(state) {}

  void archiveError(std::int32_t, const QString& description) override { error_ = description; }
  void percentDone(double) override {}
  void idleTick(std::int32_t) override { QCoreApplication::processEvents(); }
  void fileNotice(const QString&, std::int64_t) override {}
  bool stopRequested() const override { return state_.QuitPending; }

  const QString& error() const { return error_; }

 private:
  const ProgramState& state_;
  QString error_;
};

void unpackReceived(const ProgramState& state, const QString& archivePath, const QString& targetFolder) {
  QuietUnpacking events(state);
  if (unpackArchive(archivePath, targetFolder, events) == UnpackingOutcome::Failed) {
    throw RuntimeFault(FaultNumber::PathFileAccess, events.error());
  }
}

PeerHooks hooksOf(const ProgramState& state) {
  PeerHooks hooks;
  hooks.processEvents = [] { QCoreApplication::processEvents(); };
  hooks.unpack = [&state](const QString& archive, const QString& folder) {
    unpackReceived(state, archive, folder);
  };
  hooks.mayAsk = [&state] { return !state.QuitPending && QApplication::activeModalWidget() == nullptr; };
  return hooks;
}

}  // namespace

SearchFormNetwork::SearchFormNetwork(ProgramState& state, MessageBoxes& messages,
                                     const UpdateWindows& windows, const SearchFormMenus& menus,
                                     const QLocale& locale)
    : state_(state),
      owner_(windows.mainWindow),
      menus_(menus),
      locale_(locale),
      display_(windows),
      dataFile_(state, display_, messages),
      webUpdate_(state, display_, messages, web_, locale),
      peers_(state, messages, locale, hooksOf(state)) {
  connectPeers();
}

SearchFormNetwork::~SearchFormNetwork() = default;

void SearchFormNetwork::connectPeers() {
  QObject::connect(&peers_, &PeerExchange::gettingBegan, &peers_, [this](const QString& peer) {
    menus_.GetLists->setEnabled(false);
    peerProgress().begin(peer);
  });
  QObject::connect(&peers_.client(), &PeerClient::progressed, &peers_,
                   [this] { peerProgress().showFigures(peers_.client().figures()); });
  QObject::connect(&peers_, &PeerExchange::gettingEnded, &peers_, [this] {
    menus_.GetLists->setEnabled(true);
    if (peerProgress_) peerProgress_->hide();
  });
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
    peers_.sharing().start();
  } else {
    peers_.sharing().stop();
  }
  menus_.ShareLists->setChecked(peers_.sharing().isSharing());
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
