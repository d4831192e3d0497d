// What a server answers to a message.
#pragma once

#include "state/program_state.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QLocale>
#include <QString>

#include <optional>

namespace quorvin {

/// The answer to one message: a message, and for a request for a list the row of the sources at which the
/// look for its archive has stopped.
struct PeerAnswer {
  QByteArray message;
  std::optional<int> archiveRow;

  bool operator==(const PeerAnswer&) const = default;
};

/// Answers `message`, the whole of what one data event has brought. Throws fault 5 when it holds no colon.
PeerAnswer answerTo(QByteArrayView message, const ProgramState& state, const QLocale& locale);

/// The path of the archive of the source in `row`: `LocalFolder` + description + ".zip". Throws fault 9
/// beyond the table, which is where the look for an unknown list stops when all 2000 rows are in use.
QString archivePathOf(const ProgramState& state, int row);

}  // namespace quorvin
