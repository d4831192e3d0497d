// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/import/import_window.h"

#include "catalogue/job_controls.h"
#include "faults/runtime_fault.h"
#include "platform/screen_room.h"
#include "platform/text_direction.h"
#include "texts/texts.h"

#include <QAbstractItemView>
#include <QDialogButtonBox>
#include <QDir>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMimeData>
#include <QScrollBar>
#include <QUrl>
#include <QVBoxLayout>

#include <utility>

namespace quorvin {

namespace {

constexpr int kImportCharacters = 100;
constexpr int kImportLines = 34;
constexpr int kLeastLines = 3;

/// Orders of day and month, in the order of the box.
constexpr std::optional<DayMonthOrder> kOrders[] = {std::nullopt, DayMonthOrder::DayFirst,
                                                    DayMonthOrder::MonthFirst};

QString importCaption() {
  return Texts::tr("&Import");
}

QString textOf(std::string_view name) {
  return QString::fromLatin1(name.data(), static_cast<qsizetype>(name.size()));
}

/// How the sentences name the controls: as their captions do, without the sign of the letter.
ImportControls controlNames() {
  return {Texts::tr("Made by"), Texts::tr("Dates"), Texts::tr("Encoding"), Texts::tr("Made on")};
}

/// Where a list's path is: what is shown of it has its format behind it.
constexpr int kPathRole = Qt::UserRole;

QStringList localFilesOf(const QMimeData& data) {
  QStringList files;
  for (const QUrl& url : data.urls()) {
    const QString file = url.toLocalFile();
    if (!file.isEmpty() && !QFileInfo(file).isDir()) files += file;
  }
  return files;
}

}  // namespace

ImportWindow::ImportWindow(ImportWindowParts parts, QWidget* owner)
    : QDialog(owner),
      parts_(std::move(parts)),
      lists_(new QListWidget),
      add_(new QPushButton(Texts::tr("&Add..."))),
      remove_(new QPushButton(Texts::tr("&Remove"))),
      format_(new QComboBox),
      columns_(new QLineEdit),
      encoding_(new QComboBox),
      dates_(new QComboBox),
      made_(new QLineEdit),
      folder_(new QLineEdit),
      volume_(new QLineEdit),
      output_(new QLineEdit(parts_.dataFolder)),
      browse_(new QPushButton(Texts::tr("&Browse..."))),
      bytes_(new QCheckBox(Texts::tr("du told b&ytes"))),
      replace_(new QCheckBox(Texts::tr("Re&place listings of the same name"))),
      search_(new QCheckBox(Texts::tr("&Search in the listings from now on"))),
      report_(new QPlainTextEdit),
      import_(makeStartButton(importCaption())),
      close_(new QPushButton(Texts::tr("&Close"))) {
  setObjectName(QStringLiteral("ImportWindow"));
  setWindowTitle(Texts::tr("Import"));
  setAcceptDrops(true);
  format_->addItem(Texts::tr("As recognised"));
  for (const ListFormat& format : listFormats()) format_->addItem(textOf(format.name));
  for (const std::string_view encoding : listEncodings()) encoding_->addItem(textOf(encoding));
  dates_->addItems({Texts::tr("As the list tells"), Texts::tr("Day first"), Texts::tr("Month first")});
  search_->setChecked(true);
  nameControls();
  describeControls();
  layOut();
  connectControls();
  enableFields();
  report_->setPlainText(
      Texts::tr("Lists that other programs wrote, of a CD or of an archive, become listings. "
                "The lists themselves stay as they are."));
  add_->setFocus();
}

ImportWindow::~ImportWindow() {
  letGo();
  if (recognition_) recognition_->stop();
}

void ImportWindow::nameControls() {
  const auto name = [](QWidget* control, const char* objectName, const QString& accessibleName = {}) {
    control->setObjectName(QString::fromLatin1(objectName));
    if (!accessibleName.isEmpty()) control->setAccessibleName(accessibleName);
  };
  name(lists_, "Lists", Texts::tr("Lists to import"));
  name(add_, "Add");
  name(remove_, "Remove");
  name(format_, "Format", Texts::tr("The program that made the lists"));
  name(columns_, "Columns", Texts::tr("Pattern of find -printf, or columns of a table"));
  name(encoding_, "Encoding", Texts::tr("Encoding of the lists"));
  name(dates_, "Dates", Texts::tr("Order of day and month"));
  name(made_, "Made", Texts::tr("The day on which the lists were made"));
  name(folder_, "Folder", Texts::tr("Where paths start that do not start with /"));
  name(volume_, "Volume", Texts::tr("Name of the volume and of its listing"));
  name(output_, "Output", Texts::tr("Folder for the listings"));
  name(browse_, "Browse", Texts::tr("Browse for a folder"));
  name(bytes_, "Bytes");
  name(replace_, "Replace");
  name(search_, "Search");
  name(report_, "Report", Texts::tr("What has come of it"));
  name(import_, "Import");
  name(close_, "close");
  report_->horizontalScrollBar()->setAccessibleName(Texts::tr("Scroll the results sideways"));
  report_->verticalScrollBar()->setAccessibleName(Texts::tr("Scroll the results down"));
  format_->view()->setAccessibleName(Texts::tr("Programs that make lists"));
  encoding_->view()->setAccessibleName(Texts::tr("Encodings"));
  dates_->view()->setAccessibleName(Texts::tr("Orders of day and month"));
}

void ImportWindow::describeControls() {
  const auto describe = [](QWidget* control, const QString& text) {
    control->setAccessibleDescription(text);
    control->setToolTip(text);
  };
  describe(columns_,
           Texts::tr("The pattern that find was given, such as %s %T@ %p\\n, or which column of a table "
                     "holds what, such as path=1,size=3"));
  describe(dates_,
           Texts::tr("Whether 03/04/2004 is in March or in April. Other dates of the list may tell."));
  describe(made_, Texts::tr("A day such as 2004-01-15. ls leaves the year of recent dates out."));
  describe(folder_, Texts::tr("For paths that do not start with /, such as /media/cd"));
  describe(volume_, Texts::tr("Empty for the name of the list. For one list at a time."));
  describe(bytes_,
           Texts::tr("For the lists of du -ab. Without it the sizes of du are blocks, and left out."));
}

QGridLayout* ImportWindow::makeFields() {
  auto* fields = new QGridLayout;
  const auto add = [fields](int row, int column, QWidget* control, const QString& caption) {
    fields->addWidget(captionOf(control, caption), row, column);
    fields->addWidget(control, row, column + 1);
  };
  add(0, 0, format_, Texts::tr("&Made by:"));
  add(0, 2, columns_, Texts::tr("Patter&n:"));
  add(1, 0, encoding_, Texts::tr("&Encoding:"));
  add(1, 2, dates_, Texts::tr("&Dates:"));
  add(2, 0, made_, Texts::tr("Made &on:"));
  add(2, 2, folder_, Texts::tr("Pat&hs in:"));
  add(3, 0, volume_, Texts::tr("&Volume:"));
  fields->addWidget(bytes_, 3, 2, 1, 2, Qt::AlignLeft);
  fields->addWidget(captionOf(output_, Texts::tr("&Listings to:")), 4, 0);
  auto* place = new QHBoxLayout;
  place->addWidget(output_, 1);
  place->addWidget(browse_);
  fields->addLayout(place, 4, 1, 1, 3);
  fields->addWidget(replace_, 5, 1, 1, 3, Qt::AlignLeft);
  fields->addWidget(search_, 6, 1, 1, 3, Qt::AlignLeft);
  fields->setColumnStretch(1, 1);
  fields->setColumnStretch(3, 1);
  return fields;
}

void ImportWindow::layOut() {
  for (QPushButton* button : {add_, remove_, browse_, close_}) button->setAutoDefault(false);
  lists_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  lists_->setMinimumHeight(lists_->fontMetrics().lineSpacing() * kLeastLines);
  lists_->setTextElideMode(Qt::ElideMiddle);
  report_->setReadOnly(true);
  report_->setTabChangesFocus(true);
  // Lines are wrapped.
  report_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  report_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  report_->setMinimumHeight(report_->fontMetrics().lineSpacing() * kLeastLines);
  for (QComboBox* box : {format_, encoding_, dates_}) box->setSizeAdjustPolicy(QComboBox::AdjustToContents);

  auto* changes = new QVBoxLayout;
  changes->addWidget(add_);
  changes->addWidget(remove_);
  changes->addStretch(1);
  auto* lists = new QHBoxLayout;
  lists->addWidget(lists_, 1);
  lists->addLayout(changes);

  auto* buttons = new QDialogButtonBox;
  buttons->addButton(import_, QDialogButtonBox::ActionRole);
  buttons->addButton(close_, QDialogButtonBox::RejectRole);
  auto* all = new QVBoxLayout(this);
  all->addLayout(lists, 1);
  all->addLayout(makeFields());
  all->addWidget(report_, 1);
  all->addWidget(buttons);
  // Only now does the window know it, and makes it the default again when another button loses the focus.
  import_->setDefault(true);
  const QSize wanted(fontMetrics().averageCharWidth() * kImportCharacters,
                     fontMetrics().lineSpacing() * kImportLines);
  resize(wanted.boundedTo(largestInside(*screen())));
}

void ImportWindow::connectControls() {
  connect(add_, &QPushButton::clicked, this, [this] { addLists(parts_.pickLists()); });
  connect(remove_, &QPushButton::clicked, this, &ImportWindow::removeSelected);
  connect(browse_, &QPushButton::clicked, this, &ImportWindow::browse);
  connect(import_, &QPushButton::clicked, this, &ImportWindow::Import_Click);
  connect(close_, &QPushButton::clicked, this, &ImportWindow::reject);
  connect(format_, &QComboBox::currentIndexChanged, this, &ImportWindow::enableFields);
  connect(encoding_, &QComboBox::currentIndexChanged, this, &ImportWindow::recognise);
  connect(&watch_, &QTimer::timeout, this, &ImportWindow::look);
  connect(&watchRecognition_, &QTimer::timeout, this, &ImportWindow::lookAtRecognition);
  lists_->installEventFilter(this);
}

QStringList ImportWindow::listNames() const {
  QStringList names;
  for (int row = 0; row < lists_->count(); ++row) names += lists_->item(row)->data(kPathRole).toString();
  return names;
}

void ImportWindow::addLists(const QStringList& lists) {
  for (const QString& list : lists) {
    const QString native = QDir::toNativeSeparators(list);
    if (listNames().contains(native)) continue;
    auto* item = new QListWidgetItem(native, lists_);
    item->setData(kPathRole, native);
  }
  recognise();
  if (!lists_->currentItem()) lists_->setCurrentRow(0);
  enableFields();
  if (lists_->count() > 0) import_->setFocus();
}

/// By the first lines of each list.
void ImportWindow::recognise() {
  if (recognition_) recognition_->stop();
  ImportRequest request;
  request.encoding = encoding_->currentText().toStdString();
  recognition_ = std::make_shared<ListRecognition>(listNames(), std::move(request));
  parts_.threads.start([recognition = recognition_] { recognition->run(); });
  watchRecognition_.start(kBetweenLooks);
}

void ImportWindow::lookAtRecognition() {
  if (!recognition_->hasEnded()) return;
  watchRecognition_.stop();
  for (int row = 0; row < lists_->count(); ++row) {
    QListWidgetItem* item = lists_->item(row);
    const QString path = item->data(kPathRole).toString();
    const qsizetype number = recognition_->lists().indexOf(path);
    if (number < 0) continue;
    const ListFormat* format = recognition_->formats()[static_cast<std::size_t>(number)];
    const QString known = format ? textOf(format->name) : Texts::tr("not recognised");
    item->setText(Texts::tr("%1 (%2)").arg(path, known));
  }
}

void ImportWindow::removeSelected() {
  // After a removal there is a current list, though none is selected.
  const QList<QListWidgetItem*> selected = lists_->selectedItems();
  qDeleteAll(selected.isEmpty() ? QList{lists_->currentItem()} : selected);
  enableFields();
}

void ImportWindow::browse() {
  if (const std::optional<QString> folder = parts_.pickFolder(output_->text())) output_->setText(*folder);
}

const ListFormat* ImportWindow::chosenFormat() const {
  const int index = format_->currentIndex();
  return index <= 0 ? nullptr : &listFormats()[static_cast<std::size_t>(index - 1)];
}

/// What says nothing of the chosen format is disabled, so that nobody fills it in vain.
void ImportWindow::enableFields() {
  const bool isIdle = job_ == nullptr;
  const ListFormat* format = chosenFormat();
  for (QWidget* control :
       std::initializer_list<QWidget*>{lists_, add_, format_, encoding_, dates_, made_, folder_, output_,
                                       browse_, bytes_, replace_, search_}) {
    control->setEnabled(isIdle);
  }
  columns_->setEnabled(isIdle && format && takesColumns(*format));
  volume_->setEnabled(isIdle && lists_->count() <= 1);
  remove_->setEnabled(isIdle && lists_->count() > 0);
  import_->setEnabled(lists_->count() > 0);
}

/// Throws RuntimeFault (5) where the day is none.
ImportRequest ImportWindow::request() const {
  ImportRequest request;
  request.format = chosenFormat();
  const std::string columns = columns_->isEnabled() ? columns_->text().toStdString() : std::string();
  request.options = {columns, columns, dayOfList(made_->text(), controlNames()), bytes_->isChecked()};
  request.encoding = encoding_->currentText().toStdString();
  request.folder = folder_->text();
  request.order = kOrders[dates_->currentIndex()];
  return request;
}

void ImportWindow::Import_Click() {
  if (job_) {
    job_->stop();
    return;
  }
  try {
    start();
  } catch (const RuntimeFault& fault) {
    report_->setPlainText(fault.description());
  }
}

void ImportWindow::start() {
  const QString label = volume_->isEnabled() ? volume_->text() : QString();
  ImportChoices choices{request(),         output_->text(), label, replace_->isChecked(),
                        parts_.dataFolder, parts_.isOwnFile};
  job_ = std::make_shared<ImportJob>(listNames(), std::move(choices), controlNames());
  parts_.threads.start([job = job_] { job->run(); });
  import_->setText(stopCaption());
  enableFields();
  import_->setFocus();
  watch_.start(kBetweenLooks);
  look();
}

/// The thread keeps the job until it has come to look.
void ImportWindow::letGo() {
  watch_.stop();
  if (job_) job_->stop();
  job_.reset();
}

void ImportWindow::look() {
  if (job_->hasEnded()) {
    showResult();
    return;
  }
  const ImportJob::Progress progress = job_->progress();
  if (!progress.list.isEmpty()) report_->setPlainText(importProgressText(progress.list, progress.lines));
}

void ImportWindow::showResult() {
  const std::shared_ptr<const ImportJob> job = job_;
  const bool isStopped = job->isStopped();
  letGo();
  import_->setText(importCaption());
  enableFields();
  QStringList sentences = job->sentences();
  if (isStopped) sentences += Texts::tr("Stopped. The list that was being read has no listing.");
  if (search_->isChecked() && !job->places().isEmpty()) {
    const QString told = parts_.addListings(job->places());
    if (!told.isEmpty()) sentences += told;
  }
  report_->setPlainText(englishWithin(layoutDirection(), sentences.join(u'\n')));
}

bool ImportWindow::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress && static_cast<const QKeyEvent*>(event)->key() == Qt::Key_Delete) {
    removeSelected();
    return true;
  }
  return QDialog::eventFilter(watched, event);
}

void ImportWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (!job_ && !localFilesOf(*event->mimeData()).isEmpty()) event->acceptProposedAction();
}

void ImportWindow::dropEvent(QDropEvent* event) {
  addLists(localFilesOf(*event->mimeData()));
  event->acceptProposedAction();
}

void ImportWindow::done(int result) {
  letGo();
  QDialog::done(result);
}

}  // namespace quorvin
