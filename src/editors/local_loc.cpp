// SPDX-License-Identifier: GPL-2.0-or-later
#include "editors/local_loc.h"

#include "platform/screen_room.h"
#include "texts/texts.h"

#include <QDir>
#include <QFileInfo>
#include <QKeySequence>
#include <QShortcut>
#include <QToolTip>

#include <utility>

namespace quorvin {

namespace {

QString quoteReplaced() {
  return Texts::tr("A list of sources cannot keep a double quote, so ' takes its place.");
}

}  // namespace

LocalLoc::LocalLoc(const SourceEditing& editing, const QString& LocMode, QWidget* owner)
    : QDialog(owner),
      editing_(editing),
      LocMode_(LocMode),
      controls_(makeLocalLocControls(this)),
      looks_(
          editing.lookers ? *editing.lookers : *QThreadPool::globalInstance(),
          [count = editing.countEntries](const SourcePlaces& places) { return lookAtSource(places, count); },
          nullptr) {
  setObjectName(QStringLiteral("LocalLoc"));
  setWindowTitle(Texts::tr("Local File Search Locations"));
  controls_.Online->setModel(&entries_);
  laidOutFor_ = placeLocalLocControls(controls_);
  mirrorLocalLocControls(controls_, laidOutFor_.width());
  takeInitialSize();
  connectControls();
  Form_Load();
}

void LocalLoc::Form_Load() {
  proposedDescription_ = controls_.Desc->text();
  entries_.fill(entriesOf(editing_.state.OnlineSources, editing_.state.OnlineSourceCount));
  controls_.Desc->setFocus();
  controls_.Desc->selectAll();
}

void LocalLoc::arrangeForOffline() {
  setWindowTitle(Texts::tr("Offline Search List files"));
  controls_.OK->hide();
  controls_.OK->setEnabled(false);
  controls_.SaveOffLine->show();
  controls_.Desc->setText(QStringLiteral("Offline"));
  mirrorLocalLocControls(controls_, laidOutFor_.width());
  setPathCaption(controls_, Texts::tr("Path to List file"));
  controls_.AddSources->setText(Texts::tr("Add &Files..."));
  controls_.AddSources->resize(controls_.AddSources->sizeHint().width(), controls_.AddSources->height());
  controls_.AddSources->setToolTip(Texts::tr("Pick listing files, which are in the list at once"));
  widenPathOverDescription(controls_);
  mirrorLocalLocControls(controls_, laidOutFor_.width());
  LocMode_ = QString::fromUtf16(kOfflineMode);
  controls_.Label1->hide();
  controls_.Desc->hide();
  controls_.LocalDataFolder->setFocus();
  entries_.fill(entriesOf(editing_.state.OfflineSources, editing_.state.OfflineSourceCount));
}

void LocalLoc::takeInitialSize() {
  setMinimumSize(laidOutFor_);
  const QSize wanted = initialLocalLocSize(controls_, laidOutFor_);
  resize(wanted.boundedTo(largestInside(*screen())).expandedTo(laidOutFor_));
}

void LocalLoc::connectControls() {
  connect(controls_.LocAdd, &QPushButton::clicked, this, &LocalLoc::LocAdd_Click);
  connect(controls_.Desc, &QLineEdit::textEdited, this, &LocalLoc::Desc_Edited);
  connect(controls_.LocDel, &QPushButton::clicked, this, &LocalLoc::LocDel_Click);
  connect(controls_.MvUp, &QPushButton::clicked, this, &LocalLoc::MvUp_Click);
  connect(controls_.MvDn, &QPushButton::clicked, this, &LocalLoc::MvDn_Click);
  connect(controls_.GetListName, &QPushButton::clicked, this, &LocalLoc::GetListName_Click);
  connect(controls_.AddSources, &QPushButton::clicked, this, &LocalLoc::AddSources_Click);
  connect(controls_.OK, &QPushButton::clicked, this, &LocalLoc::OK_Click);
  connect(controls_.SaveOffLine, &QPushButton::clicked, this, &LocalLoc::SaveOffLine_Click);
  connect(controls_.Cancel, &QPushButton::clicked, this, &LocalLoc::reject);

  connect(&entries_, &SourceListModel::rowsInserted, this, &LocalLoc::showNotice);
  connect(&entries_, &SourceListModel::rowsRemoved, this, &LocalLoc::showNotice);
  connect(&entries_, &SourceListModel::modelReset, this, &LocalLoc::showNotice);

  auto* drops = new SourceDrops(*this, [this](const DroppedSources& dropped) { takeDropped(dropped); });
  drops->watch(*controls_.Desc);
  drops->watch(*controls_.LocalDataFolder);

  connect(controls_.Online->selectionModel(), &QItemSelectionModel::selectionChanged, this,
          &LocalLoc::enableButtons);
  connect(&entries_, &SourceListModel::modelReset, this, &LocalLoc::enableButtons);
  enableButtons();

  connect(controls_.Undo, &QAction::triggered, this, [this] { restore(history_.undo(editedList())); });
  connect(controls_.Redo, &QAction::triggered, this, [this] { restore(history_.redo(editedList())); });

  // The window is shown first; sources may be on drives that are slow to answer.
  lookSoon_.setSingleShot(true);
  connect(&lookSoon_, &QTimer::timeout, this, &LocalLoc::lookAtSources);
  connect(&entries_, &SourceListModel::rowsInserted, &lookSoon_, qOverload<>(&QTimer::start));
  connect(&entries_, &SourceListModel::modelReset, &lookSoon_, qOverload<>(&QTimer::start));
  entries_.setStatuses([this](const SourceEntry& entry) { return statusOf(entry); });
  connect(&looks_, &SourceLooks::found, &entries_, &SourceListModel::statusesChanged);

  connect(controls_.Online, &SourceListView::deletePressed, this, &LocalLoc::LocDel_Click);
  auto* up = new QShortcut(QKeySequence(Qt::ALT | Qt::Key_Up), this);
  connect(up, &QShortcut::activated, this, &LocalLoc::MvUp_Click);
  auto* down = new QShortcut(QKeySequence(Qt::ALT | Qt::Key_Down), this);
  connect(down, &QShortcut::activated, this, &LocalLoc::MvDn_Click);
}

/// What acts on selected entries has nothing to do without one.
void LocalLoc::enableButtons() {
  const bool hasSelection = controls_.Online->selectionModel()->hasSelection();
  for (QPushButton* button : {controls_.MvUp, controls_.MvDn, controls_.LocDel}) {
    // The keyboard would be nowhere.
    if (!hasSelection && button->hasFocus()) controls_.Online->setFocus();
    button->setEnabled(hasSelection);
  }
}

void LocalLoc::LocAdd_Click() {
  const SourceEntry entry{controls_.Desc->text(), controls_.LocalDataFolder->text()};
  if (const std::optional<QString> refusal = whyNotAdded(entry)) {
    editing_.messages.inform(*refusal);
    return;
  }
  edit([&] { entries_.append(entry); });
  controls_.Online->scrollToBottom();
}

/// Makes an edit of the list that can be taken back.
template <typename Edit>
void LocalLoc::edit(Edit&& edit) {
  EditedList before = editedList();
  edit();
  if (before.entries == entries_.entries()) return;
  history_.record(std::move(before));
  enableUndo();
}

EditedList LocalLoc::editedList() const {
  return {entries_.entries(), controls_.Online->selectedRows()};
}

void LocalLoc::restore(const std::optional<EditedList>& list) {
  if (!list) return;
  entries_.fill(list->entries);
  controls_.Online->selectRows(list->selected);
  enableUndo();
}

void LocalLoc::enableUndo() {
  controls_.Undo->setEnabled(history_.canUndo());
  controls_.Redo->setEnabled(history_.canRedo());
}

void LocalLoc::lookAtSources() {
  std::vector<SourcePlaces> places;
  places.reserve(entries_.entries().size());
  for (const SourceEntry& entry : entries_.entries()) places.push_back(placesOf(entry));
  looks_.lookAt(places);
}

SourcePlaces LocalLoc::placesOf(const SourceEntry& entry) const {
  if (LocMode_ == kOfflineMode) return {entry.path, {}};
  return {entry.path, editing_.state.onlineListingPath(entry.description)};
}

SourceStatus LocalLoc::statusOf(const SourceEntry& entry) const {
  const SourcePlaces places = placesOf(entry);
  const SourceFacts* facts = looks_.facts(places);
  if (!facts) return {};
  return {factsInBrief(*facts, places, editing_.locale, QDate::currentDate()),
          factsInFull(*facts, places, editing_.locale)};
}

/// The list file could not keep a double quote, and the sources after it would be read wrongly.
void LocalLoc::Desc_Edited() {
  QLineEdit* edit = controls_.Desc;
  if (!edit->text().contains(u'"')) return;
  const int cursor = edit->cursorPosition();
  edit->setText(edit->text().replace(u'"', u'\''));
  edit->setCursorPosition(cursor);
  QToolTip::showText(edit->mapToGlobal(edit->rect().bottomLeft()), quoteReplaced(), edit);
}

void LocalLoc::LocDel_Click() {
  edit([this] {
    const std::optional<int> above = entries_.deleteEntries(controls_.Online->selectedRows());
    if (above) controls_.Online->selectRows({*above});
  });
}

void LocalLoc::MvUp_Click() {
  edit([this] {
    std::vector<int> rows = controls_.Online->selectedRows();
    // The first entry goes first: when it cannot move, none does.
    for (int& row : rows) {
      const std::optional<int> above = entries_.moveUp(row);
      if (!above) return;
      row = *above;
    }
    controls_.Online->selectRows(rows);
  });
}

void LocalLoc::MvDn_Click() {
  edit([this] {
    std::vector<int> rows = controls_.Online->selectedRows();
    for (auto row = rows.rbegin(); row != rows.rend(); ++row) {
      const std::optional<int> below = entries_.moveDown(*row);
      if (!below) return;
      *row = *below;
    }
    controls_.Online->selectRows(rows);
  });
}

void LocalLoc::GetListName_Click() {
  const std::optional<QString> path = pickedPath();
  if (!path) return;
  if (path->isEmpty()) return controls_.Online->setFocus();
  controls_.LocalDataFolder->setText(*path);
  if (LocMode_ != kOfflineMode) proposeDescription(*path);
  // The next Enter is to add what was picked, not to pick again.
  controls_.LocAdd->setFocus();
  const bool isOffline = LocMode_ == kOfflineMode;
  setNotice(controls_, isOffline ? Texts::tr("Not in the list yet: Add puts the file there.")
                                 : Texts::tr("Not in the list yet: Add puts the folder there."));
}

/// A folder's name says more than the description that is given, and each folder needs one of its own.
void LocalLoc::proposeDescription(const QString& folder) {
  const QString name = descriptionOfFolder(folder, editing_.pathStyle);
  if (name.isEmpty() || controls_.Desc->text() != proposedDescription_) return;
  proposedDescription_ = name;
  controls_.Desc->setText(name);
}

void LocalLoc::showNotice() {
  const bool isOffline = LocMode_ == kOfflineMode;
  setNotice(controls_, isOffline ? QString() : descriptionNotice(entries_.entries(), editing_.state));
}

/// None when the user has cancelled.
QStringList LocalLoc::pickedSources(const QString& initialFolder, bool isForSeveral) {
  const FileQuestion question{Texts::tr("All Files"), initialFolder, QStringLiteral(".txt"), isForSeveral};
  if (LocMode_ == kOfflineMode) return askForFiles(editing_.picker, question);
  QStringList paths;
  for (const PickedFile& folder : askForFolders(editing_.picker, question, editing_.pathStyle)) {
    paths.append(folderOf(folder));
  }
  return paths;
}

/// Nothing when the user has cancelled; an empty path when several sources were picked, which are in the list
/// by then.
std::optional<QString> LocalLoc::pickedPath() {
  const QStringList sources = pickedSources(controls_.LocalDataFolder->text(), false);
  if (sources.isEmpty()) return std::nullopt;
  if (sources.size() == 1) return sources.first();
  appendAll(sources);
  return QString();
}

/// What is added next is mostly beside what was added last.
void LocalLoc::AddSources_Click() {
  const QStringList sources =
      pickedSources(pickedIn_.isEmpty() ? controls_.LocalDataFolder->text() : pickedIn_, true);
  if (sources.isEmpty()) return;
  pickedIn_ = QFileInfo(QDir::cleanPath(sources.last())).path();
  appendAll(sources);
}

void LocalLoc::OK_Click() {
  if (!store(editing_.state.OnlineSources, editing_.state.OnlineSourceCount)) return;
  if (editing_.messages.askYesNo(Texts::tr("Rescan Local Search Locations?"))) {
    // The main window can be used during the refresh.
    hide();
    editing_.refreshLocalLists();
  }
  accept();
}

void LocalLoc::SaveOffLine_Click() {
  if (store(editing_.state.OfflineSources, editing_.state.OfflineSourceCount)) accept();
}

void LocalLoc::appendAll(const QStringList& sources) {
  std::vector<SourceEntry> entries = entries_.entries();
  const std::size_t before = entries.size();
  const QString told = LocMode_ == kOfflineMode ? addListings(sources, entries)
                                                : addFolders(sources, entries, editing_.pathStyle);
  edit([&] {
    for (std::size_t row = before; row < entries.size(); ++row) entries_.append(entries[row]);
  });
  controls_.Online->scrollToBottom();
  if (!told.isEmpty()) editing_.messages.inform(told);
}

void LocalLoc::takeDropped(const DroppedSources& dropped) {
  const bool isOffline = LocMode_ == kOfflineMode;
  const QStringList& wanted = isOffline ? dropped.files : dropped.folders;
  if (!wanted.isEmpty()) return appendAll(wanted);
  editing_.messages.inform(isOffline
                               ? Texts::tr("Folders are added in File, Add/Edit Local Folder To Search List.")
                               : Texts::tr("Listing files are added in File, Add/Edit Offline List files."));
}

bool LocalLoc::store(SourceTable& table, int& count) {
  const std::optional<QString> refusal = storeEntries(entries_.entries(), table, count);
  if (refusal) editing_.messages.inform(*refusal);
  return !refusal;
}

void LocalLoc::resizeEvent(QResizeEvent* event) {
  QDialog::resizeEvent(event);
  mirrorLocalLocControls(controls_, laidOutFor_.width());
  stretchLocalLocControls(controls_, size() - laidOutFor_);
  laidOutFor_ = size();
  mirrorLocalLocControls(controls_, laidOutFor_.width());
  setNotice(controls_, controls_.Notice->toolTip());
}

}  // namespace quorvin
