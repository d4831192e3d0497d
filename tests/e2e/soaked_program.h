// SPDX-License-Identifier: GPL-2.0-or-later

// A real program that is used at random for long, with all that it has to know.
#pragma once

#include "e2e/running_program.h"
#include "e2e/soak_catalogue.h"
#include "e2e/soak_figures.h"
#include "e2e/source_records.h"
#include "e2e/web_site.h"
#include "files/file_identity.h"

#include <QJsonObject>
#include <QSize>

#include <functional>
#include <map>
#include <optional>
#include <vector>

namespace quorvin::test {

/// Hears what is about to be done.
using SoakNote = std::function<void(const QString& text)>;

/// What everybody knows after a step is compared with what the program shows; a difference is a
/// std::runtime_error. Every step starts and ends with the main window taking the keys, the program at rest.
class SoakedProgram {
 public:
  /// When a program ends: at rest, or in the middle of something.
  enum class Moment : std::uint8_t { AtRest, Searching, Refreshing, InDialog };
  enum class WayOut : std::uint8_t { Keys, Terminate, Kill };

  /// Fills `home` with folders, lists and settings, without starting anything. `home` and `site` must outlive
  /// the object.
  SoakedProgram(const QString& name, ProgramHome& home, WebSite& site, Dice& dice, SoakNote note);

  bool isRunning() const { return program_.has_value(); }
  /// Changes that were not saved before a kill are taken back, or are not.
  void start(Dice& dice);
  void end(WayOut way, Moment moment, Dice& dice);
  /// Another start with the same settings, which hands over to this one.
  void startAgain();

  void search(const QStringList& words);
  void refresh();
  void editFolders(Dice& dice);
  void editOfflineLists(Dice& dice);
  void editOptions(Dice& dice);
  void preview(Dice& dice);
  /// Brings an earlier version of a listing back, or only looks at the history.
  void restoreListing(Dice& dice);
  /// A refresh that is cancelled, whose listings are short then, and another one. False when the first one
  /// has ended before it could be cancelled.
  bool cancelRefresh();
  void lookAtHelp(Dice& dice);
  void wander(Dice& dice);
  void updateFromWeb(Dice& dice);
  /// Shares; `peer`, another program, gets the lists and adds them or not; sharing ends.
  void shareWith(SoakedProgram& peer, bool isAdded, bool refreshesMeanwhile);

  /// Changes that no program makes: in the own folders, and in lists from elsewhere.
  void changeFiles(Dice& dice);
  void takeAwayOrBringBack(Dice& dice);

  /// What the program expects and shows, and where it is, for the report of a failure.
  QString stateShown() const;
  /// Waits until no more threads than these are left.
  void waitForThreads(int most) const;
  /// The program's figures, after a search that is always the same.
  ProcessFigures figures();
  /// The same with its first sources, all refreshed, and with windows of their first sizes, so that the
  /// memory that it takes up can be compared with other such moments.
  ProcessFigures settledFigures();
  /// Refreshes a last time, closes, and looks at everything on the disk. Gives the number of listings that
  /// were compared.
  int closeAndCompare(Dice& dice);

 private:
  struct Lists {
    SourceRecords online;
    SourceRecords offline;
  };
  using Identities = std::map<QString, std::optional<FileIdentity>>;
  using AddEntry = std::function<void(const SourceRecord&)>;

  void note(const QString& text) const { note_(name_ + QStringLiteral(": ") + text); }
  Listing mainListing() const;
  void writeFarList(const QString& path, Dice& dice);

  void press(const QStringList& keys) const { program_->press(keys); }
  /// Waits for a message, and gives this answer to it.
  void answer(const QStringList& keys) const;
  void waitUntilAtRest() const;
  bool isMessageShown() const;
  void openAbout();
  void closeAbout();
  /// The window that has the keys, and its text where it is a message.
  QString messageShown() const;

  QStringList expectedHits(const QStringList& words) const;
  int missingListings() const;
  QStringList copiedHits() const;
  void compareHits(const QStringList& words) const;

  bool isListedAndThere(const SourceFolder& folder) const;
  bool isAnyFolderAway() const;
  QString listingPath(const SourceFolder& folder) const;
  QByteArray listingFile(const SourceFolder& folder) const;
  Identities identitiesOfListings() const;
  void startRefresh() const;
  void waitForRefreshed(const Identities& before, int count) const;
  void refreshHasStarted(const Identities& before);
  void takeOverListings(bool mayBeCut = false);
  void takeOver(const QString& description, const Listing& listing);
  void takeOverRestored(const QString& name);
  bool pressCancel(const Identities& before) const;
  void closeResults() const;
  void refreshAgain();

  void selectRow(int row, bool hasSelection) const;
  void editTo(const SourceRecords& wanted, SourceRecords& records, const AddEntry& add) const;
  void settleSources();
  void lookAtPicture(const QString& name, const std::vector<QSize>& sizes);
  AddEntry addingFolder() const;
  AddEntry addingOfflineList() const;
  QString editOnce(SourceRecords& records, const SourceRecords& unlisted, const AddEntry& add, Dice& dice,
                   bool& hasSelection) const;
  void getListsOf(const SoakedProgram& sharer, bool isAdded);
  void addReceived(const SoakedProgram& sharer, const QStringList& foldersBefore);

  bool isGoingToReport() const { return missingListings() > 0 || isAnyFolderAway(); }
  void beInTheMiddle(Moment moment, Dice& dice);
  void waitForWork(const Identities& before) const;
  bool isWriting() const;
  void forgetUnsaved();
  QString recoveryCopy() const;
  QJsonObject unsavedChanges() const;
  void waitForRecoveryCopy() const;
  void compareSaved() const;
  int compareListings() const;
  void compareNamesLeft() const;

  QString name_;
  ProgramHome& home_;
  WebSite& site_;
  SoakNote note_;
  Desktop desktop_;
  std::optional<RunningProgram> program_;

  std::vector<SourceFolder> folders_;
  Lists first_;
  /// By the descriptions of own folders; those that have been made.
  std::map<QString, Listing> listings_;
  /// By the names of listings in the data folder: what they have held, the history's versions among it.
  std::map<QString, std::vector<Listing>> everListed_;
  /// By path.
  std::map<QString, Listing> offline_;
  std::vector<QString> offlineOnDisk_;
  Listing main_;
  int mainVersion_ = 0;
  Lists lists_;
  Lists saved_;
  QString nickName_;
  QString savedNickName_;
};

}  // namespace quorvin::test
