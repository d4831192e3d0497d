// What the source editor needs of the main window.
#pragma once

namespace quorvin {

class SourceEditorHost {
 public:
  virtual ~SourceEditorHost() = default;

  // Whether the main window's menu items can be chosen.
  virtual void setAddLocalEnabled(bool enabled) = 0;
  virtual void setEditOfflineEnabled(bool enabled) = 0;

  /// Runs the local list refresh to its end, with the menu item `ReScan` disabled and the mouse pointer told
  /// of work; events are processed meanwhile. While a refresh is running already, another follows it, and the
  /// call returns at once.
  virtual void refreshLocalLists() = 0;
};

}  // namespace quorvin
