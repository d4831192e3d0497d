// "import": the command that turns lists of other programs into listings.
#include "catalogue/list_dates.h"
#include "catalogue/list_import.h"
#include "console/commands.h"
#include "console/error_lines.h"
#include "console/progress_line.h"
#include "faults/runtime_fault.h"
#include "files/file_aside.h"
#include "files/file_reader.h"
#include "files/stream_reader.h"
#include "platform/stop_signal.h"
#include "texts/texts.h"

#include <QDate>
#include <QFileInfo>
#include <QLocale>

#include <memory>

namespace quorvin {

namespace {

RuntimeFault refusal(const QString& sentence) {
  return RuntimeFault(FaultNumber::InvalidProcedureCall, sentence);
}

QString formatNames() {
  QStringList names;
  for (const ListFormat& format : listFormats()) {
    names += QString::fromLatin1(format.name.data(), static_cast<qsizetype>(format.name.size()));
  }
  return names.join(QStringLiteral(", "));
}

const ListFormat* formatOf(const ImportCommand& command) {
  std::string name = command.format.toStdString();
  if (name.empty() && !command.pattern.isEmpty()) name = "find-printf";
  if (name.empty() && !command.columns.isEmpty()) name = "csv";
  if (name.empty()) return nullptr;
  const ListFormat* format = listFormatNamed(name);
  if (format) return format;
  throw refusal(
      Texts::tr("there is no format \"%1\"; the formats are %2").arg(command.format, formatNames()));
}

std::optional<DayMonthOrder> orderOfDates(const QString& text) {
  if (text.isEmpty()) return std::nullopt;
  if (text == QStringLiteral("dmy")) return DayMonthOrder::DayFirst;
  if (text == QStringLiteral("mdy")) return DayMonthOrder::MonthFirst;
  throw refusal(Texts::tr("the value of --dates is dmy or mdy, not \"%1\"").arg(text));
}

std::optional<std::int64_t> dayMade(const QString& text) {
  if (text.isEmpty()) return std::nullopt;
  const QDate date = QDate::fromString(text, Qt::ISODate);
  const auto day = wallClockDay(date.year(), date.month(), date.day());
  if (date.isValid() && day) return day;
  throw refusal(Texts::tr("the value of --made is a day such as 2004-01-15, not \"%1\"").arg(text));
}

std::string encodingOf(const QString& text) {
  if (text.isEmpty()) return "utf-8";
  const std::string name = text.toLower().toStdString();
  if (isListEncoding(name)) return name;
  throw refusal(Texts::tr("there is no encoding \"%1\"; the encodings are %2")
                    .arg(text, QStringLiteral("utf-8, windows-1252, cp437, cp850, cp852")));
}

ImportRequest requestOf(const ImportCommand& command) {
  ImportRequest request;
  request.format = formatOf(command);
  request.options = {command.pattern.toStdString(), command.columns.toStdString(), dayMade(command.made),
                     command.areSizesBytes};
  request.encoding = encodingOf(command.encoding);
  request.folder = command.folder;
  request.order = orderOfDates(command.dates);
  return request;
}

/// The bytes of a file, or of what can be read only once.
class ListBytes {
 public:
  explicit ListBytes(const QString& path) {
    if (path == QStringLiteral("-")) {
      stream_ = std::make_unique<StreamReader>(StreamReader::standardInput(stopSignalled));
    } else if (isStream(path)) {
      stream_ = std::make_unique<StreamReader>(path, stopSignalled);
    } else {
      file_ = std::make_unique<SequentialFile>(path);
    }
  }

  ListLines::Read read() {
    return [this](std::span<char> buffer) { return stream_ ? stream_->read(buffer) : file_->read(buffer); };
  }

 private:
  std::unique_ptr<StreamReader> stream_;
  std::unique_ptr<SequentialFile> file_;
};

QString countOf(std::int64_t count) {
  return QLocale().toString(qlonglong{count});
}

/// The import of all lists that a command names.
class Importing {
 public:
  explicit Importing(const ImportCommand& command)
      : command_(command), request_(requestOf(command)), line_(!command.isQuiet) {}

  /// The exit status.
  int run() {
    int status = 0;
    for (const QString& list : command_.lists) {
      if (!importOne(list)) status = 2;
      if (stopSignalled()) return stopStatus();
    }
    return status;
  }

 private:
  /// False where not all of the list is in the listing.
  bool importOne(const QString& list) {
    try {
      return importList(list, placeOf(list));
    } catch (const RuntimeFault& fault) {
      line_.clear();
      printError(fault.description());
      return false;
    }
  }

