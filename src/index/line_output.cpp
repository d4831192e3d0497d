#include "index/line_output.h"

#include "faults/runtime_fault.h"

namespace quorvin {
namespace {

void writeTo(FileWriter* output, std::string_view line) {
  if (output == nullptr) throw RuntimeFault(FaultNumber::BadFileName);
  output->write(line);
  output->write("\r\n");
}

}  // namespace

void writeLine(std::string_view line, const LineOutputs& outputs, int flags) {
  if ((flags & kToOutput1) != 0) {
    writeTo(outputs.output1, line);
  } else if ((flags & kToOutput2) != 0) {
    writeTo(outputs.output2, line);
  } else if ((flags & kToBothOutputs) != 0) {
    writeTo(outputs.output1, line);
    writeTo(outputs.output2, line);
  }
}

}  // namespace quorvin
