// SPDX-License-Identifier: GPL-2.0-or-later

// "verify": which files do not hold any more what they held.
#include "catalogue/checksums/verification.h"
#include "catalogue/compared_place.h"
#include "catalogue/sum_texts.h"
#include "console/commands.h"
#include "console/error_lines.h"
#include "console/json_text.h"
#include "console/progress_line.h"
#include "console/row_cells.h"
#include "faults/runtime_fault.h"
#include "files/file_lookup.h"
#include "files/file_writer.h"
#include "platform/stop_signal.h"
#include "state/settings.h"
#include "texts/texts.h"

#include <QLocale>

#include <chrono>
#include <unistd.h>

namespace quorvin {

namespace {

std::string_view signOf(FileVerdict verdict) {
  switch (verdict) {
    case FileVerdict::Rotten:
      return "! ";
    case FileVerdict::Lost:
      return "- ";
    case FileVerdict::Changed:
      return "* ";
    case FileVerdict::Added:
      return "+ ";
    case FileVerdict::Unread:
      return "? ";
    case FileVerdict::Fine:
      break;
  }
  return "";
}

/// The own folder of this description, else a listing of this path.
Verification::Parts placesOf(const VerifyRequest& request, const ProgramState& state) {
  Verification::Parts parts;
  parts.listing = request.listing;
  parts.folder = request.folder.isEmpty() ? QString() : pathFromTop(request.folder);
  if (fileExists(request.listing)) return parts;
  for (const ComparedSource& source : comparedSources(state)) {
    if (source.title != request.listing) continue;
    parts.listing = source.listing;
    if (parts.folder.isEmpty()) parts.folder = source.folder;
  }
  return parts;
}

/// How long what is left may take, by what has been read so far.
class TimeLeft {
 public:
  QString text(const Verification::Progress& progress, const QLocale& locale) const {
    using Seconds = std::chrono::duration<double>;
    const double passed = Seconds(std::chrono::steady_clock::now() - start_).count();
    // The first second says little.
    if (passed < 1 || progress.bytes == 0) return {};
    const double left = passed * static_cast<double>(progress.bytesAll - progress.bytes) /
                        static_cast<double>(progress.bytes);
    const auto minutes = static_cast<qlonglong>(left / 60);
    if (minutes < 1) return Texts::tr("less than a minute left");
    return Texts::tr("%1 minutes left", nullptr, Texts::plural(minutes)).arg(locale.toString(minutes));
  }

 private:
  std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

class Verifying {
 public:
  explicit Verifying(const VerifyRequest& request) : request_(request), line_(!request.isQuiet) {}

  /// The exit status. Throws RuntimeFault.
  int run() {
    ErrorLines messages;
    ProgramState state;
    loadUserSources(state, locale_, messages);
    watchStopSignal();
    Verification::Parts parts = placesOf(request_, state);
    parts.locale = locale_;
    parts.beginsAgain = request_.beginsAgain;
    parts.stop = stopSignalled;
    parts.progress = [this](const Verification::Progress& progress) { show(progress); };
    Verification verification(std::move(parts));
    const bool isDone = verification.run();
    line_.clear();
    if (!isDone) {
      if (!request_.isQuiet) {
        printErrorLog(Texts::tr("Stopped. The next verification of these checksums goes on here."));
      }
      return stopStatus();
    }
    write(verification);
    if (!request_.isQuiet) report(verification);
    if (verification.count(FileVerdict::Unread) > 0 || verification.notUnderstood() > 0) return 2;
    return verification.findings().empty() ? 0 : 1;
  }

 private:
  void show(const Verification::Progress& progress) {
    if (!line_.isDue()) return;
    QString text =
        Texts::tr("%1 of %2 files, %3 of %4")
            .arg(locale_.toString(qlonglong{progress.files}), locale_.toString(qlonglong{progress.filesAll}),
                 sizeText(progress.bytes, locale_), sizeText(progress.bytesAll, locale_));
    const QString left = timeLeft_.text(progress, locale_);
    if (!left.isEmpty()) text += QStringLiteral(", ") + left;
    line_.show(text);
  }

  void write(const Verification& verification) const {
    FileWriter output(STDOUT_FILENO, Texts::tr("standard output"));
    const CellForm cells(CellRule::Blanks, ::isatty(STDOUT_FILENO) == 1);
    for (const FileFinding& finding : verification.findings()) {
      output.write(request_.isJson ? jsonOf(finding) : lineOf(finding, cells));
    }
    output.flush();
  }

  static std::string lineOf(const FileFinding& finding, const CellForm& cells) {
    std::string line(signOf(finding.verdict));
    cells.add(line, finding.path);
    if (!finding.why.isEmpty()) {
      line += ": ";
      cells.add(line, finding.why.toStdString());
    }
    return line + '\n';
  }

  static std::string jsonOf(const FileFinding& finding) {
    const std::string_view word = wordOf(finding.verdict);
    JsonLine line;
    line.add("kind", QString::fromLatin1(word.data(), static_cast<qsizetype>(word.size())));
    line.add("path", QString::fromStdString(finding.path));
    if (!finding.why.isEmpty()) line.add("why", finding.why);
    return line.text();
  }

  void report(const Verification& verification) const {
    const auto count = [&](FileVerdict verdict) {
      return locale_.toString(qlonglong{verification.count(verdict)});
    };
    if (verification.filesBefore() > 0) {
      printErrorLog(
          Texts::tr("Of these, %1 files were read before it was stopped. --restart reads them again.")
              .arg(locale_.toString(qlonglong{verification.filesBefore()})));
    }
    if (!verification.isOfListing()) {
      printErrorLog(
          Texts::tr("The listing was made after the checksums, so it does not tell rot from change; "
                    "quorvin-cli index --checksums renews both."));
    }
    if (verification.notUnderstood() > 0) {
      printErrorLog(Texts::tr("Lines of the checksums that were not understood: %1")
                        .arg(locale_.toString(qlonglong{verification.notUnderstood()})));
    }
    printErrorLog(Texts::tr("As they were: %1. Rotten: %2. Lost: %3. Changed: %4. Added: %5. Not read: %6")
                      .arg(count(FileVerdict::Fine), count(FileVerdict::Rotten), count(FileVerdict::Lost),
                           count(FileVerdict::Changed), count(FileVerdict::Added),
                           count(FileVerdict::Unread)));
  }

  const VerifyRequest& request_;
  QLocale locale_;
  ProgressLine line_;
  TimeLeft timeLeft_;
};

}  // namespace

int runVerify(const VerifyRequest& request) {
  try {
    return Verifying(request).run();
  } catch (const RuntimeFault& fault) {
    printError(fault.description());
    return 2;
  }
}

}  // namespace quorvin
