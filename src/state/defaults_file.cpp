#include "state/defaults_file.h"

#include "faults/runtime_fault.h"
#include "files/file_lookup.h"
#include "state/text_line_reader.h"

namespace quorvin {

void readDefaultsFile(const QString& path, ProgramState& state) {
  TextLineReader lines(path);
  for (QString* setting : {&state.LocalFolder, &state.TextFile, &state.ArchiveFile, &state.WebServer}) {
    const std::optional<TextLine> line = lines.next();
    if (!line) {
      throw RuntimeFault(FaultNumber::InputPastEnd,
                         describe(FaultNumber::InputPastEnd) + QStringLiteral(": ") + path);
    }
    *setting = line->text;
  }
}

void readDefaultsFile(ProgramState& state) {
  const QString path = QString::fromUtf16(kDefaultsFileName);
  if (ordinaryFileExists(path)) readDefaultsFile(path, state);
}

}  // namespace quorvin
