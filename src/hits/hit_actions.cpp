// SPDX-License-Identifier: GPL-2.0-or-later
#include "hits/hit_actions.h"

#include "files/file_lookup.h"
#include "files/path_style.h"
#include "platform/text_encoding.h"
#include "state/settings.h"
#include "texts/texts.h"

#include <QFileInfo>

#include <algorithm>
#include <array>
#include <utility>

namespace quorvin {

namespace {

constexpr qsizetype kExtensionLength = 4;
constexpr std::array<QStringView, 5> kPictureExtensions = {u".wmf", u".emf", u".bmp", u".jpg", u".gif"};
constexpr std::array<QStringView, 2> kAudioExtensions = {u".mp3", u".wav"};

constexpr char kNoPlayer[] = QT_TRANSLATE_NOOP(
    "Texts",
    "No audio player was found. Install one of Audacious, VLC, Strawberry, Clementine, DeaDBeeF or "
    "Rhythmbox, or set EnqueueCommand in the settings to the command of your player.");
constexpr char kPlayerNotStarted[] = QT_TRANSLATE_NOOP(
    "Texts",
    "The audio player could not be started. Please check the command in the setting EnqueueCommand.");

QString badFileNameText(const HitPath& path) {
  return Texts::tr(
             "Bad file name Launching: %1\r\n"
             "The file may have been renamed, deleted or moved. Try rescanning the file lists.")
      .arg(path.fullPath());
}

}  // namespace

ItemMenuContent itemMenuContent(QStringView fileName) {
  const QString extension = simpleLowerCase(fileName.right(kExtensionLength));
  const auto isOneOf = [&](const auto& extensions) {
    return std::ranges::find(extensions, QStringView(extension)) != extensions.end();
  };
  return {isOneOf(kPictureExtensions), isOneOf(kAudioExtensions)};
}

QString cataloguePath(const HitRow& hit) {
  const QString volume = hit.volume.isEmpty() ? QString() : hit.volume + u':';
  return volume + hit.folder + hit.name;
}

HitActions::HitActions(const ProgramState& state, Shell& shell, MessageBoxes& messages, PathStyle style,
                       FileLookUp lookUp)
    : state_(state), shell_(shell), messages_(messages), style_(style), lookUp_(std::move(lookUp)) {}

/// When a fault is thrown, `asFarAsKnown` holds what is known by then.
HitPath HitActions::find(const HitRow& hit, const FileLookUp& lookUp, HitPath& asFarAsKnown) const {
  asFarAsKnown.name = hit.name;
  const std::optional<QString> folder = folderOfHit(state_, hit, style_);
  if (!folder) return {};
  asFarAsKnown.folder = *folder;
  const QString name = fileOfEntry(*folder, hit.name, style_, lookUp);
  return name.isEmpty() ? HitPath{} : HitPath{*folder, name};
}

HitPath HitActions::resolve(const HitRow& hit) const {
  HitPath asFarAsKnown;
  try {
    return find(hit, lookUp_, asFarAsKnown);
  } catch (const RuntimeFault& fault) {
    tellFault(fault, asFarAsKnown);
    return {};
  }
}

HitPath HitActions::resolveQuietly(const HitRow& hit, const FileLookUp& lookUp) const {
  HitPath asFarAsKnown;
  try {
    return find(hit, lookUp, asFarAsKnown);
  } catch (const RuntimeFault&) {
    return {};
  }
}

QString HitActions::expectedPath(const HitRow& hit) const {
  try {
    const std::optional<QString> folder = folderOfHit(state_, hit, style_);
    return folder ? *folder + hit.name : QString();
  } catch (const RuntimeFault&) {
    return {};
  }
}

template <typename Action>
LaunchOutcome HitActions::act(const HitRow& hit, Action&& action) const {
  HitPath known;
  try {
    const HitPath path = find(hit, lookUp_, known);
    if (path.isEmpty()) return LaunchOutcome::NotFound;
    known = path;
    action(path);
  } catch (const RuntimeFault& fault) {
    tellFault(fault, known);
    return LaunchOutcome::Failed;
  }
  return LaunchOutcome::Opened;
}

LaunchOutcome HitActions::launch(const HitRow& hit) const {
  return act(hit, [this](const HitPath& path) { shell_.open(path.fullPath(), path.folder); });
}

LaunchOutcome HitActions::openFolder(const HitRow& hit) const {
  if (hit.name.isEmpty()) return openFolderItself(hit);
  return act(hit, [this](const HitPath& path) { shell_.openFolder(path.folder, path.name); });
}

LaunchOutcome HitActions::openFolderItself(const HitRow& hit) const {
  const QString folder = expectedPath(hit);
  if (folder.isEmpty() || !QFileInfo(folder).isDir()) return LaunchOutcome::NotFound;
  shell_.openFolder(folder, QString());
  return LaunchOutcome::Opened;
}

void HitActions::enqueue(const HitRow& hit) const {
  act(hit, [this](const HitPath& path) { enqueueFile(path); });
}

void HitActions::enqueueFile(const HitPath& path) const {
  switch (shell_.enqueue(path.fullPath(), path.folder)) {
    case EnqueueOutcome::HandedOver:
      return;
    case EnqueueOutcome::NoPlayer:
      return messages_.inform(Texts::tr(kNoPlayer));
    case EnqueueOutcome::NotStarted:
      return messages_.inform(Texts::tr(kPlayerNotStarted));
  }
}

void HitActions::tellFault(const RuntimeFault& fault, const HitPath& path) const {
  if (fault.faultNumber() == FaultNumber::BadFileName) return messages_.inform(badFileNameText(path));
  messages_.inform(Texts::tr("Launch Error: %1%2").arg(QString::number(fault.number()), fault.description()));
}

QString enqueueCommand(const SettingsStore& settings, const ProgramState& state) {
  return settings.read(state.RegKey, QString::fromUtf16(kSettingsSection), QStringLiteral("EnqueueCommand"),
                       QString());
}

}  // namespace quorvin
