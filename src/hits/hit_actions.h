// SPDX-License-Identifier: GPL-2.0-or-later

// What the user can do with a hit, apart from the window.
#pragma once

#include "faults/runtime_fault.h"
#include "files/file_lookup.h"
#include "files/path_style.h"
#include "platform/message_box.h"
#include "platform/settings_store.h"
#include "platform/shell.h"
#include "search/hit_path.h"
#include "state/program_state.h"

#include <QString>
#include <QStringView>

#include <cstdint>

namespace quorvin {

/// Which of its changing items the pop-up menu of a hit shows.
struct ItemMenuContent {
  bool showPreview = false;
  bool queue = false;

  bool operator==(const ItemMenuContent&) const = default;
};

/// What the menu shows for a file of this name: the last four characters decide, whatever their case.
ItemMenuContent itemMenuContent(QStringView fileName);

/// Where a hit is in the catalogue, for one whose file cannot be reached: the volume, ":", the folder and the
/// entry text, as listed ("CD_12:\Music\Rock\song.mp3"). Without a volume the folder comes first.
QString cataloguePath(const HitRow& hit);

/// What became of a wish to open a hit.
enum class LaunchOutcome : std::uint8_t {
  Opened,
  /// There is no such file on a connected drive; nothing has been said.
  NotFound,
  /// A fault, which the user has been told of.
  Failed,
};

/// Acts on hits through the shell. A hit that cannot be resolved is no error: nothing happens. A fault on the
/// way is reported in one message and ends the action.
class HitActions {
 public:
  /// Everything must outlive the object.
  HitActions(const ProgramState& state, Shell& shell, MessageBoxes& messages,
             PathStyle style = nativePathStyle(), FileLookUp lookUp = findOrdinaryFile);

  /// The file of a hit; empty when it cannot be resolved.
  HitPath resolve(const HitRow& hit) const;
  /// The same without a message, by a look-up of the caller's: a fault is one more way of not being resolved.
  HitPath resolveQuietly(const HitRow& hit, const FileLookUp& lookUp) const;

  /// Where the file of a hit should be, whether it is there or not; empty for hits that no own folder is
  /// known for.
  QString expectedPath(const HitRow& hit) const;

  /// Opens the file.
  LaunchOutcome launch(const HitRow& hit) const;
  /// Shows the folder of the file; without a name, the folder itself.
  LaunchOutcome openFolder(const HitRow& hit) const;
  /// Appends the file to the queue of an audio player.
  void enqueue(const HitRow& hit) const;

 private:
  template <typename Action>
  LaunchOutcome act(const HitRow& hit, Action&& action) const;
  LaunchOutcome openFolderItself(const HitRow& hit) const;
  HitPath find(const HitRow& hit, const FileLookUp& lookUp, HitPath& asFarAsKnown) const;
  void tellFault(const RuntimeFault& fault, const HitPath& path) const;
  void enqueueFile(const HitPath& path) const;

  const ProgramState& state_;
  Shell& shell_;
  MessageBoxes& messages_;
  PathStyle style_;
  FileLookUp lookUp_;
};

/// The command in the setting "EnqueueCommand" of `state.RegKey`; empty text when there is none. To be read
/// each time, so that a player that is set while the program runs is used.
QString enqueueCommand(const SettingsStore& settings, const ProgramState& state);

}  // namespace quorvin
