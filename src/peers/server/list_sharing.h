// SPDX-License-Identifier: GPL-2.0-or-later

// Offering the listings of the online sources to peers.
#pragma once

#include "peers/server/peer_server.h"
#include "platform/message_box.h"
#include "state/program_state.h"
#include "work/work.h"

#include <QHostAddress>
#include <QLocale>
#include <QObject>
#include <QString>
#include <QStringList>

#include <cstdint>

namespace quorvin {

/// What the menu item "Share My Lists" does. While sharing is on, the server listens, and after each refresh
/// the archive of each online source that has a listing is made again. One without gets an empty archive, so
/// that callers who ask for it do not get what the search for an unknown list ends at. Archives that sharing
/// made for sources that are no longer listed are then removed. Archives stay when sharing ends, until the
/// next ones replace them. An archive that was not made here is the user's own and is never replaced.
class ListSharing : public QObject {
  Q_OBJECT

 public:
  /// `state`, `work` and `messages` must outlive the object. Making archives is a job of the kind Packing,
  /// which lets window events run all the time.
  ListSharing(const ProgramState& state, Work& work, MessageBoxes& messages, const QLocale& locale,
              QObject* parent = nullptr);

  /// Opens the listener, makes the archives, and shows the address and what could not be packed, or why the
  /// port could not be opened. Where packing has to wait for another job, the address is shown at once, and
  /// with it that packing follows. True when sharing is on in the end. Does nothing when it is on already.
  bool start(std::uint16_t port = kPeerPort, const QHostAddress& address = QHostAddress::Any);
  /// Nothing is offered any more: the listener and every connection are closed, and packing ends.
  void stop();
  bool isSharing() const { return server_.isListening(); }

  /// To be called after each refresh. If sharing is on, makes the archives again, now or when the running job
  /// has ended, and shows what could not be packed.
  void sourcesRefreshed();

  const PeerServer& server() const { return server_; }

 private:
  void packAll(bool showsAddress);
  QStringList packEach(const Job& job);
  void removeUnlisted() const;
  void makeEmpty(int row) const;
  QString packRow(int row, const Job& job);
  QString packListingOf(int row, const Job& job);
  bool mustStop() const;
  void show(const QString& first, const QStringList& problems);
  QString addressText() const;

  const ProgramState& state_;
  Work& work_;
  MessageBoxes& messages_;
  PeerServer server_;
};

}  // namespace quorvin
