// SPDX-License-Identifier: GPL-2.0-or-later

// A recovery copy that an earlier run has left: what is taken over from it is kept and offered again after
// another crash. An input is the file.
#include "fuzz/require.h"
#include "state/recovery_copy.h"
#include "state/settings.h"
#include "state/source_list_file.h"
#include "support/memory_settings_store.h"
#include "support/recording_message_boxes.h"
#include "support/temporary_folder.h"

#include <QLocale>

#include <cstdint>
#include <utility>
#include <vector>

namespace quorvin::fuzz {
namespace {

/// What a copy may change.
struct Content {
  explicit Content(const ProgramState& state) {
    for (const auto& [key, text] : settingTexts(state, QLocale::c())) settings.emplace_back(key, text);
    for (int row = 1; row <= state.OnlineSourceCount; ++row) {
      online.emplace_back(state.OnlineSources.description(row), state.OnlineSources.path(row));
    }
    for (int row = 1; row <= state.OfflineSourceCount; ++row) {
      offline.emplace_back(state.OfflineSources.description(row), state.OfflineSources.path(row));
    }
  }

  bool operator==(const Content&) const = default;

  std::vector<std::pair<QString, QString>> settings;
  std::vector<std::pair<QString, QString>> online;
  std::vector<std::pair<QString, QString>> offline;
};

class Runs {
 public:
  explicit Runs(const QByteArray& copy) {
    folder_.writeFile(QStringLiteral("Locations.txt"), "\"Music\",\"/home/ann/Music/\"\r\n");
    ProgramState state = started();
    folder_.writeFile(RecoveryCopy(state, QLocale::c(), settings_).path().mid(folder_.path().size()), copy);
  }

  /// What a run has after start-up and the question, before it crashes.
  Content run(bool isTakenOver) {
    ProgramState state = started();
    RecoveryCopy copy(state, QLocale::c(), settings_);
    RecordingMessageBoxes boxes;
    boxes.answers = {isTakenOver};
    copy.offer(boxes);
    require(boxes.asked.size() <= 1, "there is one question at most");
    require(state.OnlineSourceCount <= SourceTable::kLastRow, "a list is no longer than a table");
    isAsked_ = !boxes.asked.empty();
    isKept_ = folder_.names().size() > 1;
    return Content(state);
  }

  Content atStart() const { return Content(started()); }
  bool isAsked() const { return isAsked_; }
  bool isKept() const { return isKept_; }

 private:
  ProgramState started() const {
    ProgramState state;
    state.resetFileNames();
    state.LocalFolder = folder_.path();
    state.NickName = QStringLiteral("Ann");
    state.JoinDate = 37622;
    loadSourceLists(state);
    noteSettingsAtStart(MemorySettingsStore(), state, QLocale::c(), [] { return QString(); });
    return state;
  }

  TemporaryFolder folder_;
  QString settings_ = folder_.pathOf(QStringLiteral("settings.ini"));
  bool isAsked_ = false;
  bool isKept_ = false;
};

void check(const QByteArray& copy) {
  {
    Runs runs(copy);
    require(runs.run(false) == runs.atStart(), "what is not wanted changes nothing");
    require(!runs.isKept(), "what is not wanted is removed");
  }
  Runs runs(copy);
  const Content first = runs.run(true);
  require(runs.isAsked() || first == runs.atStart(), "nothing is taken over without a question");
  const Content second = runs.run(true);
  require(second == first, "what was taken over survives the next crash");
}

}  // namespace
}  // namespace quorvin::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  quorvin::fuzz::check(QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
  return 0;
}
