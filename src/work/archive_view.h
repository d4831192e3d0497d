// The `Progress` window, as those need it who unpack and download.
#pragma once

#include "work/work_display.h"

#include <QString>

#include <cstdint>

namespace quorvin {

/// What unpacking shows, and how it lets the window live on.
class ArchiveView {
 public:
  virtual ~ArchiveView() = default;

  /// Shows the main window, if it is not shown yet.
  virtual void showMainWindow() = 0;
  /// Shows `Progress` for a new piece of work: the bar at 0, nothing cancelled.
  virtual void showProgress() = 0;
  /// Takes `Progress` away.
  virtual void unloadProgress() = 0;
  /// Sets the label `Status` of `Progress`.
  virtual void setStatus(const QString& text) = 0;
  /// Sets the range of the bar, from 0 to `maximum`; 0 or more.
  virtual void setBarMaximum(std::int32_t maximum) = 0;
  /// Sets the bar; `value` is from 0 to the maximum.
  virtual void setBar(std::int32_t value) = 0;
  /// Lets pending window events run; the user may cancel or close meanwhile.
  virtual void processEvents() = 0;
  /// Whether the main window has been closed: work should end soon, and nothing more is asked or reported.
  virtual bool endRequested() const = 0;
};

}  // namespace quorvin
