// SPDX-License-Identifier: GPL-2.0-or-later

// A web update whose server answers anything. An input is a byte, whose bits say whether the user wants the
// update and how large the parts are in which the answer comes, the headers, an empty line, and the document.
#include "faults/runtime_fault.h"
#include "fuzz/require.h"
#include "support/recording_message_boxes.h"
#include "support/recording_work_display.h"
#include "support/temporary_folder.h"
#include "update/web_update.h"
#include "update/web_update_server.h"
#include "work/work.h"

#include <QMap>
#include <QRegularExpression>

#include <cstdint>
#include <limits>
#include <optional>

namespace quorvin::fuzz {
namespace {

struct WebAnswer {
  QMap<QString, QString> headers;
  QByteArray document;
};

WebAnswer answerOf(QByteArray bytes) {
  WebAnswer answer;
  while (!bytes.isEmpty()) {
    const qsizetype end = bytes.indexOf('\n');
    QByteArray line = end < 0 ? bytes : bytes.first(end);
    bytes = end < 0 ? QByteArray() : bytes.sliced(end + 1);
    if (line.endsWith('\r')) line.chop(1);
    if (line.isEmpty()) break;
    const qsizetype colon = line.indexOf(':');
    const QByteArray name = colon < 0 ? line : line.first(colon);
    const QByteArray value = colon < 0 ? QByteArray() : line.sliced(colon + 1);
    answer.headers[QString::fromLatin1(name)] =
        QString::fromLatin1(value.startsWith(' ') ? value.sliced(1) : value);
  }
  answer.document = bytes;
  return answer;
}

/// The same answer to every request.
class SameAnswer : public HttpTransfer {
 public:
  SameAnswer(const WebAnswer& answer, bool isSlow) : answer_(answer), isSlow_(isSlow) {}

  void execute(const QUrl&) override {
    place_ = 0;
    polls_ = 0;
  }
  bool stillExecuting() const override { return isSlow_ && polls_++ < 2; }
  QString header(const QString& name) const override {
    return answer_.headers.value(name.endsWith(u':') ? name.chopped(1) : name);
  }
  bool chunkIsReady(qsizetype) const override { return !isSlow_ || polls_++ % 3 == 0; }
  QByteArray chunk(qsizetype size) override {
    const QByteArray bytes = answer_.document.mid(place_, size);
    place_ += bytes.size();
    return bytes;
  }
  void cancel() override {}

 private:
  const WebAnswer& answer_;
  bool isSlow_;
  qsizetype place_ = 0;
  mutable int polls_ = 0;
};

constexpr const char* kArchive = "main.zip";

/// What the two headers mean; nothing where one of them cannot be read.
struct Announced {
  DateValue date;
  std::int32_t size;
};

std::optional<std::int32_t> plainSize(const QString& length) {
  static const QRegularExpression digits(QStringLiteral("^[0-9]+$"));
  const QString text = length.trimmed();
  if (!digits.match(text).hasMatch() || text.contains(u'\n')) return std::nullopt;
  bool fits = false;
  const int size = text.toInt(&fits);
  return fits ? std::optional(size) : std::nullopt;
}

std::optional<Announced> announced(const WebAnswer& answer) {
  const QString modified = answer.headers.value(QStringLiteral("Last-Modified"));
  const QString length = answer.headers.value(QStringLiteral("Content-Length"));
  Announced announced{};
  bool isDate = false;
  try {
    announced.date = serverDateOf(modified, QLocale::c());
    isDate = true;
    const std::optional<DateValue> plain =
        readGeneralDate(modified.mid(5, modified.size() - 9), QLocale::c());
    require(plain == announced.date, "the date lies between the name of the day and the zone");
  } catch (const RuntimeFault& fault) {
    require(fault.number() == (modified.size() < 9 ? 5 : 13), "a date is too short, or none");
  }
  bool isSize = false;
  try {
    announced.size = remoteSizeOf(length);
    isSize = true;
  } catch (const RuntimeFault& fault) {
    require(fault.number() == 6 || fault.number() == 13, "a size is too large, or none");
  }
  require(isSize == plainSize(length).has_value(), "a size is digits alone");
  require(!isSize || plainSize(length) == announced.size, "a size is what its digits say");
  return isDate && isSize ? std::optional(announced) : std::nullopt;
}

void check(const WebAnswer& answer, bool isWanted, bool isSlow) {
  const TemporaryFolder folder;
  ProgramState state;
  state.LocalFolder = folder.path();
  state.WebServer = QStringLiteral("lists.example.org");
  state.ArchiveFile = QString::fromLatin1(kArchive);
  test::RecordingWorkDisplay display;
  Work work(state, display);
  RecordingMessageBoxes boxes;
  boxes.answers = {isWanted};
  SameAnswer web(answer, isSlow);
  bool isEnabled = true;
  work.run(JobKind::Update, [&](Job& job) {
    WebUpdate(state, job, boxes, web, QLocale::c(), [&isEnabled](bool enabled) { isEnabled = enabled; }, {})
        .WebUpdate_Click();
  });
  const std::optional<Announced> expected = announced(answer);
  require(isEnabled, "the command can be used again");
  require(!display.pointerIsBusy, "the pointer says no longer that something goes on");
  require(boxes.asked.size() <= 1, "the user is asked once");
  const bool isAsked = !boxes.asked.empty();
  // There is no copy yet, and so everything is newer that is not from before there were any.
  constexpr DateValue kLaterThanNoCopy = 29222;
  require(!isAsked || expected, "nothing is offered whose headers make no sense");
  require(isAsked || !expected || expected->date < kLaterThanNoCopy, "what is newer is offered");
  if (!isAsked || !isWanted) {
    require(folder.names().isEmpty(), "nothing is kept that nobody wanted");
    return;
  }
  require(folder.has(state.ArchiveFile), "what was wanted is kept");
  const QByteArray kept = folder.readFile(state.ArchiveFile);
  require(answer.document.startsWith(kept), "what is kept is what was sent");
  const bool isWhole = kept.size() == answer.document.size();
  require(isWhole || !boxes.informed.empty(), "what is kept in part is reported");
  const bool countsAsNew = modifiedInUtc(folder.pathOf(state.ArchiveFile)) > kLaterThanNoCopy;
  require(countsAsNew == boxes.informed.empty(), "what was not unpacked whole does not count as new");
}

}  // namespace
}  // namespace quorvin::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quorvin::fuzz;
  if (size == 0) return 0;
  const QByteArray bytes(reinterpret_cast<const char*>(data) + 1, static_cast<qsizetype>(size) - 1);
  check(answerOf(bytes), (data[0] & 1) != 0, (data[0] & 2) != 0);
  return 0;
}
