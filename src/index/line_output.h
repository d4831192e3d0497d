// Where the lines of a walk go.
#pragma once

#include "files/file_writer.h"

#include <string_view>

namespace quorvin {

// The option flags of a walk, to be joined by "or".
/// No entry lines for files.
inline constexpr int kFoldersOnly = 2;
/// Lines go to output 1, to output 2, or to both. The first that is set counts, in this order; with none of
/// them nothing is written.
inline constexpr int kToOutput1 = 8;
inline constexpr int kToOutput2 = 16;
inline constexpr int kToBothOutputs = 32;

/// Two open files that lines can be sent to; a file that the flags never choose may be null.
struct LineOutputs {
  FileWriter* output1 = nullptr;
  FileWriter* output2 = nullptr;
};

/// Writes `line` and CR LF to the output or outputs that `flags` choose. Throws fault 52 where that one is
/// null, and RuntimeFault as FileWriter::write does.
void writeLine(std::string_view line, const LineOutputs& outputs, int flags);

}  // namespace quorvin
