// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/import/list_import.h"

#include "platform/text_encoding.h"

#include <algorithm>
#include <utility>

namespace quorvin {

namespace {

constexpr std::size_t kLinesToRecogniseBy = 200;
constexpr std::int64_t kLinesBetweenProgress = 2000;
constexpr qsizetype kLongestShownLine = 200;

/// Makes what EntrySorter takes of the paths of a list.
class PathTaker {
 public:
  PathTaker(EntrySorter& sorter, const QString& folder) : sorter_(sorter) {
    addNames(encodeSystemText(folder).toStdString(), top_);
  }

  void take(const ListEntry& entry) {
    path_.clear();
    if (!entry.path.starts_with('/')) path_ = top_;
    addNames(entry.path, path_);
    const std::size_t before = path_.rfind('\0');
    const bool isTop = path_.empty();
    const std::string_view whole = path_;
    const std::string_view folder =
        before == std::string::npos ? std::string_view() : whole.substr(0, before);
    if (!isTop) {
      addFoldersTo(folder);
      const std::string_view name = before == std::string::npos ? whole : whole.substr(before + 1);
      sorter_.add({folder, name, entry.kind, entry.size, entry.modified});
    }
    if (entry.kind == EntryKind::Folder) sorter_.add({whole, {}, EntryKind::Folder});
  }

 private:
  /// Adds the names of `path` to those in `names`, without empty ones and ".", and with ".." leading back.
  static void addNames(std::string_view path, std::string& names) {
    while (!path.empty()) {
      const std::string_view name = path.substr(0, path.find('/'));
      path.remove_prefix(std::min(name.size() + 1, path.size()));
      if (name.empty() || name == ".") continue;
      if (name == "..") {
        const std::size_t last = names.rfind('\0');
        names.resize(last == std::string::npos ? 0 : last);
        continue;
      }
      if (!names.empty()) names += '\0';
      // A NUL can only have come out of an escape.
      for (const char byte : name) names += byte == '\0' ? '\n' : byte;
    }
  }

  /// The folders on the way, which the list need not name, unless the last entry was on the same way.
  void addFoldersTo(std::string_view folder) {
    if (folder == last_) return;
    std::size_t start = 0;
    while (start < folder.size()) {
      const std::size_t end = std::min(folder.find('\0', start), folder.size());
      const bool isOnLastWay = std::string_view(last_).substr(0, end) == folder.substr(0, end) &&
                               (last_.size() == end || (last_.size() > end && last_[end] == '\0'));
      if (!isOnLastWay) {
        sorter_.add({folder.substr(0, start == 0 ? 0 : start - 1), folder.substr(start, end - start),
                     EntryKind::Folder});
      }
      start = end + 1;
    }
    last_ = folder;
  }

  EntrySorter& sorter_;
  std::string top_;
  std::string path_;
  std::string last_;
};

/// Which order the dates of a list have, as far as they say.
class OrderTold {
 public:
  void note(const ListDate& date) {
    if (!date.evidence) return;
    (*date.evidence == DayMonthOrder::DayFirst ? dayFirst_ : monthFirst_) = true;
  }
  /// Nothing where there is none, or for both.
  std::optional<DayMonthOrder> order() const {
    if (dayFirst_ == monthFirst_) return std::nullopt;
    return dayFirst_ ? DayMonthOrder::DayFirst : DayMonthOrder::MonthFirst;
  }

 private:
  bool dayFirst_ = false;
  bool monthFirst_ = false;
};

void noteNotUnderstood(ImportReport& report, std::string_view line) {
  ++report.notUnderstood;
  if (report.firstNotUnderstood.size() == ImportReport::kFirstLines) return;
  report.firstNotUnderstood.push_back(
      {report.lines, textOfUtf8(line.substr(0, kLongestShownLine * 4)).left(kLongestShownLine)});
}

const ListFormat* formatOfLines(const ListLines& lines, const ImportRequest& request) {
  if (request.format) return request.format;
  return recognisedFormat(lines.firstLines(kLinesToRecogniseBy), request.options);
}

}  // namespace

const ListFormat* formatOfList(const ListLines::Read& read, const ImportRequest& request) {
  return formatOfLines(ListLines(read, request.encoding), request);
}

ImportReport importList(const ListLines::Read& read, const ImportRequest& request, const QLocale& locale,
                        const QString& place, FileWriter& listing, const ImportProgress& progress) {
  ImportReport report;
  ListLines lines(read, request.encoding);
  report.format = formatOfLines(lines, request);
  if (!report.format) return report;

  const std::unique_ptr<ListReader> reader = report.format->makeReader(request.options);
  EntrySorter sorter(place, request.memory);
  PathTaker paths(sorter, request.folder);
  OrderTold evidence;
  ListEntry entry;
  std::string_view line;
  while (lines.next(line)) {
    ++report.lines;
    if (report.lines % kLinesBetweenProgress == 0 && !progress(report.lines)) {
      report.isStopped = true;
      return report;
    }
    if (!isUtf8AsItStands({line.data(), static_cast<qsizetype>(line.size())})) ++report.noText;
    const LineSays says = reader->read(line, entry);
    if (says == LineSays::NotUnderstood) noteNotUnderstood(report, line);
    if (says != LineSays::Entry && says != LineSays::DoubtfulEntry) continue;
    evidence.note(entry.modified);
    paths.take(entry);
  }
  report.decided = textOfUtf8(reader->decided());

  sorter.finish();
  ImportedListing made(listing, request.label, locale, request.order ? request.order : evidence.order());
  SortedEntry sorted;
  std::int64_t written = 0;
  while (sorter.next(sorted)) {
    made.add(sorted);
    if (++written % kLinesBetweenProgress == 0 && !progress(report.lines)) {
      report.isStopped = true;
      return report;
    }
  }
  made.finish();
  report.counts = made.counts();
  return report;
}

}  // namespace quorvin
