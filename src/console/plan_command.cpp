// SPDX-License-Identifier: GPL-2.0-or-later

// "plan": which volumes to fetch for files that are wanted.
#include "catalogue/fetch/plan_script.h"
#include "catalogue/fetch/plan_text.h"
#include "console/commands.h"
#include "console/error_lines.h"
#include "console/search_parts.h"
#include "console/table_row.h"
#include "console/wanted_list.h"
#include "faults/runtime_fault.h"
#include "files/file_writer.h"
#include "files/stream_reader.h"
#include "platform/stop_signal.h"
#include "texts/texts.h"

#include <QDir>
#include <QLocale>

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <unistd.h>

namespace quorvin {

namespace {

/// What is wrong with the request, as a sentence; empty when nothing is.
QString complaintAbout(const PlanRequest& request) {
  if (request.searchText.isEmpty()) return Texts::tr("the search text is empty");
  for (const QString& listing : request.listings) {
    if (request.isList() && listing == QStringLiteral("-")) {
      return Texts::tr("standard input can be the list or a listing, not both");
    }
    if (!request.isList() && listingStreamAt(listing)) {
      return Texts::tr("%1 can be read once only, and a plan for words needs to read it twice").arg(listing);
    }
  }
  return request.isList() ? QString() : complaintAboutSearch(request.searchText, request.desiredMatch);
}

/// Writes a plan piece by piece, UTF-8. In JSON each volume, file, missing file and the sum is an object.
class PlanWriter {
 public:
  /// Takes a piece; false where no more are wanted.
  using Write = std::function<bool(const std::string& piece)>;

  /// `finder` has found a plan.
  PlanWriter(const FetchFinder& finder, TableFormat format, bool isForTerminal, const QLocale& locale)
      : plan_(finder.plan()),
        finder_(finder),
        format_(format),
        locale_(locale),
        cells_(cellRuleOf(format), isForTerminal) {}

  void write(const Write& write) const {
    const PlanText people(finder_, locale_, [this](std::string_view name) { return shown(name); });
    const bool isText = format_ == TableFormat::Text;
    for (std::size_t number = 0; number < plan_.volumes.size(); ++number) {
      if (!write(isText ? people.volume(number) : volumeRows(number))) return;
    }
    write(isText ? people.end() : endRows());
  }

 private:
  std::string volumeRows(std::size_t number) const {
    const PlanPlaces& places = finder_.places();
    const FetchPlan::Volume& volume = plan_.volumes[number];
    const FolderTree::Volume& place = places.folders.volumes()[volume.volume];
    const std::string listing = places.listings[place.listing].toStdString();
    const auto order = static_cast<std::int64_t>(number) + 1;
    std::string text;
    TableRow row(format_, cells_, text);
    row.add("kind", "volume").add("order", order).add("volume", place.name).add("listing", listing);
    row.add("top", places.tops[volume.volume]).add("files", volume.sum.files).add("size", volume.sum.bytes);
    row.end(false);
    for (const FetchPlan::File& file : volume.files) {
      TableRow line(format_, cells_, text);
      line.add("kind", "file").add("order", order).add("volume", place.name);
      line.add("folder", places.folders.path(file.copy.folder)).add("name", file.copy.name);
      const std::int64_t size = finder_.files()[file.file].size;
      if (size >= 0) line.add("size", size);
      line.add("listing", listing).end(false);
    }
    return text;
  }

  std::string endRows() const {
    std::string text;
    for (const std::uint32_t number : plan_.missing) {
      const WantedFile& file = finder_.files()[number];
      TableRow row(format_, cells_, text);
      row.add("kind", "missing").add("name", file.name);
      if (file.size >= 0) row.add("size", file.size);
      row.end(false);
    }
    TableRow row(format_, cells_, text);
    row.add("kind", "sum").add("volumes", static_cast<std::int64_t>(plan_.volumes.size()));
    row.add("files", plan_.sum.files).add("size", plan_.sum.bytes);
    row.add("missing", static_cast<std::int64_t>(plan_.missing.size())).startCell("fewest");
    text += plan_.isFewest ? "true" : "false";
    row.end(false);
    return text;
  }

