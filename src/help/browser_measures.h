// The measures of the help browser, which its layout takes in twips.
#pragma once

#include <QSize>

#include <algorithm>

namespace quorvin {

inline constexpr int kBrowserTwipsPerPixel = 15;

/// What the address box and the pages leave free of the window's inner width, and the pages of its inner
/// height, in twips.
inline constexpr int kBesideAddress = 100;
inline constexpr int kBesidePages = 100;
/// Where the address box begins, and how far below its label it stands, in twips.
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

}  // namespace quorvin
