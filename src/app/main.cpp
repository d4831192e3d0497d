// SPDX-License-Identifier: GPL-2.0-or-later

// The program with the window.
#include "app/command_line.h"
#include "app/main_application.h"
#include "app/search_form.h"
#include "app/shutdown.h"
#include "app/start_up.h"
#include "app/version.h"
#include "dates/general_date.h"
#include "faults/runtime_fault.h"
#include "files/file_lookup.h"
#include "hits/hit_actions.h"
#include "platform/desktop_shell.h"
#include "platform/ini_settings_store.h"
#include "platform/machine_memory.h"
#include "platform/one_window.h"
#include "platform/standard_folders.h"
#include "search/segment/segment_store.h"
#include "state/data_taken_along.h"
#include "state/program_state.h"
#include "state/recovery_copy.h"
#include "state/view_settings.h"
#include "texts/languages.h"
#include "texts/texts.h"

#include <QDateTime>
#include <QLocale>
#include <QStringList>
#include <QTimer>

#include <chrono>
#include <cstdio>
#include <optional>

namespace {

using namespace quorvin;

constexpr std::chrono::seconds kChangeIsKeptAfter{1};

QString versionNumbers() {
  const ProgramVersion version = programVersion();
  return QStringLiteral("%1.%2.%3").arg(version.majorNumber).arg(version.minorNumber).arg(version.revision);
}

int write(const QString& text) {
  std::fputs(text.toLocal8Bit().constData(), stdout);
  return std::fflush(stdout) == 0 ? 0 : 2;
}

int refuse(const QString& sentence) {
  const QString advice = Texts::tr("Try: %1").arg(QStringLiteral("quorvin --help"));
  std::fprintf(stderr, "quorvin: %s\n%s\n", sentence.toLocal8Bit().constData(),
               advice.toLocal8Bit().constData());
  return 2;
}

/// Nothing where the window is wanted.
std::optional<int> answerToOption(const CommandLine& line) {
  switch (line.wish) {
    case CommandLine::Wish::ShowVersion:
      return write(QStringLiteral("quorvin %1\n").arg(versionNumbers()));
    case CommandLine::Wish::ShowHelp:
      return write(usageText());
    case CommandLine::Wish::RefuseOption:
      return refuse(Texts::tr("unknown option %1").arg(line.text));
    case CommandLine::Wish::MissValue:
      return refuse(Texts::tr("the option %1 needs a value").arg(line.text));
    case CommandLine::Wish::OpenWindow:
      break;
  }
  return std::nullopt;
}

/// Help and version are also shown where there is no screen. Other options may be the toolkit's, which only
/// the application object can tell.
std::optional<int> answerWithoutScreen(int argc, char** argv) {
  QStringList arguments;
  for (int index = 1; index < argc; ++index) arguments.append(QString::fromLocal8Bit(argv[index]));
  const CommandLine line = readCommandLine(arguments);
  const bool needsScreen =
      line.wish == CommandLine::Wish::RefuseOption || line.wish == CommandLine::Wish::OpenWindow;
  if (needsScreen) return std::nullopt;
  const QCoreApplication application(argc, argv);
  const SpokenLanguage language(usersLanguage());
  return answerToOption(line);
}

/// The same for starts that are to share a window: those with one set of settings on one screen.
QString sharedWindow(const QString& commandLine) {
  const QString wayland = qEnvironmentVariable("WAYLAND_DISPLAY");
  const QString screen = wayland.isEmpty() ? qEnvironmentVariable("DISPLAY") : wayland;
  return QStringList{pathFromTop(userSettingsPath()), settingsSetOf(commandLine), screen}.join(u'\n');
}

/// The toolkit removes it from the environment.
QString activationToken() {
  const QString token = qEnvironmentVariable("XDG_ACTIVATION_TOKEN");
  return token.isEmpty() ? qEnvironmentVariable("DESKTOP_STARTUP_ID") : token;
}

/// One run of the program with its window.
class Run {
 public:
  Run(Application& application, WidgetMessageBoxes& messages, const CommandLine& line)
      : application_(application), messages_(messages), commandLine_(line.text), errand_(line.errand) {
    form_.setUnloadHandler([this] {
      keepView();
      shutdown_.Form_Unload();
    });
    shutdown_.setRecoveryCopy(&recovery_);
    for (QTimer* timer : {&untilKept_, &untilViewKept_}) {
      timer->setSingleShot(true);
      timer->setInterval(kChangeIsKeptAfter);
    }
    QObject::connect(&untilKept_, &QTimer::timeout, &form_, [this] { recovery_.keep(); });
    QObject::connect(&untilViewKept_, &QTimer::timeout, &form_, [this] { writeView(); });
    // The timer of the main window ends the program, once a refresh has come to its end.
    QGuiApplication::setQuitOnLastWindowClosed(false);
  }
  ~Run() { application_.setLeaveHandler({}); }
  Run(const Run&) = delete;
  Run& operator=(const Run&) = delete;

