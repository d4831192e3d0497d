// SPDX-License-Identifier: GPL-2.0-or-later

// What a start asks of the main window.
#include "app/fault_report.h"
#include "app/search_form.h"
#include "texts/texts.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QTimer>

namespace quorvin {

void SearchForm::runErrand(const Errand& errand) {
  if (QApplication::activeModalWidget() || jobs_.work().isClosing()) return;
  reportFaults(messages_, Texts::tr("doing what the program was started for"), [&] {
    switch (errand.kind) {
      case Errand::Kind::Search:
        return searchFor(errand.subject);
      case Errand::Kind::SearchFolder:
        return searchInFolder(errand.subject);
      case Errand::Kind::Rescan:
        return menus_.ReScan->trigger();
      case Errand::Kind::ShowManual:
        return menus_.HlpGen->trigger();
      case Errand::Kind::None:
        break;
    }
  });
}

void SearchForm::searchFor(const QString& text) {
  // Its words would narrow these hits, too.
  controls_.FilterStr->clear();
  controls_.SearchStr->setFocus();
  controls_.SearchStr->setText(text);
  search_.enter();
}

/// The filter shows, and lets the user see, that only hits of the folder are wanted.
void SearchForm::searchInFolder(const QString& folder) {
  const QString listed = sources_->listedFolderOf(folder);
  if (listed.isEmpty()) return;
  if (!menus_.FilterHits->isChecked()) menus_.FilterHits->trigger();
  controls_.FilterStr->setText(listed);
  controls_.SearchStr->setFocus();
  controls_.SearchStr->selectAll();
}

/// Every file below the folder holds its name, and the filter leaves those of others out. The window that
/// asks for it closes first.
void SearchForm::searchListed(const QString& folder) {
  const QString name = folder.section(u'\\', -1, -1, QString::SectionSkipEmpty);
  QTimer::singleShot(0, this, [this, folder, name] {
    searchFor(name);
    if (!menus_.FilterHits->isChecked()) menus_.FilterHits->trigger();
    controls_.FilterStr->setText(folder);
  });
}

}  // namespace quorvin
