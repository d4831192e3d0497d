// SPDX-License-Identifier: GPL-2.0-or-later

// The controls of the help browser, and their places.
#pragma once

#include "help/help_view.h"

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QPalette>
#include <QProgressBar>
#include <QPushButton>
#include <QSize>
#include <QToolBar>
#include <QWidget>

#include <algorithm>
#include <array>

namespace quorvin {

inline constexpr int kBrowserTwipsPerPixel = 15;

/// What the address box and the pages leave free of the window's inner width, and the pages of its inner
/// height, in twips.
inline constexpr int kBesideAddress = 100;
inline constexpr int kBesidePages = 100;
/// The left edge of the address box, and how far it is below its label, in twips.
inline constexpr int kAddressLeft = 50;
inline constexpr int kBelowAddressLabel = 15;

/// `pixels` less `twips`, to the nearest pixel and never below 0.
constexpr int lessTwips(int pixels, int twips) {
  const int left = std::max(0, pixels * kBrowserTwipsPerPixel - twips);
  return (left + kBrowserTwipsPerPixel / 2) / kBrowserTwipsPerPixel;
}

/// `twips` in pixels, to the nearest.
constexpr int pixelsOfTwips(int twips) {
  return (twips + kBrowserTwipsPerPixel / 2) / kBrowserTwipsPerPixel;
}

/// The width of `cboAddress` in a window whose inner width is `inner`.
constexpr int addressWidth(int inner) {
  return lessTwips(inner, kBesideAddress);
}

/// The size of `brwWebBrowser` where `inner` is left to it.
inline QSize pagesSize(QSize inner) {
  return {lessTwips(inner.width(), kBesidePages), lessTwips(inner.height(), kBesidePages)};
}

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
  /// Opens the page that waits for the window to be closed; hidden while none waits.
  QPushButton* OpenNow;
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
