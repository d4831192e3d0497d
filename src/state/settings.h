// The ten settings: their defaults of a first run, reading them at start-up, writing them at shutdown; and
// the local data folder, which is one of them.
#pragma once

#include "platform/settings_store.h"
#include "state/program_state.h"

#include <QLocale>
#include <QString>

#include <functional>

namespace quorvin {

/// The section of the settings store under which all ten keys stand.
inline constexpr char16_t kSettingsSection[] = u"Settings";

/// The four placement keys, in the order in which they are read and written.
enum class PlacementKey { Top, Left, Width, Height };

/// The main window's place on the screen, as the settings see it: outer measures in twips (15 to the logical
/// pixel).
class WindowPlacement {
 public:
  virtual ~WindowPlacement() = default;
  virtual float placement(PlacementKey key) const = 0;
  /// Moves or resizes the window at once.
  virtual void setPlacement(PlacementKey key, float twips) = 0;
};

/// A single-precision number as settings text, and back. Reading takes the number at the front of the text
/// and throws fault 13 when there is none.
QString placementText(float twips);
float placementValue(const QString& text);

/// Reads the placement keys of `state.RegKey`, each with the window's current value as default, and applies
/// each to the window as soon as it is read, in the order Top, Left, Width, Height.
void readPlacement(const SettingsStore& store, const ProgramState& state, WindowPlacement& window);

/// Reads "LocalFolder", "TextFile", "ArchiveFile", "WebServer", "JoinDate" and "NickName" of `state.RegKey`
/// into `state`, in this order. What `state` holds before is the default of the first four; the default of
/// the date is `now`, of the nickname empty. The join date is kept as text in the locale's general date form.
/// Throws fault 13 when the stored date cannot be read; what was read before stays.
void readSettings(const SettingsStore& store, ProgramState& state, DateValue now, const QLocale& locale);

/// Stores the six settings under `state.RegKey`, in the order in which they are read. Where they could not
/// all be read at start-up, one that is empty now is left as it is stored. Throws as the store does; what was
/// stored before the fault stays.
void writeSettings(SettingsStore& store, const ProgramState& state, const QLocale& locale);

/// Stores the window's place and size under `state.RegKey`: Top, Left, Width, Height. Throws as the store
/// does.
void writePlacement(SettingsStore& store, const ProgramState& state, const WindowPlacement& window);

/// Loads both source lists from `LocalFolder`, each if its file exists, appending to the tables. An empty
/// `LocalFolder` becomes what `programFolder` gives, the program's own folder with its trailing separator; it
/// is not asked otherwise. Throws as loadSourceList does; what was loaded before stays. `state` notes the
/// lists that were read to their end.
void loadSourceLists(ProgramState& state, const std::function<QString()>& programFolder);

/// Settings and sources of this user, as the window loads them when no file is on its command line: the
/// defaults, the settings store, both source lists. Throws RuntimeFault where the window would report a
/// start-up error; what was loaded before stays.
void loadUserSources(ProgramState& state, const QLocale& locale);

/// Whether `folder`, which ends in a separator, can be the local data folder: at least one ordinary file is
/// in it.
bool isValidDataFolder(const QString& folder);

/// The bare file name; it is looked up in the current working folder.
inline constexpr char16_t kDefaultsFileName[] = u"defaults.txt";

/// Reads the four lines of the file at `path` into `LocalFolder`, `TextFile`, `ArchiveFile` and `WebServer`
/// of `state`, in this order, each line as it is (further lines are ignored). Throws RuntimeFault: 62
/// when there are fewer than four lines (those before it are stored), and file faults. Layout:
/// docs/formats/source-lists.md.
void readDefaultsFile(const QString& path, ProgramState& state);

/// The same for the file of that name in the current working folder; does nothing where there is none.
void readDefaultsFile(ProgramState& state);

}  // namespace quorvin