  std::string shown(std::string_view name) const {
    std::string text;
    cells_.add(text, name);
    return text;
  }

  const FetchPlan& plan_;
  const FetchFinder& finder_;
  TableFormat format_;
  const QLocale& locale_;
  CellForm cells_;
};

class Planner {
 public:
  explicit Planner(const PlanRequest& request)
      : request_(request), progress_(!request.isQuiet, SearchProgress::Shows::Searched), finder_(parts()) {}

  int run() {
    try {
      if (request_.listings.empty() && !loadSourcesToSearch(state_, locale_, messages_)) return 2;
      watchStopSignal();
      if (find()) write();
    } catch (const RuntimeFault& fault) {
      hasFailed_ = true;
      printError(fault.description());
    }
    progress_.line().clear();
    if (!hasFailed_ && !stopSignalled()) report();
    return status();
  }

 private:
  FetchFinder::Parts parts() {
    FetchFinder::Parts parts{state_, messages_, locale_};
    parts.display = progress_.line().isOnTerminal() ? &progress_ : nullptr;
    parts.endRequested = stopSignalled;
    parts.streamAt = listingStreamAt;
    parts.useCache = request_.useCache;
    return parts;
  }

  bool find() {
    if (!request_.isList()) {
      return finder_.find(FetchFinder::Words{request_.searchText, request_.desiredMatch}, request_.listings);
    }
    StreamReader input = StreamReader::standardInput(stopSignalled);
    readWantedList([&input](std::span<char> buffer) { return input.read(buffer); }, finder_.wanted());
    return !stopSignalled() && finder_.find(std::nullopt, request_.listings);
  }

  void write() {
    progress_.line().clear();
    hasPlan_ = !finder_.plan().volumes.empty();
    FileWriter output(STDOUT_FILENO, Texts::tr("standard output"));
    const PlanWriter::Write writePiece = [&output](const std::string& piece) {
      output.write(piece);
      return !stopSignalled();
    };
    if (!request_.scriptFolder) {
      PlanWriter(finder_, request_.format, ::isatty(STDOUT_FILENO) == 1, locale_).write(writePiece);
    } else if (hasPlan_) {
      writePlanScript(finder_, QDir::current().absoluteFilePath(*request_.scriptFolder), locale_, writePiece);
    }
    output.flush();
  }

  void report() const {
    if (request_.scriptFolder && !hasPlan_) printError(Texts::tr("there is nothing to copy, so no script"));
    // Text says it all itself, where there is anything to say.
    const bool isSaid = !request_.scriptFolder && request_.format == TableFormat::Text;
    if (request_.isQuiet || (isSaid && !finder_.files().empty())) return;
    if (!isSaid) reportMissing();
    for (const QString& line : planSumLines(finder_.plan(), locale_)) printErrorLog(line);
  }

  void reportMissing() const {
    for (const std::uint32_t file : finder_.plan().missing) {
      printErrorLog(Texts::tr("Not found: %1").arg(missingFileText(finder_.files()[file], locale_)));
    }
  }

  int status() const {
    if (hasFailed_) return 2;
    if (stopSignalled()) return stopStatus();
    if (finder_.failedListings() > 0) return 2;
    return hasPlan_ ? 0 : 1;
  }

  const PlanRequest& request_;
  QLocale locale_;
  ProgramState state_;
  ErrorLines messages_;
  SearchProgress progress_;
  FetchFinder finder_;
  bool hasPlan_ = false;
  bool hasFailed_ = false;
};

}  // namespace

int runPlan(const PlanRequest& request) {
  const QString complaint = complaintAbout(request);
  if (complaint.isEmpty()) return Planner(request).run();
  printError(complaint);
  return 2;
}

}  // namespace quorvin
