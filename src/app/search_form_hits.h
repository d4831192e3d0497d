// SPDX-License-Identifier: GPL-2.0-or-later

// The hit list's mouse, keys and menus: what the main window does with hits.
#pragma once

#include "hits/hit_actions.h"
#include "hits/hit_facts.h"
#include "hits/hit_list.h"
#include "hits/hit_list_model.h"
#include "search/hit_table.h"

#include <QAction>
#include <QLocale>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <QObject>
#include <QPoint>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace quorvin {

/// The pop-up menu and its items. Those from CopyRows on are in the menu bar's menu, too.
struct ItemMenu {
  QMenu* menu;
  QAction* CtLaunch;
  QAction* CTOpFolder;
  QAction* ShowPreview;
  QAction* CTQueue;
  /// The selected hits as text: whole rows, names, and the paths of their files.
  QAction* CopyRows;
  QAction* CopyNames;
  QAction* CopyPaths;
  QAction* ExportSelected;
  QAction* WhichDisk;
  QAction* FetchPlan;
  QAction* HitProperties;
};

/// Makes the menu as a child of `parent`; nothing is connected. Its shortcuts work only where the actions are
/// added to a widget.
ItemMenu makeItemMenu(QWidget* parent);

/// Shows the picture `name` of `folder` in the preview window. It may throw RuntimeFault.
using PreviewOpener = std::function<void(const QString& folder, const QString& name)>;

/// Offers what was dragged out of the list, a HitDragData, to the window system; returns when it has been
/// dropped.
using DragStarter = std::function<void(std::unique_ptr<QMimeData>)>;

/// Connects the hit list with the hit actions. The pop-up menu, which comes up only for hits whose file is
/// there, is a child of the list; the menu of the menu bar serves all hits. Copies and exports are left to
/// SearchFormCopy and SearchFormExport.
class SearchFormHits : public QObject {
  Q_OBJECT

 public:
  /// Everything must outlive the object; `hitsMenu`, the menu bar's, is filled.
  SearchFormHits(HitListView& list, QMenu& hitsMenu, const HitListModel& rows, const ProgramState& state,
                 Shell& shell, MessageBoxes& messages, const QLocale& locale);

  void setPreviewOpener(PreviewOpener opener) { openPreview_ = std::move(opener); }
  void setDragStarter(DragStarter starter) { startDrag_ = std::move(starter); }

  /// Shows a file in its folder, as HitActions::openFolder() does; false where it is not found.
  bool showInFolder(const HitRow& file) const { return actions_.openFolder(file) != LaunchOutcome::NotFound; }

  const ItemMenu& itemMenu() const { return menu_; }

  /// The selected rows of the table, ascending; none, with a note, where there are too many to plan for.
  std::vector<int> rowsToFetch();

  bool eventFilter(QObject* watched, QEvent* event) override;

 Q_SIGNALS:
  /// Something that the user should know and need not answer.
  void noted(const QString& note);

 private:
  void fillHitsMenu(QMenu& menu);
  void connectItems();

  void HitList_DblClick();
  void HitList_MouseDown(const QPoint& place);
  void noteDragStart(const QMouseEvent& press);
  bool isDragged(const QMouseEvent& move);
  void HitList_Drag();
  void CtLaunch_Click();
  void CTOpFolder_Click();
  void ShowPreview_Click();
  void CTQueue_Click();
  void OpenHits_Click();
  void ShowInFolder_Click();
  void WhichDisk_Click();
  void HitProperties_Click();

  std::optional<int> currentTableRow() const;
  std::optional<HitRow> currentHit() const;
  KnownHit known(int tableRow) const;
  void selectCurrentIfNone() const;
  bool mayOpen(std::int64_t count) const;
  std::int64_t openSelected() const;
  void tellMissing(std::int64_t missing, std::int64_t all) const;

  HitListView& list_;
  const HitListModel& rows_;
  const HitTable& table_;
  const ProgramState& state_;
  MessageBoxes& messages_;
  QLocale locale_;
  HitActions actions_;
  ItemMenu menu_;
  PreviewOpener openPreview_;
  DragStarter startDrag_;
  /// Where the mouse was pressed on a selected row.
  std::optional<QPoint> dragStart_;
  /// From the start of a drag, a refused one too, to the release of the button: the list would select rows.
  bool isDragged_ = false;
};

}  // namespace quorvin
