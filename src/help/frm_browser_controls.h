// The controls of the help browser.
#pragma once

#include "help/frm_browser_find.h"
#include "help/frm_browser_view.h"

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QPalette>
#include <QProgressBar>
#include <QToolBar>
#include <QWidget>

#include <array>

namespace quorvin {

enum class BrowserButton { Back, Forward, Refresh, Home, Search, Stop };
inline constexpr int kBrowserButtons = 6;

/// The window owns them.
struct BrowserControls {
  QToolBar* tbToolBar;
  /// By BrowserButton.
  std::array<QAction*, kBrowserButtons> buttons;
  QWidget* picAddress;
  QLabel* lblAddress;
  QComboBox* cboAddress;
  /// What the toolbar, the address row and the rows at the bottom leave of the window.
  QWidget* inner;
  HelpView* brwWebBrowser;
  FindBar* findBar;
  QWidget* statusRow;
  QLabel* lblStatus;
  QProgressBar* loadBar;

  QAction* button(BrowserButton which) const { return buttons[static_cast<std::size_t>(which)]; }
};

/// Makes the controls in `window` and lays them out from top to bottom; nothing is connected.
BrowserControls makeBrowserControls(QWidget* window, const HelpFiles& files);

/// Draws the toolbar's icons in the colours of `palette`.
void drawIcons(const BrowserControls& controls, const QPalette& palette);

/// The layout for the sizes that the rows have now.
void layOutBrowser(const BrowserControls& controls);

}  // namespace quorvin
