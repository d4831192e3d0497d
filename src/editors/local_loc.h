// SPDX-License-Identifier: GPL-2.0-or-later

// The source editor: the dialog for the folders to search, and for the offline list files.
#pragma once

#include "editors/edit_history.h"
#include "editors/file_picker.h"
#include "editors/local_loc_controls.h"
#include "editors/source_drops.h"
#include "editors/source_list_model.h"
#include "editors/source_looks.h"
#include "platform/message_box.h"
#include "state/program_state.h"

#include <QDialog>
#include <QTimer>

#include <functional>
#include <optional>

namespace quorvin {

/// What a source editor works with; all of it outlives the dialog.
struct SourceEditing {
  ProgramState& state;
  MessageBoxes& messages;
  FilePicker& picker;
  /// Runs the local list refresh to its end; events run meanwhile. While a refresh is running already,
  /// another follows it, and the call returns at once.
  std::function<void()> refreshLocalLists;
  PathStyle pathStyle = nativePathStyle();
  /// Counts the entries of listings; none are counted without it.
  CountEntries countEntries = {};
  /// Where sources are looked at; null for the application's own threads.
  QThreadPool* lookers = nullptr;
  QLocale locale = {};
};

/// The modes of the dialog, as texts; any other text counts as the mode for folders.
inline constexpr char16_t kOnlineMode[] = u"Online";
inline constexpr char16_t kOfflineMode[] = u"Offline";

/// A modal dialog for one opening. When it is made, it holds the online sources and is laid out for them.
/// Only the list is edited; a source table changes when the user saves. Cancel, Esc and the close box leave
/// the tables as they were.
class LocalLoc : public QDialog {
  Q_OBJECT

 public:
  LocalLoc(const SourceEditing& editing, const QString& LocMode, QWidget* owner);

  /// Makes it the editor of the offline list files; to be called before it is shown.
  void arrangeForOffline();

  const QString& LocMode() const { return LocMode_; }

  const LocalLocControls& controls() const { return controls_; }
  SourceListModel& entries() { return entries_; }

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void Form_Load();
  void LocAdd_Click();
  void Desc_Edited();
  void LocDel_Click();
  void MvUp_Click();
  void MvDn_Click();
  void GetListName_Click();
  void AddSources_Click();
  void OK_Click();
  void SaveOffLine_Click();

  void connectControls();
  void enableButtons();
  void takeInitialSize();
  void proposeDescription(const QString& folder);
  EditedList editedList() const;
  template <typename Edit>
  void edit(Edit&& edit);
  void restore(const std::optional<EditedList>& list);
  void enableUndo();
  void lookAtSources();
  SourcePlaces placesOf(const SourceEntry& entry) const;
  SourceStatus statusOf(const SourceEntry& entry) const;
  void showNotice();
  void appendAll(const QStringList& sources);
  void takeDropped(const DroppedSources& dropped);
  QStringList pickedSources(const QString& initialFolder, bool isForSeveral);
  std::optional<QString> pickedPath();
  /// Whether the list could be stored; if not, a message has said why.
  bool store(SourceTable& table, int& count);

  SourceEditing editing_;
  QString LocMode_;
  SourceListModel entries_;
  LocalLocControls controls_;
  EditHistory history_;
  SourceLooks looks_;
  QTimer lookSoon_;
  /// What is in `Desc` unless the user has typed there.
  QString proposedDescription_;
  /// The folder in which sources were picked last by `AddSources`; empty before.
  QString pickedIn_;
  /// The inner size that the controls are placed for.
  QSize laidOutFor_;
};

}  // namespace quorvin
