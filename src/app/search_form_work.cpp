// SPDX-License-Identifier: GPL-2.0-or-later
#include "app/search_form_work.h"

#include "app/fault_report.h"
#include "app/status_texts.h"
#include "app/version.h"
#include "history/listing_history.h"
#include "platform/ini_settings_store.h"
#include "platform/machine_memory.h"
#include "platform/one_window.h"
#include "platform/standard_folders.h"
#include "preview/res_win.h"
#include "texts/texts.h"
#include "update/web_update.h"

#include <QApplication>
#include <QInputDialog>
#include <QScopeGuard>

#include <utility>

namespace quorvin {

namespace {

bool noDialogIsOpen() {
  return QApplication::activeModalWidget() == nullptr;
}

OwnPlaces ownPlaces() {
  return {usualProgramPlace().executableFolder, userSettingsPath(), usualOneWindowOptions().folder};
}

}  // namespace

SearchFormWork::SearchFormWork(ProgramState& state, MessageBoxes& messages, QWidget& owner,
                               const SearchFormControls& controls, const SearchFormMenus& menus,
                               const QLocale& locale, SearchFormStatus& status)
    : state_(state),
      messages_(messages),
      owner_(owner),
      controls_(controls),
      menus_(menus),
      locale_(locale),
      status_(status),
      progress_(new Progress(state, &owner)),
      work_(state, *progress_),
      peers_(state, work_, messages, locale, noDialogIsOpen) {
  isInFront_ = [] { return QApplication::activeWindow() != nullptr; };
  connectPeers();
}

bool SearchFormWork::startOrTell(JobKind kind, const std::function<void(Job&)>& action) {
  const auto runAndTidy = [action](Job& job) {
    action(job);
    // Listings and archives are worked on in large pieces, which nobody needs afterwards.
    giveBackFreedMemory();
  };
  if (work_.run(kind, runAndTidy) != Answer::Refused) return true;
  const QString why = work_.refusalOf(kind);
  if (!why.isEmpty()) messages_.inform(why);
  return false;
}

void SearchFormWork::startRefresh() {
  startOrTell(JobKind::Refresh, [this](Job& job) { refresh(job); });
}

/// A request that is left over is not taken back by a rescan, which would make short listings with it.
bool SearchFormWork::isMeantToRun(const Job& job) {
  if (!job.isAbortRequested() || job.isClosing()) return true;
  if (!messages_.askYesNo(Texts::tr("The request to stop an earlier rescan is still in force. With it, most "
                                    "folders would be left out of the listings.\r\n\r\nForget the "
                                    "request, and rescan everything?"))) {
    return false;
  }
  job.dropStopRequest();
  return true;
}

void SearchFormWork::refresh(Job& job) {
  if (!isMeantToRun(job)) return;
  RefreshOutcome outcome;
  menus_.ReScan->setEnabled(false);
  progress_->setBusyPointer(true);
  const auto start = std::chrono::steady_clock::now();
  reportFaults(messages_, Texts::tr("refreshing the local lists"),
               [&] { outcome = refreshLocalLists(state_, job, messages_, locale_, versionCaption()); });
  job.end();
  progress_->setBusyPointer(false);
  menus_.ReScan->setEnabled(true);
  notifyOf(outcome,
           std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - start));
  showOutcome(outcome);
  peers_.sharing().sourcesRefreshed();
}

void SearchFormWork::restoreListing(const QString& listing, int number, std::function<void()> ended) {
  const bool isAccepted = startOrTell(JobKind::Refresh, [this, listing, number, ended](Job& job) {
    restore(job, listing, number);
    ended();
  });
  if (!isAccepted) ended();
}

void SearchFormWork::restore(Job& job, const QString& listing, int number) {
  progress_->setBusyPointer(true);
  try {
    ListingHistory(state_.LocalFolder, [&job] { job.letEventsRun(); }).restore(listing, number);
  } catch (const std::exception& fault) {
    messages_.inform(faultReport(fault, Texts::tr("restoring the listing %1").arg(listing)));
  }
  progress_->setBusyPointer(false);
  // There is no next source to end before.
  static_cast<void>(job.takeRescanAbort());
  job.end();
  peers_.sharing().sourcesRefreshed();
}

