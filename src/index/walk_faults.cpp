// SPDX-License-Identifier: GPL-2.0-or-later
#include "index/walk_faults.h"

#include "index/listed_name.h"
#include "platform/text_encoding.h"
#include "texts/texts.h"

#include <cerrno>

namespace quorvin {

namespace {

QString textOf(std::string_view name) {
  return textOfUtf8(listedText(name));
}

}  // namespace

void throwIfExhausted(int errorNumber, const QString& path) {
  if (errorNumber != EMFILE && errorNumber != ENFILE && errorNumber != ENOMEM) return;
  throw RuntimeFault(FaultNumber::PathFileAccess,
                     describe(FaultNumber::PathFileAccess) + QStringLiteral(": ") + path +
                         (errorNumber == ENOMEM ? u' ' + Texts::tr("(there is not enough memory)")
                                                : u' ' + Texts::tr("(too many files are open)")));
}

FaultNumber WalkFaults::faultOfError(int errorNumber) const {
  throwIfExhausted(errorNumber, folder());
  switch (const FaultNumber number = faultOfSystemError(errorNumber, {}).faultNumber()) {
    case FaultNumber::PermissionDenied:
      return FaultNumber::PathFileAccess;
    case FaultNumber::PathNotFound:
      return FaultNumber::FileNotFound;
    default:
      return number;
  }
}

QString WalkFaults::folder() const {
  return textOfUtf8(lineText(folderPath_));
}

void WalkFaults::note(std::string_view name, const QString& what) {
  state_.errorLog += folder() + textOf(name) + what + QStringLiteral("\r\n");
}

void WalkFaults::noteMark(std::string_view name, std::string_view mark) {
  if (mark.empty()) return;
  note(name, u' ' + Texts::tr("holds \"%1\"; a search misreads its line").arg(textOfUtf8(mark)));
}

std::optional<Step> WalkFaults::stepAfter(FaultNumber number, std::string_view name) {
  if (number == FaultNumber::FileNotFound) {
    if (!inFilePass_) note(name, u' ' + Texts::tr("File not found (invalid name)"));
    return Step::Skipped;
  }
  // A question that names nothing would help nobody.
  if (number != FaultNumber::PathFileAccess) return ask(number, name.empty() ? folder() : textOf(name));
  noteAccessError(name);
  return Step::Skipped;
}

// The line itself holds a name alone, so the folder of a file is named in a line above.
void WalkFaults::noteAccessError(std::string_view name) {
  const bool goesOn = state_.errorLog.size() == endOfAccessErrors_ && folderOfAccessErrors_ == folderPath_;
  if (!name.empty() && !goesOn) state_.errorLog += Texts::tr("In %1:").arg(folder()) + QStringLiteral("\r\n");
  state_.errorLog += (name.empty() ? folder() : textOf(name)) + u' ' +
                     Texts::tr("Access Error (invalid name or permission)") + QStringLiteral("\r\n");
  if (name.empty()) return;
  folderOfAccessErrors_ = folderPath_;
  endOfAccessErrors_ = state_.errorLog.size();
}

Step WalkFaults::reportFull(std::string_view first, FullTable kind, std::size_t leftOut, std::size_t all) {
  const QString sentence = kind == FullTable::Files ? Texts::tr("Left out: %1 of %2 files in %3")
                                                    : Texts::tr("Left out: %1 of %2 sub-folders in %3");
  const QString remark =
      QStringLiteral("\r\n") + sentence.arg(QString::number(leftOut), QString::number(all), folder());
  for (;;) {
    const std::optional<Step> step = ask(FaultNumber::SubscriptOutOfRange, textOf(first), remark);
    if (step) return *step;
  }
}

std::optional<Step> WalkFaults::ask(FaultNumber number, const QString& subject, const QString& remark) {
  const QString text = Texts::tr("Error Number: %1 %2\r\nError reading:%3 Skipping.")
                           .arg(QString::number(static_cast<int>(number)), describe(number), subject) +
                       remark;
  const FaultAnswer answer = messages_.askAbortRetryIgnore(text);
  folders_.forgetAhead();
  switch (answer) {
    case FaultAnswer::Retry:
      return std::nullopt;
    case FaultAnswer::Ignore:
      return Step::Skipped;
    case FaultAnswer::Abort:
      return Step::LeaveFolder;
    case FaultAnswer::Closed:
      break;
  }
  job_.requestStop();
  return Step::LeaveFolder;
}

}  // namespace quorvin
