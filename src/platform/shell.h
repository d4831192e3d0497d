// What the desktop does with files for us: opening them, showing where they are, playing them.
#pragma once

#include <QString>

namespace quorvin {

/// What became of a wish to put a file into a player's queue.
enum class EnqueueOutcome {
  /// Handed to a player.
  HandedOver,
  /// No player is set, and none of those that are known is installed.
  NoPlayer,
  /// The player that was chosen could not be started.
  NotStarted,
};

/// The desktop's shell. Paths are whole paths in the native form. Nothing waits for the program that is
/// started, and how it fares is its own matter. User-interface thread only.
class Shell {
 public:
  virtual ~Shell() = default;

  /// Opens a file with the program that the user has chosen for its kind. The program starts in
  /// `workingFolder`.
  virtual void open(const QString& file, const QString& workingFolder) = 0;

  /// Shows `folder` in the file manager, with the file `name` in it selected where the desktop can.
  virtual void openFolder(const QString& folder, const QString& name) = 0;

  /// Appends a file to the queue of an audio player, which starts in `workingFolder` unless it runs already.
  virtual EnqueueOutcome enqueue(const QString& file, const QString& workingFolder) = 0;
};

}  // namespace quorvin
