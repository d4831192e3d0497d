// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/volumes/volumes_window.h"

#include "catalogue/job_controls.h"
#include "catalogue/run_watch.h"
#include "catalogue/volumes/space_window.h"
#include "catalogue/volumes/volumes_job.h"
#include "faults/runtime_fault.h"
#include "platform/text_direction.h"
#include "texts/texts.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QStyledItemDelegate>

#include <utility>

namespace quorvin {

namespace {

constexpr int kCharactersOfVolumes = 130;

/// Edits a note, which is no longer than it may be.
class NoteDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem&,
                        const QModelIndex& index) const override {
    auto* editor = new QLineEdit(parent);
    editor->setObjectName(QStringLiteral("NoteEditor"));
    editor->setAccessibleName(Texts::tr("Note on %1").arg(index.siblingAtColumn(0).data().toString()));
    editor->setMaxLength(static_cast<int>(VolumeNotes::kLongestNote));
    return editor;
  }
};

}  // namespace

VolumesWindow::VolumesWindow(VolumesWindowParts parts, QWidget* owner)
    : JobWindow(Texts::tr("&Show"), Texts::tr("&Close"), parts.threads, owner),
      parts_(std::move(parts)),
      notes_(parts_.state),
      rows_({parts_.locale,
             [this](const KnownVolume& volume) { return notes_.of(volume.listing, volume.name); },
             [this](const KnownVolume& volume, const QString& note) { return keepNote(volume, note); }}),
      words_(new QLineEdit),
      map_(new QPushButton(Texts::tr("Space &Map"))) {
  setObjectName(QStringLiteral("VolumesWindow"));
  setWindowTitle(Texts::tr("Volumes"));
  startButton().setObjectName(QStringLiteral("Show"));
  QTreeView* list = makeSortedTree(&rows_);
  list->setRootIsDecorated(false);
  list->setAccessibleName(Texts::tr("Volumes"));
  list->setItemDelegate(new NoteDelegate(list));
  list->setEditTriggers(QAbstractItemView::DoubleClicked);
  layOut(makeFields(), list, kCharactersOfVolumes);
  addActions();
  fitTreeColumns(*list);
  start();
  list->setFocus();
}

QLayout* VolumesWindow::makeFields() {
  words_->setObjectName(QStringLiteral("Words"));
  words_->setAccessibleName(Texts::tr("Words that limit what is counted"));
  words_->setPlaceholderText(Texts::tr("Empty for all files"));
  map_->setObjectName(QStringLiteral("SpaceMap"));
  map_->setAutoDefault(false);
  map_->setAccessibleDescription(Texts::tr("Shows as rectangles what takes up space on all volumes"));
  map_->setToolTip(map_->accessibleDescription());
  connect(map_, &QPushButton::clicked, this, [this] { showMap({}, {}); });
  auto* fields = new QHBoxLayout;
  fields->addWidget(captionOf(words_, Texts::tr("&Words:")));
  fields->addWidget(words_, 1);
  fields->addWidget(map_);
  return fields;
}

void VolumesWindow::addActions() {
  list().setContextMenuPolicy(Qt::ActionsContextMenu);
  addAction(QStringLiteral("ShowMap"), Texts::tr("Space &Map"), QKeySequence(), &VolumesWindow::showMapOf);
  addAction(QStringLiteral("EditNote"), Texts::tr("Edit &Note"), QKeySequence(Qt::Key_F2),
            &VolumesWindow::editNote);
  addAction(QStringLiteral("ShowFolder"), Texts::tr("Show &Folder"), QKeySequence(),
            &VolumesWindow::showFolder);
}

QAction* VolumesWindow::addAction(const QString& name, const QString& caption, const QKeySequence& key,
                                  void (VolumesWindow::*handler)(const QModelIndex& row)) {
  auto* action = new QAction(caption, this);
  action->setObjectName(name);
  action->setShortcut(key);
  action->setShortcutContext(Qt::WidgetShortcut);
  connect(action, &QAction::triggered, this, [this, handler] {
    const QModelIndex current = list().currentIndex();
    if (current.isValid()) (this->*handler)(current.siblingAtColumn(0));
  });
  list().addAction(action);
  return action;
}

void VolumesWindow::start() {
  rows_.show({}, {});
  if (!parts_.state.hasSources()) {
    setStatus(Texts::tr("There is nothing to search yet."));
    return;
  }
  VolumeFinder::Wish wish;
  wish.searchText = words_->text();
  startJob(std::make_shared<VolumesJob>(sourcesOf(parts_.state), wish, parts_.locale));
}

QString VolumesWindow::stoppedText() const {
  return Texts::tr("Stopped. What is on a volume is known when its listing has been read.");
}

QString VolumesWindow::progressText() const {
  return static_cast<const VolumesJob&>(*job()).progressText();
}

void VolumesWindow::jobEnded(std::shared_ptr<CatalogueJob> ended) {
  const auto job = std::static_pointer_cast<const VolumesJob>(ended);
  setStatus(englishWithin(layoutDirection(), job->lines().join(u'\n').remove(u'\r')));
  if (!job->isComplete()) return;
  list().header()->setSortIndicator(-1, Qt::AscendingOrder);
  rows_.show(job->volumes(), QDate::currentDate());
  list().setCurrentIndex(rows_.index(0, 0));
  fitTreeColumns(list());
}

void VolumesWindow::openRow(const QModelIndex& row) {
  // The view itself edits a note that is double-clicked.
  if (row.column() != static_cast<int>(VolumeColumn::Note)) showMapOf(row);
}

void VolumesWindow::showMapOf(const QModelIndex& row) {
  const KnownVolume& volume = rows_.volumeAt(row.row());
  showMap(volume.listing, volume.name);
}

void VolumesWindow::showMap(const QString& listing, const QString& volume) {
  const auto search = [this](const QString& folder) {
    accept();
    parts_.search(folder);
  };
  SpaceWindow window({parts_.state, parts_.threads, parts_.locale, search, listing, volume}, this);
  window.exec();
}

void VolumesWindow::editNote(const QModelIndex& row) {
  list().edit(row.siblingAtColumn(static_cast<int>(VolumeColumn::Note)));
}

void VolumesWindow::showFolder(const QModelIndex& row) {
  const KnownVolume& volume = rows_.volumeAt(row.row());
  HitRow folder;
  folder.kind = volume.kind;
  folder.volume = volume.name;
  folder.folder = QString(volume.folder).replace(u'/', u'\\');
  if (!volume.folder.isEmpty() && parts_.showFile(folder)) return;
  setStatus(volume.note.isEmpty()
                ? Texts::tr("%1 is not there now, or its listing does not say where.").arg(volume.name)
                : Texts::tr("%1 is not there now. Note: %2").arg(volume.name, volume.note));
}

bool VolumesWindow::keepNote(const KnownVolume& volume, const QString& note) {
  try {
    VolumeNotes(parts_.state.LocalFolder).set(volume.listing, volume.name, note);
    return true;
  } catch (const RuntimeFault& fault) {
    setStatus(Texts::tr("The note was not kept: %1").arg(fault.description()));
    return false;
  }
}

}  // namespace quorvin
