// The program with the window.
#include "app/hit_actions.h"
#include "app/main_application.h"
#include "app/search_form.h"
#include "app/shutdown.h"
#include "app/start_up.h"
#include "app/version.h"
#include "dates/general_date.h"
#include "platform/desktop_shell.h"
#include "platform/ini_settings_store.h"
#include "platform/standard_folders.h"
#include "search/segment/segment_store.h"
#include "state/program_state.h"
#include "state/recovery_copy.h"

#include <QDateTime>
#include <QLocale>
#include <QStringList>
#include <QTimer>

#include <chrono>

namespace {

using namespace quorvin;

constexpr std::chrono::seconds kChangeIsKeptAfter{1};

QString versionNumbers() {
  const ProgramVersion version = programVersion();
  return QStringLiteral("%1.%2.%3").arg(version.majorNumber).arg(version.minorNumber).arg(version.revision);
}

StartUpConditions conditionsOfThisRun(const QLocale& locale) {
  StartUpConditions conditions;
  conditions.commandLine = QCoreApplication::arguments().mid(1).join(u' ');
  conditions.programFolder = [] { return programFolder(); };
  conditions.now = dateValueOf(QDateTime::currentDateTime());
  conditions.locale = locale;
  return conditions;
}

}  // namespace

int main(int argc, char** argv) {
  WidgetMessageBoxes messages;
  Application application(argc, argv, messages);
  QCoreApplication::setApplicationName(QStringLiteral("quorvin"));
  QCoreApplication::setApplicationVersion(versionNumbers());

  const QLocale locale;
  ProgramState state;
  IniSettingsStore settings(userSettingsPath());
  SegmentStore images(SegmentStore::defaultOptions());
  DesktopShell shell([&] { return enqueueCommand(settings, state); });
  SearchForm form(state, messages, shell, locale, &images);
  Shutdown shutdown(state, settings, messages, form.frame(), locale);
  RecoveryCopy recovery(state, locale, userSettingsPath());
  shutdown.setRecoveryCopy(&recovery);
  QTimer untilKept;
  untilKept.setSingleShot(true);
  untilKept.setInterval(kChangeIsKeptAfter);
  QObject::connect(&untilKept, &QTimer::timeout, &form, [&recovery] { recovery.keep(); });
  form.setUnloadHandler([&shutdown] { shutdown.Form_Unload(); });
  // The timer of the main window ends the program, once a refresh has come to its end.
  QGuiApplication::setQuitOnLastWindowClosed(false);
  StartUp startUp(state, settings, messages, form.frame(),
                  [&form](const QString& archivePath, const QString& targetFolder) {
                    form.jobs().extractDataFile(archivePath, targetFolder);
                  });
  startUp.Form_Load(conditionsOfThisRun(locale));
  // The window may have been closed while the main data file was being unpacked.
  if (form.hasLeft()) return 0;
  form.sourcesChanged();
  form.setSourcesHandler([&untilKept] { untilKept.start(); });
  // Once events run, so that the question can be left by closing the program.
  QTimer::singleShot(0, &form, [&] {
    if (form.jobs().work().isClosing()) return;
    recovery.offer(messages);
    form.sourcesChanged();
  });
  if (!form.jobs().work().isClosing()) form.show();
  return QCoreApplication::exec();
}
