// The program with the window.
#include "app/main_application.h"
#include "app/search_form.h"
#include "app/start_up.h"
#include "app/version.h"
#include "app/widget_message_boxes.h"
#include "platform/general_date.h"
#include "platform/ini_settings_store.h"
#include "platform/standard_folders.h"
#include "state/program_state.h"

#include <QDateTime>
#include <QLocale>
#include <QStringList>

namespace {

using namespace quorvin;

/// Names another settings file than the user's own, for a portable copy of the program and for tests.
constexpr char kSettingsVariable[] = "QUORVIN_SETTINGS";

QString settingsPath() {
  const QString named = qEnvironmentVariable(kSettingsVariable);
  return named.isEmpty() ? userSettingsPath() : named;
}

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
  QGuiApplication::setApplicationDisplayName(applicationTitle());
  QCoreApplication::setApplicationVersion(versionNumbers());

  const QLocale locale;
  ProgramState state;
  const IniSettingsStore settings(settingsPath());
  SearchForm form(state, messages, locale);
  StartUp startUp(state, settings, messages, form, nullptr);
  startUp.Form_Load(conditionsOfThisRun(locale));
  form.sourcesChanged();
  form.show();
  return QCoreApplication::exec();
}
