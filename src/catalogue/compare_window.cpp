// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/compare_window.h"

#include "catalogue/job_controls.h"
#include "faults/runtime_fault.h"
#include "platform/text_direction.h"
#include "texts/texts.h"

#include <QAbstractItemView>
#include <QDateTime>
#include <QFileInfo>
#include <QGridLayout>

#include <algorithm>
#include <utility>

namespace quorvin {

namespace {

constexpr int kCharactersOfChanges = 160;
constexpr int kLeastSourceCharacters = 8;
/// So few folders are unfolded at once, so that the changes are seen.
constexpr int kMostUnfolded = 200;

/// What can be shown, in the order of the box.
struct ShownChanges {
  const char* caption;
  std::optional<ChangeKind> kind;
};
const ShownChanges kShownChanges[] = {
    {QT_TRANSLATE_NOOP("Texts", "All changes"), std::nullopt},
    {QT_TRANSLATE_NOOP("Texts", "What was added"), ChangeKind::Added},
    {QT_TRANSLATE_NOOP("Texts", "What was removed"), ChangeKind::Removed},
    {QT_TRANSLATE_NOOP("Texts", "What has changed"), ChangeKind::Changed},
    {QT_TRANSLATE_NOOP("Texts", "What was moved"), ChangeKind::Moved},
};

QString dateOfVersion(const ListingVersion& version, const QLocale& locale) {
  const QString date = locale.toString(QDateTime::fromMSecsSinceEpoch(version.made), QLocale::ShortFormat);
  return version.isComplete ? date : Texts::tr("%1 (incomplete)").arg(date);
}

QComboBox* makeBox() {
  auto* box = new QComboBox;
  box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  box->setMinimumContentsLength(kLeastSourceCharacters);
  // What is too long for the box is read whole where the pointer rests.
  QObject::connect(box, &QComboBox::currentTextChanged, box, &QComboBox::setToolTip);
  return box;
}

}  // namespace

CompareWindow::CompareWindow(CompareWindowParts parts, QWidget* owner)
    : JobWindow(Texts::tr("&Compare"), Texts::tr("Cl&ose"), parts.threads, owner),
      parts_(std::move(parts)),
      history_(parts_.state.LocalFolder),
      sources_(comparedSources(parts_.state)),
      rows_(parts_.locale),
      earlier_{makeBox(), makeBox()},
      later_{makeBox(), makeBox()},
      what_(new QComboBox) {
  setObjectName(QStringLiteral("CompareWindow"));
  setWindowTitle(Texts::tr("Compare"));
  for (const ShownChanges& choice : kShownChanges) what_->addItem(Texts::tr(choice.caption));
  nameControls();
  layOut(makeFields(), makeTree(&rows_), kCharactersOfChanges);
  list().setAccessibleName(Texts::tr("Changes"));
  setStatus(
      Texts::tr("What came, went, changed and was moved from the earlier to the later one. Nothing is "
                "deleted or changed."));
  connectControls();
  fitTreeColumns(list());
  listSources();
  earlier_.source->setFocus();
}

void CompareWindow::nameControls() {
  const auto name = [](QWidget* control, const char* objectName, const QString& accessibleName) {
    control->setObjectName(QString::fromLatin1(objectName));
    control->setAccessibleName(accessibleName);
  };
  name(earlier_.source, "EarlierSource", Texts::tr("What is compared: the earlier side"));
  name(earlier_.state, "EarlierState", Texts::tr("Which state of the earlier side"));
  name(later_.source, "LaterSource", Texts::tr("What is compared: the later side"));
  name(later_.state, "LaterState", Texts::tr("Which state of the later side"));
  name(what_, "What", Texts::tr("What is shown"));
  for (QComboBox* box : {earlier_.source, earlier_.state, later_.source, later_.state, what_}) {
    box->view()->setAccessibleName(Texts::tr("What can be chosen"));
  }
  startButton().setObjectName(QStringLiteral("Compare"));
}

QLayout* CompareWindow::makeFields() {
  auto* fields = new QGridLayout;
  fields->addWidget(captionOf(earlier_.source, Texts::tr("&Earlier:")), 0, 0);
  fields->addWidget(earlier_.source, 0, 1);
  fields->addWidget(captionOf(earlier_.state, Texts::tr("State ea&rlier:")), 0, 2);
  fields->addWidget(earlier_.state, 0, 3);
  fields->addWidget(captionOf(later_.source, Texts::tr("&Later:")), 1, 0);
  fields->addWidget(later_.source, 1, 1);
  fields->addWidget(captionOf(later_.state, Texts::tr("State l&ater:")), 1, 2);
  fields->addWidget(later_.state, 1, 3);
  fields->addWidget(captionOf(what_, Texts::tr("&Show:")), 2, 0);
  fields->addWidget(what_, 2, 1, 1, 3);
  fields->setColumnStretch(1, 1);
  fields->setColumnStretch(3, 1);
  return fields;
}

void CompareWindow::connectControls() {
  connect(what_, &QComboBox::currentIndexChanged, this, &CompareWindow::showRows);
  connect(earlier_.source, &QComboBox::currentIndexChanged, this, [this] { listStates(earlier_); });
  connect(later_.source, &QComboBox::currentIndexChanged, this, [this] { listStates(later_); });
}

/// The first source that has an earlier version comes chosen: what has changed in it is asked most.
void CompareWindow::listSources() {
  startButton().setEnabled(!sources_.empty());
  if (sources_.empty()) {
    setStatus(Texts::tr("There is nothing to compare yet."));
    return;
  }
  for (const ComparedSource& source : sources_) {
    earlier_.source->addItem(source.title);
    later_.source->addItem(source.title);
  }
  QStringList known;
  try {
    known = history_.listings();
  } catch (const RuntimeFault& fault) {
    setStatus(Texts::tr("The listing history cannot be read: %1").arg(fault.description()));
  }
  const auto withHistory = std::ranges::find_if(
      sources_, [&](const ComparedSource& source) { return known.contains(source.inHistory); });
  const auto chosen = withHistory == sources_.end() ? 0 : static_cast<int>(withHistory - sources_.begin());
  earlier_.source->setCurrentIndex(chosen);
  later_.source->setCurrentIndex(chosen);
  const auto newest = std::ranges::find(earlier_.places, ComparedPlace::State::Version,
                                        [](const ComparedPlace& place) { return place.state; });
  if (newest != earlier_.places.end()) {
    earlier_.state->setCurrentIndex(static_cast<int>(newest - earlier_.places.begin()));
  }
}

void CompareWindow::listStates(Side& side) {
  side.state->clear();
  side.places.clear();
  const int row = side.source->currentIndex();
  if (row < 0) return;
  const ComparedSource& source = sources_[static_cast<std::size_t>(row)];
  const auto add = [&](const QString& text, ComparedPlace::State state, int version = 0) {
    side.places.push_back({source, state, version});
    side.state->addItem(englishWithin(layoutDirection(), text));
  };
  add(Texts::tr("the listing as it is"), ComparedPlace::State::Listing);
  if (!source.folder.isEmpty()) add(Texts::tr("the folder as it is now"), ComparedPlace::State::Folder);
  if (source.inHistory.isEmpty()) return;
  try {
    for (const ListingVersion& version : history_.versions(source.inHistory)) {
      if (version.isReadable)
        add(dateOfVersion(version, parts_.locale), ComparedPlace::State::Version, version.number);
    }
  } catch (const RuntimeFault& fault) {
    setStatus(Texts::tr("The listing history cannot be read: %1").arg(fault.description()));
  }
}

void CompareWindow::chooseVersion(const QString& inHistory, int version) {
  auto source = std::ranges::find(sources_, inHistory, &ComparedSource::inHistory);
  if (source == sources_.end()) {
    // It is searched no more, but its history is still there.
    sources_.push_back({inHistory, parts_.state.LocalFolder + inHistory, inHistory, {}});
    source = sources_.end() - 1;
    earlier_.source->addItem(inHistory);
    later_.source->addItem(inHistory);
    startButton().setEnabled(true);
  }
  const auto row = static_cast<int>(source - sources_.begin());
  earlier_.source->setCurrentIndex(row);
  later_.source->setCurrentIndex(row);
  later_.state->setCurrentIndex(0);
  const auto isIt = [version](const ComparedPlace& place) {
    return place.state == ComparedPlace::State::Version && place.version == version;
  };
  const auto place = std::ranges::find_if(earlier_.places, isIt);
  if (place != earlier_.places.end()) {
    earlier_.state->setCurrentIndex(static_cast<int>(place - earlier_.places.begin()));
  }
}

QString CompareWindow::stoppedText() const {
  return Texts::tr("Stopped. What has changed is only known at the end.");
}

void CompareWindow::start() {
  shown_.reset();
  showRows();
  const auto placeOf = [](const Side& side) {
    return side.places[static_cast<std::size_t>(std::max(side.state->currentIndex(), 0))];
  };
  startJob(std::make_shared<CompareJob>(placeOf(earlier_), placeOf(later_), parts_.state.LocalFolder,
                                        parts_.locale));
}

QString CompareWindow::progressText() const {
  const QString status = static_cast<const CompareJob&>(*job()).status();
  return status.isEmpty() ? Texts::tr("Comparing") : status;
}

void CompareWindow::jobEnded(std::shared_ptr<CatalogueJob> ended) {
  const auto job = std::static_pointer_cast<const CompareJob>(ended);
  if (!job->isComplete()) {
    setStatus(englishWithin(layoutDirection(), job->fault()));
    return;
  }
  shown_ = job;
  showRows();
  list().setCurrentIndex(rows_.index(0, 0));
  fitTreeColumns(list());
}

void CompareWindow::showRows() {
  rows_.show(shown_, kShownChanges[what_->currentIndex()].kind, parts_.mostRows);
  if (!shown_) return;
  if (rows_.rowCount() <= kMostUnfolded) list().expandAll();
  tellRows();
}

void CompareWindow::tellRows() {
  QStringList lines = shown_->sumLines();
  if (rows_.shownChanges() < rows_.changesAltogether()) {
    const auto number = [this](std::size_t count) { return parts_.locale.toString(qulonglong{count}); };
    lines += Texts::tr("Only the first %1 of %2 rows are shown.")
                 .arg(number(rows_.shownChanges()), number(rows_.changesAltogether()));
  }
  setStatus(englishWithin(layoutDirection(), lines.join(u'\n')));
}

void CompareWindow::openRow(const QModelIndex& index) {
  const HitRow file = rows_.fileOf(index);
  if (parts_.showFile(file)) return;
  setStatus(
      Texts::tr("%1 is not there now, or its listing does not say where.").arg(file.folder + file.name));
}

}  // namespace quorvin
