// SPDX-License-Identifier: GPL-2.0-or-later

// An update with the window, the message boxes and the web server made up.
#pragma once

#include "faults/runtime_fault.h"
#include "support/qt_printing.h"
#include "support/recording_message_boxes.h"
#include "support/recording_work_display.h"
#include "support/temporary_folder.h"
#include "update/web_update.h"

#include <QDateTime>
#include <QFileInfo>
#include <QMap>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <deque>
#include <functional>
#include <optional>

namespace quorvin::test {

/// What the server says about its archive's last change.
inline const QString kDate = QStringLiteral("15 Nov 2004 10:20:30");

/// What is shown and asked for, in order: "WebUpdate off", "GET http://...", "status ...", "bar 1024".
using UpdateLog = QStringList;

/// An answer of the server.
struct MadeAnswer {
  QMap<QString, QString> headers;
  QByteArray body;
  /// How often it is still executing when asked, and how often a chunk is not there yet.
  int pollsUntilHeaders = 0;
  int pollsUntilChunk = 0;
  /// From this place on no chunk ever comes.
  std::optional<qsizetype> stallsAt;
  /// Instead of headers.
  std::optional<FaultNumber> failure;
  /// Instead of the chunk that begins at this place.
  std::optional<qsizetype> failsAt;
};

class MadeTransfer : public HttpTransfer {
 public:
  explicit MadeTransfer(UpdateLog& log) : log_(log) {}

  void execute(const QUrl& address) override {
    log_ += QStringLiteral("GET ") + address.toString(QUrl::FullyEncoded);
    if (answers.empty()) throw std::logic_error("the test has no answer left");
    answer_ = answers.front();
    answers.pop_front();
    place_ = 0;
  }
  bool stillExecuting() const override { return answer_.pollsUntilHeaders-- > 0; }
  QString header(const QString& name) const override {
    if (answer_.failure) throw RuntimeFault(*answer_.failure);
    log_ += QStringLiteral("header ") + name;
    return answer_.headers.value(name.chopped(1));
  }
  bool chunkIsReady(qsizetype) const override {
    return answer_.stallsAt != place_ && answer_.pollsUntilChunk-- <= 0;
  }
  QByteArray chunk(qsizetype size) override {
    if (answer_.failure) throw RuntimeFault(*answer_.failure);
    if (answer_.failsAt == place_) throw RuntimeFault(FaultNumber::InputPastEnd);
    const QByteArray bytes = answer_.body.mid(place_, size);
    place_ += bytes.size();
    chunkSizes.push_back(size);
    return bytes;
  }
  void cancel() override {
    log_ += QStringLiteral("cancel");
    atCancel();
  }

  std::function<void()> atCancel = [] {};
  std::deque<MadeAnswer> answers;
  std::vector<qsizetype> chunkSizes;

 private:
  UpdateLog& log_;
  mutable MadeAnswer answer_;
  qsizetype place_ = 0;
};

class WebUpdateTest : public testing::Test {
 protected:
  WebUpdateTest() {
    state_.LocalFolder = data_.path();
    state_.WebServer = QStringLiteral("lists.example.org");
    state_.ArchiveFile = QStringLiteral("main.zip");
  }

  /// The server has `body`, modified at `date` ("15 Nov 2004 10:20:30"), and sends it as often as asked.
  void serve(const QString& date, const QByteArray& body) {
    MadeAnswer answer;
    answer.headers = {{QStringLiteral("Last-Modified"), QStringLiteral("Mon, %1 GMT").arg(date)},
                      {QStringLiteral("Content-Length"), QString::number(body.size())}};
    answer.body = body;
    web_.answers = {answer, answer};
  }

  /// `atTheStart` is done when the job has started.
  void click(const std::function<void()>& atTheStart = [] {}) {
    const auto enable = [this](bool enabled) {
      webUpdateEnabled_ = enabled;
      log_ += enabled ? QStringLiteral("WebUpdate on") : QStringLiteral("WebUpdate off");
    };
    const Answer answer = work_.run(JobKind::Update, [&](Job& job) {
      atTheStart();
      WebUpdate(state_, job, boxes_, web_, QLocale::c(), enable, places_).WebUpdate_Click();
    });
    EXPECT_EQ(answer, Answer::Starts);
  }

  /// The archive of an earlier update, with the date of its file in UTC.
  void haveArchive(const QByteArray& bytes, const QDateTime& modified) const {
    QFile file(data_.writeFile(state_.ArchiveFile, bytes));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.setFileTime(modified, QFileDevice::FileModificationTime));
  }

  /// When the archive's file was modified.
  QDateTime modified() const { return QFileInfo(data_.pathOf(state_.ArchiveFile)).lastModified().toUTC(); }
  const QDateTime k1980 = utc(1980, 1, 1, 0, 0);

  static QDateTime utc(int year, int month, int day, int hour, int minute, int second = 0) {
    return {QDate(year, month, day), QTime(hour, minute, second), Qt::UTC};
  }

  bool wasOffered() const { return !boxes_.asked.empty(); }

  TemporaryFolder data_;
  ProgramState state_;
  OwnPlaces places_;
  RecordingWorkDisplay view_;
  Work work_{state_, view_};
  bool webUpdateEnabled_ = true;
  RecordingMessageBoxes boxes_;
  UpdateLog& log_ = view_.log;
  MadeTransfer web_{log_};
};

}  // namespace quorvin::test
