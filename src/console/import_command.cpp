// SPDX-License-Identifier: GPL-2.0-or-later

// "import": the command that turns lists of other programs into listings.
#include "catalogue/import/list_dates.h"
#include "catalogue/import/list_importer.h"
#include "console/commands.h"
#include "console/error_lines.h"
#include "console/progress_line.h"
#include "faults/runtime_fault.h"
#include "platform/stop_signal.h"
#include "state/program_state.h"
#include "state/settings.h"
#include "texts/texts.h"

namespace quorvin {

namespace {

RuntimeFault refusal(const QString& sentence) {
  return RuntimeFault(FaultNumber::InvalidProcedureCall, sentence);
}

const ListFormat* formatOf(const ImportCommand& command) {
  std::string name = command.format.toStdString();
  if (name.empty() && !command.pattern.isEmpty()) name = "find-printf";
  if (name.empty() && !command.columns.isEmpty()) name = "csv";
  if (name.empty()) return nullptr;
  const ListFormat* format = listFormatNamed(name);
  if (format) return format;
  throw refusal(
      Texts::tr("there is no format \"%1\"; the formats are %2").arg(command.format, listFormatNames()));
}

std::optional<DayMonthOrder> orderOfDates(const QString& text) {
  if (text.isEmpty()) return std::nullopt;
  if (text == QStringLiteral("dmy")) return DayMonthOrder::DayFirst;
  if (text == QStringLiteral("mdy")) return DayMonthOrder::MonthFirst;
  throw refusal(Texts::tr("the value of --dates is dmy or mdy, not \"%1\"").arg(text));
}

QString encodingNames() {
  QStringList names;
  for (const std::string_view name : listEncodings()) {
    names += QString::fromLatin1(name.data(), static_cast<qsizetype>(name.size()));
  }
  return names.join(QStringLiteral(", "));
}

std::string encodingOf(const QString& text) {
  if (text.isEmpty()) return "utf-8";
  const std::string name = text.toLower().toStdString();
  if (isListEncoding(name)) return name;
  throw refusal(Texts::tr("there is no encoding \"%1\"; the encodings are %2").arg(text, encodingNames()));
}

ImportControls optionNames() {
  return {QStringLiteral("--format"), QStringLiteral("--dates"), QStringLiteral("--encoding"),
          QStringLiteral("--made")};
}

ImportRequest requestOf(const ImportCommand& command) {
  ImportRequest request;
  request.format = formatOf(command);
  request.options = {command.pattern.toStdString(), command.columns.toStdString(),
                     dayOfList(command.made, optionNames()), command.areSizesBytes};
  request.encoding = encodingOf(command.encoding);
  request.folder = command.folder;
  request.order = orderOfDates(command.dates);
  return request;
}

ImportChoices choicesOf(const ImportCommand& command) {
  ProgramState state;
  ErrorLines messages;
  loadUserSources(state, QLocale(), messages);
  return {requestOf(command), command.output,    command.label,
          command.replaces,   state.LocalFolder, ownFileCheck(state)};
}

void printIndented(const QString& indent, const QStringList& lines) {
  for (const QString& line : lines) printErrorLog(indent + line + QStringLiteral("\r\n"));
}

/// The import of all lists that a command names.
class Importing {
 public:
  explicit Importing(const ImportCommand& command)
      : command_(command),
        importer_(choicesOf(command), optionNames(), stopSignalled),
        line_(!command.isQuiet) {}

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
      return importList(list);
    } catch (const RuntimeFault& fault) {
      line_.clear();
      printError(fault.description());
      return false;
    }
  }

  bool importList(const QString& list) {
    if (list == QStringLiteral("-") && command_.label.isEmpty()) {
      throw refusal(Texts::tr("a list from standard input needs --label, the name of its volume"));
    }
    const ImportedList made = importer_.import(list, [&](std::int64_t lines) {
      if (line_.isDue()) line_.show(importProgressText(list, lines));
    });
    line_.clear();
    if (made.report.isStopped) return false;
    printReport(list, made);
    return made.isWhole();
  }

  void printReport(const QString& list, const ImportedList& made) const {
    const QString indent = QStringLiteral("  ");
    if (!command_.isQuiet) {
      printErrorLog(importSummary(list, made.place, made.report) + QStringLiteral("\r\n"));
      printIndented(indent, importRemarks(made.report));
    }
    printIndented(indent, importLosses(made.report, optionNames()));
    printIndented(indent + indent, linesNotUnderstood(made.report));
  }

  const ImportCommand& command_;
  const ListImporter importer_;
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
