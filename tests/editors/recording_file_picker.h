// A file picker for tests: it records the questions and gives the answer that was set.
#pragma once

#include "editors/file_picker.h"
#include "faults/runtime_fault.h"

#include <vector>

namespace quorvin::test {

class RecordingFilePicker : public FilePicker {
 public:
  std::optional<QString> openFile(const FileQuestion& question) override {
    askedForFile.push_back(question);
    return answer();
  }
  std::optional<QString> pickFolder(const FileQuestion& question) override {
    askedForFolder.push_back(question);
    return answer();
  }

  std::vector<FileQuestion> askedForFile;
  std::vector<FileQuestion> askedForFolder;
  /// What is picked next; nothing is a cancel.
  std::optional<QString> pick;
  bool fails = false;

 private:
  std::optional<QString> answer() const {
    if (fails) throw RuntimeFault(FaultNumber::DeviceError);
    return pick;
  }
};

}  // namespace quorvin::test
