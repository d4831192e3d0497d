// SPDX-License-Identifier: GPL-2.0-or-later

// A source list that is loaded, changed and saved: whatever it holds, nothing of it is lost. An input is a
// byte, whose bits say what happens in between, and the file.
#include "faults/runtime_fault.h"
#include "fuzz/require.h"
#include "platform/text_encoding.h"
#include "state/settings.h"
#include "state/source_list_file.h"
#include "support/recording_message_boxes.h"
#include "support/temporary_folder.h"

#include <QDir>

#include <cstdint>

namespace quorvin::fuzz {
namespace {

const QString kList = QStringLiteral("Locations.txt");
const QString kListing = QStringLiteral("music.txt");

struct Happening {
  explicit Happening(std::uint8_t choices)
      : listAppears((choices & 1) != 0),
        isEmptied((choices & 2) != 0),
        isAddedTo((choices & 4) != 0),
        savesTwice((choices & 8) != 0) {}

  /// The file comes only after the program has started.
  bool listAppears;
  bool isEmptied;
  bool isAddedTo;
  bool savesTwice;
};

QByteArray recordsOf(const SourceTable& table, int count) {
  QByteArray text;
  for (int row = 1; row <= count; ++row) {
    text +=
        encodeSystemText(u'"' + table.description(row) + QStringLiteral("\",\"") + table.path(row) + u'"') +
        "\r\n";
  }
  return text;
}

/// Whether a file beside the list holds these bytes.
bool isKept(const TemporaryFolder& folder, const QByteArray& bytes) {
  for (const QString& name : folder.names()) {
    if (name != kList && name != kListing && folder.readFile(name) == bytes) return true;
  }
  return false;
}

/// Whether all of the lists was read.
bool load(ProgramState& state) {
  try {
    loadSourceLists(state);
    return true;
  } catch (const RuntimeFault& fault) {
    require(fault.number() == 62 || fault.number() == 9, "a list ends in a record, or holds too many");
    return false;
  }
}

bool canBeWritten(const SourceTable& table, int count) {
  for (int row = 1; row <= count; ++row) {
    if (table.description(row).contains(u'"') || table.path(row).contains(u'"')) return false;
  }
  return true;
}

void requireReadBack(const ProgramState& state) {
  SourceTable table;
  int count = 0;
  loadSourceList(state.LocalFolder + kList, table, count);
  require(count == state.OnlineSourceCount, "as many sources are read as were saved");
  for (int row = 1; row <= count; ++row) {
    require(table.description(row) == state.OnlineSources.description(row),
            "a description is read as it was saved");
    require(table.path(row) == state.OnlineSources.path(row), "a path is read as it was saved");
  }
}

void check(const Happening& happening, const QByteArray& before) {
  const TemporaryFolder folder;
  folder.writeFile(kListing, "x");
  ProgramState state;
  state.resetFileNames();
  state.LocalFolder = folder.path();
  if (!happening.listAppears) folder.writeFile(kList, before);
  const bool isRead = load(state) && !happening.listAppears && state.onlineListRead.shiftedPath.isEmpty();
  if (happening.listAppears) folder.writeFile(kList, before);
  if (happening.isEmptied) state.OnlineSourceCount = 0;
  if (happening.isAddedTo && state.OnlineSourceCount < SourceTable::kLastRow) {
    state.OnlineSources.set(++state.OnlineSourceCount, QStringLiteral("New"), QStringLiteral("/new/"));
  }
  RecordingMessageBoxes boxes;
  saveOnlineSources(state, boxes);
  if (happening.savesTwice) saveOnlineSources(state, boxes);
  const QByteArray after = folder.readFile(kList);
  const bool isUntouched = after == before;
  require(isUntouched || after == recordsOf(state.OnlineSources, state.OnlineSourceCount),
          "the list is the old one, or the sources");
  require(isUntouched || isRead || isKept(folder, before), "what was not read is kept before it is replaced");

  const bool isSaved = !isUntouched || after == recordsOf(state.OnlineSources, state.OnlineSourceCount);
  if (isSaved && canBeWritten(state.OnlineSources, state.OnlineSourceCount)) requireReadBack(state);
}

}  // namespace
}  // namespace quorvin::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quorvin::fuzz;
  if (size == 0) return 0;
  check(Happening(data[0]),
        QByteArray(reinterpret_cast<const char*>(data) + 1, static_cast<qsizetype>(size) - 1));
  return 0;
}
