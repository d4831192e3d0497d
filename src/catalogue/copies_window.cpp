// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/copies_window.h"

#include "catalogue/job_controls.h"
#include "catalogue/sum_texts.h"
#include "platform/text_direction.h"
#include "search/match/search_query.h"
#include "texts/texts.h"

#include <QAbstractItemView>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QGridLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QVBoxLayout>

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

QString findCaption() {
  return Texts::tr("&Find");
}

bool isPlace(const QModelIndex& index) {
  return !index.model()->hasChildren(index.siblingAtColumn(0));
}

}  // namespace

CopiesWindow::CopiesWindow(CopiesWindowParts parts, QWidget* owner)
    : QDialog(owner),
      parts_(std::move(parts)),
      rows_(parts_.locale),
      words_(new QLineEdit),
      what_(new QComboBox),
      match_(new QLineEdit(CopyWish().desiredMatch)),
      empty_(new QCheckBox(Texts::tr("&Empty files, too"))),
      content_(new QCheckBox(Texts::tr("&Look into files at hand"))),
      find_(makeStartButton(findCaption())),
      close_(new QPushButton(Texts::tr("&Close"))),
      list_(makeSortedTree(&rows_)),
      status_(new QLabel) {
  setObjectName(QStringLiteral("CopiesWindow"));
  setWindowTitle(Texts::tr("Copies"));
  for (const Choice& choice : kChoices) what_->addItem(Texts::tr(choice.caption));
  nameControls();
  layOut();
  connectControls();
  status_->setText(
      Texts::tr("Files that have the same name and the same size to the byte, in all listings together. "
                "Nothing is deleted or changed."));
  words_->setFocus();
}

CopiesWindow::~CopiesWindow() {
  letGo();
}

void CopiesWindow::nameControls() {
  const auto name = [](QWidget* control, const char* objectName, const QString& accessibleName) {
    control->setObjectName(QString::fromLatin1(objectName));
    control->setAccessibleName(accessibleName);
  };
  name(words_, "Words", Texts::tr("Words that limit what is shown"));
  name(what_, "What", Texts::tr("What is shown"));
  name(match_, "Match", Texts::tr("Desired match in percent"));
  name(list_, "Rows", Texts::tr("Copies"));
  empty_->setObjectName(QStringLiteral("Empty"));
  content_->setObjectName(QStringLiteral("Content"));
  content_->setAccessibleDescription(Texts::tr(
      "Reads the files in own folders that are there now, and takes those apart that hold different "
      "things. That takes as long as reading them all."));
  content_->setToolTip(content_->accessibleDescription());
  find_->setObjectName(QStringLiteral("Find"));
  close_->setObjectName(QStringLiteral("close"));
  status_->setObjectName(QStringLiteral("Status"));
  what_->view()->setAccessibleName(Texts::tr("What can be shown"));
  words_->setPlaceholderText(Texts::tr("Only files with these words; empty for all"));
  words_->setAccessibleDescription(Texts::tr(
      "Only what a search for these words finds is shown. What has a copy is still looked up everywhere."));
  match_->setAccessibleDescription(
      Texts::tr("Entries that contain more than this share of the words are shown"));
  match_->setToolTip(match_->accessibleDescription());
}

void CopiesWindow::layOut() {
  status_->setTextFormat(Qt::PlainText);
  status_->setWordWrap(true);
  what_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  match_->setMaximumWidth(fontMetrics().averageCharWidth() * kMatchCharacters * 2);
  close_->setAutoDefault(false);

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

  auto* buttons = new QDialogButtonBox;
  buttons->addButton(find_, QDialogButtonBox::ActionRole);
  buttons->addButton(close_, QDialogButtonBox::RejectRole);
  auto* all = new QVBoxLayout(this);
  all->addLayout(fields);
  all->addWidget(list_, 1);
  all->addWidget(status_);
  all->addWidget(buttons);
  // Only now does the window know it, and makes it the default again when another button loses the focus.
  find_->setDefault(true);
  sizeForRows(*this, kCharactersOfCopies);
}

void CopiesWindow::connectControls() {
  connect(find_, &QPushButton::clicked, this, &CopiesWindow::Find_Click);
  connect(close_, &QPushButton::clicked, this, &CopiesWindow::reject);
  connect(list_, &QTreeView::doubleClicked, this, [this](const QModelIndex& index) {
    // A group unfolds by itself.
    if (isPlace(index)) showPlace(index);
  });
  connect(&watch_, &QTimer::timeout, this, &CopiesWindow::look);
  list_->installEventFilter(this);
}

