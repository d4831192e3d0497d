// SPDX-License-Identifier: GPL-2.0-or-later
#include "hits/hit_facts.h"

#include "dates/general_date.h"
#include "faults/runtime_fault.h"
#include "files/file_lookup.h"
#include "files/file_reader.h"
#include "hits/hit_actions.h"
#include "platform/text_encoding.h"
#include "search/format/listing_line.h"
#include "search/format/listing_text.h"
#include "texts/texts.h"

#include <QFileInfo>

#include <algorithm>
#include <cstring>
#include <string>
#include <string_view>
#include <utility>

namespace quorvin {

namespace {

constexpr std::size_t kChunk = std::size_t{1} << 18;

QString sourceText(SourceKind kind) {
  switch (kind) {
    case SourceKind::Online:
      return Texts::tr("Folder of your own");
    case SourceKind::MainDataFile:
      return Texts::tr("Main data file");
    case SourceKind::Offline:
      return Texts::tr("Offline listing");
  }
  return {};
}

QString pathText(const KnownHit& hit) {
  if (!hit.file.isEmpty()) return hit.file.fullPath();
  if (!hit.expectedPath.isEmpty()) return hit.expectedPath;
  return Texts::tr("Not known: only folders of your own can be reached");
}

/// The bytes of a line as UTF-8.
std::string utf8Of(std::string_view line) {
  const QByteArrayView bytes(line.data(), static_cast<qsizetype>(line.size()));
  if (isUtf8AsItStands(bytes)) return std::string(line);
  return decodeSystemText(bytes).toStdString();
}

}  // namespace

std::vector<HitFact> factsOf(const KnownHit& hit, const QLocale& locale) {
  const HitRow& row = hit.row;
  const auto shown = [&](HitColumn column) { return hitText(row, column, locale); };
  const QString isThere =
      hit.file.isEmpty() ? Texts::tr("Not found on a connected drive") : Texts::tr("Is there");
  std::vector<HitFact> facts{
      {QStringLiteral("Match"), Texts::tr("Match"), shown(HitColumn::Match)},
      {QStringLiteral("Words"), Texts::tr("Words found"),
       hit.words.isEmpty() ? Texts::tr("1 of 1 word") : hit.words},
      {QStringLiteral("Volume"), Texts::tr("Volume"), row.volume},
      {QStringLiteral("Folder"), Texts::tr("Folder"), row.folder},
      {QStringLiteral("Name"), Texts::tr("Name"), row.name},
      {QStringLiteral("Size"), Texts::tr("Size"), shown(HitColumn::Size)},
      {QStringLiteral("Bytes"), Texts::tr("Size in bytes"), locale.toString(row.size)},
      {QStringLiteral("Date"), Texts::tr("Date"), shown(HitColumn::Date)},
      {QStringLiteral("Moment"), Texts::tr("Date and time"), generalDateText(row.date, locale)},
      {QStringLiteral("Source"), Texts::tr("Source"), sourceText(row.kind)},
      {QStringLiteral("Listing"), Texts::tr("Listing"), hit.listing},
      {QStringLiteral("Path"), Texts::tr("File"), pathText(hit)},
      {QStringLiteral("State"), Texts::tr("State"), isThere},
  };
  if (hit.note.isEmpty()) return facts;
  const auto volume = std::ranges::find(facts, QStringLiteral("Volume"), &HitFact::name);
  facts.insert(volume + 1, {QStringLiteral("Note"), Texts::tr("Note"), hit.note});
  return facts;
}

QString whichDiskText(const KnownHit& hit) {
  const HitRow& row = hit.row;
  if (!hit.file.isEmpty())
    return Texts::tr("The file is on a connected drive:") + QStringLiteral("\r\n") + hit.file.fullPath();
  const QString note =
      hit.note.isEmpty() ? QString() : QStringLiteral("\r\n") + Texts::tr("Note: %1").arg(hit.note);
  const QString where = note + QStringLiteral("\r\n\r\n") +
                        Texts::tr("In the catalogue: %1").arg(row.folder + row.name) +
                        QStringLiteral("\r\n") + Texts::tr("Listing: %1").arg(hit.listing);
  if (hit.sourceFolder.isEmpty()) {
    return Texts::tr("The file is on the volume \"%1\". Insert that disk to get at it.").arg(row.volume) +
           where;
  }
  const QString catalogued = QStringLiteral("\r\n") + Texts::tr("Catalogued from: %1").arg(hit.sourceFolder);
  if (QFileInfo(hit.sourceFolder).isDir()) {
    return Texts::tr(
               "The folder of \"%1\" is connected, but the file is not there any more. It may have been "
               "renamed, moved or deleted.")
               .arg(row.volume) +
           where + catalogued;
  }
  return Texts::tr(
             "The file is on the volume \"%1\", which is not connected. Insert or connect it to get at "
             "the file.")
             .arg(row.volume) +
         where + catalogued;
}

/// The listing while it is read: what it says of the lines to come.
class EntryLineFinder::Reading {
 public:
  Reading(const QString& listing, const HitRow& wanted)
      : file_(listing),
        text_([this](std::span<char> buffer) { return file_.read(buffer); }, kChunk),
        volume_(wanted.volume.toStdString()),
        folder_(wanted.folder.toStdString()),
        name_(wanted.name.toStdString()) {}

