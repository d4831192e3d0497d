// What the main window does over the network: the web update, and the exchange of lists with peers.
#pragma once

#include "app/search_form_controls.h"
#include "peers/client/peer_progress.h"
#include "peers/peer_exchange.h"
#include "platform/message_box.h"
#include "state/program_state.h"
#include "update/archive_data_file.h"
#include "update/archive_extraction.h"
#include "update/http_network_transfer.h"
#include "update/progress_display.h"
#include "update/web_update.h"

#include <QHostAddress>
#include <QLocale>
#include <QPointer>

#include <cstdint>
#include <functional>

namespace quorvin {

/// Wires the network's features to the windows. Nothing goes on until the user asks for it. The update, the
/// unpacking of received lists and that of the main data file show the same `Progress` and are cancelled by
/// the same request, so only one of them goes on at a time.
class SearchFormNetwork : private ArchiveExtraction {
 public:
  /// Everything must outlive the object; the main window owns the windows that are opened. `isAtWork` tells
  /// whether a search or a refresh runs: lists that a peer sent wait for its end.
  SearchFormNetwork(ProgramState& state, MessageBoxes& messages, const UpdateWindows& windows,
                    const SearchFormMenus& menus, const QLocale& locale, std::function<bool()> isAtWork);

  /// While one of the others shows `Progress`, it only says so.
  void WebUpdate_Click();

  /// Connects ("true") or disconnects the listener; the menu item shows what came of it.
  void ShareLists_Click(bool share);
  /// Where the listener is opened from now on; at first on all addresses, at the port of the exchange.
  void setListenerPlace(const QHostAddress& address, std::uint16_t port);
  /// Asks for a peer, and gets its lists.
  void GetLists_Click();

  /// What start-up unpacks the main data file with.
  ArchiveExtraction& dataFileExtraction() { return *this; }
  PeerExchange& peers() { return peers_; }

  /// The program ends: no more connections, and no more windows.
  void unload();

 private:
  void extractArchive(const QString& archivePath, const QString& targetFolder) override;
  PeerProgress& peerProgress();
  PeerHooks peerHooks();
  void connectPeers();

  ProgramState& state_;
  MessageBoxes& messages_;
  QWidget& owner_;
  const SearchFormMenus& menus_;
  QLocale locale_;
  std::function<bool()> isAtWork_;
  bool isProgressTaken_ = false;
  ProgressDisplay display_;
  DataFileExtraction dataFile_;
  HttpNetworkTransfer web_;
  WebUpdate webUpdate_;
  PeerExchange peers_;
  QHostAddress listenerAddress_ = QHostAddress::Any;
  std::uint16_t listenerPort_ = kPeerPort;
  QPointer<PeerProgress> peerProgress_;
};

}  // namespace quorvin
