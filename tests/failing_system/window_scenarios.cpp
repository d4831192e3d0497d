// SPDX-License-Identifier: GPL-2.0-or-later

// What the program with the window does with the user's files, without a person: "closing", "update",
// "exchange", "start", "search", "refresh", "copy", "export".
//
//   window_scenarios SCENARIO
//
// The current folder holds settings.ini and data/; for an update data/main.zip is fetched from served.zip in
// it, and an exchange gets the list of peer/. Messages to the user go to standard error, what a person would
// see to standard output; the program ends with 0 when it comes to its end.
#include "app/main_application.h"
#include "e2e/whole_program.h"
#include "editors/recording_file_picker.h"
#include "peers/peer_exchange.h"
#include "preview/res_win.h"
#include "search/segment/segment_store.h"
#include "support/eventually.h"
#include "support/recording_work_display.h"
#include "update/http_transfer.h"
#include "update/scripted_web_server.h"
#include "update/web_update.h"

#include <QApplication>
#include <QClipboard>
#include <QCryptographicHash>
#include <QFile>
#include <QPlainTextEdit>
#include <QTimer>

#include <iostream>
#include <string_view>

namespace quorvin::test {

namespace {

/// Tells what a person would read, and agrees to everything.
class PrintedMessages : public MessageBoxes {
 public:
  void inform(const QString& text) override {
    print(text);
    hasInformed_ = true;
  }
  bool askYesNo(const QString& text) override {
    print(text);
    return true;
  }
  FaultAnswer askAbortRetryIgnore(const QString& text) override {
    print(text);
    return FaultAnswer::Abort;
  }

  bool hasInformed() const { return hasInformed_; }

  static void print(const QString& text) { std::cerr << text.toStdString() << std::endl; }

 private:
  bool hasInformed_ = false;
};

void runEventsIn(RecordingWorkDisplay& display) {
  display.onEvents = [] { QCoreApplication::processEvents(); };
  display.onWait = [] { QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20); };
}

/// Then nobody is waited for long who says nothing. Without failures nothing depends on the speed of the
/// machine.
bool somethingFails() {
  return qEnvironmentVariableIntValue("QUORVIN_FAIL_AT") > 0;
}

void closing(const QString& folder) {
  WholeProgram program(folder + QStringLiteral("settings.ini"), folder);
  program.state.NickName = QStringLiteral("New");
  program.state.OnlineSources.set(++program.state.OnlineSourceCount, QStringLiteral("Films"),
                                  QStringLiteral("/films/"));
  program.state.OfflineSources.set(++program.state.OfflineSourceCount, QStringLiteral("Offline"),
                                   QStringLiteral("/lists/new.txt"));
  // What cannot be saved keeps the window once; closing it again leaves.
  if (!program.close()) program.close();
  for (const QString& text : program.takeMessages()) PrintedMessages::print(text);
}

void update(const QString& folder) {
  QFile served(folder + QStringLiteral("served.zip"));
  if (!served.open(QIODevice::ReadOnly)) return PrintedMessages::print(served.errorString());
  const QByteArray archive = served.readAll();
  ScriptedWebServer server({sends(goodAnswer(archive))});
  ProgramState state;
  state.LocalFolder = folder + QStringLiteral("data/");
  state.ArchiveFile = QStringLiteral("main.zip");
  state.WebServer = server.host();
  RecordingWorkDisplay display;
  runEventsIn(display);
  Work work(state, display);
  PrintedMessages messages;
  HttpLimits limits;
  if (somethingFails()) limits.silence = limits.headers = std::chrono::milliseconds(500);
  HttpNetworkTransfer web(limits);
  work.run(JobKind::Update, [&](Job& job) {
    WebUpdate(state, job, messages, web, QLocale::c(), [](bool) {}, {}).WebUpdate_Click();
  });
}

/// The parts of a program that exchanges lists.
struct Exchanging {
  explicit Exchanging(const QString& dataFolder)
      : exchange(state, work, messages, QLocale::c(), [] { return true; }) {
    state.LocalFolder = dataFolder;
    state.NickName = QStringLiteral("Bob");
    state.JoinDate = 37622;
    runEventsIn(display);
  }

