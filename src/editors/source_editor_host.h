// What the source editor needs of the main window.
#pragma once

namespace quorvin {

class SourceEditorHost {
 public:
  virtual ~SourceEditorHost() = default;

  // Whether the main window's menu items can be chosen.
  virtual void setAddLocalEnabled(bool enabled) = 0;
  virtual void setEditOfflineEnabled(bool enabled) = 0;
  virtual void setReScanEnabled(bool enabled) = 0;

  /// Makes the mouse pointer the arrow with the hourglass, over the whole program.
  virtual void setBusyPointer() = 0;
  /// Sets the mouse pointer back to the default.
  virtual void setDefaultPointer() = 0;

  /// Runs the local list refresh to its end; events are processed meanwhile.
  virtual void refreshLocalLists() = 0;
};

}  // namespace quorvin
