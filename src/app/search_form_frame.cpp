#include "app/search_form_frame.h"

#include <QGuiApplication>
#include <QMenuBar>
#include <QScreen>

#include <algorithm>
#include <cmath>

namespace quorvin {

namespace {

/// Settings may hold anything; further out than this no window can be.
constexpr float kFarthestPixel = 32767;

int toPixels(float twips) {
  const float pixels = twips / static_cast<float>(kTwipsPerPixel);
  return static_cast<int>(std::lround(std::clamp(pixels, -kFarthestPixel, kFarthestPixel)));
}

float toTwips(int pixels) {
  return static_cast<float>(pixels * kTwipsPerPixel);
}

}  // namespace

SearchFormFrame::SearchFormFrame(QMainWindow& window, const SearchFormControls& controls,
                                 SearchFormDisplay& display, SearchFormWork& jobs, SearchFormWindows& windows)
    : window_(window), controls_(controls), display_(display), jobs_(jobs), windows_(windows) {}

void SearchFormFrame::takeInitialPlace() {
  limitSize();
  const QRect available = window_.screen()->availableGeometry();
  const QSize wanted = initialInnerSize(controls_) + QSize(0, window_.menuBar()->sizeHint().height());
  window_.resize(wanted.boundedTo(available.size()));
  window_.move(available.center() - window_.rect().center());
}

void SearchFormFrame::limitSize() {
  window_.setMinimumSize(QSize(kLeastOuterWidth, kLeastOuterHeight) / kTwipsPerPixel - frameSize());
}

void SearchFormFrame::settleOuterSize() {
  if (!outerSizeWished_) return;
  const QSize wished = *outerSizeWished_;
  outerSizeWished_.reset();
  limitSize();
  if (window_.size() == wished) window_.resize(wished - frameSize());
}

void SearchFormFrame::moveOntoScreen() {
  const QRect outer = window_.frameGeometry();
  const QList<QScreen*> screens = QGuiApplication::screens();
  const bool canBeSeen = std::ranges::any_of(
      screens, [&](const QScreen* screen) { return screen->availableGeometry().intersects(outer); });
  if (canBeSeen || screens.isEmpty()) return;
  window_.move(QGuiApplication::primaryScreen()->availableGeometry().topLeft());
}

float SearchFormFrame::placement(PlacementKey key) const {
  const QRect outer = window_.frameGeometry();
  switch (key) {
    case PlacementKey::Top:
      return toTwips(outer.top());
    case PlacementKey::Left:
      return toTwips(outer.left());
    case PlacementKey::Width:
      return toTwips(outer.width());
    case PlacementKey::Height:
      return toTwips(outer.height());
  }
  return 0;
}

void SearchFormFrame::setPlacement(PlacementKey key, float twips) {
  const int pixels = toPixels(twips);
  const QSize frame = frameSize();
  switch (key) {
    case PlacementKey::Top:
      window_.move(window_.x(), pixels);
      break;
    case PlacementKey::Left:
      window_.move(pixels, window_.y());
      break;
    case PlacementKey::Width:
      window_.resize(pixels - frame.width(), window_.height());
      break;
    case PlacementKey::Height:
      window_.resize(window_.width(), pixels - frame.height());
      break;
  }
  if (!window_.isVisible()) outerSizeWished_ = window_.frameGeometry().size();
}

void SearchFormFrame::unloadOtherWindows() {
  windows_.unloadSplash();
  windows_.unloadOptions();
  windows_.unloadSources();
  jobs_.progress().hide();
  windows_.unloadPreview();
  windows_.unloadBrowser();
  jobs_.unload();
}

}  // namespace quorvin
