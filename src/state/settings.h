// SPDX-License-Identifier: GPL-2.0-or-later

// The ten settings: their defaults of a first run, reading them at start-up, writing them at shutdown; and
// the local data folder, which is one of them. What start-up could not read is not overwritten by shutdown.
#pragma once

#include "platform/message_box.h"
#include "platform/settings_store.h"
#include "state/program_state.h"

#include <QLocale>
#include <QString>

#include <functional>
#include <vector>

namespace quorvin {

/// The section of the settings store under which all ten keys stand.
inline constexpr char16_t kSettingsSection[] = u"Settings";

/// The four placement keys, in the order in which they are read and written.
enum class PlacementKey { Top, Left, Width, Height };

/// Gives one measure of the main window's place on the screen: an outer measure in twips (15 to the logical
/// pixel).
using PlacementOf = std::function<float(PlacementKey)>;
/// Moves or resizes the window to such a measure at once.
using SetPlacement = std::function<void(PlacementKey, float twips)>;

/// A single-precision number as settings text, and back. Reading takes the number at the front of the text
/// and throws fault 13 when there is none.
QString placementText(float twips);
float placementValue(const QString& text);

/// Reads the placement keys of `state.RegKey`, each with the window's current value as default, and applies
/// each to the window as soon as it is read, in the order Top, Left, Width, Height. `state` notes the keys
/// that were read. Throws fault 13 for what is no number, and as the store does.
void readPlacement(const SettingsStore& store, ProgramState& state, const PlacementOf& placement,
                   const SetPlacement& setPlacement);

/// Reads "LocalFolder", "TextFile", "ArchiveFile", "WebServer", "JoinDate" and "NickName" of `state.RegKey`
/// into `state`, in this order, which also notes that they were read. What `state` holds before is the
/// default of the first four; the default of the date is `now`, of the nickname empty. The join date is kept
/// as text in the locale's general date form. Throws fault 13 when the stored date cannot be read, and as the
/// store does; what was read before stays.
void readSettings(const SettingsStore& store, ProgramState& state, DateValue now, const QLocale& locale);

/// One of the six settings that are no window place, as the text that is stored.
struct Setting {
  QString key;
  QString text;
};

/// All six, in the order in which they are read; the text of a join date that is not known is empty.
std::vector<Setting> settingTexts(const ProgramState& state, const QLocale& locale);

/// Sets the setting of that key to what its text says. A join date that cannot be read, and a key that is
/// none of the six, change nothing.
void takeSetting(ProgramState& state, const Setting& setting, const QLocale& locale);

/// Gives an empty `LocalFolder` what `programFolder` gives, the program's own folder with its trailing
/// separator (it is not asked otherwise, and may throw), and one without a separator at its end that
/// separator.
void completeLocalFolder(ProgramState& state, const std::function<QString()>& programFolder);

/// To be called once start-up has ended, also by a fault: notes what it left in the settings, so that one
/// that was not read is saved only when the user has changed it. Sources that are added after a fault need a
/// data folder too: where start-up did not come as far, that is the stored one, else `programFolder`, which
/// may throw. Does not throw.
void noteSettingsAtStart(const SettingsStore& store, ProgramState& state, const QLocale& locale,
                         const std::function<QString()>& programFolder);

/// Whether the user has changed this setting, one of settingTexts(`state`), since start-up.
bool isSettingChanged(const ProgramState& state, const Setting& setting);

/// Stores the six settings under `state.RegKey`, in the order in which they are read. One that was not read
/// at start-up is stored only if the user has changed it since, and a `TextFile` that is still
/// `missingListing` is not stored. Throws as the store does; what was stored before the fault stays.
void writeSettings(SettingsStore& store, const ProgramState& state, const QLocale& locale);

/// Stores the window's place and size under `state.RegKey`: Top, Left, Width, Height. One that was not read
/// at start-up replaces only what is no number, which would end the next start-up too. Throws as the store
/// does in writing.
void writePlacement(SettingsStore& store, const ProgramState& state, const PlacementOf& placement);

/// The eleventh key, "Maximized": where a maximized main window goes back to, as text that only the window
/// understands; empty for one that is not maximized. Nothing is written where nothing changes, so the key is
/// there only after the window was maximized once, nor where the window's place was not read. Both throw as
/// the store does.
QString readMaximized(const SettingsStore& store, const ProgramState& state);
void writeMaximized(SettingsStore& store, const ProgramState& state, const QString& place);

/// Settings and sources of this user, as the window loads them when no file is on its command line: what an
/// earlier version kept beside the program is taken along and `messages` say so, then come the defaults, the
/// settings store, both source lists. Throws RuntimeFault where the window would report a start-up error;
/// what was loaded before stays.
void loadUserSources(ProgramState& state, const QLocale& locale, MessageBoxes& messages);

/// Whether `folder`, which ends in a separator or is empty, can be the local data folder: at least one
/// ordinary file is in it. Empty text names no folder, not even the current one.
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
