// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/copies_window.h"

#include "catalogue/job_controls.h"
#include "platform/text_direction.h"
#include "search/match/search_query.h"
#include "texts/texts.h"

#include <QAbstractItemView>
#include <QGridLayout>
#include <QHeaderView>

#include <algorithm>
#include <utility>

namespace quorvin {

namespace {

using SumBy = CopyWish::SumBy;

constexpr int kCharactersOfCopies = 130;
constexpr int kMatchCharacters = 5;
constexpr int kFolderCharacters = 30;

/// What can be shown, in the order of the box.
struct Choice {
  const char* caption;
  bool singleOnly;
  SumBy sumBy;
};
constexpr Choice kChoices[] = {
    {QT_TRANSLATE_NOOP("Texts", "What wastes space"), false, SumBy::Nothing},
    {QT_TRANSLATE_NOOP("Texts", "What wastes space, by volume"), false, SumBy::Volume},
    {QT_TRANSLATE_NOOP("Texts", "What wastes space, by folder"), false, SumBy::Folder},
    {QT_TRANSLATE_NOOP("Texts", "On one volume only"), true, SumBy::Nothing},
    {QT_TRANSLATE_NOOP("Texts", "On one volume only, by volume"), true, SumBy::Volume},
    {QT_TRANSLATE_NOOP("Texts", "On one volume only, by folder"), true, SumBy::Folder},
};

}  // namespace

CopiesWindow::CopiesWindow(CopiesWindowParts parts, QWidget* owner)
    : JobWindow(Texts::tr("&Find"), Texts::tr("&Close"), parts.threads, owner),
      parts_(std::move(parts)),
      rows_(parts_.locale),
      words_(new QLineEdit),
      what_(new QComboBox),
      match_(new QLineEdit(CopyWish().desiredMatch)),
      empty_(new QCheckBox(Texts::tr("&Empty files, too"))),
      content_(new QCheckBox(Texts::tr("&Look into files at hand"))) {
  setObjectName(QStringLiteral("CopiesWindow"));
  setWindowTitle(Texts::tr("Copies"));
  for (const Choice& choice : kChoices) what_->addItem(Texts::tr(choice.caption));
  nameControls();
  layOut(makeFields(), makeSortedTree(&rows_), kCharactersOfCopies);
  list().setAccessibleName(Texts::tr("Copies"));
  setStatus(
      Texts::tr("Files that have the same name and the same size to the byte, in all listings together. "
                "Nothing is deleted or changed."));
  words_->setFocus();
}

void CopiesWindow::nameControls() {
  const auto name = [](QWidget* control, const char* objectName, const QString& accessibleName) {
    control->setObjectName(QString::fromLatin1(objectName));
    control->setAccessibleName(accessibleName);
  };
  name(words_, "Words", Texts::tr("Words that limit what is shown"));
  name(what_, "What", Texts::tr("What is shown"));
  name(match_, "Match", Texts::tr("Desired match in percent"));
  empty_->setObjectName(QStringLiteral("Empty"));
  content_->setObjectName(QStringLiteral("Content"));
  content_->setAccessibleDescription(Texts::tr(
      "Reads the files in own folders that are there now, and takes those apart that hold different "
      "things. That takes as long as reading them all."));
  content_->setToolTip(content_->accessibleDescription());
  startButton().setObjectName(QStringLiteral("Find"));
  what_->view()->setAccessibleName(Texts::tr("What can be shown"));
  words_->setPlaceholderText(Texts::tr("Only files with these words; empty for all"));
  words_->setAccessibleDescription(Texts::tr(
      "Only what a search for these words finds is shown. What has a copy is still looked up everywhere."));
  match_->setAccessibleDescription(
      Texts::tr("Entries that contain more than this share of the words are shown"));
  match_->setToolTip(match_->accessibleDescription());
}

QLayout* CopiesWindow::makeFields() {
  what_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  match_->setMaximumWidth(fontMetrics().averageCharWidth() * kMatchCharacters * 2);

  auto* fields = new QGridLayout;
  fields->addWidget(captionOf(words_, Texts::tr("&Words:")), 0, 0);
  fields->addWidget(words_, 0, 1, 1, 3);
  fields->addWidget(captionOf(what_, Texts::tr("&Show:")), 1, 0);
  fields->addWidget(what_, 1, 1, 1, 3);
  fields->addWidget(captionOf(match_, Texts::tr("&Match %:")), 2, 0);
  fields->addWidget(match_, 2, 1);
  fields->addWidget(empty_, 2, 2);
  fields->addWidget(content_, 3, 1, 1, 3, Qt::AlignLeft);
  fields->setColumnStretch(3, 1);
  return fields;
}

QString CopiesWindow::stoppedText() const {
  return Texts::tr("Stopped. Only all listings together tell what has copies.");
}

CopyWish CopiesWindow::wish() {
  const Choice& choice = kChoices[what_->currentIndex()];
  match_->setText(QString::number(correctedMatch(match_->text())));
  CopyWish wish;
  wish.searchText = words_->text();
  wish.desiredMatch = match_->text();
  wish.singleOnly = choice.singleOnly;
  wish.sumBy = choice.sumBy;
  wish.withEmpty = empty_->isChecked();
  wish.byContent = content_->isChecked();
  return wish;
}

void CopiesWindow::start() {
  rows_.show(nullptr);
  if (!parts_.state.hasSources()) {
    setStatus(Texts::tr("There is nothing to search yet."));
    return;
  }
  startJob(std::make_shared<CopiesJob>(sourcesOf(parts_.state), wish(), parts_.locale, parts_.mostRows));
}

QString CopiesWindow::progressText() const {
  return static_cast<const CopiesJob&>(*job()).progressText();
}

void CopiesWindow::jobEnded(std::shared_ptr<CatalogueJob> ended) {
  const auto job = std::static_pointer_cast<const CopiesJob>(ended);
  setStatus(englishWithin(layoutDirection(), resultText(*job)));
  if (!job->isComplete()) return;
  list().header()->setSortIndicator(-1, Qt::AscendingOrder);
  rows_.show(job);
  list().setCurrentIndex(rows_.index(0, 0));
  fitColumns();
}

QString CopiesWindow::resultText(const CopiesJob& job) const {
  QStringList lines = job.sumLines();
  if (!job.fault().isEmpty()) lines = QStringList{job.fault()};
  const auto shown = static_cast<std::int64_t>(job.rows().size());
  if (shown < job.rowsAltogether()) {
    lines += Texts::tr("Only the %1 largest of %2 rows are shown.")
                 .arg(parts_.locale.toString(qlonglong{shown}),
                      parts_.locale.toString(qlonglong{job.rowsAltogether()}));
  }
  lines += job.watch().messageLines();
  return lines.join(u'\n').remove(u'\r');
}

/// Places are not seen yet, so their columns get room for a usual folder.
void CopiesWindow::fitColumns() {
  fitTreeColumns(list());
  const int least = list().fontMetrics().averageCharWidth() * kFolderCharacters;
  for (int section = 0; section < rows_.columnCount(); ++section) {
    if (rows_.columnAt(section) != CopiesModel::Column::Folder) continue;
    list().setColumnWidth(section, std::max(list().columnWidth(section), least));
  }
}

void CopiesWindow::openRow(const QModelIndex& index) {
  const std::optional<HitRow> file = rows_.fileOf(index);
  if (!file || parts_.showFile(*file)) return;
  setStatus(
      Texts::tr("%1 is not there now, or its listing does not say where.").arg(file->folder + file->name));
}

}  // namespace quorvin