void SearchFormWork::setNotify(Notify notify, std::chrono::milliseconds least) {
  notify_ = std::move(notify);
  leastNotified_ = least;
}

void SearchFormWork::notifyOf(const RefreshOutcome& outcome, std::chrono::milliseconds duration) {
  if (!notify_ || isInFront_() || work_.isClosing() || duration < leastNotified_) return;
  notify_(outcome.fault.isEmpty() ? refreshText(outcome, locale_) : outcome.fault);
}

void SearchFormWork::showOutcome(const RefreshOutcome& outcome) {
  if (outcome.fault.isEmpty()) status_.setNote(refreshText(outcome, locale_));
  if (!outcome.fault.isEmpty()) messages_.inform(outcome.fault);
  if (outcome.errorLog.isEmpty() || work_.isClosing()) return;
  ResWin window(&owner_);
  window.setText(outcome.errorLog);
  window.exec();
}

void SearchFormWork::WebUpdate_Click() {
  startOrTell(JobKind::Update, [this](Job& job) {
    const auto enable = [this](bool enabled) { controls_.WebUpdate->setEnabled(enabled); };
    reportFaults(messages_, Texts::tr("updating from the web"), [&] {
      WebUpdate(state_, job, messages_, web_, locale_, enable, ownPlaces()).WebUpdate_Click();
    });
    if (controls_.WebUpdate->isEnabled()) return;
    controls_.WebUpdate->setToolTip(
        Texts::tr("The update was cancelled. It can be started again when the program is started again."));
  });
}

void SearchFormWork::setWebUpdateEnabled(bool enabled) {
  controls_.WebUpdate->setEnabled(enabled);
  controls_.WebUpdate->setToolTip(
      enabled ? QString()
              : Texts::tr("To use the web update, fill in the web server and the archive in File, Options, "
                          "and start the program again."));
}

void SearchFormWork::extractDataFile(const QString& archivePath, const QString& targetFolder) {
  owner_.show();
  const auto afterwards = qScopeGuard([this] { work_.wake(); });
  if (std::optional<Job> job = work_.start(JobKind::Extraction)) {
    quorvin::extractDataFile(*job, archivePath, targetFolder, messages_,
                             ProtectedFiles(state_, targetFolder, ownPlaces()));
  }
}

void SearchFormWork::connectPeers() {
  QObject::connect(&peers_, &PeerExchange::gettingBegan, &peers_, [this](const QString& peer) {
    menus_.GetLists->setEnabled(false);
    peerProgress().begin(peer);
  });
  QObject::connect(&peers_.client(), &PeerClient::progressed, &peers_,
                   [this] { peerProgress().showFigures(peers_.client().figures()); });
  QObject::connect(&peers_, &PeerExchange::gettingEnded, &peers_, [this] {
    if (peerProgress_) peerProgress_->hide();
  });
  QObject::connect(&peers_, &PeerExchange::outcomeDealtWith, &peers_, [this] {
    menus_.GetLists->setEnabled(true);
    giveBackFreedMemory();
  });
}

PeerProgress& SearchFormWork::peerProgress() {
  if (!peerProgress_) {
    peerProgress_ = new PeerProgress(locale_, &owner_);
    QObject::connect(peerProgress_, &PeerProgress::cancelled, &peers_.client(), &PeerClient::cancel);
  }
  return *peerProgress_;
}

void SearchFormWork::setListenerPlace(const QHostAddress& address, std::uint16_t port) {
  listenerAddress_ = address;
  listenerPort_ = port;
}

void SearchFormWork::ShareLists_Click(bool share) {
  if (share) {
    peers_.sharing().start(listenerPort_, listenerAddress_);
  } else {
    peers_.sharing().stop();
  }
  menus_.ShareLists->setChecked(peers_.sharing().isSharing());
}

void SearchFormWork::GetLists_Click() {
  bool confirmed = false;
  const QString peer =
      QInputDialog::getText(&owner_, Texts::tr("Get Lists From Peer"),
                            Texts::tr("&Peer (host or host:port):"), QLineEdit::Normal, {}, &confirmed);
  if (confirmed && !peer.trimmed().isEmpty()) peers_.getLists(peer);
}

void SearchFormWork::unload() {
  peers_.client().cancel();
  peers_.sharing().stop();
  if (peerProgress_) peerProgress_->hide();
}

}  // namespace quorvin