  /// Reads a chunk on; false at the end of the listing, or when the entry has been found.
  bool step() {
    const bool hasMore = text_.readChunk();
    std::size_t taken = 0;
    const std::string_view chunk(text_.begin(), text_.size());
    while (!isFound_) {
      const std::size_t end = chunk.find('\n', taken);
      if (end == std::string_view::npos) break;
      std::string_view line = chunk.substr(taken, end - taken);
      if (line.ends_with('\r')) line.remove_suffix(1);
      take(line);
      taken = end + 1;
    }
    text_.consume(taken);
    if (!hasMore && !isFound_ && text_.size() > 0) take(text_.lastLine());
    return hasMore && !isFound_;
  }

  std::optional<std::int64_t> found() const { return isFound_ ? std::optional(line_) : std::nullopt; }

 private:
  void take(std::string_view line) {
    ++line_;
    switch (classifyLine(line)) {
      case LineKind::Volume:
        isVolume_ = withoutMark(utf8Of(line), kVolumeMark) == volume_;
        break;
      case LineKind::Directory:
        isFolder_ = withoutMark(utf8Of(line), kDirectoryMark) == folder_;
        break;
      case LineKind::Entry:
        isFound_ = isVolume_ && isFolder_ && isWanted(line);
        break;
      default:
        break;
    }
  }

  bool isWanted(std::string_view line) const {
    const std::string utf8 = utf8Of(line);
    return splitEntryLine(utf8, isAscii(utf8)).text == name_;
  }

  SequentialFile file_;
  ListingText text_;
  const std::string volume_;
  const std::string folder_;
  const std::string name_;
  std::int64_t line_ = 0;
  /// Both are empty at the start of a listing.
  bool isVolume_ = volume_.empty();
  bool isFolder_ = folder_.empty();
  bool isFound_ = false;
};

EntryLineFinder::EntryLineFinder(const QString& listing, const HitRow& wanted) {
  try {
    reading_ = std::make_unique<Reading>(listing, wanted);
  } catch (const RuntimeFault&) {
    // It is gone, or its drive is: there is no line then.
  }
}

EntryLineFinder::~EntryLineFinder() = default;

bool EntryLineFinder::step() {
  if (!reading_) return false;
  try {
    if (reading_->step()) return true;
    line_ = reading_->found();
  } catch (const RuntimeFault&) {
    // Cut while it was read.
  }
  reading_.reset();
  return false;
}

std::optional<std::int64_t> EntryLineFinder::line() const {
  return line_;
}

}  // namespace quorvin
