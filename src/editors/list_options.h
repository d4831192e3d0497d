// SPDX-License-Identifier: GPL-2.0-or-later

// The options dialog.
#pragma once

#include "editors/file_picker.h"
#include "editors/options_edit.h"

#include <QDialog>
#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>

namespace quorvin {

/// What the options dialog works with; all of it outlives the dialog.
struct OptionsEditing {
  ProgramState& state;
  MessageBoxes& messages;
  FilePicker& picker;
  OptionsConditions conditions;
};

/// The controls of `ListOptions`; the window owns them.
struct ListOptionsControls {
  QLineEdit* LocalDataFolder;
  QPushButton* GetLocalFolder;
  QLineEdit* LocalFile;
  QPushButton* GetListName;
  QLineEdit* RemoteFile;
  QLineEdit* Server;
  QLineEdit* JoinD;
  QLineEdit* Nic;
  QPushButton* OKButton;
  QPushButton* CancelButton;
};

/// A modal dialog for one opening: when made it shows the settings as they are. Only OK stores; see
/// storeOptions() for what stays stored when OK is refused.
class ListOptions : public QDialog {
  Q_OBJECT

 public:
  ListOptions(const OptionsEditing& editing, QWidget* owner);

  const ListOptionsControls& controls() const { return controls_; }

 private:
  void Form_Load();
  void OKButton_Click();
  void GetListName_Click();
  void GetLocalFolder_Click();

  void layOut();
  QLineEdit* addRow(QGridLayout* rows, const QString& name, const QString& caption);
  QPushButton* addBrowseButton(QGridLayout* rows, const QString& name, const QString& meaning);
  QPushButton* makeButton(const QString& name, const QString& caption);
  void connectControls();
  OptionTexts texts() const;

  OptionsEditing editing_;
  ListOptionsControls controls_{};
};

}  // namespace quorvin