  ProgramState state;
  RecordingWorkDisplay display;
  Work work{state, display};
  PrintedMessages messages;
  PeerExchange exchange;
};

void exchange(const QString& folder) {
  Exchanging sharing(folder + QStringLiteral("peer/"));
  sharing.state.OnlineSources.set(++sharing.state.OnlineSourceCount, QStringLiteral("Far"),
                                  QStringLiteral("/far/"));
  if (!sharing.exchange.sharing().start(0)) return;
  Exchanging getting(folder + QStringLiteral("data/"));
  bool isDone = false;
  QObject::connect(&getting.exchange, &PeerExchange::outcomeDealtWith, [&isDone] { isDone = true; });
  getting.exchange.getLists(QStringLiteral("127.0.0.1:%1").arg(sharing.exchange.sharing().server().port()));
  if (!eventually([&isDone] { return isDone; })) PrintedMessages::print(QStringLiteral("it never ended"));
}

/// The program as a person uses it, who closes what opens above its window, and the window in the end.
class UsedProgram {
 public:
  explicit UsedProgram(const QString& folder)
      : program(folder + QStringLiteral("settings.ini"), folder, &segments_, &picker_) {
    const QString far = folder + QStringLiteral("far.txt");
    program.state.OfflineSources.set(++program.state.OfflineSourceCount, QStringLiteral("Offline"), far);
    picker_.pick = folder + QStringLiteral("exported.csv");
    QObject::connect(&closer_, &QTimer::timeout, &program.form, [] {
      auto* results = qobject_cast<ResWin*>(QApplication::activeModalWidget());
      if (!results) return;
      PrintedMessages::print(results->findChild<QPlainTextEdit*>()->toPlainText());
      results->reject();
    });
    closer_.start(1);
  }
  ~UsedProgram() {
    // Nothing of this is to be saved.
    program.state.OfflineSourceCount = 0;
    if (!program.close()) program.close();
    for (const QString& text : program.takeMessages()) PrintedMessages::print(text);
  }
  UsedProgram(const UsedProgram&) = delete;
  UsedProgram& operator=(const UsedProgram&) = delete;

  void findAll() {
    program.find(QStringLiteral("song"));
    const int last = program.hitCount() - 1;
    std::cout << program.hitCount() << " hits, the last one "
              << program.hit(last, HitColumn::Name).toStdString() << std::endl;
  }

  /// Whether something was said that a person has to answer for.
  bool hasSaid() const { return !program.messages.informed.empty(); }

 private:
  SegmentStore segments_{SegmentStore::defaultOptions()};
  RecordingFilePicker picker_;
  QTimer closer_;

 public:
  WholeProgram program;
};

void start(const QString& folder) {
  UsedProgram used(folder);
  std::cout << used.program.form.windowTitle().toStdString() << ", " << used.program.state.OnlineSourceCount
            << " sources" << std::endl;
}

void search(const QString& folder) {
  UsedProgram used(folder);
  // Once as it is read, once from what is kept of it.
  used.findAll();
  used.findAll();
}

void refresh(const QString& folder) {
  UsedProgram used(folder);
  used.program.form.menus().ReScan->trigger();
  std::cout << "refreshed" << std::endl;
}

void copy(const QString& folder, const PrintedMessages& lastResort) {
  UsedProgram used(folder);
  used.findAll();
  used.program.form.controls().HitList->selectAll();
  QTest::keyClick(used.program.form.controls().HitList, Qt::Key_C, Qt::ControlModifier);
  const auto text = [] { return QGuiApplication::clipboard()->text().toUtf8(); };
  if (!eventually([&] { return !text().isEmpty() || used.hasSaid() || lastResort.hasInformed(); })) {
    return PrintedMessages::print(QStringLiteral("it never ended"));
  }
  std::cout << QCryptographicHash::hash(text(), QCryptographicHash::Sha1).toHex().toStdString() << std::endl;
}

void exportHits(const QString& folder) {
  UsedProgram used(folder);
  used.findAll();
  used.program.form.menus().ExportHits->trigger();
}

/// `lastResort` hears of faults that nobody has dealt with.
void play(std::string_view scenario, const QString& folder, const PrintedMessages& lastResort) {
  if (scenario == "closing") return closing(folder);
  if (scenario == "update") return update(folder);
  if (scenario == "exchange") return exchange(folder);
  if (scenario == "start") return start(folder);
  if (scenario == "search") return search(folder);
  if (scenario == "refresh") return refresh(folder);
  if (scenario == "copy") return copy(folder, lastResort);
  if (scenario == "export") return exportHits(folder);
  throw std::invalid_argument("no such scenario");
}

}  // namespace

}  // namespace quorvin::test

int main(int argc, char** argv) {
  quorvin::endWithSentence();
  quorvin::test::PrintedMessages messages;
  quorvin::Application application(argc, argv, messages);
  const QString folder = QDir::currentPath() + u'/';
  try {
    quorvin::test::play(argv[1], folder, messages);
  } catch (const quorvin::RuntimeFault& fault) {
    // As the event loop's edge shows it.
    quorvin::test::PrintedMessages::print(fault.text());
  } catch (const std::bad_alloc&) {
    quorvin::test::PrintedMessages::print(QStringLiteral("Run-time error: Out of memory"));
  } catch (const std::runtime_error& error) {
    // The scenario's own server did not come up.
    quorvin::test::PrintedMessages::print(QString::fromUtf8(error.what()));
  }
  return 0;
}
