// Where the main window is, and what start-up and shutdown do with it.
#pragma once

#include "app/search_form_controls.h"
#include "app/search_form_display.h"
#include "app/search_form_windows.h"
#include "app/search_form_work.h"
#include "app/shutdown.h"
#include "app/start_up.h"

#include <QMainWindow>
#include <QSize>
#include <QString>

#include <optional>

namespace quorvin {

/// Keeps the main window on a screen and no smaller than its controls need, in sizes that include its frame.
class SearchFormFrame : public StartUpView, public ShutdownView {
 public:
  /// All must outlive the object.
  SearchFormFrame(QMainWindow& window, const SearchFormControls& controls, SearchFormDisplay& display,
                  SearchFormWork& jobs, SearchFormWindows& windows);

  /// Puts the window in the middle of the screen, as large as the controls and a good number of rows ask for.
  void takeInitialPlace();
  /// Sets the least size, which holds for the outer measures. It is kept as a limit, so that the window
  /// cannot be dragged smaller in the first place.
  void limitSize();
  /// Whether a size was set before the window had a frame. It was meant to include the frame;
  /// settleOuterSize() sees to that when there is one, since otherwise the window would grow by its frame at
  /// each start.
  bool isUnsettled() const { return outerSizeWished_.has_value(); }
  void settleOuterSize();
  /// A place that was saved on a screen which is gone would hide the window.
  void moveOntoScreen();

  // For start-up.
  void processEvents() override { display_.processEvents(); }
  void setVersionCaption(const QString& caption) override { controls_.lblVer->setText(caption); }
  void setWebUpdateEnabled(bool enabled) override { jobs_.setWebUpdateEnabled(enabled); }
  float placement(PlacementKey key) const override;
  void setPlacement(PlacementKey key, float twips) override;

  // For shutdown.
  bool isMinimized() const override { return window_.isMinimized(); }
  void unloadOtherWindows() override;
  void enableSndQTime() override { jobs_.peers().SndQTime().enable(); }

 private:
  QSize frameSize() const { return window_.frameGeometry().size() - window_.size(); }

  QMainWindow& window_;
  const SearchFormControls& controls_;
  SearchFormDisplay& display_;
  SearchFormWork& jobs_;
  SearchFormWindows& windows_;
  /// The outer size asked for before the window had a frame.
  std::optional<QSize> outerSizeWished_;
};

}  // namespace quorvin