  QString nameOf(const QString& list) const {
    if (!command_.label.isEmpty()) return command_.label;
    if (list == QStringLiteral("-")) {
      throw refusal(Texts::tr("a list from standard input needs --label, the name of its volume"));
    }
    return QFileInfo(list).completeBaseName();
  }

  /// A listing of that name that is there stays, unless it may be replaced.
  QString placeOf(const QString& list) const {
    QString name = nameOf(list);
    name.replace(u'/', u'_');
    const QFileInfo place(command_.output + u'/' + name + QStringLiteral(".txt"));
    if (!place.exists()) return place.filePath();
    const bool isTheList = place.canonicalFilePath() == QFileInfo(list).canonicalFilePath();
    if (isTheList || !command_.replaces) {
      throw refusal(Texts::tr("%1 is there already; nothing was imported of %2").arg(place.filePath(), list));
    }
    return place.filePath();
  }

  bool importList(const QString& list, const QString& place) {
    ImportRequest request = request_;
    request.label = nameOf(list);
    ListBytes bytes(list);
    removeLeftovers(QFileInfo(place).absolutePath());
    FileAside file(place);
    const ImportReport report =
        quorvin::importList(bytes.read(), request, QLocale(), place, file.writer(), [&](std::int64_t lines) {
          if (line_.isDue()) line_.show(Texts::tr("%1: %2 lines").arg(list, countOf(lines)));
          return !stopSignalled();
        });
    line_.clear();
    if (report.isStopped || stopSignalled()) return false;
    if (!report.format) {
      throw refusal(Texts::tr("%1 is no list of a known format; --format says which of these it has: %2")
                        .arg(list, formatNames()));
    }
    if (report.counts.files == 0 && report.counts.folders == 0) {
      throw refusal(Texts::tr("%1 names no file and no folder; no listing was made").arg(list));
    }
    file.commit();
    printReport(list, place, report);
    return report.notUnderstood == 0 && report.counts.leftOut == 0;
  }

  static QString formatText(const ImportReport& report) {
    const QString name =
        QString::fromLatin1(report.format->name.data(), static_cast<qsizetype>(report.format->name.size()));
    return report.decided.isEmpty() ? name : name + QStringLiteral(" (") + report.decided + u')';
  }

  void note(const QString& text, std::int64_t count) const {
    if (count > 0) printErrorLog(QStringLiteral("  ") + text.arg(countOf(count)) + QStringLiteral("\r\n"));
  }

  void printReport(const QString& list, const QString& place, const ImportReport& report) const {
    const ImportCounts& counts = report.counts;
    if (!command_.isQuiet) {
      printErrorLog(
          Texts::tr("%1: read as %2; %3 has %4 files, %5 folders")
              .arg(list, formatText(report), place, countOf(counts.files), countOf(counts.folders)) +
          QStringLiteral("\r\n"));
      note(Texts::tr("files without an exact size: %1"), counts.withoutSize);
      note(Texts::tr("files without a date: %1"), counts.withoutDate);
    }
    note(Texts::tr("dates in which day and month may have changed places, left out (see --dates): %1"),
         counts.undecidedDates);
    note(Texts::tr("names that came again, of which the last one counts: %1"), counts.repeated);
    note(Texts::tr("names that a listing cannot hold, left out: %1"), counts.leftOut);
    note(Texts::tr("lines whose bytes are no UTF-8 (see --encoding): %1"), report.noText);
    note(Texts::tr("lines that were not understood: %1"), report.notUnderstood);
    for (const ImportReport::Line& line : report.firstNotUnderstood) {
      printErrorLog(QStringLiteral("    ") + Texts::tr("line %1: %2").arg(countOf(line.number), line.text) +
                    QStringLiteral("\r\n"));
    }
  }

  const ImportCommand& command_;
  const ImportRequest request_;
  ProgressLine line_;
};

}  // namespace

int runImport(const ImportCommand& command) {
  watchStopSignal();
  try {
    if (command.output.isEmpty())
      throw refusal(Texts::tr("import needs --output, the folder for the listings"));
    if (!command.label.isEmpty() && command.lists.size() > 1) {
      throw refusal(Texts::tr("--label is for one list at a time"));
    }
    return Importing(command).run();
  } catch (const RuntimeFault& fault) {
    printError(fault.description());
    return 2;
  }
}

}  // namespace quorvin
