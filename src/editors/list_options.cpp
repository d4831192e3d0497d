// SPDX-License-Identifier: GPL-2.0-or-later
#include "editors/list_options.h"

#include "texts/texts.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>
#include <optional>

namespace quorvin {

namespace {

constexpr int kBoxCharacters = 56;

/// Also after a pick: the next Enter is not to pick again.
void goTo(QLineEdit* edit) {
  edit->setFocus();
  edit->selectAll();
}

}  // namespace

ListOptions::ListOptions(const OptionsEditing& editing, QWidget* owner) : QDialog(owner), editing_(editing) {
  setObjectName(QStringLiteral("ListOptions"));
  setWindowTitle(Texts::tr("Options"));
  layOut();
  connectControls();
  Form_Load();
}

void ListOptions::Form_Load() {
  const OptionTexts shown = optionTexts(editing_.state, editing_.conditions.locale);
  controls_.LocalDataFolder->setText(shown.LocalDataFolder);
  controls_.LocalFile->setText(shown.LocalFile);
  controls_.RemoteFile->setText(shown.RemoteFile);
  controls_.Server->setText(shown.Server);
  controls_.Nic->setText(shown.Nic);
  controls_.JoinD->setText(shown.JoinD);
  goTo(controls_.LocalDataFolder);
}

void ListOptions::layOut() {
  auto* rows = new QGridLayout;
  controls_.LocalDataFolder =
      addRow(rows, QStringLiteral("LocalDataFolder"), Texts::tr("Local Data Folder:"));
  controls_.GetLocalFolder =
      addBrowseButton(rows, QStringLiteral("GetLocalFolder"), Texts::tr("Browse for the local data folder"));
  controls_.LocalFile = addRow(rows, QStringLiteral("LocalFile"), Texts::tr("List File:"));
  controls_.GetListName =
      addBrowseButton(rows, QStringLiteral("GetListName"), Texts::tr("Browse for the list file"));
  controls_.RemoteFile = addRow(rows, QStringLiteral("RemoteFile"), Texts::tr("Update Archive Name:"));
  controls_.Server = addRow(rows, QStringLiteral("Server"), Texts::tr("Update Server:"));
  controls_.JoinD = addRow(rows, QStringLiteral("JoinD"), Texts::tr("First Run Date:"));
  controls_.Nic = addRow(rows, QStringLiteral("Nic"), Texts::tr("Nickname:"));
  rows->setColumnStretch(1, 1);
  controls_.LocalDataFolder->setMinimumWidth(std::min(fontMetrics().averageCharWidth() * kBoxCharacters,
                                                      screen()->availableGeometry().width() * 2 / 5));

  controls_.OKButton = makeButton(QStringLiteral("OKButton"), Texts::tr("OK"));
  controls_.OKButton->setDefault(true);
  controls_.CancelButton = makeButton(QStringLiteral("CancelButton"), Texts::tr("Cancel"));
  auto* waysOut = new QHBoxLayout;
  waysOut->addStretch();
  waysOut->addWidget(controls_.OKButton);
  waysOut->addWidget(controls_.CancelButton);

  auto* whole = new QVBoxLayout(this);
  whole->addLayout(rows);
  whole->addSpacing(fontMetrics().height() / 2);
  whole->addStretch();
  whole->addLayout(waysOut);
}

/// A labelled box; it reaches over the place of a browse button unless one is added to the row.
QLineEdit* ListOptions::addRow(QGridLayout* rows, const QString& name, const QString& caption) {
  auto* edit = new QLineEdit(this);
  edit->setObjectName(name);
  edit->setAccessibleName(caption.chopped(1));
  auto* label = new QLabel(caption, this);
  label->setBuddy(edit);
  const int row = rows->rowCount();
  rows->addWidget(label, row, 0);
  rows->addWidget(edit, row, 1, 1, 2);
  return edit;
}

QPushButton* ListOptions::addBrowseButton(QGridLayout* rows, const QString& name, const QString& meaning) {
  QPushButton* button = makeButton(name, QStringLiteral("..."));
  button->setToolTip(meaning);
  button->setAccessibleName(meaning);
  const int row = rows->rowCount() - 1;
  QWidget* edit = rows->itemAtPosition(row, 1)->widget();
  const int height = std::max(button->sizeHint().height(), edit->sizeHint().height());
  button->setFixedWidth(height * 5 / 4);
  rows->removeWidget(edit);
  rows->addWidget(edit, row, 1);
  rows->addWidget(button, row, 2);
  return button;
}

QPushButton* ListOptions::makeButton(const QString& name, const QString& caption) {
  auto* button = new QPushButton(caption, this);
  button->setObjectName(name);
  return button;
}

void ListOptions::connectControls() {
  connect(controls_.OKButton, &QPushButton::clicked, this, &ListOptions::OKButton_Click);
  connect(controls_.CancelButton, &QPushButton::clicked, this, &ListOptions::reject);
  connect(controls_.GetListName, &QPushButton::clicked, this, &ListOptions::GetListName_Click);
  connect(controls_.GetLocalFolder, &QPushButton::clicked, this, &ListOptions::GetLocalFolder_Click);
}

OptionTexts ListOptions::texts() const {
  OptionTexts typed;
  typed.LocalDataFolder = controls_.LocalDataFolder->text();
  typed.LocalFile = controls_.LocalFile->text();
  typed.RemoteFile = controls_.RemoteFile->text();
  typed.Server = controls_.Server->text();
  typed.JoinD = controls_.JoinD->text();
  typed.Nic = controls_.Nic->text();
  return typed;
}

void ListOptions::OKButton_Click() {
  switch (storeOptions(texts(), editing_.state, editing_.messages, editing_.conditions)) {
    case OptionsOutcome::Stored:
      accept();
      break;
    case OptionsOutcome::DateRefused:
      goTo(controls_.JoinD);
      break;
    case OptionsOutcome::FolderRefused:
      goTo(controls_.LocalDataFolder);
      break;
    case OptionsOutcome::Failed:
      break;
  }
}

void ListOptions::GetListName_Click() {
  const FileQuestion question{controls_.LocalFile->text(), controls_.LocalDataFolder->text(),
                              QStringLiteral(".txt")};
  const std::optional<PickedFile> picked =
      askForFile(editing_.picker, question, editing_.conditions.pathStyle);
  if (!picked) return;
  controls_.LocalFile->setText(picked->FileTitle);
  controls_.LocalDataFolder->setText(folderOf(*picked));
  goTo(controls_.LocalFile);
}

void ListOptions::GetLocalFolder_Click() {
  const FileQuestion question{Texts::tr("Local Data Folder"), controls_.LocalDataFolder->text(),
                              QStringLiteral(".txt")};
  const std::optional<PickedFile> picked =
      askForFolder(editing_.picker, question, editing_.conditions.pathStyle);
  if (!picked) return;
  controls_.LocalDataFolder->setText(folderOf(*picked));
  goTo(controls_.LocalDataFolder);
}

}  // namespace quorvin
