// SPDX-License-Identifier: GPL-2.0-or-later

// Ways for sources into the main window: what an empty one offers, and what is dropped onto it.
#pragma once

#include "app/search_form_controls.h"
#include "editors/source_drops.h"
#include "platform/message_box.h"
#include "state/program_state.h"

#include <QCommandLinkButton>
#include <QObject>
#include <QWidget>

#include <functional>
#include <optional>

namespace quorvin {

/// While there is nothing to search and no hit is shown, offers the two editors by buttons in the hit list.
/// Folders that are dropped onto the window become online sources, listing files offline sources.
class SearchFormSources : public QObject {
  Q_OBJECT

 public:
  /// Everything must outlive the object. The hit list has its model by then. `rescan` refreshes the local
  /// lists, `changed` is called when sources were added.
  SearchFormSources(ProgramState& state, MessageBoxes& messages, QWidget& window,
                    const SearchFormControls& controls, const SearchFormMenus& menus,
                    std::function<void()> rescan, std::function<void()> changed);

  /// To be called after the sources may have changed.
  void showOffers();

  /// The folder at `path` as listings name it. One that is in no online source is added and catalogued where
  /// the user agrees. Empty where it is in no listing then, and the user knows why.
  QString listedFolderOf(const QString& path);

  /// Adds listings to the offline sources. What there is to say of those that were not; empty where all were.
  QString addOfflineLists(const QStringList& listings);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void placeOffers();
  QCommandLinkButton* makeOffer(const QString& name, const QString& caption, QAction& item);
  std::optional<QString> listedFolderInSources(const QString& folder) const;
  void take(const DroppedSources& dropped);
  int takeFolders(const QStringList& folders, QString& told);
  int takeListings(const QStringList& files, QString& told);

  ProgramState& state_;
  MessageBoxes& messages_;
  HitListView& list_;
  QWidget& searchText_;
  std::function<void()> rescan_;
  std::function<void()> changed_;
  QCommandLinkButton* folders_;
  QCommandLinkButton* listings_;
};

}  // namespace quorvin
