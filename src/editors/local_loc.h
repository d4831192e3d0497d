// The source editor: the dialog for the folders to search, and for the offline list files.
#pragma once

#include "editors/file_picker.h"
#include "editors/local_loc_controls.h"
#include "editors/source_editor_host.h"
#include "editors/source_list_model.h"
#include "platform/message_box.h"
#include "state/program_state.h"

#include <QDialog>

#include <optional>

namespace quorvin {

/// What a source editor works with; all of it outlives the dialog.
struct SourceEditing {
  ProgramState& state;
  MessageBoxes& messages;
  FilePicker& picker;
  SourceEditorHost& host;
  PathStyle pathStyle = nativePathStyle();
};

/// The modes of the dialog, as texts; any other text counts as the mode for folders.
inline constexpr char16_t kOnlineMode[] = u"Online";
inline constexpr char16_t kOfflineMode[] = u"Offline";

/// A modal dialog for one opening: when made it holds the online sources, laid out for them; the opener for
/// offline sources rearranges it. What is edited is the list alone; a source table changes by a save only.
/// Cancel, Esc and the close box leave the tables as they were.
class LocalLoc : public QDialog {
  Q_OBJECT

 public:
  LocalLoc(const SourceEditing& editing, const QString& LocMode, QWidget* owner);

  void setLocMode(const QString& LocMode) { LocMode_ = LocMode; }

  const LocalLocControls& controls() const { return controls_; }
  SourceListModel& entries() { return entries_; }

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void Form_Load();
  void LocAdd_Click();
  void LocDel_Click();
  void MvUp_Click();
  void MvDn_Click();
  void GetListName_Click();
  void OK_Click();
  void SaveOffLine_Click();

  void connectControls();
  void takeInitialSize();
  void select(std::optional<int> row);
  std::optional<QString> pickedPath(const FileQuestion& question);
  /// Whether the list could be stored; the user is told when not.
  bool store(SourceTable& table, int& count);
  void rescan();

  SourceEditing editing_;
  QString LocMode_;
  SourceListModel entries_;
  LocalLocControls controls_;
  /// The inner size for which the controls stand where they are.
  QSize laidOutFor_;
};

}  // namespace quorvin
