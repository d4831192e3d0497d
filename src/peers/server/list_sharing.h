// Offering the listings of the online sources to peers.
#pragma once

#include "peers/server/peer_server.h"
#include "platform/message_box.h"
#include "state/program_state.h"

#include <QHostAddress>
#include <QLocale>
#include <QObject>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <functional>

namespace quorvin {

/// What the menu item "Share My Lists" does. While sharing is on, the server listens, and the archive of each
/// online source that has a listing is made anew after each refresh. Archives that sharing made for sources
/// that are no longer listed are removed then. Archives stay when sharing ends; they are replaced by the next
/// ones. An archive of the user's, by which is meant any that was not made here, is never replaced.
class ListSharing : public QObject {
  Q_OBJECT

 public:
  /// `state` and `messages` must outlive the object. `processEvents` lets pending window events run; it is
  /// called all the time while archives are made.
  ListSharing(const ProgramState& state, MessageBoxes& messages, const QLocale& locale,
              std::function<void()> processEvents, PeerServerLimits limits = {}, QObject* parent = nullptr);

  /// Opens the listener, makes the archives and tells the address and what could not be packed; or tells why
  /// the port could not be opened. True when sharing is on in the end. Does nothing when it is on already.
  bool start(std::uint16_t port = kPeerPort, const QHostAddress& address = QHostAddress::Any);
  /// Nothing is offered any more: the listener and every connection are closed, and the making of archives
  /// ends.
  void stop();
  bool isSharing() const { return server_.isListening(); }

  /// To be called after each refresh: makes the archives anew if sharing is on, and tells what could not be
  /// packed.
  void sourcesRefreshed();

  /// Whether archives are being made at this moment.
  bool isPacking() const { return isPacking_; }
  const PeerServer& server() const { return server_; }

 private:
  QStringList packAll();
  QStringList packEach();
  void removeUnlisted() const;
  QString packRow(int row);
  bool mustStop() const;
  void tell(const QString& first, const QStringList& problems);
  QString addressText() const;

  const ProgramState& state_;
  MessageBoxes& messages_;
  std::function<void()> processEvents_;
  PeerServer server_;
  bool isPacking_ = false;
  /// The listings have changed while they were being packed.
  bool packAgain_ = false;
};

}  // namespace quorvin
