// SPDX-License-Identifier: GPL-2.0-or-later

// What callers say to the server of lists, held against docs/formats/peer-messages.md written down once more.
// An input is messages with NULs between them.
#include "faults/runtime_fault.h"
#include "fuzz/require.h"
#include "peers/server/peer_server.h"
#include "support/temporary_folder.h"

#include <QFileInfo>
#include <QStringDecoder>

#include <cstdint>
#include <optional>

namespace quorvin::fuzz {
namespace {

/// A program that has lists to give: some with an archive, two of one name, one in letters of two bytes.
struct Program {
  Program() {
    state.LocalFolder = folder.path();
    state.NickName = QStringLiteral("Bob");
    state.JoinDate = 37622;
    for (const char* name : {"Music", "Films", "Music", "M\xC3\xBCsli", "a:b", ""}) {
      state.OnlineSources.set(++state.OnlineSourceCount, QString::fromUtf8(name), QStringLiteral("/m/"));
    }
    for (const char* name : {"Music.zip", "M\xC3\xBCsli.zip"}) folder.writeFile(QString::fromUtf8(name), "x");
  }

  TemporaryFolder folder;
  ProgramState state;
};

/// What follows the colon and one more character.
QByteArray plainArgument(const QByteArray& message) {
  QByteArray rest = message.sliced(message.indexOf(':') + 1);
  QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
  const QString text = decoder(rest);
  if (rest.isEmpty()) return rest;
  if (decoder.hasError()) return rest.sliced(1);
  const auto first = static_cast<unsigned char>(rest.front());
  return rest.sliced(first < 0x80 ? 1 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4);
}

PeerAnswer plainAnswer(const QByteArray& message, const Program& program) {
  const QByteArray keyword = message.first(message.indexOf(':'));
  if (keyword == "Connecting from") return {"OK:", std::nullopt};
  if (keyword == "I AM") return {"I AM: Bob 37622", std::nullopt};
  if (keyword == "Req List Info") {
    return {"Lists:\r\nMusic\r\nFilms\r\nMusic\r\nM\xC3\xBCsli\r\na:b\r\n\r\n", std::nullopt};
  }
  if (keyword != "GetList") return {"NA:", std::nullopt};
  const QByteArray name = plainArgument(message);
  const bool isMusic = name == "Music";
  const bool isMuesli = name == "M\xC3\xBCsli";
  const int row = isMusic ? 1 : isMuesli ? 4 : program.state.OnlineSourceCount + 1;
  return {"List: " + name + ".zip", row};
}

void check(const QByteArray& message, const Program& program) {
  std::optional<PeerAnswer> answer;
  try {
    answer = answerTo(message, program.state, QLocale::c());
  } catch (const RuntimeFault& fault) {
    require(fault.number() == 5 && !message.contains(':'), "only a message without a colon is a fault");
    return;
  }
  require(message.contains(':'), "a message without a colon is a fault");
  require(*answer == plainAnswer(message, program), "messages are answered as they always were");
  if (!answer->archiveRow) return;
  const QString archive = archivePathOf(program.state, *answer->archiveRow);
  require(QFileInfo(archive).path() + u'/' == program.state.LocalFolder, "archives lie in the data folder");
}

}  // namespace
}  // namespace quorvin::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quorvin::fuzz;
  static const Program program;
  const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  for (const QByteArray& message : bytes.split('\0')) check(message, program);
  return 0;
}
