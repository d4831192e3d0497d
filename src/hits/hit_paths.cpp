// SPDX-License-Identifier: GPL-2.0-or-later
#include "hits/hit_paths.h"

#include "faults/runtime_fault.h"
#include "files/file_lookup.h"
#include "hits/hit_actions.h"

#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>
#include <QTimerEvent>
#include <QUrl>

#include <algorithm>
#include <utility>

namespace quorvin {

namespace {

qsizetype firstWildcard(const QString& name) {
  const auto isWildcard = [](QChar character) { return character == u'*' || character == u'?'; };
  return std::ranges::find_if(name, isWildcard) - name.begin();
}

const QString kUrlsFormat = QStringLiteral("text/uri-list");
const QString kTextFormat = QStringLiteral("text/plain");

constexpr qint64 kMillisecondsOfLooking = 8;

}  // namespace

FoldersReadOnce::FoldersReadOnce(ReadNames readNames)
    : readNames_(std::move(readNames)), reader_(makeFolderReader()) {}

FoldersReadOnce::~FoldersReadOnce() = default;

QString FoldersReadOnce::find(const QString& pattern) {
  const qsizetype nameStart = pattern.lastIndexOf(nativePathStyle().separator) + 1;
  const QString wanted = pattern.mid(nameStart);
  const QString beginning = wanted.left(firstWildcard(wanted));
  // A single name takes no reading.
  if (beginning == wanted) return isThere(pattern.left(nameStart), wanted) ? wanted : QString();

  const Names& names = namesIn(pattern.left(nameStart));
  const Name* found = nullptr;
  auto name = std::ranges::lower_bound(names, beginning, {}, &Name::text);
  for (; name != names.end() && name->text.startsWith(beginning); ++name) {
    if (name->text == wanted) return wanted;
    const bool comesFirst = found == nullptr || name->place < found->place;
    if (comesFirst && fitsWildcards(name->text, wanted)) found = &*name;
  }
  return found == nullptr ? QString() : found->text;
}

bool FoldersReadOnce::isThere(const QString& folder, const QString& name) {
  if (folder != folder_) enter(folder);
  // A folder that may not be read can still hold files that can be found.
  if (!isOpen_) return ordinaryFileExists(folder + name);
  if (name.isEmpty() || name.startsWith(u'.')) return false;
  NameStatus status;
  return reader_->lookUp(QFile::encodeName(name).constData(), status) == 0 && status.kind == NameKind::File;
}

void FoldersReadOnce::enter(const QString& folder) {
  if (isOpen_) reader_->leave();
  isOpen_ = reader_->enterTop(folder) == 0;
  folder_ = folder;
}

const FoldersReadOnce::Names& FoldersReadOnce::namesIn(const QString& folder) {
  const auto [known, isNew] = folders_.try_emplace(folder);
  Names& names = known->second;
  if (!isNew) return names;
  for (const QString& text : readNames_(folder)) names.push_back({text, std::ssize(names)});
  std::ranges::sort(names, {}, &Name::text);
  return names;
}

QStringList FoldersReadOnce::ordinaryFiles(const QString& folder) {
  QStringList names;
  // Without hidden and special files.
  QDirIterator files(folder, QDir::Files);
  while (files.hasNext()) {
    files.next();
    names.append(files.fileName());
  }
  return names;
}

HitPaths::HitPaths(const ProgramState& state, PathStyle style)
    : state_(state),
      style_(style),
      lookUp_([this](const QString& pattern) { return folders_.find(pattern); }) {}

HitPath HitPaths::of(const HitRow& hit) {
  try {
    const std::optional<QString> folder = folderOf(hit);
    if (!folder) return {};
    const QString name = fileOfEntry(*folder, hit.name, style_, lookUp_);
    return name.isEmpty() ? HitPath{} : HitPath{*folder, name};
  } catch (const RuntimeFault&) {
    return {};
  }
}

/// Throws as folderOfHit() does.
std::optional<QString> HitPaths::folderOf(const HitRow& hit) {
  const bool isSame =
      hit.kind == before_.kind && hit.volume == before_.volume && hit.folder == before_.folder;
  // Before the first hit nothing is known.
  if (isSame && !before_.folder.isEmpty()) return folderBefore_;
  folderBefore_ = folderOfHit(state_, hit, style_);
  before_ = hit;
  return folderBefore_;
}

HitDragData::HitDragData(const HitTable& table, const ProgramState& state, std::vector<int> tableRows)
    : table_(table), timesCleared_(table.timesCleared()), rows_(std::move(tableRows)), paths_(state) {
  while (!isWhole() && urls_.isEmpty() && done_ < kMostLookedAtFirst) addHit();
  hasUrls_ = !urls_.isEmpty() || !isWhole();
  timer_.start(0, this);
}

QStringList HitDragData::formats() const {
  if (rows_.empty()) return {};
  return hasUrls_ ? QStringList{kUrlsFormat, kTextFormat} : QStringList{kTextFormat};
}

QVariant HitDragData::retrieveData(const QString& format, QMetaType) const {
  const bool isKnown = format == kUrlsFormat || format == kTextFormat;
  if (!isKnown || !isOfNow()) return {};
  makeAll();
  return format == kUrlsFormat ? QVariant(urls_) : QVariant(lines_);
}

void HitDragData::timerEvent(QTimerEvent* event) {
  if (event->timerId() != timer_.timerId()) return QMimeData::timerEvent(event);
  QElapsedTimer slice;
  slice.start();
  while (isOfNow() && !isWhole() && !slice.hasExpired(kMillisecondsOfLooking)) addHit();
  if (isOfNow() && !isWhole()) return;
  timer_.stop();
  paths_.reset();
}

void HitDragData::addHit() const {
  const HitRow hit = table_.row(rows_[static_cast<std::size_t>(done_)]);
  const HitPath path = paths_->of(hit);
  if (done_ > 0) lines_ += u'\n';
  lines_ += path.isEmpty() ? cataloguePath(hit) : path.fullPath();
  if (!path.isEmpty()) urls_.append(QUrl::fromLocalFile(path.fullPath()));
  ++done_;
}

void HitDragData::makeAll() const {
  while (!isWhole()) addHit();
}

}  // namespace quorvin
