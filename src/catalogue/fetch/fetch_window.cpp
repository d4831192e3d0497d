// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/fetch/fetch_window.h"

#include "catalogue/fetch/plan_script.h"
#include "catalogue/fetch/plan_text.h"
#include "catalogue/job_controls.h"
#include "catalogue/sum_texts.h"
#include "faults/runtime_fault.h"
#include "files/file_aside.h"
#include "platform/text_direction.h"
#include "platform/text_encoding.h"
#include "texts/texts.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QStandardItem>

#include <utility>

namespace quorvin {

namespace {

constexpr int kCharactersOfPlan = 120;

enum PlanColumn { kName, kFolder, kSize, kNote, kListing, kColumns };

QStandardItem* cell(const QString& text) {
  auto* item = new QStandardItem(text);
  item->setEditable(false);
  item->setToolTip(text.toHtmlEscaped());
  return item;
}

QStandardItem* sizeCell(const QString& text) {
  QStandardItem* item = cell(text);
  item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
  return item;
}

}  // namespace

FetchWindow::FetchWindow(FetchWindowParts parts, QWidget* owner)
    : JobWindow(Texts::tr("&Plan Again"), Texts::tr("&Close"), parts.threads, owner),
      parts_(std::move(parts)),
      notes_(parts_.state),
      text_(new QPushButton(Texts::tr("Save Te&xt..."))),
      script_(new QPushButton(Texts::tr("Save &Script..."))) {
  setObjectName(QStringLiteral("FetchWindow"));
  setWindowTitle(Texts::tr("Fetch Plan"));
  startButton().setObjectName(QStringLiteral("PlanAgain"));
  rows_.setColumnCount(kColumns);
  rows_.setHorizontalHeaderLabels(
      {Texts::tr("Name"), Texts::tr("Folder"), Texts::tr("Size"), Texts::tr("Note"), Texts::tr("Listing")});
  rows_.horizontalHeaderItem(kSize)->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
  QTreeView* list = makeTree(&rows_);
  list->setAccessibleName(Texts::tr("Volumes to insert, and what to copy from them"));
  layOut(makeFields(), list, kCharactersOfPlan);
  start();
  list->setFocus();
}

QLayout* FetchWindow::makeFields() {
  text_->setObjectName(QStringLiteral("SaveText"));
  script_->setObjectName(QStringLiteral("SaveScript"));
  script_->setAccessibleDescription(
      Texts::tr("A script for a terminal that asks for each volume and copies its files with rsync"));
  script_->setToolTip(script_->accessibleDescription());
  connect(text_, &QPushButton::clicked, this, &FetchWindow::saveText);
  connect(script_, &QPushButton::clicked, this, &FetchWindow::saveScript);
  auto* what = new QLabel(Texts::tr("Insert these volumes, one after another:"));
  what->setWordWrap(true);
  auto* fields = new QHBoxLayout;
  fields->addWidget(what, 1);
  for (QPushButton* button : {text_, script_}) {
    button->setAutoDefault(false);
    button->setEnabled(false);
    fields->addWidget(button);
  }
  return fields;
}

void FetchWindow::start() {
  rows_.removeRows(0, rows_.rowCount());
  shown_.reset();
  text_->setEnabled(false);
  script_->setEnabled(false);
  startJob(std::make_shared<FetchJob>(sourcesOf(parts_.state), parts_.wanted(), parts_.locale));
}

QString FetchWindow::stoppedText() const {
  return Texts::tr("Stopped. Only all listings together tell which volumes are needed.");
}

QString FetchWindow::progressText() const {
  return static_cast<const FetchJob&>(*job()).progressText();
}

void FetchWindow::jobEnded(std::shared_ptr<CatalogueJob> ended) {
  const auto job = std::static_pointer_cast<const FetchJob>(ended);
  setStatus(englishWithin(layoutDirection(), job->lines().join(u'\n').remove(u'\r')));
  if (!job->isComplete()) return;
  shown_ = job;
  showPlan();
}

void FetchWindow::showPlan() {
  const FetchPlan& plan = shown_->finder().plan();
  for (std::size_t number = 0; number < plan.volumes.size(); ++number) addVolume(number);
  if (!plan.missing.empty()) addMissing();
  text_->setEnabled(rows_.rowCount() > 0);
  script_->setEnabled(!plan.volumes.empty());
  list().expandAll();
  list().setCurrentIndex(rows_.index(0, 0));
  fitTreeColumns(list());
}

void FetchWindow::addVolume(std::size_t number) {
  const FetchFinder& finder = shown_->finder();
  const PlanPlaces& places = finder.places();
  const FetchPlan::Volume& volume = finder.plan().volumes[number];
  const FolderTree::Volume& place = places.folders.volumes()[volume.volume];
  const QString listing = places.listings[place.listing];
  const QString order = parts_.locale.toString(static_cast<qulonglong>(number + 1));
  QStandardItem* row = cell(order + QStringLiteral(". ") + volumeTitle(places, volume.volume));
  rows_.appendRow({row, cell(textOfUtf8(places.tops[volume.volume])),
                   sizeCell(sumText(volume.sum, parts_.locale)),
                   cell(notes_.of(listing, textOfUtf8(place.name))), cell(QFileInfo(listing).fileName())});
  for (const FetchPlan::File& file : volume.files) {
    const std::int64_t size = finder.files()[file.file].size;
    row->appendRow({cell(textOfUtf8(file.copy.name)), cell(textOfUtf8(places.folders.path(file.copy.folder))),
                    sizeCell(size < 0 ? QString() : sizeText(size, parts_.locale))});
  }
}

void FetchWindow::addMissing() {
  const FetchFinder& finder = shown_->finder();
  QStandardItem* row = cell(Texts::tr("Not found"));
  rows_.appendRow(row);
  for (const std::uint32_t number : finder.plan().missing) {
    row->appendRow(cell(missingFileText(finder.files()[number], parts_.locale)));
  }
}

void FetchWindow::openRow(const QModelIndex& row) {
  const QModelIndex volume = row.parent();
  const FetchPlan& plan = shown_->finder().plan();
  if (!volume.isValid() || static_cast<std::size_t>(volume.row()) >= plan.volumes.size()) return;
  const PlanPlaces& places = shown_->finder().places();
  const FetchPlan::Volume& from = plan.volumes[static_cast<std::size_t>(volume.row())];
  const FileCopy& copy = from.files[static_cast<std::size_t>(row.row())].copy;
  HitRow file;
  file.kind = places.kinds[places.folders.volumes()[from.volume].listing];
  file.volume = textOfUtf8(places.folders.volumes()[from.volume].name);
  file.folder = textOfUtf8(places.folders.path(copy.folder));
  file.name = textOfUtf8(copy.name);
  if (parts_.showFile(file)) return;
  setStatus(
      Texts::tr("%1 is not there now, or its listing does not say where.").arg(file.folder + file.name));
}

void FetchWindow::saveText() {
  const std::optional<QString> path = parts_.saveFile(Texts::tr("Save Plan"), QStringLiteral("plan.txt"));
  if (!path) return;
  const auto shown = [](std::string_view name) { return withoutControls(textOfUtf8(name)).toStdString(); };
  const PlanText text(shown_->finder(), parts_.locale, shown);
  save(*path, [&](const auto& write) {
    for (std::size_t number = 0; number < shown_->finder().plan().volumes.size(); ++number) {
      write(text.volume(number));
    }
    write(text.end());
  });
}

void FetchWindow::saveScript() {
  const std::optional<QString> folder = parts_.pickFolder();
  if (!folder) return;
  const std::optional<QString> path = parts_.saveFile(Texts::tr("Save Script"), QStringLiteral("fetch.sh"));
  if (!path) return;
  save(*path, [&](const auto& write) { writePlanScript(shown_->finder(), *folder, parts_.locale, write); });
}

void FetchWindow::save(const QString& path,
                       const std::function<void(const std::function<bool(const std::string&)>&)>& write) {
  if (parts_.state.isOwnFile(path) || parts_.state.isListing(path)) {
    setStatus(Texts::tr("%1 belongs to what is searched. Please choose another name.").arg(path));
    return;
  }
  try {
    FileAside file(path, {.followsLink = true});
    write([&file](const std::string& piece) {
      file.write(piece);
      return true;
    });
    file.commit();
    setStatus(Texts::tr("Saved: %1").arg(path));
  } catch (const RuntimeFault& fault) {
    setStatus(Texts::tr("Nothing was saved: %1").arg(fault.description()));
  }
}

}  // namespace quorvin
