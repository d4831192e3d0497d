// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/volumes/space_window.h"

#include "catalogue/job_controls.h"
#include "catalogue/sum_texts.h"
#include "platform/text_direction.h"
#include "platform/text_encoding.h"
#include "texts/texts.h"

#include <QAbstractItemView>
#include <QAction>
#include <QGridLayout>

#include <utility>

namespace quorvin {

namespace {

constexpr int kCharactersOfMap = 120;

}  // namespace

SpaceWindow::SpaceWindow(SpaceWindowParts parts, QWidget* owner)
    : JobWindow(Texts::tr("&Read Again"), Texts::tr("&Close"), parts.threads, owner),
      parts_(std::move(parts)),
      map_(new SpaceMap(parts_.locale)),
      colours_(new QComboBox),
      up_(new QPushButton(Texts::tr("&Up"))),
      place_(new QLabel),
      legend_(new QLabel) {
  setObjectName(QStringLiteral("SpaceWindow"));
  setWindowTitle(parts_.volume.isEmpty() ? Texts::tr("Space Map")
                                         : Texts::tr("Space Map of %1").arg(parts_.volume));
  startButton().setObjectName(QStringLiteral("ReadAgain"));
  map_->setObjectName(QStringLiteral("Map"));
  map_->setAccessibleName(Texts::tr("Space map"));
  layOut(makeFields(), map_, kCharactersOfMap);
  addActions();
  connect(up_, &QPushButton::clicked, map_, &SpaceMap::goUp);
  connect(colours_, &QComboBox::currentIndexChanged, this, [this](int index) {
    map_->setColourBy(index == 0 ? SpaceMap::ColourBy::Kind : SpaceMap::ColourBy::Years);
    legend_->setText(map_->legend());
  });
  connect(map_, &SpaceMap::folderChanged, this, &SpaceWindow::showPlace);
  connect(map_, &SpaceMap::currentChanged, this, &SpaceWindow::showCurrent);
  connect(map_, &SpaceMap::searchRequested, this, &SpaceWindow::search);
  start();
  map_->setFocus();
}

QLayout* SpaceWindow::makeFields() {
  colours_->setObjectName(QStringLiteral("Colours"));
  colours_->setAccessibleName(Texts::tr("What the colours show"));
  colours_->addItems({Texts::tr("Kind"), Texts::tr("Year")});
  colours_->view()->setAccessibleName(Texts::tr("What can be shown"));
  up_->setObjectName(QStringLiteral("Up"));
  up_->setAutoDefault(false);
  place_->setObjectName(QStringLiteral("Place"));
  place_->setTextFormat(Qt::PlainText);
  place_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  legend_->setObjectName(QStringLiteral("Legend"));
  legend_->setTextFormat(Qt::RichText);
  legend_->setWordWrap(true);
  legend_->setText(map_->legend());
  auto* fields = new QGridLayout;
  fields->addWidget(up_, 0, 0);
  fields->addWidget(place_, 0, 1);
  fields->addWidget(captionOf(colours_, Texts::tr("C&olours:")), 0, 2);
  fields->addWidget(colours_, 0, 3);
  fields->addWidget(legend_, 1, 0, 1, 4);
  fields->setColumnStretch(1, 1);
  return fields;
}

void SpaceWindow::addActions() {
  auto* search = new QAction(Texts::tr("&Search Here"), this);
  search->setObjectName(QStringLiteral("SearchHere"));
  connect(search, &QAction::triggered, map_, &SpaceMap::searchCurrent);
  auto* up = new QAction(Texts::tr("&Up"), this);
  connect(up, &QAction::triggered, map_, &SpaceMap::goUp);
  map_->addActions({search, up});
  map_->setContextMenuPolicy(Qt::ActionsContextMenu);
}

void SpaceWindow::start() {
  map_->show(nullptr);
  shown_.reset();
  std::vector<QString> listings;
  if (!parts_.listing.isEmpty()) listings.push_back(parts_.listing);
  startJob(std::make_shared<SpaceJob>(sourcesOf(parts_.state), std::move(listings), parts_.locale));
}

QString SpaceWindow::stoppedText() const {
  return Texts::tr("Stopped. The map is drawn when everything has been read.");
}

QString SpaceWindow::progressText() const {
  return static_cast<const SpaceJob&>(*job()).progressText();
}

void SpaceWindow::jobEnded(std::shared_ptr<CatalogueJob> ended) {
  const auto job = std::static_pointer_cast<const SpaceJob>(ended);
  setStatus(englishWithin(layoutDirection(), job->lines().join(u'\n').remove(u'\r')));
  if (!job->isComplete()) return;
  shown_ = job;
  std::uint32_t folder = SpaceTree::kTop;
  for (const SpaceTree::Part& volume : job->tree().partsOf(SpaceTree::kTop)) {
    const bool isIt = textOfUtf8(job->tree().folders().title(volume.folder)) == parts_.volume;
    if (!parts_.volume.isEmpty() && isIt) folder = volume.folder;
  }
  map_->show(job, folder);
}

void SpaceWindow::showPlace() {
  up_->setEnabled(map_->mayGoUp());
  if (!shown_) {
    place_->clear();
    return;
  }
  const SpaceTree& tree = shown_->tree();
  const std::uint32_t folder = map_->folder();
  QString place = Texts::tr("All volumes");
  if (folder != SpaceTree::kTop) {
    const FolderTree& folders = tree.folders();
    place = textOfUtf8(folders.volumes()[folders.volumeOf(folder)].name) + QStringLiteral(": ") +
            textOfUtf8(folders.path(folder));
  }
  place += QStringLiteral(" \u2013 ") + sumText(tree.sumOf(folder), parts_.locale);
  place_->setText(englishWithin(layoutDirection(), place));
  place_->setToolTip(place.toHtmlEscaped());
}

/// What the current rectangle is, and what there is to say of the listings.
void SpaceWindow::showCurrent() {
  if (!shown_) return;
  QStringList lines = shown_->lines();
  lines.prepend(map_->current() < 0 ? Texts::tr("There is nothing that takes up space.")
                                    : map_->textOf(map_->current()));
  setStatus(lines.join(u'\n').remove(u'\r'));
}

void SpaceWindow::search(std::uint32_t folder) {
  const SpaceTree& tree = shown_->tree();
  const std::uint32_t shown = tree.firstWithParts(folder);
  const QString path = shown == SpaceTree::kTop ? QString() : textOfUtf8(tree.folders().path(shown));
  // Only folders have names to search for.
  if (path.count(u'\\') == path.size()) {
    setStatus(Texts::tr("A search is for a folder. Choose one in the volume."));
    return;
  }
  accept();
  parts_.search(path);
}

}  // namespace quorvin
