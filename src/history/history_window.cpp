// SPDX-License-Identifier: GPL-2.0-or-later
#include "history/history_window.h"

#include "platform/screen_room.h"
#include "platform/text_direction.h"
#include "texts/texts.h"

#include <QAbstractItemView>
#include <QDateTime>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QPointer>
#include <QVBoxLayout>

#include <utility>

namespace quorvin {

namespace {

constexpr int kWidthInCharacters = 90;
constexpr int kHeightInLines = 22;
/// So that numbers at the right of one column are well apart from those of the next.
constexpr int kLeastColumnCharacters = 12;
constexpr int kNumberRole = Qt::UserRole;
constexpr int kReadableRole = Qt::UserRole + 1;

QTreeWidget* makeVersions() {
  auto* versions = new QTreeWidget;
  versions->setObjectName(QStringLiteral("Versions"));
  versions->setAccessibleName(Texts::tr("Earlier versions"));
  versions->setHeaderLabels(
      {Texts::tr("Date"), Texts::tr("Entries"), Texts::tr("Size"), Texts::tr("Complete")});
  // As what is below them.
  versions->headerItem()->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
  versions->headerItem()->setTextAlignment(2, Qt::AlignRight | Qt::AlignVCenter);
  versions->setRootIsDecorated(false);
  versions->setUniformRowHeights(true);
  versions->setAllColumnsShowFocus(true);
  versions->setTabKeyNavigation(false);
  versions->header()->setSectionsMovable(false);
  versions->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  versions->header()->setMinimumSectionSize(versions->fontMetrics().averageCharWidth() *
                                            kLeastColumnCharacters);
  return versions;
}

QString completeness(const ListingVersion& version) {
  if (!version.isReadable) return Texts::tr("damaged");
  return version.isComplete ? Texts::tr("yes") : Texts::tr("no");
}

QString cannotBeRead(const QString& fault) {
  return Texts::tr("The listing history cannot be read: %1").arg(fault);
}

QString dateOf(const ListingVersion& version, const QLocale& locale) {
  return locale.toString(QDateTime::fromMSecsSinceEpoch(version.made), QLocale::ShortFormat);
}

}  // namespace

HistoryWindow::HistoryWindow(const ListingHistory& history, const QLocale& locale, Restore restore,
                             Compare compare, QWidget* owner)
    : QDialog(owner),
      history_(history),
      locale_(locale),
      restore_(std::move(restore)),
      compare_(std::move(compare)),
      listing_(new QComboBox),
      present_(new QLabel),
      versions_(makeVersions()) {
  setObjectName(QStringLiteral("ListingHistory"));
  setWindowTitle(Texts::tr("Listing History"));
  listing_->setObjectName(QStringLiteral("Listing"));
  listing_->setAccessibleName(Texts::tr("Listing"));
  listing_->view()->setAccessibleName(Texts::tr("Listings that have earlier versions"));
  present_->setObjectName(QStringLiteral("Present"));
  present_->setTextFormat(Qt::PlainText);
  present_->setWordWrap(true);
  auto* caption = new QLabel(Texts::tr("&Listing:"));
  caption->setBuddy(listing_);

  auto* buttons = new QDialogButtonBox;
  restoreButton_ = buttons->addButton(Texts::tr("&Restore"), QDialogButtonBox::ActionRole);
  restoreButton_->setObjectName(QStringLiteral("Restore"));
  restoreButton_->setAutoDefault(false);
  compareButton_ = buttons->addButton(Texts::tr("Co&mpare..."), QDialogButtonBox::ActionRole);
  compareButton_->setObjectName(QStringLiteral("Compare"));
  compareButton_->setAutoDefault(false);
  QPushButton* close = buttons->addButton(Texts::tr("&Close"), QDialogButtonBox::RejectRole);
  close->setObjectName(QStringLiteral("close"));
  close->setDefault(true);

  auto* choice = new QHBoxLayout;
  choice->addWidget(caption);
  choice->addWidget(listing_, 1);
  auto* rows = new QVBoxLayout(this);
  rows->addLayout(choice);
  rows->addWidget(present_);
  rows->addWidget(versions_, 1);
  rows->addWidget(buttons);
  const QSize wanted(fontMetrics().averageCharWidth() * kWidthInCharacters,
                     fontMetrics().lineSpacing() * kHeightInLines);
  resize(wanted.boundedTo(largestInside(*screen())));

  connect(listing_, &QComboBox::currentIndexChanged, this, &HistoryWindow::showVersions);
  connect(versions_, &QTreeWidget::itemSelectionChanged, this, [this] { allowUse(selectedNumber() > 0); });
  connect(compareButton_, &QPushButton::clicked, this,
          [this] { compare_(listing_->currentText(), selectedNumber()); });
  connect(restoreButton_, &QPushButton::clicked, this, &HistoryWindow::Restore_Click);
  connect(close, &QPushButton::clicked, this, &HistoryWindow::reject);
  showListings();
}

void HistoryWindow::showListings() {
  QString fault;
  try {
    listing_->addItems(history_.listings());
  } catch (const RuntimeFault& unreadable) {
    fault = unreadable.description();
  }
  const bool isEmpty = listing_->count() == 0;
  listing_->setEnabled(!isEmpty);
  versions_->setEnabled(!isEmpty);
  (isEmpty ? static_cast<QWidget*>(listing_) : versions_)->setFocus();
  if (isEmpty) showVersions();
  if (!fault.isEmpty()) present_->setText(cannotBeRead(fault));
}

void HistoryWindow::showVersions() {
  versions_->clear();
  allowUse(false);
  const QString listing = listing_->currentText();
  showPresent(listing);
  if (listing.isEmpty()) return;
  try {
    listVersions(listing);
  } catch (const RuntimeFault& unreadable) {
    versions_->clear();
    present_->setText(cannotBeRead(unreadable.description()));
  }
}

void HistoryWindow::listVersions(const QString& listing) {
  for (const ListingVersion& version : history_.versions(listing)) {
    auto* row = new QTreeWidgetItem(versions_);
    row->setText(0, englishWithin(layoutDirection(), dateOf(version, locale_)));
    row->setText(1, locale_.toString(static_cast<qulonglong>(version.entries)));
    const QString size = locale_.formattedDataSize(static_cast<qint64>(version.size));
    row->setText(2, englishWithin(layoutDirection(), size));
    row->setText(3, completeness(version));
    row->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
    row->setTextAlignment(2, Qt::AlignRight | Qt::AlignVCenter);
    row->setData(0, kNumberRole, version.number);
    row->setData(0, kReadableRole, version.isReadable);
  }
  versions_->setCurrentItem(versions_->topLevelItem(0));
}

void HistoryWindow::showPresent(const QString& listing) {
  if (listing.isEmpty()) {
    present_->setText(
        Texts::tr("There are no earlier versions yet. One is kept whenever a rescan or an "
                  "update replaces a listing by another."));
    return;
  }
  const std::optional<ListingVersion> present = history_.present(listing);
  present_->setText(present ? Texts::tr("Now: %1").arg(textOf(*present))
                            : Texts::tr("The listing itself is not there now."));
}

QString HistoryWindow::textOf(const ListingVersion& version) const {
  const int plural = Texts::plural(static_cast<std::int64_t>(version.entries));
  return (version.isComplete ? Texts::tr("%1, %2 entries, %3, complete", nullptr, plural)
                             : Texts::tr("%1, %2 entries, %3, incomplete", nullptr, plural))
      .arg(dateOf(version, locale_), locale_.toString(static_cast<qulonglong>(version.entries)),
           locale_.formattedDataSize(static_cast<qint64>(version.size)));
}

/// 0 when nothing that could be restored is selected.
int HistoryWindow::selectedNumber() const {
  const QList<QTreeWidgetItem*> rows = versions_->selectedItems();
  if (rows.isEmpty() || !rows.first()->data(0, kReadableRole).toBool()) return 0;
  return rows.first()->data(0, kNumberRole).toInt();
}

void HistoryWindow::Restore_Click() {
  const int number = selectedNumber();
  if (number == 0) return;
  allowChoice(false);
  restore_(listing_->currentText(), number, [window = QPointer(this)] {
    if (!window) return;
    window->allowChoice(true);
    window->showVersions();
    window->versions_->setFocus();
  });
}

/// A restore may have to wait for something else; meanwhile the window can only be closed.
void HistoryWindow::allowChoice(bool allowed) {
  listing_->setEnabled(allowed);
  versions_->setEnabled(allowed);
  allowUse(allowed);
}

/// Whether something can be done with what is selected.
void HistoryWindow::allowUse(bool allowed) {
  restoreButton_->setEnabled(allowed);
  compareButton_->setEnabled(allowed);
}

}  // namespace quorvin
