// The hit list's mouse, keys and pop-up menu: what the main window does with single hits.
#pragma once

#include "hits/hit_actions.h"
#include "hits/hit_list.h"
#include "search/hit_table.h"

#include <QAction>
#include <QLocale>
#include <QMenu>
#include <QObject>
#include <QPoint>

#include <functional>
#include <optional>
#include <vector>

namespace quorvin {

/// The menu and its items.
struct ItemMenu {
  QMenu* menu;
  QAction* CtLaunch;
  QAction* CTOpFolder;
  QAction* ShowPreview;
  QAction* CTQueue;
  /// The selected rows as text, and the full paths of their files.
  QAction* CopyRows;
  QAction* CopyPaths;
};

/// Makes the menu as a child of `parent`; nothing is connected. Its shortcuts work only where the actions are
/// added to a widget.
ItemMenu makeItemMenu(QWidget* parent);

/// Shows the picture `name` of `folder` in the preview window. It may throw RuntimeFault.
using PreviewOpener = std::function<void(const QString& folder, const QString& name)>;

/// Connects the hit list with the hit actions. The menu is a child of the list.
class SearchFormHits : public QObject {
  Q_OBJECT

 public:
  /// Everything must outlive the object; `locale` is the one in which rows are copied as text.
  SearchFormHits(HitListView& list, const HitTable& table, const ProgramState& state, Shell& shell,
                 MessageBoxes& messages, const QLocale& locale);

  void setPreviewOpener(PreviewOpener opener) { openPreview_ = std::move(opener); }

  const ItemMenu& itemMenu() const { return menu_; }

 private:
  void HitList_DblClick();
  void HitList_MouseDown(const QPoint& place);
  void CtLaunch_Click();
  void CTOpFolder_Click();
  void ShowPreview_Click();
  void CTQueue_Click();
  void CopyRows_Click();
  void CopyPaths_Click();

  std::optional<HitRow> currentHit() const;
  /// The rows to copy; empty, with a message, where they are too many.
  std::vector<int> rowsToCopy() const;
  QString rowText(int row) const;

  HitListView& list_;
  const HitTable& table_;
  MessageBoxes& messages_;
  QLocale locale_;
  HitActions actions_;
  ItemMenu menu_;
  PreviewOpener openPreview_;
};

}  // namespace quorvin