void CopiesWindow::Find_Click() {
  if (!job_) {
    start();
    return;
  }
  letGo();
  status_->setText(Texts::tr("Stopped. Only all listings together tell what has copies."));
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
    status_->setText(Texts::tr("There is nothing to search yet."));
    return;
  }
  job_ = std::make_shared<CopiesJob>(sourcesOf(parts_.state), wish(), parts_.locale, parts_.mostRows);
  parts_.threads.start([job = job_] { job->run(); });
  find_->setText(stopCaption());
  showProgress();
  watch_.start(kBetweenLooks);
}

/// The thread keeps the job until it has come to look.
void CopiesWindow::letGo() {
  watch_.stop();
  if (job_) job_->stop();
  job_.reset();
  find_->setText(findCaption());
}

void CopiesWindow::look() {
  if (job_->hasEnded()) {
    showResult();
  } else {
    showProgress();
  }
}

void CopiesWindow::showProgress() {
  const CopiesJob::Progress progress = job_->progress();
  if (progress.bytesToRead > 0) {
    status_->setText(
        Texts::tr("Looking into files: %1 of %2")
            .arg(sizeText(progress.bytesRead, parts_.locale), sizeText(progress.bytesToRead, parts_.locale)));
    return;
  }
  if (progress.isComparing) {
    status_->setText(Texts::tr("Comparing names and sizes"));
    return;
  }
  const QString searched = Texts::tr("%1 searched").arg(parts_.locale.toString(qlonglong{progress.searched}));
  const QString listing = QFileInfo(progress.listing).fileName();
  status_->setText(listing.isEmpty() ? searched : listing + QStringLiteral(": ") + searched);
}

void CopiesWindow::showResult() {
  const std::shared_ptr<const CopiesJob> job = job_;
  letGo();
  status_->setText(englishWithin(layoutDirection(), resultText(*job)));
  if (!job->isComplete()) return;
  list_->header()->setSortIndicator(-1, Qt::AscendingOrder);
  rows_.show(job);
  list_->setCurrentIndex(rows_.index(0, 0));
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
  const QStringList& messages = job.messages();
  if (!messages.isEmpty()) lines += messages.first();
  if (messages.size() > 1) {
    const qsizetype more = messages.size() - 1;
    lines += more == 1 ? Texts::tr("and one more message")
                       : Texts::tr("and %1 more messages", nullptr, Texts::plural(more)).arg(more);
  }
  return lines.join(u'\n').remove(u'\r');
}

/// Places are not seen yet, so their columns get room for a usual folder.
void CopiesWindow::fitColumns() {
  fitTreeColumns(*list_);
  const int least = list_->fontMetrics().averageCharWidth() * kFolderCharacters;
  for (int section = 0; section < rows_.columnCount(); ++section) {
    if (rows_.columnAt(section) != CopiesModel::Column::Folder) continue;
    list_->setColumnWidth(section, std::max(list_->columnWidth(section), least));
  }
}

bool CopiesWindow::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QDialog::eventFilter(watched, event);
  return takeKey(static_cast<const QKeyEvent&>(*event)) || QDialog::eventFilter(watched, event);
}

/// Keys of the list. Enter must not go on to the default button, which would start all over.
bool CopiesWindow::takeKey(const QKeyEvent& key) {
  if (key.matches(QKeySequence::Copy)) {
    copySelectedRows(*list_);
    return true;
  }
  const QModelIndex current = list_->currentIndex();
  if ((key.key() != Qt::Key_Return && key.key() != Qt::Key_Enter) || !current.isValid()) return false;
  const QModelIndex row = current.siblingAtColumn(0);
  if (isPlace(row)) {
    showPlace(row);
  } else {
    list_->setExpanded(row, !list_->isExpanded(row));
  }
  return true;
}

void CopiesWindow::showPlace(const QModelIndex& index) {
  const std::optional<HitRow> file = rows_.fileOf(index);
  if (!file || parts_.showFile(*file)) return;
  status_->setText(
      Texts::tr("%1 is not there now, or its listing does not say where.").arg(file->folder + file->name));
}

void CopiesWindow::done(int result) {
  letGo();
  QDialog::done(result);
}

}  // namespace quorvin
