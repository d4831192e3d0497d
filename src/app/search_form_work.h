// SPDX-License-Identifier: GPL-2.0-or-later

// What the main window does that takes long.
#pragma once

#include "app/search_form_controls.h"
#include "app/search_form_status.h"
#include "index/local_list_refresh.h"
#include "peers/client/peer_progress.h"
#include "peers/peer_exchange.h"
#include "platform/message_box.h"
#include "state/program_state.h"
#include "update/http_transfer.h"
#include "work/progress.h"
#include "work/work.h"

#include <QHostAddress>
#include <QLocale>
#include <QPointer>
#include <QString>
#include <QWidget>

#include <chrono>
#include <cstdint>
#include <functional>
#include <utility>

namespace quorvin {

/// The rescan, the web update, the unpacking of the main data file, and the exchange of lists with peers,
/// each as a job of one Work. A refusal is reported with its reason. Nothing runs until the user asks for
/// it.
class SearchFormWork {
 public:
  /// Everything must outlive the object; `owner`, the main window, owns the windows that are shown.
  /// `messages` shows nothing any more when the program is closing.
  SearchFormWork(ProgramState& state, MessageBoxes& messages, QWidget& owner,
                 const SearchFormControls& controls, const SearchFormMenus& menus, const QLocale& locale,
                 SearchFormStatus& status);

  Work& work() { return work_; }
  Progress& progress() { return *progress_; }
  PeerExchange& peers() { return peers_; }

  /// Where a request to stop is left over from an earlier rescan, asks whether it is to be forgotten; without
  /// that nothing is done. Then refreshes the local lists, with `ReScan` disabled and the busy pointer shown;
  /// events run meanwhile. What could not be indexed is shown in `ResWin` afterwards, and shared lists are
  /// packed anew. Where the refresh has to wait, the call returns at once.
  void startRefresh();
  /// Tells the user of a rescan that took at least `least` and ended while another program was in front.
  using Notify = std::function<void(const QString& text)>;
  static constexpr std::chrono::milliseconds kLongRescan = std::chrono::seconds(20);
  void setNotify(Notify notify, std::chrono::milliseconds least = kLongRescan);
  /// Whether a window of the program is in front; the tests have an answer of their own.
  void setIsInFront(std::function<bool()> isInFront) { isInFront_ = std::move(isInFront); }
  /// Puts an earlier version in the place of a listing, as a job of the kind Refresh, and packs shared lists
  /// anew. `ended` is called when that is done, has failed, or was refused, which the user has been shown.
  void restoreListing(const QString& listing, int number, std::function<void()> ended);
  void WebUpdate_Click();
  /// What start-up does when only the archive of the main data file is there: shows the main window and
  /// unpacks. Throws RuntimeFault as quorvin::extractDataFile() does.
  void extractDataFile(const QString& archivePath, const QString& targetFolder);

  /// Where the listener is opened from now on; at first on all addresses, at the port of the exchange.
  void setListenerPlace(const QHostAddress& address, std::uint16_t port);
  /// Opens or closes the listener; the menu item shows what came of it.
  void ShareLists_Click(bool share);
  /// Asks for a peer, and gets its lists.
  void GetLists_Click();

  /// Whether `WebUpdate` can be used, which start-up decides once; a tooltip says what it takes.
  void setWebUpdateEnabled(bool enabled);

  /// The program ends: no more connections, and no more windows.
  void unload();

 private:
  /// False when it was refused.
  bool startOrTell(JobKind kind, const std::function<void(Job&)>& action);
  bool isMeantToRun(const Job& job);
  void refresh(Job& job);
  void restore(Job& job, const QString& listing, int number);
  void showOutcome(const RefreshOutcome& outcome);
  void notifyOf(const RefreshOutcome& outcome, std::chrono::milliseconds duration);
  void connectPeers();
  PeerProgress& peerProgress();

  ProgramState& state_;
  MessageBoxes& messages_;
  QWidget& owner_;
  const SearchFormControls& controls_;
  const SearchFormMenus& menus_;
  QLocale locale_;
  SearchFormStatus& status_;
  /// The owner's.
  Progress* progress_;
  Work work_;
  HttpNetworkTransfer web_;
  PeerExchange peers_;
  QPointer<PeerProgress> peerProgress_;
  Notify notify_;
  std::function<bool()> isInFront_;
  std::chrono::milliseconds leastNotified_ = kLongRescan;
  QHostAddress listenerAddress_ = QHostAddress::Any;
  std::uint16_t listenerPort_ = kPeerPort;
};

}  // namespace quorvin