  /// Answers a later start with the same settings; false while the program closes.
  bool take(const LaterStart& later) {
    if (form_.jobs().work().isClosing()) return false;
    // The later one is to have its answer first.
    QTimer::singleShot(0, &form_, [this, later] {
      form_.comeForward(later.activationToken);
      // One that is there has this window only where it is this window's own.
      const bool isMissing = !later.commandLine.isEmpty() && later.commandLine != commandLine_;
      if (isMissing) messages_.inform(Texts::tr(kListingNotFound));
      form_.runErrand(errandOf(later.errand));
    });
    return true;
  }

  int exec() {
    form_.frame().whenPainted(&giveWindowsTheirIcon);
    takeAlongData(settings_, settingsSetOf(commandLine_), usualProgramPlace(), messages_);
    StartUp(state_, settings_, messages_, form_.frame(),
            [this](const QString& archivePath, const QString& targetFolder) {
              watchForTheEnd();
              form_.jobs().extractDataFile(archivePath, targetFolder);
            })
        .Form_Load(conditions());
    // The window may have been closed while the main data file was being unpacked.
    if (form_.hasLeft()) return 0;
    watchForTheEnd();
    takeView();
    form_.sourcesChanged();
    form_.setSourcesHandler([this] { untilKept_.start(); });
    // While events run, so that the program can be closed over the question.
    form_.frame().whenPainted([this] {
      offerRecovery();
      form_.runErrand(errand_);
    });
    if (!form_.jobs().work().isClosing()) {
      form_.frame().restoreMaximized(placeOfMaximized());
      form_.show();
    }
    return QCoreApplication::exec();
  }

 private:
  StartUpConditions conditions() const {
    StartUpConditions conditions;
    conditions.commandLine = commandLine_;
    conditions.programFolder = [] { return programFolder(); };
    conditions.now = dateValueOf(QDateTime::currentDateTime());
    conditions.locale = locale_;
    return conditions;
  }

  void offerRecovery() {
    if (form_.jobs().work().isClosing()) return;
    recovery_.offer(messages_);
    form_.sourcesChanged();
  }

  /// From when the settings and lists have been read: before, there is nothing that could be lost.
  void watchForTheEnd() {
    application_.setLeaveHandler([this] {
      messages_.fallSilent();
      form_.closeUnasked();
    });
  }

  void takeView() {
    try {
      form_.view().take(readViewSettings(settings_, state_.RegKey));
    } catch (const RuntimeFault&) {
      // Start-up has reported that the settings cannot be read. What they hold is not overwritten.
      return;
    }
    form_.view().setChangeHandler([this] { untilViewKept_.start(); });
  }

  void keepView() {
    if (untilViewKept_.isActive()) writeView();
  }

  void writeView() {
    untilViewKept_.stop();
    try {
      writeViewSettings(settings_, state_.RegKey, form_.view().settings());
    } catch (const RuntimeFault&) {
      // Nobody is kept from working by that. Shutdown writes to the same place, and reports what is wrong.
    }
  }

  QString placeOfMaximized() const {
    try {
      return readMaximized(settings_, state_);
    } catch (const RuntimeFault&) {
      // Start-up has reported that the settings cannot be read.
      return {};
    }
  }

  Application& application_;
  WidgetMessageBoxes& messages_;
  const QString commandLine_;
  const Errand errand_;
  const QLocale locale_;
  ProgramState state_;
  IniSettingsStore settings_{userSettingsPath()};
  RecoveryCopy recovery_{state_, locale_, userSettingsPath()};
  QTimer untilKept_;
  /// Runs while view settings have changed and are not written yet.
  QTimer untilViewKept_;
  SegmentStore segments_{SegmentStore::defaultOptions()};
  DesktopShell shell_{[this] { return enqueueCommand(settings_, state_); }};
  SearchForm form_{state_, messages_, shell_, locale_, &segments_};
  Shutdown shutdown_{state_, settings_, messages_, form_.frame(), locale_};
};

}  // namespace

int main(int argc, char** argv) {
  endWithSentence();
  shareFreedMemoryAmongThreads();
  if (const std::optional<int> status = answerWithoutScreen(argc, argv)) return *status;
  const QString token = activationToken();
  WidgetMessageBoxes messages;
  Application application(argc, argv, messages);
  const SpokenLanguage language(usersLanguage());
  QCoreApplication::setApplicationName(QStringLiteral("quorvin"));
  QCoreApplication::setApplicationVersion(versionNumbers());

  const CommandLine line = readCommandLine(QCoreApplication::arguments().mid(1));
  if (const std::optional<int> status = answerToOption(line)) return *status;
  OneWindow oneWindow(sharedWindow(line.text), usualOneWindowOptions());
  if (oneWindow.handOver({line.text, token, textOf(line.errand)})) return 0;
  Run run(application, messages, line);
  oneWindow.serve([&run](const LaterStart& later) { return run.take(later); });
  return run.exec();
}
