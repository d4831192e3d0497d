// SPDX-License-Identifier: GPL-2.0-or-later
#include "search_window.h"

#include "app/search_form.h"
#include "app/start_up.h"
#include "platform/desktop_shell.h"
#include "platform/ini_settings_store.h"
#include "recorded_messages.h"
#include "state/program_state.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTest>
#include <QTimer>

#include <stdexcept>

namespace quorvin {

namespace {

void typeOver(QLineEdit& edit, const QString& text) {
  edit.setFocus();
  edit.selectAll();
  QTest::keyClick(&edit, Qt::Key_Delete);
  QTest::keyClicks(&edit, text);
}

double secondsOf(const QElapsedTimer& clock) {
  return static_cast<double>(clock.nsecsElapsed()) / 1e9;
}

}  // namespace

struct SearchWindow::Parts {
  Parts(const QString& settingsPath, const QLocale& locale, FilePicker* picker)
      : settings(settingsPath),
        segments(SegmentStore::defaultOptions()),
        form(state, messages, shell, locale, &segments, picker),
        startUp(state, settings, messages, form.frame(), nullptr) {}

  void press() { QTest::mouseClick(form.controls().Find, Qt::LeftButton); }
  std::int64_t rows() const { return form.controls().HitList->model()->rowCount(); }
  std::int64_t searched() const { return form.controls().lblSearched->text().toLongLong(); }

  ProgramState state;
  RecordedMessages messages;
  DesktopShell shell{[] { return QString(); }};
  IniSettingsStore settings;
  SegmentStore segments;
  SearchForm form;
  StartUp startUp;
};

void liveIn(const QTemporaryDir& folder) {
  if (!folder.isValid()) throw std::runtime_error("no temporary folder could be made");
  qputenv("QT_QPA_PLATFORM", "offscreen");
  for (const char* kind : {"XDG_CACHE_HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME"}) {
    qputenv(kind, folder.filePath(QString::fromLatin1(kind)).toLocal8Bit());
  }
}

SearchWindow::SearchWindow(const QString& listing, const QString& folder, const QLocale& locale,
                           FilePicker* picker)
    : parts_(std::make_unique<Parts>(folder + QStringLiteral("/settings.ini"), locale, picker)) {
  StartUpConditions conditions;
  conditions.commandLine = listing;
  conditions.programFolder = [folder] { return folder; };
  conditions.locale = locale;
  parts_->startUp.Form_Load(conditions);
  parts_->form.sourcesChanged();
  parts_->form.show();
  parts_->form.activateWindow();
  if (!QTest::qWaitForWindowActive(&parts_->form)) throw std::runtime_error("the window did not come up");
  parts_->messages.throwIfAny();
}

SearchWindow::~SearchWindow() = default;

SegmentStore& SearchWindow::segments() {
  return parts_->segments;
}

SearchForm& SearchWindow::form() {
  return parts_->form;
}

ProgramState& SearchWindow::state() {
  return parts_->state;
}

void SearchWindow::type(const QString& words, const QString& match) {
  const SearchFormControls& controls = parts_->form.controls();
  typeOver(*controls.DesMatch, match);
  typeOver(*controls.SearchStr, words);
  QCoreApplication::processEvents();
}

RunFigures SearchWindow::find() {
  QElapsedTimer clock;
  clock.start();
  parts_->press();
  QCoreApplication::processEvents();
  const double seconds = secondsOf(clock);
  parts_->messages.throwIfAny();
  return {seconds, parts_->rows(), parts_->searched()};
}

RunFigures SearchWindow::findWatched(EventFigures& events) {
  EventWatch watch(*parts_->form.controls().lblSearched);
  const RunFigures figures = find();
  events = watch.finish();
  return figures;
}

StopFigures SearchWindow::findAndStop() {
  QElapsedTimer sincePress;
  QTimer atFirstEvents;
  atFirstEvents.setSingleShot(true);
  atFirstEvents.callOnTimeout([&] {
    sincePress.start();
    parts_->press();
  });
  atFirstEvents.start(0);
  parts_->press();
  if (!sincePress.isValid()) throw std::runtime_error("the run never let events run: nothing to stop");
  const double seconds = secondsOf(sincePress);
  parts_->messages.throwIfAny();
  return {parts_->searched(), seconds};
}

}  // namespace quorvin
