#include "index/walk_faults.h"

#include "index/listed_name.h"
#include "platform/text_encoding.h"

namespace quorvin {
namespace {

QString textOf(std::string_view name) {
  return textOfUtf8(listedText(name));
}

}  // namespace

FaultNumber faultOfError(int errorNumber) {
  switch (const FaultNumber number = faultOfSystemError(errorNumber, {}).faultNumber()) {
    case FaultNumber::PermissionDenied:
      return FaultNumber::PathFileAccess;
    case FaultNumber::PathNotFound:
      return FaultNumber::FileNotFound;
    default:
      return number;
  }
}

void WalkFaults::note(std::string_view name, const QString& what) {
  state_.errorLog += textOfUtf8(lineText(folderPath_)) + textOf(name) + what + QStringLiteral("\r\n");
}

void WalkFaults::noteMark(std::string_view name, std::string_view mark) {
  if (mark.empty()) return;
  note(name, QStringLiteral(" holds \"%1\"; a search misreads its line").arg(textOfUtf8(mark)));
}

std::optional<Step> WalkFaults::stepAfter(FaultNumber number, std::string_view name) {
  if (number == FaultNumber::FileNotFound) {
    if (!inFilePass_) note(name, QStringLiteral(" File not found (invalid name)"));
    return Step::Skipped;
  }
  // A line or a question that names nothing would help nobody.
  const QString subject = name.empty() ? textOfUtf8(lineText(folderPath_)) : textOf(name);
  if (number != FaultNumber::PathFileAccess) return ask(number, subject);
  state_.errorLog += subject + QStringLiteral(" Access Error (invalid name or permission)\r\n");
  return Step::Skipped;
}

std::optional<Step> WalkFaults::ask(FaultNumber number, const QString& subject) {
  const QString text = QStringLiteral("Error Number: %1 ").arg(static_cast<int>(number)) + describe(number) +
                       QStringLiteral("\r\nError reading:") + subject + QStringLiteral(" Skipping.");
  switch (messages_.askAbortRetryIgnore(text)) {
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
