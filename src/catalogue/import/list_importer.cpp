// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/import/list_importer.h"

#include "catalogue/import/list_dates.h"
#include "catalogue/import/plocate_database.h"
#include "faults/runtime_fault.h"
#include "files/file_aside.h"
#include "files/file_reader.h"
#include "files/stream_reader.h"
#include "history/listing_history.h"
#include "texts/texts.h"

#include <QDate>
#include <QDir>
#include <QFileInfo>

#include <memory>
#include <utility>

namespace quorvin {

namespace {

RuntimeFault refusal(const QString& sentence) {
  return RuntimeFault(FaultNumber::InvalidProcedureCall, sentence);
}

/// The bytes of a file, of what can be read only once, or what another program reads of a file.
class ListBytes {
 public:
  ListBytes(const QString& path, const ListImporter::StopRequested& stopRequested) {
    if (path == QStringLiteral("-")) {
      stream_ = std::make_unique<StreamReader>(StreamReader::standardInput(stopRequested));
    } else if (isStream(path)) {
      stream_ = std::make_unique<StreamReader>(path, stopRequested);
    } else if (isPlocateDatabase(path)) {
      paths_ = std::make_unique<PlocatePaths>(path, stopRequested);
    } else {
      file_ = std::make_unique<SequentialFile>(path);
    }
  }

  ListLines::Read read() {
    return [this](std::span<char> buffer) {
      if (paths_) return paths_->read(buffer);
      return stream_ ? stream_->read(buffer) : file_->read(buffer);
    };
  }

 private:
  std::unique_ptr<PlocatePaths> paths_;
  std::unique_ptr<StreamReader> stream_;
  std::unique_ptr<SequentialFile> file_;
};

}  // namespace

std::optional<std::int64_t> dayOfList(const QString& text, const ImportControls& controls) {
  if (text.isEmpty()) return std::nullopt;
  const QDate date = QDate::fromString(text, Qt::ISODate);
  const auto day = wallClockDay(date.year(), date.month(), date.day());
  if (date.isValid() && day) return day;
  throw refusal(
      Texts::tr("the value of %1 is a day such as 2004-01-15, not \"%2\"").arg(controls.made, text));
}

ListImporter::ListImporter(ImportChoices choices, ImportControls controls, StopRequested stopRequested)
    : choices_(std::move(choices)),
      controls_(std::move(controls)),
      stopRequested_(std::move(stopRequested)) {}

QString ListImporter::nameOf(const QString& list) const {
  return choices_.label.isEmpty() ? QFileInfo(list).completeBaseName() : choices_.label;
}

QString ListImporter::placeOf(const QString& list) const {
  QString name = nameOf(list);
  name.replace(u'/', u'_');
  const QFileInfo place(QDir(choices_.output).filePath(name + QStringLiteral(".txt")));
  if (choices_.isOwnFile && choices_.isOwnFile(place.absoluteFilePath())) {
    throw refusal(
        Texts::tr("%1 is a file of the program; nothing was imported of %2").arg(place.filePath(), list));
  }
  if (!place.exists()) return place.filePath();
  const bool isTheList = place.canonicalFilePath() == QFileInfo(list).canonicalFilePath();
  if (isTheList || !choices_.replaces) {
    throw refusal(Texts::tr("%1 is there already; nothing was imported of %2").arg(place.filePath(), list));
  }
  return place.filePath();
}

/// A list may be of a disk that is lost, and worse than what was known of it.
void ListImporter::keepEarlier(const QString& place, const QString& replacement) const {
  if (choices_.dataFolder.isEmpty() || !QFileInfo::exists(place)) return;
  const QDir dataFolder(QFileInfo(choices_.dataFolder).canonicalFilePath());
  const QString name = dataFolder.relativeFilePath(QFileInfo(place).canonicalFilePath());
  if (name.startsWith(QStringLiteral("../")) || QDir::isAbsolutePath(name)) return;
  const KeptListing kept = ListingHistory(dataFolder.path() + u'/').keep(name, replacement, true);
  if (kept.fault.isEmpty()) return;
  throw refusal(Texts::tr("%1 was not replaced, since it could not be kept in the listing history: %2")
                    .arg(place, kept.fault));
}

const ListFormat* ListImporter::formatOf(const QString& list) const {
  if (list == QStringLiteral("-") || isStream(list)) return nullptr;
  ListBytes bytes(list, stopRequested_);
  return formatOfList(bytes.read(), choices_.request);
}

ImportedList ListImporter::import(const QString& list, const LinesRead& linesRead) const {
  ImportedList made{placeOf(list), {}};
  ImportRequest request = choices_.request;
  request.label = nameOf(list);
  ListBytes bytes(list, stopRequested_);
  removeLeftovers(QFileInfo(made.place).absolutePath());
  FileAside file(made.place);
  made.report =
      importList(bytes.read(), request, QLocale(), made.place, file.writer(), [&](std::int64_t lines) {
        linesRead(lines);
        return !stopRequested_();
      });
  // A stream that was given up looks as if it had ended.
  if (stopRequested_()) made.report.isStopped = true;
  if (made.report.isStopped) return made;
  if (!made.report.format) {
    throw refusal(Texts::tr("%1 is no list of a known format; %2 says which of these it has: %3")
                      .arg(list, controls_.format, listFormatNames()));
  }
  if (made.report.counts.files == 0 && made.report.counts.folders == 0) {
    throw refusal(Texts::tr("%1 names no file and no folder; no listing was made").arg(list));
  }
  file.finish();
  keepEarlier(made.place, file.path());
  file.commit();
  return made;
}

}  // namespace quorvin
